#include "construction/floors_tables.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr FloorRow floorRows[] = {
    {"Wood (Dark)",                FloorsOne, "04b5", "04a9"}, // 0
    {"Wood (Light)",               FloorsOne, "04d7", "04c9"}, // 1
    {"Sandstone (Dark)",           FloorsOne, "0535", "0531"}, // 2
    {"Sandstone (Light)",          FloorsOne, "052a", "0525"}, // 3
    {"Marble (White)",             FloorsOne, "050d", "050d"}, // 4
    {"Marble (Silver)",            FloorsOne, "0513", "0513"}, // 5
    {"Marble (Green)",             FloorsOne, "050f", "050f"}, // 6
    {"Bricks",                     FloorsOne, "0537", "0539"}, // 7
    {"Slate (Grey)",               FloorsOne, "049c", "049c"}, // 8
    {"Slate (Blue)",               FloorsOne, "049b", "049b"}, // 9
    {"Flagstones (grey)",          FloorsOne, "04ff", "04fc"}, // 10
    {"Flagstones (brown)",         FloorsOne, "0503", "0500"}, // 11
    {"Wooden Logs",                FloorsOne, "04c1", "0506"}, // 12
    {"Wooden Logs (grey)",         FloorsOne, "050c", "050b"}, // 13
    {"Marble (Snowwhite)",         FloorsOne, "0495", "0495"}, // 14
    {"Blue Tiles",                 FloorsOne, "04f2", "04f2"}, // 15
    {"Red Tiles",                  FloorsOne, "04f3", "04f3"}, // 16
    {"Stone Pavers",               FloorsOne, "0519", "0519"}, // 17
    {"Sandstone Paver",            FloorsOne, "049f", "049f"}, // 18
    {"Wood Floor - Inner Border",  FloorsTwo, "2435", "2435"}, // 19
    {"Wood Floor - Outer Border",  FloorsTwo, "2435", "2435"}, // 20
    {"Wood Floor - Pattern",       FloorsTwo, "2438", "2438"}, // 21
    {"Dark Wooden Floor",          FloorsTwo, "243b", "2447"}, // 22
    {"Sand Floor",                 FloorsTwo, "2463", "2462"}, // 23
    {"Red Wooden Floor",           FloorsTwo, "2722", "272e"}, // 24
    {"Brown Wooden Floor",         FloorsTwo, "273a", "2746"}, // 25
    {"Light Brown Wooden Floor",   FloorsTwo, "286e", "287a"}, // 26
    {"Dark Brown Wooden Floor",    FloorsTwo, "2960", "296c"}, // 27
    {"Faded Wooden Floor",         FloorsTwo, "2978", "2984"}, // 28
    {"Ornate Floortile",           FloorsTwo, "2bb5", "2bb6"}, // 29
    {"Simple Floortile",           FloorsTwo, "2bcf", "2cec"}, // 30
};

constexpr FloorRow rugRows[] = {
    {"Bearskin",      Rugs, "1e3a", "1e44"}, // 0
    {"Polarbearskin", Rugs, "1e4d", "1e57"}, // 1
    {"Plain Red",     Rugs, "0aa9", "0aa9"}, // 2
    {"Old Red",       Rugs, "1dd3", "1dd3"}, // 3
    {"Plain Green",   Rugs, "0ab3", "0ab3"}, // 4
    {"Old Green",     Rugs, "1de1", "1de1"}, // 5
    {"Old Blue",      Rugs, "1def", "1def"}, // 6
};

constexpr FloorRow carpetRows[] = {
    {"Plain Red",             Carpets, "0ac8", "0ac8"}, // 0
    {"Plain Blue",            Carpets, "0abe", "0abe"}, // 1
    {"Plain Gray",            Carpets, "1098", "1098"}, // 2
    {"Red with little gold",  Carpets, "0ac7", "0ac6"}, // 3
    {"Blue with little pink", Carpets, "0abd", "0abf"}, // 4
    {"Blue with lots gold",   Carpets, "0ad1", "0ad1"}, // 5
    {"Red with lots gold",    Carpets, "0ada", "0ada"}, // 6
    {"Blue/Pink",             Carpets, "0afa", "0afa"}, // 7
    {"Pink/Blue/Gold",        Carpets, "0aec", "0aec"}, // 8
    {"Gold/Blue",             Carpets, "0aed", "0aed"}, // 9
    {"Gold/Brown",            Carpets, "0aeb", "0aeb"}, // 10
    {"Goza Mat",              Carpets, "2a3c", "2a3d"}, // 11
};

struct FloorBorderRow {
    int         type;
    int         direction;
    FloorBorder border;
};

constexpr int bothDirections = -1;

// type, direction,             corner X1,Y1  X2,Y1   X2,Y2   X1,Y2   edge Y1  Y2      X1      X2
constexpr FloorBorderRow floorBorders[] = {
    { 0, NorthSouth,     {"04c0", "04bf", "04bd", "04be", "04bc", "04ba", "04b9", "04bb"}},
    { 0, EastWest,       {"04b4", "04b3", "04b1", "04b2", "04b0", "04ae", "04ad", "04af"}},
    { 1, NorthSouth,     {"04df", "04e1", "04e0", "04de", "04da", "04d8", "04dd", "04dc"}},
    { 1, EastWest,       {"04d1", "04d3", "04d2", "04d0", "04cc", "04ca", "04cf", "04ce"}},
    {19, bothDirections, {"2427", "2425", "2428", "2426", "2437", "2437", "2436", "2436"}},
    {20, bothDirections, {"242e", "242f", "2430", "242d", "242b", "242a", "2429", "242c"}},
    {21, bothDirections, {"2427", "2425", "2428", "2426", "2433", "2431", "2432", "2434"}},
    {23, bothDirections, {"245f", "245e", "2460", "2461", "2462", "2462", "2463", "2463"}},
};

// corner X1,Y1  X2,Y1   X2,Y2   X1,Y2   edge Y1  Y2      X1      X2
constexpr FloorBorder carpetBorders[] = {
    {"0aca", "0acc", "0ac9", "0acb", "0ace", "0ad0", "0acd", "0acf"}, // 0
    {"0ac3", "0ac5", "0ac2", "0ac4", "0af7", "0af9", "0af6", "0af8"}, // 1
    {"109D", "109e", "109f", "10a0", "1099", "109b", "109c", "109a"}, // 2
    {"0aca", "0acc", "0ac9", "0acb", "0ace", "0ad0", "0acd", "0acf"}, // 3
    {"0ac3", "0ac5", "0ac2", "0ac4", "0af7", "0af9", "0af6", "0af8"}, // 4
    {"0ad3", "0ad5", "0ad2", "0ad4", "0ad7", "0ad9", "0ad6", "0ad8"}, // 5
    {"0adc", "0ade", "0adb", "0add", "0ae0", "0ae2", "0adf", "0ae1"}, // 6
    {"0aef", "0af1", "0aee", "0af0", "0ae0", "0ae2", "0adf", "0ae1"}, // 7
    {"0aca", "0acc", "0ac9", "0acb", "0ace", "0ad0", "0acd", "0acf"}, // 8
    {"0ac3", "0ac5", "0ac2", "0ac4", "0af7", "0af9", "0af6", "0af8"}, // 9
    {"0ae4", "0ae6", "0ae3", "0ae5", "0ae8", "0aea", "0ae7", "0ae9"}, // 10
    {"2a41", "29c9", "29c7", "29c1", "2a40", "29c5", "2a3e", "29c3"}, // 11
};

constexpr FloorBorder gozaMatEastWest = {"2a44", "29c8", "29c6", "29c0", "2a43", "29c4", "2a42", "29c2"};
// clang-format on

} // namespace

std::span<const FloorRow> FloorRows()
{
    return floorRows;
}

std::span<const FloorRow> RugRows()
{
    return rugRows;
}

std::span<const FloorRow> CarpetRows()
{
    return carpetRows;
}

const FloorBorder* BorderOfFloor(int type, int direction)
{
    for (const auto& row : floorBorders) {
        if (row.type == type && (row.direction == bothDirections || row.direction == direction)) {
            return &row.border;
        }
    }
    return nullptr;
}

const FloorBorder& BorderOfCarpet(int carpet, int direction)
{
    if (carpet == GozaMat && direction == EastWest) {
        return gozaMatEastWest;
    }
    return carpetBorders[carpet];
}

} // namespace qf::construction
