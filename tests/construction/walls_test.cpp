#include "construction/walls.h"

#include <gtest/gtest.h>

#include <set>

#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

WallsState Wall(int method, int form, int height, int direction, int type,
                core::ServerGeneration tableForm = Generation09)
{
    WallsState state;
    state.method = method;
    state.form = form;
    state.height = height;
    state.direction = direction;
    state.type = type;
    state.area = {"10", "10", "12", "13", "5"};
    state.custom = "0";
    state.tableForm = tableForm;
    return state;
}

Lines LinesOf(const WallsState& state, core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    AddWall(state, generation, outlet);
    return outlet.Lines();
}

std::string Information(const std::string& text)
{
    return "box 64 [Dobrin's Quernfield 20250 ] " + text;
}

TEST(Walls, StoneBoxIsSixCommands)
{
    EXPECT_EQ(
        LinesOf(Wall(WallBox, -1, ShortWall, -1, 6)),
        (Lines{"send tile 0x0027 9 9 9 9 0", "send tile 0x0025 10 12 9 9 0", "send tile 0x0026 12 12 10 12 0",
               "send tile 0x0024 12 12 13 13 0", "send tile 0x0025 10 11 13 13 0", "send tile 0x0026 9 9 10 13 0"}));
}

TEST(Walls, DarkWoodBoxHasPostsAtThreeCorners)
{
    EXPECT_EQ(
        LinesOf(Wall(WallBox, -1, LongWall, -1, 0, Generation070), Generation070),
        (Lines{"send tilew 00 09 9 9 9 9 0", "send tilew 00 07 10 12 9 9 0", "send tilew 00 09 12 12 9 9 0",
               "send tilew 00 08 12 12 10 12 0", "send tilew 00 06 12 12 13 13 0", "send tilew 00 07 10 11 13 13 0",
               "send tilew 00 09 9 9 13 13 0", "send tilew 00 08 9 9 10 13 0"}));
}

TEST(Walls, CastleBoxesHaveFourSidesAndTheFirstAnEmptyPost)
{
    const auto first = LinesOf(Wall(WallBox, -1, LongWall, -1, 15));
    const auto second = LinesOf(Wall(WallBox, -1, LongWall, -1, 16));
    ASSERT_EQ(first.size(), 5U);
    EXPECT_EQ(first.front(), "send tile  9 9 9 9 0");
    EXPECT_EQ(LinesOf(Wall(WallBox, -1, LongWall, -1, 15, Generation070), Generation070).front(),
              "send tilew 00 82 9 9 9 9 0");
    EXPECT_EQ(second, (Lines{"send tile 0x0354 10 12 9 9 0", "send tile 0x0362 12 12 10 13 0",
                             "send tile 0x0354 10 12 13 13 0", "send tile 0x0362 9 9 10 13 0"}));
}

TEST(Walls, ABoxLaysItsFourLinesAndLeavesItsInsideFree)
{
    for (int type = 0; type < static_cast<int>(WallRows().size()); ++type) {
        std::set<std::pair<int, int>> cells;
        for (const auto& line : LinesOf(Wall(WallBox, -1, LongWall, -1, type))) {
            int        x1 = 0;
            int        x2 = 0;
            int        y1 = 0;
            int        y2 = 0;
            const auto numbers = line.substr(line.find(' ', std::string("send tile ").size()));
            ASSERT_EQ(std::sscanf(numbers.c_str(), "%d %d %d %d", &x1, &x2, &y1, &y2), 4) << line;
            for (int x = x1; x <= x2; ++x) {
                for (int y = y1; y <= y2; ++y) {
                    cells.insert({x, y});
                }
            }
        }
        std::set<std::pair<int, int>> ring;
        for (int x = 9; x <= 12; ++x) {
            for (int y = 9; y <= 13; ++y) {
                if (x == 9 || x == 12 || y == 9 || y == 13) {
                    ring.insert({x, y});
                }
            }
        }
        if (type == 16) {
            ring.erase({9, 9});
        }
        EXPECT_EQ(cells, ring) << "type " << type;
    }
}

TEST(Walls, LineReadsTheBoxOfItsDirectionAlone)
{
    auto northSouth = Wall(WallLine, NormalWall, LongWall, WallNorthSouth, 6);
    northSouth.area.x2 = "?";
    EXPECT_EQ(LinesOf(northSouth), Lines{"send tile 0x001b 10 10 10 13 0"});
    auto eastWest = Wall(WallLine, WindowWall, LongWall, WallEastWest, 10);
    eastWest.area.y2 = "";
    EXPECT_EQ(LinesOf(eastWest), Lines{"send tile 0x013a 10 12 10 10 0"});
    eastWest.area.x2 = "";
    EXPECT_EQ(LinesOf(eastWest), Lines{Information("You need specify valid coordinates!")});
}

TEST(Walls, ChecksComeInTheirOrder)
{
    const auto only = [](const char* text) { return Lines{Information(text)}; };
    EXPECT_EQ(LinesOf(Wall(-1, -1, -1, -1, -1)), only("Please select a method of adding the wall!"));
    EXPECT_EQ(LinesOf(Wall(WallLine, NormalWall, -1, -1, -1)), only("You need to select a direction first"));
    EXPECT_EQ(LinesOf(Wall(WallPointAndClick, WindowWall, -1, -1, -1)), only("You need to select a direction first"));
    EXPECT_EQ(LinesOf(Wall(WallBox, NormalWall, -1, -1, -1)), only("You need to select a wall height first"));
    EXPECT_EQ(LinesOf(Wall(WallPointAndClick, -1, -1, -1, -1)), only("You need to select a wall height first"));
    EXPECT_EQ(LinesOf(Wall(WallPointAndClick, -1, LongWall, 0, -1)), only("You need to select a wall form first"));
    EXPECT_EQ(LinesOf(Wall(WallBox, -1, LongWall, -1, -1)), only("You need to select a wall type first"));
}

TEST(Walls, APostInALineWithoutDirectionTellsAndGoesOnToNothing)
{
    EXPECT_EQ(LinesOf(Wall(WallLine, NorthWestPost, LongWall, -1, 6)),
              Lines{Information("You need to select a direction first")});
    EXPECT_EQ(LinesOf(Wall(WallLine, SouthEastCorner, -1, -1, 6)),
              (Lines{Information("You need to select a direction first"),
                     Information("You need to select a wall height first")}));
    EXPECT_EQ(LinesOf(Wall(WallPointAndClick, NorthWestPost, LongWall, -1, 6)), Lines{"send tile 0x001d"});
}

TEST(Walls, PointAndClickSaysTileInBothDialects)
{
    EXPECT_EQ(LinesOf(Wall(WallPointAndClick, NormalWall, LongWall, WallEastWest, 6, Generation070), Generation070),
              Lines{"send tile 00 1C"});
}

TEST(Walls, AnOverflowKeepsWhatWasSent)
{
    auto state = Wall(WallBox, -1, LongWall, -1, 6);
    state.area.y1 = "-2147483648";
    EXPECT_EQ(LinesOf(state), Lines{"box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"});
    state.area.y1 = "10";
    state.area.y2 = "-2147483648";
    EXPECT_EQ(LinesOf(state), (Lines{"send tile 0x001d 9 9 9 9 0", "send tile 0x001C 10 12 9 9 0",
                                     "box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"}));
}

TEST(Walls, SamplesStandOnTwoLinesAtTheCurrentHeight)
{
    auto state = Wall(-1, -1, -1, -1, -1, Generation070);
    state.custom = "77";
    test::RecordingOutlet outlet;
    ShowWallSelection(state, outlet);
    const auto commands = outlet.Commands();
    ASSERT_EQ(commands.size(), 36U);
    EXPECT_EQ(commands[0], "tile 00 15 10 10 10 10 5");
    EXPECT_EQ(commands[1], "tile 00 08 10 10 15 15 5");
    EXPECT_EQ(commands[32], "tile 02 d5 26 26 10 10 5");
    EXPECT_EQ(commands[35], "tile 03 c9 27 27 15 15 5");

    test::RecordingOutlet refused;
    refused.Answer(false);
    ShowWallSelection(state, refused);
    EXPECT_EQ(refused.Lines(), Lines{"ask 4 [Dobrin's Quernfield 20250 ] This will add examples of each Wall-type. Are "
                                     "you sure you want to continue? = no"});
}

TEST(Walls, FormsExcludeSomeTypes)
{
    for (int type = 0; type < static_cast<int>(WallRows().size()); ++type) {
        const bool partial = type >= FirstPartialWall && type <= LastPartialWall;
        EXPECT_TRUE(WallTypeHasForm(type, NormalWall));
        EXPECT_EQ(WallTypeHasForm(type, NorthWestPost), !partial || type == 13);
        EXPECT_EQ(WallTypeHasForm(type, SouthEastCorner), !partial || type == 13 || type == 14);
        EXPECT_EQ(WallTypeHasForm(type, WindowWall), !partial || type == 15);
    }
}

TEST(Walls, TheShownTileOfABoxIsThePlainWall)
{
    EXPECT_EQ(ShownWallTileId(Wall(WallBox, NorthWestPost, LongWall, WallNorthSouth, 6)), "0x001b");
    EXPECT_EQ(ShownWallTileId(Wall(WallLine, NorthWestPost, LongWall, WallNorthSouth, 6)), "0x001d");
    EXPECT_EQ(ShownWallTileId(Wall(WallLine, WindowWall, ShortWall, WallNorthSouth, 6)), "");
}

TEST(Walls, WhatIsNotWhollyChosenHasNoTile)
{
    EXPECT_EQ(WallTileId(NormalWall, LongWall, WallNorthSouth, 6, Generation09), "0x001b");
    EXPECT_EQ(WallTileId(-1, LongWall, WallNorthSouth, 6, Generation09), "");
    EXPECT_EQ(WallTileId(NormalWall, -1, WallNorthSouth, 6, Generation09), "");
    EXPECT_EQ(WallTileId(NormalWall, LongWall, -1, 6, Generation09), "");
    EXPECT_EQ(WallTileId(WindowWall, LongWall, -1, 6, Generation09), "");
    EXPECT_EQ(WallTileId(NormalWall, LongWall, WallNorthSouth, -1, Generation09), "");
    EXPECT_EQ(WallTileId(NormalWall, LongWall, WallNorthSouth, static_cast<int>(WallRows().size()), Generation09), "");
}

} // namespace
} // namespace qf::construction
