#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/pixel_surface.h"

namespace qf::test {

/// Numbers as the game's files hold them, low byte first.
std::string Words(const std::vector<int>& numbers);
std::string Long(std::int64_t number);

std::string IndexRecord(std::int64_t lookup, std::int32_t size = 1);

/// An index whose static tile of item ID `id` (0 or more) has this record; all before it are absent.
std::string IndexOf(int id, const std::string& record);

/// A line of a run tile: the numbers of its runs, the pair that ends it included.
using Line = std::vector<int>;

/// A run tile with a line table that leads to its lines one behind the other.
std::string RunTile(int width, int height, const std::vector<Line>& lines, std::int64_t flag = 1);

/// The same with a line table of one's own.
std::string RunTileAt(int width, int height, const std::vector<int>& lineStarts, const std::vector<int>& words);

/// The item ID whose record is the first of an index.
inline constexpr std::int32_t FirstOfIndex = -0x4000;

/// Pixels of a file and the letters that `Rows` shows them as. A skipped pixel is '.', any other colour '?'.
inline constexpr int Red = 0x7C00;   // r
inline constexpr int Green = 0x03E0; // g
inline constexpr int Blue = 0x001F;  // b
inline constexpr int Black = 0;      // #

/// A surface that remembers how large it was at each of its refreshes.
class Canvas final : public core::PixelSurface {
  public:
    struct Size {
        int  width = 0;
        int  height = 0;
        bool operator==(const Size&) const = default;
    };

    using core::PixelSurface::PixelSurface;

    void Refresh() override { refreshes.push_back({Width(), Height()}); }

    Size Now() const { return {Width(), Height()}; }

    std::vector<Size> refreshes;
};

/// What a surface shows, a letter for each pixel.
std::vector<std::string> Rows(const core::PixelSurface& surface);

/// The count of pixels that are not white.
int Drawn(const core::PixelSurface& surface);

} // namespace qf::test
