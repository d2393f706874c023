#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent smallTreasurePile[] = {
    {"1b 4d",  0,  0}, {"1b 51",  1,  0}, {"1b 50",  2,  0}, {"1b 4c",  0,  1}, {"1b 4e",  1,  1},
    {"1b 4f",  2,  1}, {"1b 4b",  0,  2}, {"1b 4a",  1,  2},
};

constexpr SpecialComponent mediumTreasurePile[] = {
    {"1b 46",  0,  0}, {"1b 47",  1,  0}, {"1b 48",  2,  0}, {"1b 45",  3,  0}, {"1b 42",  0,  1},
    {"1b 43",  1,  1}, {"1b 44",  2,  1}, {"1b 41",  0,  2}, {"1b 40",  1,  2}, {"1b 3f",  2,  2},
};

constexpr SpecialComponent largeTreasurePile[] = {
    {"1b 66",  0,  0}, {"1b 68",  1,  0}, {"1b 69",  2,  0}, {"1b 6a",  3,  0}, {"1b 65",  0,  1},
    {"1b 67",  1,  1}, {"1b 61",  2,  1}, {"1b 60",  3,  1}, {"1b 5f",  4,  1}, {"1b 64",  0,  2},
    {"1b 63",  1,  2}, {"1b 62",  2,  2},
};

constexpr SpecialComponent hugeTreasurePile[] = {
    {"1b 57",  0,  0}, {"1b 58",  1,  0}, {"1b 59",  2,  0}, {"1b 5a",  3,  0}, {"1b 56",  0,  1},
    {"1b 5d",  1,  1}, {"1b 5c",  2,  1}, {"1b 5b",  3,  1}, {"1b 55",  0,  2}, {"1b 4a",  1,  2},
    {"1b 53",  2,  2},
};

constexpr SpecialComponent whitestoneFountain[] = {
    {"17 41",  0,  0}, {"17 3f",  1,  0}, {"17 38",  2,  0}, {"17 37",  3,  0}, {"17 3d",  0,  1},
    {"17 3e",  1,  1}, {"17 39",  2,  1}, {"17 36",  3,  1}, {"17 3c",  0,  2}, {"17 3b",  1,  2},
    {"17 3a",  2,  2}, {"17 35",  3,  2}, {"17 31",  0,  3}, {"17 32",  1,  3}, {"17 33",  2,  3},
    {"17 34",  3,  3},
};

constexpr SpecialComponent sandstoneFountain[] = {
    {"19 d3",  0,  0}, {"19 d1",  1,  0}, {"19 ca",  2,  0}, {"19 c9",  3,  0}, {"19 cf",  0,  1},
    {"19 d0",  1,  1}, {"19 cb",  2,  1}, {"19 c8",  3,  1}, {"19 ce",  0,  2}, {"19 cd",  1,  2},
    {"19 cc",  2,  2}, {"19 c7",  3,  2}, {"19 c3",  0,  3}, {"19 c4",  1,  3}, {"19 c5",  2,  3},
    {"19 c6",  3,  3},
};

constexpr SpecialComponent serpentPillarT2A[] = {
    {"23 3f",  0,  0}, {"23 40",  1,  0}, {"23 41",  2,  0}, {"23 42",  3,  0}, {"23 3e",  0,  1},
    {"23 45",  1,  1}, {"23 48",  2,  1}, {"23 4a",  3,  1}, {"23 3d",  0,  2}, {"23 44",  1,  2},
    {"23 47",  2,  2}, {"23 49",  3,  2}, {"23 3c",  0,  3}, {"23 43",  1,  3}, {"23 46",  2,  3},
};

constexpr SpecialComponent altarStonePentagram[] = {
    {"12 0e",  0,  0}, {"12 0f",  1,  0}, {"12 10",  2,  0}, {"12 15",  0,  1}, {"12 16",  1,  1},
    {"12 11",  2,  1}, {"12 14",  0,  2}, {"12 13",  1,  2}, {"12 12",  2,  2},
};

constexpr SpecialComponent pentagram[] = {
    {"0f e7",  0,  0}, {"0f e8",  1,  0}, {"0f eb",  2,  0}, {"0f e6",  0,  1}, {"0f ea",  1,  1},
    {"0f ee",  2,  1}, {"0f e9",  0,  2}, {"0f ec",  1,  2}, {"0f ed",  2,  2},
};

constexpr SpecialComponent bloodPentagram[] = {
    {"1c fb",  0,  0}, {"1c fc",  1,  0}, {"1c fd",  2,  0}, {"1c fe",  3,  0}, {"1c ff",  4,  0},
    {"1c f9", -1,  1}, {"1c fa",  0,  1}, {"1d a",   1,  1}, {"1d b",   2,  1}, {"1d c",   3,  1},
    {"1d 0",   4,  1}, {"1c f8", -1,  2}, {"1d 9",   0,  2}, {"1d 11",  1,  2}, {"1d 12",  2,  2},
    {"1d d",   3,  2}, {"1d 1",   4,  2}, {"1c f7", -1,  3}, {"1d 8",   0,  3}, {"1d 10",  1,  3},
    {"1d f",   2,  3}, {"1d e",   3,  3}, {"1d 2",   4,  3}, {"1c f6", -1,  4}, {"1d 7",   0,  4},
    {"1d 6",   1,  4}, {"1d 5",   2,  4}, {"1d 4",   3,  4}, {"1d 3",   4,  4}, {"1c f5", -1,  5},
    {"1c f4",  0,  5}, {"1c f3",  1,  5}, {"1c f2",  2,  5}, {"1c f1",  3,  5},
};

constexpr SpecialComponent telescope[] = {
    {"14 7d", -1,  0}, {"14 7c",  0,  0}, {"14 7b",  1,  0}, {"14 7a",  2,  0}, {"14 9a", -2,  1},
    {"14 79",  2,  1}, {"14 78",  3,  1}, {"14 97", -3,  2}, {"14 98", -2,  2}, {"14 77",  2,  2},
    {"14 75",  3,  2}, {"14 76",  4,  2}, {"14 96", -4,  3}, {"14 7f",  1,  3}, {"14 7e",  2,  3},
    {"14 74",  3,  3}, {"14 73",  4,  3}, {"14 95", -5,  4}, {"14 99", -4,  4}, {"14 8f", -2,  4},
    {"14 90", -1,  4}, {"14 91",  0,  4}, {"14 80",  1,  4}, {"14 81",  2,  4}, {"14 6f",  3,  4},
    {"14 70",  4,  4}, {"14 94", -6,  5}, {"14 8b", -1,  5}, {"14 8c",  0,  5}, {"14 82",  1,  5},
    {"14 83",  2,  5}, {"14 6e",  3,  5}, {"14 71",  4,  5}, {"14 5b", -6,  6}, {"14 8e", -4,  6},
    {"14 8d", -2,  6}, {"14 8a", -1,  6}, {"14 89",  0,  6}, {"14 69",  1,  6}, {"14 6a",  2,  6},
    {"14 6d",  3,  6}, {"14 72",  4,  6}, {"14 5a", -6,  7}, {"14 5c", -5,  7}, {"14 93", -4,  7},
    {"14 86", -1,  7}, {"14 87",  0,  7}, {"14 68",  1,  7}, {"14 67",  2,  7}, {"14 6c",  3,  7},
    {"14 5d", -5,  8}, {"14 92", -4,  8}, {"14 88", -2,  8}, {"14 85", -1,  8}, {"14 84",  0,  8},
    {"14 65",  1,  8}, {"14 66",  2,  8}, {"14 5e", -4,  9}, {"14 5f", -3,  9}, {"14 60", -2,  9},
    {"14 64",  1,  9}, {"14 59", -4, 10}, {"14 61", -3, 10}, {"14 62", -2, 10}, {"14 63",  0, 10},
};

constexpr SpecialComponent lighthouse[] = {
    {"1a ce",  0,  0}, {"1a cf",  1,  0}, {"1a b6",  2,  0}, {"1a b3",  3,  0}, {"1a cd",  0,  1},
    {"1a cb",  1,  1}, {"1a cc",  2,  1}, {"1a b1",  3,  1}, {"1a ad",  4,  1}, {"1a ac",  5,  1},
    {"1a be",  0,  2}, {"1a ca",  1,  2}, {"1a ab",  5,  2}, {"1a c1",  0,  3}, {"1a c7",  1,  3},
    {"1a aa",  5,  3}, {"1a c4",  1,  4}, {"1a d0",  4,  4}, {"1a a9",  5,  4}, {"1a a4",  1,  5},
    {"1a a5",  2,  5}, {"1a a6",  3,  5}, {"1a a7",  4,  5}, {"1a a8",  5,  5},
};

constexpr SpecialComponent catapultEastWest[] = {
    {"16 75",  0,  0}, {"16 83",  1,  0}, {"16 74",  2,  0}, {"16 88",  3,  0}, {"16 76",  0,  1},
    {"16 78",  1,  1}, {"16 72",  3,  1}, {"16 77",  0,  2}, {"16 7e",  1,  2}, {"16 73",  2,  2},
    {"16 79",  3,  2}, {"16 8d",  4,  2},
};

constexpr SpecialComponent catapultNorthSouth[] = {
    {"16 4c",  0,  0}, {"16 4d",  1,  0}, {"16 4e",  2,  0}, {"16 5b",  0,  1}, {"16 48",  1,  1},
    {"16 55",  2,  1}, {"16 4b",  0,  2}, {"16 4e",  2,  2}, {"16 62",  0,  3}, {"16 49",  1,  3},
    {"16 4f",  2,  3}, {"16 63",  2,  3},
};

constexpr SpecialComponent ankhEastWest[] = {
    {"0 4",    0,  0}, {"0 5",    1,  0},
};

constexpr SpecialComponent ankhNorthSouth[] = {
    {"0 2",    0,  0}, {"0 3",    0, -1},
};

constexpr SpecialComponent ankhOfSacrifice[] = {
    {"1d 97",  0,  0}, {"1d 98",  0, -1},
};

constexpr SpecialObject objects[] = {
    {"Small Treasure Pile",     smallTreasurePile},   // 0
    {"Medium Treasure Pile",    mediumTreasurePile},  // 1
    {"Large Treasure Pile",     largeTreasurePile},   // 2
    {"Huge Treasure Pile",      hugeTreasurePile},    // 3
    {"Whitestone Fountain",     whitestoneFountain},  // 4
    {"Sandstone Fountain",      sandstoneFountain},   // 5
    {"Serpent Pillar (T2A)",    serpentPillarT2A},    // 6
    {"Altar (Stone Pentagram)", altarStonePentagram}, // 7
    {"Pentagram",               pentagram},           // 8
    {"Blood Pentagram",         bloodPentagram},      // 9
    {"Telescope",               telescope},           // 10
    {"Lighthouse",              lighthouse},          // 11
    {"Catapult East/West",      catapultEastWest},    // 12
    {"Catapult North/South",    catapultNorthSouth},  // 13
    {"Ankh (E/W)",              ankhEastWest},        // 14
    {"Ankh (N/S)",              ankhNorthSouth},      // 15
    {"Ankh of Sacrifice",       ankhOfSacrifice},     // 16
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu1()
{
    return objects;
}

} // namespace qf::items
