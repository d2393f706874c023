#pragma once

#include <span>
#include <string_view>

namespace qf::construction {

/// The tabs of the floors panel, in their order.
enum FloorTab { FloorsOne = 0, FloorsTwo = 1, Rugs = 2, Carpets = 3 };

/// The directions in which a floor may lie.
enum FloorDirection { NorthSouth = 0, EastWest = 1 };

/// A floor, rug or carpet: its caption, its tab and the four hex digits of its tile in each direction.
struct FloorRow {
    std::string_view caption;
    FloorTab         tab;
    std::string_view northSouth;
    std::string_view eastWest;
};

/// The eight tiles around a centre, as hex digits, named by where in the box they lie.
struct FloorBorder {
    std::string_view cornerX1Y1;
    std::string_view cornerX2Y1;
    std::string_view cornerX2Y2;
    std::string_view cornerX1Y2;
    std::string_view edgeY1;
    std::string_view edgeY2;
    std::string_view edgeX1;
    std::string_view edgeX2;
};

/// All floors by type (the first tab's, then the second's), all rugs, all carpets.
std::span<const FloorRow> FloorRows();
std::span<const FloorRow> RugRows();
std::span<const FloorRow> CarpetRows();

/// The border of a floor type in a direction; null for a type without one.
const FloorBorder* BorderOfFloor(int type, int direction);

/// The border of a carpet: one for both directions, but for the goza mat.
const FloorBorder& BorderOfCarpet(int carpet, int direction);

/// The carpet that reads its centre and its border by the selected direction.
inline constexpr int GozaMat = 11;

} // namespace qf::construction
