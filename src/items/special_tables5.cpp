#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent honestyEastWest[] = {
    {"14 9f", 0, 0}, {"14 a0", 0, 1}, {"14 a1", 1, 1}, {"14 a2", 1, 0},
};

constexpr SpecialComponent honestyNorthSouth[] = {
    {"14 a3", 0, 0}, {"14 a4", 0, 1}, {"14 a5", 1, 1}, {"14 a6", 1, 0},
};

constexpr SpecialComponent compassEastWest[] = {
    {"14 a7", 0, 0}, {"14 a8", 0, 1}, {"14 a9", 1, 1}, {"14 aa", 1, 0},
};

constexpr SpecialComponent compassNorthSouth[] = {
    {"14 ab", 0, 0}, {"14 ac", 0, 1}, {"14 ad", 1, 1}, {"14 ae", 1, 0},
};

constexpr SpecialComponent justiceEastWest[] = {
    {"14 af", 0, 0}, {"14 b0", 0, 1}, {"14 b1", 1, 1}, {"14 b2", 1, 0},
};

constexpr SpecialComponent justiceNorthSouth[] = {
    {"14 b3", 0, 0}, {"14 b4", 0, 1}, {"14 b5", 1, 1}, {"14 b6", 1, 0},
};

constexpr SpecialComponent valorEastWest[] = {
    {"14 b7", 0, 0}, {"14 b8", 0, 1}, {"14 b9", 1, 1}, {"14 ba", 1, 0},
};

constexpr SpecialComponent valorNorthSouth[] = {
    {"14 bb", 0, 0}, {"14 bc", 0, 1}, {"14 bd", 1, 1}, {"14 be", 1, 0},
};

constexpr SpecialComponent spiritualityEastWest[] = {
    {"14 bf", 0, 0}, {"14 c0", 0, 1}, {"14 c1", 1, 1}, {"14 c2", 1, 0},
};

constexpr SpecialComponent spiritualityNorthSouth[] = {
    {"14 c3", 0, 0}, {"14 c4", 0, 1}, {"14 c5", 1, 1}, {"14 c6", 1, 0},
};

constexpr SpecialComponent honorEastWest[] = {
    {"14 c7", 0, 0}, {"14 c8", 0, 1}, {"14 c9", 1, 1}, {"14 ca", 1, 0},
};

constexpr SpecialComponent honorNorthSouth[] = {
    {"14 cb", 0, 0}, {"14 cc", 0, 1}, {"14 cd", 1, 1}, {"14 ce", 1, 0},
};

constexpr SpecialComponent humilityEastWest[] = {
    {"14 cf", 0, 0}, {"14 d0", 0, 1}, {"14 d1", 1, 1}, {"14 d2", 1, 0},
};

constexpr SpecialComponent humilityNorthSouth[] = {
    {"14 d3", 0, 0}, {"14 d4", 0, 1}, {"14 d5", 1, 1}, {"14 d6", 1, 0},
};

constexpr SpecialComponent sacrificeEastWest[] = {
    {"15 0a", 0, 0}, {"15 0b", 0, 1}, {"15 0c", 1, 1}, {"15 0d", 1, 0},
};

constexpr SpecialComponent sacrificeNorthSouth[] = {
    {"15 0e", 0, 0}, {"15 0f", 0, 1}, {"15 10", 1, 1}, {"15 11", 1, 0},
};

constexpr SpecialObject objects[] = {
    {"Honesty (E/W)",      honestyEastWest},        // 0
    {"Honesty (N/S)",      honestyNorthSouth},      // 1
    {"Compass (E/W)",      compassEastWest},        // 2
    {"Compass (N/S)",      compassNorthSouth},      // 3
    {"Justice (E/W)",      justiceEastWest},        // 4
    {"Justice (N/S)",      justiceNorthSouth},      // 5
    {"Valor (E/W)",        valorEastWest},          // 6
    {"Valor (N/S)",        valorNorthSouth},        // 7
    {"Spirituality (E/W)", spiritualityEastWest},   // 8
    {"Spirituality (N/S)", spiritualityNorthSouth}, // 9
    {"Honor (E/W)",        honorEastWest},          // 10
    {"Honor (N/S)",        honorNorthSouth},        // 11
    {"Humility (E/W)",     humilityEastWest},       // 12
    {"Humility (N/S)",     humilityNorthSouth},     // 13
    {"Sacrifice (E/W)",    sacrificeEastWest},      // 14
    {"Sacrifice (N/S)",    sacrificeNorthSouth},    // 15
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu5()
{
    return objects;
}

} // namespace qf::items
