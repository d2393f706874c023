#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent smallDisplayCaseNorthSouth[] = {
    {"0b 09", 0, 0, 0}, {"0b 0b", 0, 0, 3},
};

constexpr SpecialComponent smallDisplayCaseEastWest[] = {
    {"b 0a",  0, 0, 0}, {"b 0c",  0, 0, 3},
};

constexpr SpecialComponent mediumDisplayCaseNorthSouth[] = {
    {"0b 08", 0, 0, 0}, {"0b 07", 0, 1, 0}, {"0b 06", 0, 2, 0}, {"0b 05", 0, 0, 3}, {"0b 04", 0, 1, 3},
    {"0b 03", 0, 2, 3},
};

constexpr SpecialComponent mediumDisplayCaseEastWest[] = {
    {"0b 02", 0, 0, 0}, {"0b 01", 1, 0, 0}, {"0b 00", 2, 0, 0}, {"0a ff", 0, 0, 3}, {"0a fe", 1, 0, 3},
    {"0a fd", 2, 0, 3},
};

constexpr SpecialComponent largeDisplayCase[] = {
    {"0b 10", 0, 0, 0}, {"0b 17", 1, 0, 0}, {"0b 13", 2, 0, 0}, {"0b 16", 0, 1, 0}, {"0b f",  1, 1, 0},
    {"0b 14", 2, 1, 0}, {"0b 12", 0, 2, 0}, {"0b 15", 1, 2, 0}, {"0b 11", 2, 2, 0}, {"0a a3", 0, 0, 3},
    {"0a a2", 1, 0, 3}, {"0a a4", 2, 0, 3}, {"0a a1", 0, 1, 3}, {"0a a1", 2, 1, 3}, {"0a a5", 0, 2, 3},
    {"0a a2", 1, 2, 3}, {"0b 18", 2, 2, 3},
};

constexpr SpecialComponent largeDisplayCaseNorthSouth[] = {
    {"0b 10", 0, 0, 0}, {"0b 17", 1, 0, 0}, {"0b 13", 2, 0, 0}, {"0b 16", 0, 1, 0}, {"0b f",  1, 1, 0},
    {"0b 14", 2, 1, 0}, {"0b 16", 0, 2, 0}, {"0b f",  1, 2, 0}, {"0b 14", 2, 2, 0}, {"0b 12", 0, 3, 0},
    {"0b 15", 1, 3, 0}, {"0b 11", 2, 3, 0}, {"0a a3", 0, 0, 3}, {"0a a2", 1, 0, 3}, {"0a a4", 2, 0, 3},
    {"0a a1", 0, 1, 3}, {"0a a1", 2, 1, 3}, {"0a a1", 0, 2, 3}, {"0a a1", 2, 2, 3}, {"0a a5", 0, 3, 3},
    {"0a a2", 1, 3, 3}, {"0b 18", 2, 3, 3},
};

constexpr SpecialComponent largeDisplayCaseEastWest[] = {
    {"0b 10", 0, 0, 0}, {"0b 17", 1, 0, 0}, {"0b 17", 2, 0, 0}, {"0b 13", 3, 0, 0}, {"0b 16", 0, 1, 0},
    {"0b f",  1, 1, 0}, {"0b f",  2, 1, 0}, {"0b 14", 3, 1, 0}, {"0b 12", 0, 2, 0}, {"0b 15", 1, 2, 0},
    {"0b 15", 2, 2, 0}, {"0b 11", 3, 2, 0}, {"0a a3", 0, 0, 3}, {"0a a2", 1, 0, 3}, {"0a a2", 2, 0, 3},
    {"0a a4", 3, 0, 3}, {"0a a1", 0, 1, 3}, {"0a a1", 3, 1, 3}, {"0a a5", 0, 2, 3}, {"0a a2", 1, 2, 3},
    {"0a a2", 2, 2, 3}, {"0b 18", 3, 2, 3},
};

constexpr SpecialObject objects[] = {
    {"Small Display Case N/S",  smallDisplayCaseNorthSouth},  // 0
    {"Small Display Case E/W",  smallDisplayCaseEastWest},    // 1
    {"Medium Display Case N/S", mediumDisplayCaseNorthSouth}, // 2
    {"Medium Display Case E/W", mediumDisplayCaseEastWest},   // 3
    {"Large Display Case",      largeDisplayCase},            // 4
    {"Large Display Case N/S",  largeDisplayCaseNorthSouth},  // 5
    {"Large Display Case E/W",  largeDisplayCaseEastWest},    // 6
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu6()
{
    return objects;
}

} // namespace qf::items
