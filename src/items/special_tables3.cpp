#include "items/special_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr SpecialComponent jungleTree1[] = {
    {"d 41",  -2,  2}, {"d 42",  -1,  1}, {"d 43",   0,  0}, {"d 44",   1, -1}, {"d 45",  -4,  4},
    {"d 46",  -3,  3}, {"d 47",  -2,  2}, {"d 48",  -1,  1}, {"d 49",   0,  0}, {"d 4a",   1, -1},
    {"d 4b",   2, -2}, {"d 4c",   3, -3},
};

constexpr SpecialComponent jungleTree2[] = {
    {"d 57",  -2,  2}, {"d 58",  -1,  1}, {"d 59",   0,  0}, {"d 5a",   1, -1}, {"d 5b",   2, -2},
    {"d 4d",  -2,  3}, {"d 4e",  -1,  2}, {"d 4f",   0,  1}, {"d 50",   1,  0}, {"d 51",   2, -1},
    {"d 52",   3, -2}, {"d 53",   4, -3},
};

constexpr SpecialComponent jungleTree3[] = {
    {"d 6e",  -2,  2}, {"d 6f",  -1,  1}, {"d 70",   0,  0}, {"d 71",   1, -1}, {"d 72",   2, -2},
    {"d 73",  -3,  3}, {"d 74",  -2,  2}, {"d 75",  -1,  1}, {"d 76",   0,  0}, {"d 77",   1, -1},
    {"d 78",   2, -2}, {"d 79",   3, -3},
};

constexpr SpecialComponent jungleTree4[] = {
    {"d 6e",  -2,  2}, {"d 6f",  -1,  1}, {"d 70",   0,  0}, {"d 71",   1, -1}, {"d 72",   2, -2},
    {"d 63",  -3,  3}, {"d 64",  -2,  2}, {"d 65",  -1,  1}, {"d 66",   0,  0}, {"d 67",   1, -1},
    {"d 68",   2, -2}, {"d 69",   3, -3},
};

constexpr SpecialComponent jungleTree5[] = {
    {"d 84",  -2,  2}, {"d 85",  -1,  1}, {"d 86",   0,  0}, {"d 7a",  -3,  4}, {"d 7b",  -2,  3},
    {"d 7c",  -1,  2}, {"d 7d",   0,  1}, {"d 7e",   1,  0}, {"d 7f",   2, -1},
};

constexpr SpecialComponent jungleTree6[] = {
    {"d 84",  -2,  2}, {"d 85",  -1,  1}, {"d 86",   0,  0}, {"d 87",  -3,  3}, {"d 88",  -2,  2},
    {"d 89",  -1,  1}, {"d 8a",   0,  0}, {"d 8b",   1, -1},
};

constexpr SpecialComponent jungleTree7[] = {
    {"d 84",  -2,  2}, {"d 85",  -1,  1}, {"d 86",   0,  0}, {"d 8c",  -3,  3}, {"d 8d",  -2,  2},
    {"d 8e",  -1,  1}, {"d 8f",   0,  0}, {"d 90",   1, -1},
};

constexpr SpecialComponent yewTree[] = {
    {"12 b6",  0,  0}, {"12 b7",  1, -1}, {"12 b8",  2, -2}, {"12 b9",  3, -3}, {"12 ba",  4, -4},
    {"12 bb",  5, -5}, {"12 bc",  6, -6}, {"12 bd",  7, -7}, {"12 be", -1,  1}, {"12 bf",  0,  0},
    {"12 c0",  1, -1}, {"12 c1",  2, -2}, {"12 c2",  3, -3}, {"12 c3",  4, -4}, {"12 c4",  5, -5},
    {"12 c5",  6, -6}, {"12 c6",  7, -7}, {"12 c7",  8, -8},
};

constexpr SpecialComponent boulder1[] = {
    {"13 4f",  0,  0}, {"13 50",  1,  0}, {"13 51",  1, -1},
};

constexpr SpecialComponent boulder2[] = {
    {"13 52",  0,  0}, {"13 53",  1,  0}, {"13 54",  1, -1},
};

constexpr SpecialComponent boulder3[] = {
    {"13 55",  0,  0}, {"13 56",  0, -1},
};

constexpr SpecialComponent boulder4[] = {
    {"13 57",  0,  0}, {"13 58",  1,  0}, {"13 59",  1, -1},
};

constexpr SpecialComponent boulder5[] = {
    {"13 5a",  0,  0}, {"13 5b",  0, -1},
};

constexpr SpecialComponent boulder6[] = {
    {"13 5c",  0,  0}, {"13 5d",  1,  0}, {"13 5e",  1, -1},
};

constexpr SpecialComponent boulder7[] = {
    {"13 5f",  0,  0}, {"13 60",  1,  0},
};

constexpr SpecialComponent boulder8[] = {
    {"13 61",  0,  0}, {"13 62",  1,  0},
};

constexpr SpecialObject objects[] = {
    {"Jungle Tree 1", jungleTree1}, // 0
    {"Jungle Tree 2", jungleTree2}, // 1
    {"Jungle Tree 3", jungleTree3}, // 2
    {"Jungle Tree 4", jungleTree4}, // 3
    {"Jungle Tree 5", jungleTree5}, // 4
    {"Jungle Tree 6", jungleTree6}, // 5
    {"Jungle Tree 7", jungleTree7}, // 6
    {"Yew Tree",      yewTree},     // 7
    {"Boulder 1",     boulder1},    // 8
    {"Boulder 2",     boulder2},    // 9
    {"Boulder 3",     boulder3},    // 10
    {"Boulder 4",     boulder4},    // 11
    {"Boulder 5",     boulder5},    // 12
    {"Boulder 6",     boulder6},    // 13
    {"Boulder 7",     boulder7},    // 14
    {"Boulder 8",     boulder8},    // 15
};
// clang-format on

} // namespace

std::span<const SpecialObject> SpecialMenu3()
{
    return objects;
}

} // namespace qf::items
