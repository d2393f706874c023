#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qf::construction {

/// The tiles of a gable as hex digits, in the order in which its rows are laid.
struct RoofTriple {
    std::string_view first;
    std::string_view ridge;
    std::string_view last;
};

/// A material of tile roofs. The direction names the way the ridge runs across.
struct TileRoofRow {
    std::string_view caption;
    RoofTriple       northSouth;
    RoofTriple       eastWest;
};

/// A material of flat roofs: its tiles as hex digits, and the number of the tile that is shown for it, which
/// is not always one that is laid.
struct FlatRoofRow {
    std::string_view caption;
    std::string_view northSouth;
    std::string_view eastWest;
    std::int32_t     shown;
};

std::span<const TileRoofRow> TileRoofRows();
std::span<const FlatRoofRow> FlatRoofRows();

} // namespace qf::construction
