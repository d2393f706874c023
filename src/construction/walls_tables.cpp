#include "construction/walls_tables.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr WallRow wallRows[] = {
    // Heights are short, long. Where two entries stand in braces the first is that of 0.9x.x.
    // caption        North/South  East/West  NW post  SE corner  window North/South, East/West
    {"Dark Wood",      {"0015", "0008"},           {"0016", "0007"},           {"0017", "0009"},             {"0014", "0006"},             "000f", "000e"}, // 0
    {"Light Wood",     {"00be", "00a7"},           {"00bf", "00a8"},           {"00c0", "0009"},             {"00bd", "00a6"},             "00b9", "00ba"}, // 1
    {"Light Wood 2",   {"00be", "00b0"},           {"00bf", "00af"},           {"00c0", "00b1"},             {"00bd", "00ae"},             "00bb", "00bc"}, // 2
    {"Logs",           {"009b", "0091"},           {"009c", "0092"},           {"009d", "0093"},             {"009a", "0090"},             "0099", "0098"}, // 3
    {"Small Brick",    {"0043", "0035"},           {"0042", "0034"},           {"0044", "0036"},             {"0041", "0033"},             "003c", "003b"}, // 4
    {"Large Brick",    {"0064", "0057"},           {"0063", "0058"},           {"0066", "005a"},             {"0065", "0059"},             "005d", "005e"}, // 5
    {"Stone",          {"0026", "001b"},           {"0025", "001C"},           {"0027", "001d"},             {"0024", "001a"},             "0023", "0022"}, // 6
    {"Stone 2",        {"00dd", "00c9"},           {"00DE", "00C8"},           {"00df", "00cc"},             {"00dc", "00c7"},             "00cb", "00ca"}, // 7
    {"Stone 3",        {"01ea", "01d1"},           {"01e9", "01d0"},           {"01eb", "01d2"},             {"01e8", "01cf"},             "01d4", "01d3"}, // 8
    {"Marble",         {"0110", "00fa"},           {"010f", "00f9"},           {"0111", "00fb"},             {"010e", "00f8"},             "00fd", "00fc"}, // 9
    {"Plaster/wood",   {"014b", "0137"},           {"014a", "0136"},           {"0144", "012a"},             {"0141", "0135"},             "013b", "013a"}, // 10
    {"Sandstone",      {"0169", "015f"},           {"016a", "0160"},           {"016b", "0161"},             {"0168", "015e"},             "0162", "0163"}, // 11
    {"Rattan",         {"215a", "01a9"},           {"215b", "01a6"},           {"01b5", "01b9"},             {"215c", "01a5"},             "01af", "01ad"}, // 12
    {"Dungeon Wall",   {"02ff", "0242"},           {"02fe", "0241"},           {"0300", "0244"},             {"02fd", "0243"},             "",     ""}, // 13
    {"Palisade Wall",  {"0424", "0221"},           {"0423", "0222"},           {"", ""},                     {"0425", "0223"},             "",     ""}, // 14
    {"Castle Walls 1", {"007c", "0082"},           {"007c", "0082"},           {{"", "007c"}, {"", "0082"}}, {{"", "0082"}, {"", "007c"}}, "008d", "008f"}, // 15
    {"Castle Walls 2", {{"02d3", "02d5"}, "0362"}, {{"02d0", "02d2"}, "0354"}, {"", ""},                     {"", ""},                     "008d", "008f"}, // 16
    {"Desert Stone",   {"03c1", "03c9"},           {"03c0", "03c8"},           {"03c2", "03ca"},             {"03be", "03c7"},             "03df", "03de"}, // 17
};

constexpr WallPiece NS = WallPiece::NorthSouth;
constexpr WallPiece EW = WallPiece::EastWest;
constexpr WallPiece NW = WallPiece::Post;
constexpr WallPiece SE = WallPiece::Corner;

/// Dark Wood, Logs, Plaster/wood and Rattan: posts at three corners.
constexpr WallStep postedBox[] = {
    {NW, {1, -1}, {1, -1}, {1, -1}, {1, -1}},
    {EW, {1,  0}, {2,  0}, {1, -1}, {1, -1}},
    {NW, {2,  0}, {2,  0}, {1, -1}, {1, -1}},
    {NS, {2,  0}, {2,  0}, {1,  0}, {2, -1}},
    {SE, {2,  0}, {2,  0}, {2,  0}, {2,  0}},
    {EW, {1,  0}, {2, -1}, {2,  0}, {2,  0}},
    {NW, {1, -1}, {1, -1}, {2,  0}, {2,  0}},
    {NS, {1, -1}, {1, -1}, {1,  0}, {2,  0}},
};

/// Castle walls: four plain sides. Castle Walls 1 has a post before them.
constexpr WallStep castleBox[] = {
    {NW, {1, -1}, {1, -1}, {1, -1}, {1, -1}},
    {EW, {1,  0}, {2,  0}, {1, -1}, {1, -1}},
    {NS, {2,  0}, {2,  0}, {1,  0}, {2,  0}},
    {EW, {1,  0}, {2,  0}, {2,  0}, {2,  0}},
    {NS, {1, -1}, {1, -1}, {1,  0}, {2,  0}},
};

/// All others: one post and one corner piece.
constexpr WallStep plainBox[] = {
    {NW, {1, -1}, {1, -1}, {1, -1}, {1, -1}},
    {EW, {1,  0}, {2,  0}, {1, -1}, {1, -1}},
    {NS, {2,  0}, {2,  0}, {1,  0}, {2, -1}},
    {SE, {2,  0}, {2,  0}, {2,  0}, {2,  0}},
    {EW, {1,  0}, {2, -1}, {2,  0}, {2,  0}},
    {NS, {1, -1}, {1, -1}, {1,  0}, {2,  0}},
};
// clang-format on

enum WallType { DarkWood = 0, Logs = 3, PlasterWood = 10, Rattan = 12, CastleWalls1 = 15, CastleWalls2 = 16 };

} // namespace

std::span<const WallRow> WallRows()
{
    return wallRows;
}

std::span<const WallStep> BoxSteps(int type)
{
    switch (type) {
    case DarkWood:
    case Logs:
    case PlasterWood:
    case Rattan: return postedBox;
    case CastleWalls1: return castleBox;
    case CastleWalls2: return std::span(castleBox).subspan(1);
    default: return plainBox;
    }
}

} // namespace qf::construction
