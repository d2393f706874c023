#include "items/items_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr ItemRow plantRows[] = {
    {"Potted Tree",        "S", {"", "", "11c8"}}, // 0
    {"Potted Tree (tall)", "S", {"", "", "11c9"}}, // 1
    {"Flowerpot",          "S", {"", "", "11cb"}}, // 2
    {"Flowerpot (tall)",   "S", {"", "", "11cc"}}, // 3
    {"Flowerpot (wide)",   "S", {"", "", "11ca"}}, // 4
    {"Potted Cactus",      "S", {"", "", "1e0f"}}, // 5
    {"Potted Cactus 2",    "S", {"", "", "1e10"}}, // 6
    {"Potted Cactus 3",    "S", {"", "", "1e11"}}, // 7
    {"Potted Cactus 4",    "S", {"", "", "1e12"}}, // 8
    {"Potted Cactus 5",    "S", {"", "", "1e13"}}, // 9
    {"Potted Cactus 6",    "S", {"", "", "1e14"}}, // 10
};

constexpr ItemRow wallDecorRows[] = {
    {"Bear Head",             "NW", {"1e60", "1e67", "", ""}}, // 0
    {"Deer Head",             "NW", {"1e61", "1e68", "", ""}}, // 1
    {"Fish",                  "NW", {"1e62", "1e69", "", ""}}, // 2
    {"Creature Head",         "NW", {"1e63", "1e6a", "", ""}}, // 3
    {"Orcish Head",           "NW", {"1e64", "1e6b", "", ""}}, // 4
    {"Troll Head",            "NW", {"1e66", "1e6d", "", ""}}, // 5
    {"Polar Bear Head",       "NW", {"1e65", "1e6c", "", ""}}, // 6
    {"Female Portrait 1",     "NW", {"0e9f", "0ec8", "", ""}}, // 7
    {"Female Portrait 2",     "NW", {"0ee7", "0ec9", "", ""}}, // 8
    {"Female Portrait 3",     "NW", {"0ea7", "0ea8", "", ""}}, // 9
    {"Male Portrait",         "NW", {"0ea3", "0ea4", "", ""}}, // 10
    {"Large Painting",        "N",  {"0ea0", "",     "", ""}}, // 11
    {"Ruined Large Painting", "N",  {"0c2c", "",     "", ""}}, // 12
    {"Serpent Crest",         "W",  {"",     "1514", "", ""}}, // 13
    {"Broken Clock",          "NW", {"104c", "104b", "", ""}}, // 14
};

constexpr ItemRow lightsourceRows[] = {
    {"Wall Torch",        "NW", {"0A0c", "0A07"}}, // 0
    {"Wall Candle",       "NW", {"0A02", "09fd"}}, // 1
    {"Candle",            "N",  {"0A0f", ""}},     // 2
    {"Tall Candle",       "N",  {"0B1a", ""}},     // 3
    {"Candelabra",        "N",  {"0B1d", ""}},     // 4
    {"Tall Candelabra",   "N",  {"0B26", ""}},     // 5
    {"Brazier",           "N",  {"0E31", ""}},     // 6
    {"Standing Brazier",  "N",  {"19aa", ""}},     // 7
    {"Low Brazier",       "N",  {"1F2b", ""}},     // 8
    {"Normal Torch",      "N",  {"0a12", ""}},     // 9
    {"Skull Candle",      "N",  {"1854", ""}},     // 10
    {"Square Lit L.Post", "N",  {"0b20", ""}},     // 11
    {"Square Post",       "N",  {"0b21", ""}},     // 12
    {"Round Lit Post",    "N",  {"0b22", ""}},     // 13
    {"Round Post",        "N",  {"0b23", ""}},     // 14
    {"Fancy Lit Post",    "N",  {"0b24", ""}},     // 15
    {"Fancy L.Post",      "N",  {"0b25", ""}},     // 16
    {"Lantern",           "N",  {"0a22", ""}},     // 17
    {"Paper Lantern 1",   "N",  {"24bb", ""}},     // 18
    {"Paper Lantern 2",   "N",  {"24bd", ""}},     // 19
    {"Paper Lantern 3",   "N",  {"24bf", ""}},     // 20
    {"Paper Lantern 4",   "NW", {"24c1", "24c3"}}, // 21
    {"Paper Lantern 5",   "NW", {"24c5", "24c7"}}, // 22
    {"Paper Lantern 6",   "N",  {"24c9", ""}},     // 23
};

constexpr ItemRow other1Rows[] = {
    {"Scarecrow",        "NW", {"1e34", "1e35"}}, // 0
    {"Pickpocket Dip",   "NW", {"1e2c", "1e2d"}}, // 1
    {"Dartboard",        "NW", {"1e2e", "1e2f"}}, // 2
    {"Dartboard (axe)",  "NW", {"1e30", "1e31"}}, // 3
    {"Dartboard(knife)", "NW", {"1e32", "1e33"}}, // 4
    {"Bulletin Board",   "NW", {"1e5e", "1e5f"}}, // 5
    {"Black Moongate",   "N",  {"1fd4", ""}},     // 6
    {"Cauldron",         "NW", {"0974", "0975"}}, // 7
    {"Red Moongate",     "N",  {"0dda", ""}},     // 8
    {"Stump (axes)",     "NW", {"0e56", "0e58"}}, // 9
    {"Stump",            "NW", {"0e57", "0e59"}}, // 10
    {"Saddle",           "NW", {"0f37", "0f38"}}, // 11
    {"Blue Moongate",    "N",  {"0f6c", ""}},     // 12
    {"Spinning Wheel",   "NW", {"1019", "1015"}}, // 13
    {"Archery Butte",    "NW", {"100b", "100a"}}, // 14
    {"Training Dummy",   "NW", {"1070", "1074"}}, // 15
    {"Guillotine",       "N",  {"1230", "125e"}}, // 16
    {"Water Barrel",     "N",  {"154d", ""}},     // 17
    {"Hay Sheave",       "N",  {"100c", ""}},     // 18
    {"Rolling Head",     "N",  {"1f1f", ""}},     // 19
    {"Peg Board",        "NW", {"0c39", "0c3a"}}, // 20
    {"Anvil",            "NW", {"0faf", "0fb0"}}, // 21
    {"Small Forge",      "N",  {"0fb1", ""}},     // 22
};

constexpr ItemRow other2Rows[] = {
    {"Fireplace (brick, no fire)",       "NWSE", {"08d0", "08d3", "08cf", "08d4"}}, // 0
    {"Fireplace (Stone, no fire)",       "NWSE", {"08db", "08df", "08da", "08de"}}, // 1
    {"Fireplace (brick, logs, no fire)", "NWSE", {"0936", "0944", "0935", "0943"}}, // 2
    {"Fireplace (Stone, logs, no fire)", "NWSE", {"0952", "0960", "0951", "095f"}}, // 3
    {"Fireplace (brick, fire)",          "NWSE", {"0936", "0944", "0937", "0945"}}, // 4
    {"Fireplace (Stone, fire)",          "NWSE", {"0959", "0967", "0953", "0961"}}, // 5
    {"Stone Oven",                       "NWSE", {"092c", "0931", "092b", "0930"}}, // 6
    {"Loom",                             "NWSE", {"1060", "1061", "105f", "1062"}}, // 7
    {"Water Trough",                     "NWSE", {"0b41", "0b43", "0b42", "0b44"}}, // 8
    {"Standing Harp",                    "NWSE", {"0eb1", "0eb1", "0eb1", "0eb1"}}, // 9
};
// clang-format on

} // namespace

std::span<const ItemRow> PlantRows()
{
    return plantRows;
}

std::span<const ItemRow> WallDecorRows()
{
    return wallDecorRows;
}

std::span<const ItemRow> LightsourceRows()
{
    return lightsourceRows;
}

std::span<const ItemRow> Other1Rows()
{
    return other1Rows;
}

std::span<const ItemRow> Other2Rows()
{
    return other2Rows;
}

} // namespace qf::items
