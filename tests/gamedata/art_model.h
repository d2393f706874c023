#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/pixel_surface.h"

namespace qf::test {

/// The slow, plain way to draw a tile that the program's own is compared with: it reads two bytes at a time, looks
/// at one pixel at a time, and shares nothing with the program.
struct ArtModel {
    enum class End {
        Closed,
        LeftOpen,
        Overflow,
    };

    ArtModel(int surfaceWidth, int surfaceHeight);

    /// Draws from files that it opens and closes itself; `record` is the number of an index record.
    End Draw(const std::string& index, const std::string& art, std::int64_t record);

    /// Draws from files that somebody else has open.
    void DrawFromFiles(const std::string& index, const std::string& art, std::int64_t record);

    /// Whether a surface has the model's size and pixels.
    bool Equals(const core::PixelSurface& surface) const;

    int                    width;
    int                    height;
    int                    refreshes = 0;
    std::vector<core::Rgb> pixels;

  private:
    End  DrawTile(const std::string& index, const std::string& art, std::int64_t record, bool fromFiles);
    void Erase();
    void SetWidth(int newWidth);
    void SetHeight(int newHeight);
    void Plot(std::int64_t x, std::int64_t y, core::Rgb colour);
};

/// The two conversions of a pixel, in doubles.
core::Rgb ModelTruncating(int pixel);
core::Rgb ModelRounding(int pixel);

} // namespace qf::test
