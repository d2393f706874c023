#pragma once

#include <cstdint>
#include <span>

#include "practice/tile_kinds.h"

namespace qf::practice {

// clang-format off

/// The tiles of one wall type: short and long, then the two windows; 0 where there is none.
struct WallRow {
    std::uint16_t nsShort, nsLong, ewShort, ewLong, postShort, postLong, cornerShort, cornerLong, windowNs, windowEw;
    std::uint32_t colour;
    Pattern       pattern;
};

/// The slopes of one roof material: first, ridge and last row of each direction.
struct RoofRow {
    std::uint16_t nsFirst, nsRidge, nsLast, ewFirst, ewRidge, ewLast;
    std::uint32_t colour;
    Pattern       pattern;
};

/// The tiles of one stair material; a step is named by the direction to which it falls.
struct StairRow {
    std::uint16_t north, west, south, east, block;
    std::uint32_t colour;
    Pattern       pattern;
};

/// A run of tile numbers of one look. The first row that holds a number counts, so single tiles stand
/// before the runs around them.
struct RunRow {
    std::uint16_t first, last;
    TileLook      look;
};

/// Doors come in blocks of sixteen tiles: the first eight hang in walls along X, the others in walls along Y.
struct DoorRow {
    std::uint16_t first, last;
    std::uint32_t colour;
};

// clang-format on

extern const std::span<const WallRow>  WallRows;
extern const std::span<const RoofRow>  RoofRows;
extern const std::span<const StairRow> StairRows;
extern const std::span<const DoorRow>  DoorRows;

/// What lies on the ground and grows out of it, and furniture.
extern const std::span<const RunRow> PlaceRuns;

/// Single items, garments, and the parts of objects that cover several cells.
extern const std::span<const RunRow> ItemRuns;

} // namespace qf::practice
