#include "construction/roof_tables.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr TileRoofRow tileRoofRows[] = {
    // first, ridge and last tile, North/South and East/West
    {"Wooden Shingles", {"05d0", "05ce", "05cf"}, {"05c4", "05c2", "05c3"}}, // 0
    {"Palm Fronds",     {"0594", "0593", "0592"}, {"0591", "0590", "058f"}}, // 1
    {"Thatch",          {"05a9", "05a8", "05a7"}, {"05a6", "05a5", "05a4"}}, // 2
    {"Slates",          {"05a3", "05a1", "05a2"}, {"0597", "0595", "0596"}}, // 3
    {"Tiles",           {"05c1", "05bf", "05c0"}, {"05b5", "05b3", "05b4"}}, // 4
    {"Logs",            {"05fe", "05fc", "05fd"}, {"05f2", "05f0", "05f1"}}, // 5
    {"Rooftile",        {"193c", "193d", "193a"}, {"193b", "193e", "1939"}}, // 6
    {"Ceramic (Black)", {"23c7", "23d1", "23c1"}, {"23c5", "23be", "23c3"}}, // 7
    {"Ceramic (Red)",   {"23e0", "23d5", "23da"}, {"23de", "23d4", "23dc"}}, // 8
    {"Ceramic (Blue)",  {"23f6", "23eb", "23f0"}, {"23f4", "23ea", "23f2"}}, // 9
    {"Hay Roof",        {"26ec", "26ea", "26eb"}, {"26dc", "26da", "26db"}}, // 10
    {"Bark Roof",       {"270a", "2708", "2709"}, {"26fa", "26f8", "26f9"}}, // 11
    {"Stone Roofing",   {"28c4", "28c2", "28c3"}, {"28b4", "28b2", "28b3"}}, // 12
    {"Wood Slat",       {"28da", "28d8", "28d9"}, {"28ca", "28c8", "28c9"}}, // 13
    {"Ceramic (Gold)",  {"28fc", "28f1", "28f6"}, {"28fa", "28f0", "28f8"}}, // 14
    {"Ceramic (Snow)",  {"2912", "2907", "290c"}, {"2910", "2906", "290e"}}, // 15
    {"Ceramic (Fire)",  {"292c", "2921", "2926"}, {"292a", "2920", "2928"}}, // 16
    {"Forest Roof",     {"2ba6", "2ba4", "2ba5"}, {"2b96", "2b94", "2b95"}}, // 17
};

constexpr FlatRoofRow flatRoofRows[] = {
    // North/South, East/West, shown
    {"Red Stone",    "055c", "055f", 0x055c}, // 0
    {"White Stone",  "0574", "0576", 0x0573}, // 1
    {"Brown Stone",  "0579", "057c", 0x0579}, // 2
    {"Slate (blue)", "057f", "0583", 0x057f}, // 3
    {"Stone",        "0637", "0637", 0x0637}, // 4
    {"Marble",       "063b", "063b", 0x063b}, // 5
};
// clang-format on

} // namespace

std::span<const TileRoofRow> TileRoofRows()
{
    return tileRoofRows;
}

std::span<const FlatRoofRow> FlatRoofRows()
{
    return flatRoofRows;
}

} // namespace qf::construction
