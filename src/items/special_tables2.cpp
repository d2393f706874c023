#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent wallCarving1EastWest[] = {
    {"12 37",  0,  0}, {"12 38",  1,  0}, {"12 39",  2,  0},
};

constexpr SpecialComponent wallCarving1NorthSouth[] = {
    {"12 3c",  0,  0}, {"12 3a",  0,  1}, {"12 3b",  0,  2, 0, BasePoint::Ignored},
};

constexpr SpecialComponent wallCarving2EastWest[] = {
    {"12 1d",  0,  0}, {"12 1e",  1,  0}, {"12 1f",  2,  0},
};

constexpr SpecialComponent wallCarving3NorthSouth[] = {
    {"12 42",  0,  0}, {"12 41",  0,  1}, {"12 40",  0,  2},
};

constexpr SpecialComponent wallCarving4EastWest[] = {
    {"12 20",  0,  0}, {"12 21",  1,  0},
};

constexpr SpecialComponent wallCarving5EastWest[] = {
    {"12 31",  0,  0, 2}, {"12 32",  1,  0, 0}, {"12 33",  2,  0, 0},
};

constexpr SpecialComponent wallCarving6EastWest[] = {
    {"12 67",  0,  0}, {"12 66",  0,  1}, {"12 65",  0,  2},
};

constexpr SpecialComponent rackEastWest[] = {
    {"12 54",  0,  0}, {"12 53",  1,  0}, {"12 50",  2,  0}, {"12 4f",  3,  0}, {"12 55",  0,  1},
    {"12 52",  1,  1}, {"12 51",  2,  1}, {"12 4e",  3,  1},
};

constexpr SpecialComponent rackNorthSouth[] = {
    {"12 5c",  0,  0}, {"12 5b",  0,  1}, {"12 58",  0,  2}, {"12 57",  0,  3}, {"12 5d",  1,  0},
    {"12 5a",  1,  1}, {"12 59",  1,  2}, {"12 56",  1,  3},
};

constexpr SpecialComponent choppingBlockEastWest[] = {
    {"12 6b",  0,  0}, {"12 6c",  0, -1}, {"12 6d",  0, -2}, {"12 6e", -1, -2}, {"12 6f", -1, -1},
    {"12 70", -1,  0}, {"12 71", -2,  0}, {"12 72", -2, -1}, {"12 73", -2, -2},
};

constexpr SpecialComponent choppingBlockNorthSouth[] = {
    {"12 74",  0,  0}, {"12 75", -1,  0}, {"12 76", -2,  0}, {"12 77", -2, -1}, {"12 78", -1, -1},
    {"12 79",  0, -1}, {"12 7a",  0, -2}, {"12 7b", -1, -2}, {"12 7c", -2, -2},
};

constexpr SpecialComponent pilloryEastWest[] = {
    {"12 87",  0,  0}, {"12 88",  1,  0}, {"12 89",  2,  0}, {"12 84",  2,  1}, {"12 85",  1,  1},
    {"12 86",  0,  1}, {"12 81",  0,  2}, {"12 82",  1,  2}, {"12 83",  2,  2}, {"12 7e",  2,  3},
    {"12 7f",  1,  3}, {"12 80",  0,  3},
};

constexpr SpecialComponent pilloryNorthSouth[] = {
    {"12 93",  0,  0}, {"12 92",  1,  0}, {"12 8d",  2,  0}, {"12 8c",  3,  0}, {"12 8b",  3,  1},
    {"12 91",  2,  1}, {"12 91",  1,  1}, {"12 94",  0,  1}, {"12 95",  0,  2}, {"12 90",  1,  2},
    {"12 8f",  2,  2}, {"12 8a",  3,  2},
};

constexpr SpecialComponent bearskinRugNorthSouth[] = {
    {"1e 3e",  0,  0}, {"1e 3d",  1,  0}, {"1e 3c",  2,  0}, {"1e 39",  0,  1}, {"1e 3a",  1,  1},
    {"1e 3b",  2,  1}, {"1e 38",  0,  2}, {"1e 37",  1,  2}, {"1e 36",  2,  2},
};

constexpr SpecialComponent bearskinRugEastWest[] = {
    {"1e 48",  0,  0}, {"1e 43",  1,  0}, {"1e 42",  2,  0}, {"1e 47",  0,  1}, {"1e 44",  1,  1},
    {"1e 41",  2,  1}, {"1e 46",  0,  2}, {"1e 45",  1,  2}, {"1e 40",  2,  2},
};

constexpr SpecialComponent polarBearskinRugNorthSouth[] = {
    {"1e 51",  0,  0}, {"1e 50",  1,  0}, {"1e 4f",  2,  0}, {"1e 4c",  0,  1}, {"1e 4d",  1,  1},
    {"1e 4e",  2,  1}, {"1e 4b",  0,  2}, {"1e 4a",  1,  2}, {"1e 49",  2,  2},
};

constexpr SpecialComponent polarBearskinRugEastWest[] = {
    {"1e 5b",  0,  0}, {"1e 56",  1,  0}, {"1e 55",  2,  0}, {"1e 5a",  0,  1}, {"1e 57",  1,  1},
    {"1e 54",  2,  1}, {"1e 59",  0,  2}, {"1e 58",  1,  2}, {"1e 53",  2,  2},
};

constexpr SpecialObject objects[] = {
    {"Wall Carving 1(E/W)",      wallCarving1EastWest},       // 0
    {"Wall Carving 1(N/S)",      wallCarving1NorthSouth},     // 1
    {"Wall Carving 2(E/W)",      wallCarving2EastWest},       // 2
    {"Wall Carving 3(N/S)",      wallCarving3NorthSouth},     // 3
    {"Wall Carving 4(E/W)",      wallCarving4EastWest},       // 4
    {"Wall Carving 5(E/W)",      wallCarving5EastWest},       // 5
    {"Wall Carving 6(E/W)",      wallCarving6EastWest},       // 6
    {"Rack (East/West)",         rackEastWest},               // 7
    {"Rack (North/South)",       rackNorthSouth},             // 8
    {"Chopping Block (E/W)",     choppingBlockEastWest},      // 9
    {"Chopping Block (N/S)",     choppingBlockNorthSouth},    // 10
    {"Pillory (E/W)",            pilloryEastWest},            // 11
    {"Pillory (N/S)",            pilloryNorthSouth},          // 12
    {"Bearskin Rug (N/S)",       bearskinRugNorthSouth},      // 13
    {"Bearskin Rug (E/W)",       bearskinRugEastWest},        // 14
    {"Polar Bearskin Rug (N/S)", polarBearskinRugNorthSouth}, // 15
    {"Polar Bearskin Rug (E/W)", polarBearskinRugEastWest},   // 16
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu2()
{
    return objects;
}

} // namespace qf::items
