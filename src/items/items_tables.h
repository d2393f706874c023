#pragma once

#include <array>
#include <span>
#include <string_view>

namespace qf::items {

/// The tabs of the items panel.
enum ItemTab {
    Chairs = 0,
    Benches = 1,
    Tables = 2,
    Beds = 3,
    Containers = 4,
    Plants = 5,
    WallDecor = 6,
    Lightsources = 7,
    Other1 = 8,
    Other2 = 9,
    Doors = 10,
    Signs = 11,
    RuinedFurniture = 12,
};

inline constexpr int TabCount = 13;

/// The ways in which an item faces, which are the columns of the tables.
enum Facing { North = 0, West = 1, South = 2, East = 3 };

/// An item: its caption, the letters of the facings that its option enables, and the hex digits of its tiles by
/// facing. A door has a second layer, for its other open direction. An empty text is an entry without a tile.
struct ItemRow {
    std::string_view                caption;
    std::string_view                facings;
    std::array<std::string_view, 4> tiles;
    std::array<std::string_view, 4> otherTiles = {};

    bool Faces(char letter) const { return facings.find(letter) != std::string_view::npos; }
};

std::span<const ItemRow> ChairRows();
std::span<const ItemRow> BenchRows();
std::span<const ItemRow> TableRows();
std::span<const ItemRow> BedRows();
std::span<const ItemRow> ContainerRows();
std::span<const ItemRow> PlantRows();
std::span<const ItemRow> WallDecorRows();
std::span<const ItemRow> LightsourceRows();
std::span<const ItemRow> Other1Rows();
std::span<const ItemRow> Other2Rows();
std::span<const ItemRow> DoorRows();
std::span<const ItemRow> SignRows();
std::span<const ItemRow> RuinedRows();

/// A tab: its caption, the name of its options, their items, and how many columns its table has. A column past
/// those of a row holds no tile.
struct ItemTabInfo {
    std::string_view         caption;
    std::string_view         options;
    std::span<const ItemRow> rows;
    int                      columns;
};

/// The tab with this number, 0 to 12.
const ItemTabInfo& TabInfo(int tab);

} // namespace qf::items
