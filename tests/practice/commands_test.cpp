#include <gtest/gtest.h>

#include "practice/commands.h"

namespace qf::practice {

namespace {

struct Row {
    const char* text;
    Verb        verb;
    int         id;
    Box         box;
    int         z;
};

class PracticeCommands : public testing::TestWithParam<Row> {};

TEST_P(PracticeCommands, AreUnderstood)
{
    const Row&    row = GetParam();
    const Command command = ParseCommand(row.text);
    EXPECT_EQ(command.verb, row.verb) << row.text;
    EXPECT_EQ(command.id, row.id) << row.text;
    EXPECT_EQ(command.box, row.box) << row.text;
    EXPECT_EQ(command.z, row.z) << row.text;
    EXPECT_EQ(command.flaw.empty(), row.verb != Verb::Flawed) << row.text;
}

// clang-format off
const Row Rows[] = {
    {"tile 0x04a9 101 102 103 104 0",       Verb::PlaceArea,       0x04A9, {101, 103, 102, 104}, 0},
    {"tile 0x109D 1 1 2 2 -5",              Verb::PlaceArea,       0x109D, {1, 2, 1, 2}, -5},
    {"tilew 04 a9 101 102 103 104 7",       Verb::PlaceArea,       0x04A9, {101, 103, 102, 104}, 7},
    {"tile 04 a9 101 102 103 104 7",        Verb::PlaceArea,       0x04A9, {101, 103, 102, 104}, 7},
    {"tilew 1b 4d  1000 1002 2000 2001 5",  Verb::PlaceArea,       0x1B4D, {1000, 2000, 1002, 2001}, 5},
    {"tilew 0b f 1 2 3 4 5",                Verb::PlaceArea,       0x0B0F, {1, 3, 2, 4}, 5},
    {"tile 0x05 40 1 2 3 4 5",              Verb::PlaceArea,       0x0540, {1, 3, 2, 4}, 5},
    {"tile 0x721 1 2 3 4 5",                Verb::PlaceArea,       0x0721, {1, 3, 2, 4}, 5},
    {"TILE 0x0001 5 4 3 2 1",               Verb::PlaceArea,       0x0001, {5, 3, 4, 2}, 1},
    {"tile  1 2 3 4 5",                     Verb::Flawed,          0, {}, 0},
    {"tilew  1 2 3 4 5",                    Verb::Flawed,          0, {}, 0},
    {"tile 0x04a9 1 2 3 4 x",               Verb::Flawed,          0, {}, 0},
    {"tile 0x04a9 1 2 3 4 99999999999",     Verb::Flawed,          0, {}, 0},
    {"tile 0x14a9c 1 2 3 4 5",              Verb::Flawed,          0, {}, 0},
    {"tile 04 a9 0 1 2 3 4 5",              Verb::Flawed,          0, {}, 0},
    {"tile -4 a9 1 2 3 4 5",                Verb::Flawed,          0, {}, 0},
    {"tile",                                Verb::Flawed,          0, {}, 0},
    {"tilew 04 a9",                         Verb::Flawed,          0, {}, 0},
    {"tile 0x04a9",                         Verb::PickArea,        0x04A9, {}, 0},
    {"tile 04 a9",                          Verb::PickArea,        0x04A9, {}, 0},
    {"rndtile 0x04a9",                      Verb::PickArea,        0x04A9, {}, 0},
    {"rndtile 04 a9",                       Verb::PickArea,        0x04A9, {}, 0},
    {"rndtile",                             Verb::Flawed,          0, {}, 0},
    {"add 04 a9",                           Verb::PickTile,        0x04A9, {}, 0},
    {"add 0x721",                           Verb::PickTile,        0x0721, {}, 0},
    {"add 7 21",                            Verb::PickTile,        0x0721, {}, 0},
    {"radd 0x04a9",                         Verb::PickTile,        0x04A9, {}, 0},
    {"add npc male",                        Verb::Unknown,         0, {}, 0},
    {"remove",                              Verb::PickRemove,      0, {}, 0},
    {"rremove",                             Verb::PickRemove,      0, {}, 0},
    {"wipe",                                Verb::PickWipeInside,  0, {}, 0},
    {"wipe    ",                            Verb::PickWipeInside,  0, {}, 0},
    {"iwipe",                               Verb::PickWipeOutside, 0, {}, 0},
    {"wipe 100 110 200 210",                Verb::WipeInside,      0, {100, 110, 200, 210}, 0},
    {"iwipe 100 110 200 210",               Verb::WipeOutside,     0, {100, 110, 200, 210}, 0},
    {"wipe all",                            Verb::WipeAll,         0, {}, 0},
    {"iwipe all",                           Verb::Flawed,          0, {}, 0},
    {"wipe 1 2 3",                          Verb::Flawed,          0, {}, 0},
    {"go 1000 1010 -5",                     Verb::Go,              0, {1000, 1010, 0, 0}, -5},
    {"go britain",                          Verb::Unknown,         0, {}, 0},
    {"where",                               Verb::Where,           0, {}, 0},
    {"allmove on",                          Verb::Unknown,         0, {}, 0},
    {"",                                    Verb::Unknown,         0, {}, 0},
    {"   ",                                 Verb::Unknown,         0, {}, 0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Rows, PracticeCommands, testing::ValuesIn(Rows));

TEST(PracticeCommand, RepeatsWhereItsWordSaysSo)
{
    EXPECT_FALSE(ParseCommand("add 04 a9").repeats);
    EXPECT_TRUE(ParseCommand("radd 04 a9").repeats);
    EXPECT_FALSE(ParseCommand("remove").repeats);
    EXPECT_TRUE(ParseCommand("rremove").repeats);
}

} // namespace

} // namespace qf::practice
