#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/file_numbers.h"
#include "core/pixel_surface.h"
#include "gamedata/byte_source.h"

namespace qf::gamedata {

/// A 16-bit pixel (1-5-5-5, read as a signed number) as a colour: each field shifted left by 3.
inline core::Rgb TruncatingColour(std::int16_t pixel)
{
    const auto bits = static_cast<std::uint16_t>(pixel);
    return (bits & 0x7C00U) << 9 | (bits & 0x03E0U) << 6 | (bits & 0x001FU) << 3;
}

/// The same with the red and green fields taken from the quotients rounded to the nearest whole number, ties
/// to the even one, so that a field grows by one past one half and 31 may wrap to 0.
core::Rgb RoundingColour(std::int16_t pixel);

/// What drawing a tile depends on beside the tile: the state of "See Item Pics", the client folder in the
/// program's form with its separator at the end, and the background of tile pictures.
struct TileDrawing {
    bool        seeItemPics = false;
    std::string uoPath;
    core::Rgb   background = core::White;
};

/// Draws the static tile of an item ID on a picture, as `art.mul` and `artidx.mul` of the client folder hold
/// it. Files that are missing, an absent tile and an off setting leave the picture as it was or blank.
/// `id` becomes the number of its index record where the setting is on.
///
/// The index has records of 12 bytes: lookup (signed 32-bit byte offset, -1 for none), size, and a third
/// field. A tile is a 32-bit flag, then either the pixels of a diamond or width, height, line starts and runs.
///
/// Throws RuntimeError 6 where a number leaves its range, 63 where the index record's number is negative, 67
/// where no file number is free. A tile found damaged in its course leaves both file numbers in use.
void DrawStaticTile(std::int32_t& id, core::PixelSurface& picture, const TileDrawing& drawing,
                    core::FileNumbers& numbers);

/// The clothing panel's own form of the same, whose background is white whatever the shared colour is.
void DrawStaticTile2(std::int32_t& id, core::PixelSurface& picture, const TileDrawing& drawing,
                     core::FileNumbers& numbers);

/// Draws the tile of an item ID from files that the caller has opened, on a surface that it has cleared. The
/// surface takes the tile's own size, without margin or limit.
/// Throws RuntimeError 6 where a number leaves its range, 63 where the index record's number is negative.
void DrawStaticTileFromFiles(std::int32_t id, core::PixelSurface& picture, ByteSource& index, ByteSource& art,
                             bool seeItemPics, core::Rgb background);

/// What `DrawStaticTile` draws once its files are open and the picture is cleared: the tile of an index record.
/// False where the tile is found damaged in its course.
/// Throws RuntimeError 6 where a number leaves its range, 63 where the record's number is negative.
bool DrawIndexRecord(std::int32_t record, core::PixelSurface& picture, ByteSource& index, ByteSource& art);

/// A tile as the game itself shows it: all its lines, and clear (0) where its runs leave pixels out. Pixels are
/// 0xFFRRGGBB, row by row.
struct TileImage {
    int                        width = 0;
    int                        height = 0;
    std::vector<std::uint32_t> pixels;
};

/// The static tile of an item ID; nothing where the tile is absent (its record has no place or no size), damaged
/// or empty. A diamond is 44 by 44 pixels.
std::optional<TileImage> ReadTileImage(std::int32_t id, ByteSource& index, ByteSource& art);

} // namespace qf::gamedata
