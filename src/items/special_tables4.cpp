#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent statue1NorthSouth[] = {
    {"12 a1",  0,  0}, {"12 9f",  1,  0}, {"12 a0",  1, -1},
};

constexpr SpecialComponent statue2NorthSouth[] = {
    {"12 a1",  0,  0}, {"12 a2",  1,  0}, {"12 a3",  1, -1},
};

constexpr SpecialComponent statue3NorthSouth[] = {
    {"12 b0",  0,  0}, {"12 ae",  1,  0}, {"12 af",  1, -1},
};

constexpr SpecialComponent statue4EastWest[] = {
    {"12 d7",  0,  0}, {"12 d6",  1, -1}, {"12 d5",  1,  0},
};

constexpr SpecialComponent statue5EastWest[] = {
    {"13 9f",  0,  0}, {"13 9e",  1,  0}, {"13 a0",  1, -1},
};

constexpr SpecialComponent statue6EastWest[] = {
    {"13 a2",  0,  0}, {"13 a1",  1,  0}, {"13 a3",  1, -1},
};

constexpr SpecialComponent scaffoldEastWest[] = {
    {"12 b1",  0,  0}, {"12 b2",  0, -1},
};

constexpr SpecialComponent scaffoldNorthSouth[] = {
    {"12 c8",  0,  0}, {"12 c9",  1,  0},
};

constexpr SpecialComponent emptyVatSouth[] = {
    {"14 db", -1, -1}, {"14 df",  0, -2}, {"14 dd",  0, -1}, {"14 da",  2,  0}, {"14 d9",  0,  0},
    {"14 dc", -1,  0}, {"14 de", -2,  0}, {"14 e1",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialComponent emptyVatEast[] = {
    {"14 db", -1, -1}, {"14 df",  0, -2}, {"14 dd",  0, -1}, {"14 e2",  2,  0}, {"14 d9",  0,  0},
    {"14 dc", -1,  0}, {"14 de", -2,  0}, {"14 d8",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialComponent vatOfGrapesSouth[] = {
    {"15 1e", -1, -1}, {"14 df",  0, -2}, {"15 23",  0, -1}, {"15 24",  2,  0}, {"15 21",  0,  0},
    {"15 22", -1,  0}, {"14 de", -2,  0}, {"15 20",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialComponent vatOfGrapesEast[] = {
    {"15 1e", -1, -1}, {"14 df",  0, -2}, {"15 23",  0, -1}, {"15 25",  2,  0}, {"15 21",  0,  0},
    {"15 22", -1,  0}, {"14 de", -2,  0}, {"15 1f",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialComponent vatOfWaterSouth[] = {
    {"15 58", -1, -1}, {"14 df",  0, -2}, {"15 53",  0, -1}, {"15 56",  2,  0}, {"15 59",  0,  0},
    {"15 52", -1,  0}, {"14 de", -2,  0}, {"15 51",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialComponent vatOfWaterEast[] = {
    {"15 58", -1, -1}, {"14 df",  0, -2}, {"15 53",  0, -1}, {"15 55",  2,  0}, {"15 59",  0,  0},
    {"15 52", -1,  0}, {"14 de", -2,  0}, {"15 50",  0,  2}, {"14 d7",  1,  1},
};

constexpr SpecialObject objects[] = {
    {"Statue 1 (N/S)",        statue1NorthSouth},  // 0
    {"Statue 2 (N/S)",        statue2NorthSouth},  // 1
    {"Statue 3 (N/S)",        statue3NorthSouth},  // 2
    {"Statue 4 (E/W)",        statue4EastWest},    // 3
    {"Statue 5 (E/W)",        statue5EastWest},    // 4
    {"Statue 6 (E/W)",        statue6EastWest},    // 5
    {"Scaffold (E/W)",        scaffoldEastWest},   // 6
    {"Scaffold (N/S)",        scaffoldNorthSouth}, // 7
    {"Empty Vat (South)",     emptyVatSouth},      // 8
    {"Empty Vat (East)",      emptyVatEast},       // 9
    {"Vat of Grapes (South)", vatOfGrapesSouth},   // 10
    {"Vat of Grapes (East)",  vatOfGrapesEast},    // 11
    {"Vat of Water (South)",  vatOfWaterSouth},    // 12
    {"Vat of Water (East)",   vatOfWaterEast},     // 13
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu4()
{
    return objects;
}

} // namespace qf::items
