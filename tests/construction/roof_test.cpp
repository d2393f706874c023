#include "construction/roof.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <random>

#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

RoofState Roof(int direction, int x1, int x2, int y1, int y2, int z)
{
    RoofState state;
    state.tileRoof = 0;
    state.direction = direction;
    state.area = {std::to_string(x1), std::to_string(y1), std::to_string(x2), std::to_string(y2), ""};
    state.custom = std::to_string(z);
    state.tableForm = Generation09;
    return state;
}

Lines LinesOf(const RoofState& state, core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    AddRoof(state, generation, outlet);
    return outlet.Lines();
}

/// One command of a gable as numbers.
struct Row {
    unsigned id = 0;
    int      x1 = 0;
    int      x2 = 0;
    int      y1 = 0;
    int      y2 = 0;
    int      z = 0;
};

std::vector<Row> RowsOf(const RoofState& state)
{
    std::vector<Row> rows;
    for (const auto& command : test::Collect([&](core::Outlet& outlet) { AddRoof(state, Generation09, outlet); })) {
        Row row;
        EXPECT_EQ(std::sscanf(command.c_str(), "tile 0x%x %d %d %d %d %d", &row.id, &row.x1, &row.x2, &row.y1, &row.y2,
                              &row.z),
                  6)
            << command;
        rows.push_back(row);
    }
    return rows;
}

TEST(Roofs, AnEvenGableHasAsManyFallingRowsAsRisingOnes)
{
    EXPECT_EQ(LinesOf(Roof(RoofEastWest, 100, 105, 50, 54, 20)),
              (Lines{"send tile 0x05c4 100 100 50 55 20", "send tile 0x05c4 101 101 50 55 23",
                     "send tile 0x05c4 102 102 50 55 26", "send tile 0x05c2 103 103 50 55 29",
                     "send tile 0x05c3 104 104 50 55 26", "send tile 0x05c3 105 105 50 55 23",
                     "send tile 0x05c3 106 106 50 55 20"}));
}

TEST(Roofs, AnOddGableEndsAStepHigher)
{
    const auto rows = RowsOf(Roof(RoofEastWest, 100, 104, 50, 54, 0));
    ASSERT_EQ(rows.size(), 6U);
    EXPECT_EQ(rows[3].x1, 103);
    EXPECT_EQ(rows[3].id, 0x05C2U);
    EXPECT_EQ(rows.back().x1, 105);
    EXPECT_EQ(rows.back().z, 3);
}

TEST(Roofs, AGableOfOneTileIsThreeRows)
{
    EXPECT_EQ(LinesOf(Roof(RoofNorthSouth, 10, 12, 7, 7, 0)),
              (Lines{"send tile 0x05d0 10 13 7 7 0", "send tile 0x05ce 10 13 8 8 3", "send tile 0x05cf 10 13 9 9 0"}));
}

TEST(Roofs, EveryRowOfAGableLiesInTheBoxWithItsOverhang)
{
    std::mt19937                       generator(20250);
    std::uniform_int_distribution<int> place(-3000, 6000);
    std::uniform_int_distribution<int> side(1, 40);
    for (int run = 0; run < 2000; ++run) {
        const int  x1 = place(generator);
        const int  y1 = place(generator);
        const int  x2 = x1 + side(generator);
        const int  y2 = y1 + side(generator);
        const int  direction = run % 2;
        const auto rows = RowsOf(Roof(direction, x1, x2, y1, y2, 7));
        const int  width = (direction == RoofEastWest ? x2 - x1 : y2 - y1) + 1;
        ASSERT_EQ(rows.size(), static_cast<std::size_t>(width + 1));
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const auto& row = rows[i];
            EXPECT_TRUE(row.x1 >= x1 && row.x2 <= x2 + 1 && row.y1 >= y1 && row.y2 <= y2 + 1);
            EXPECT_EQ(direction == RoofEastWest ? row.x1 : row.y1,
                      (direction == RoofEastWest ? x1 : y1) + static_cast<int>(i));
            EXPECT_GE(row.z, 7);
            if (i > 0) {
                EXPECT_EQ(std::abs(row.z - rows[i - 1].z), 3);
            }
        }
    }
}

TEST(Roofs, ABoxWithoutWidthRisesUntilItsNumbersLeave32Bits)
{
    for (const int direction : {RoofNorthSouth, RoofEastWest}) {
        // No width at all, and corners that are swapped: the ridge lies behind the first row.
        for (const int gap : {1, 5}) {
            const bool           eastWest = direction == RoofEastWest;
            const auto           state = eastWest ? Roof(direction, 100, 100 - gap, 50, 54, 2'147'473'648)
                                                  : Roof(direction, 100, 105, 50, 50 - gap, 2'147'473'648);
            test::CountingOutlet outlet(1'000'000);
            AddRoof(state, Generation09, outlet);
            EXPECT_EQ(outlet.Commands(), 3334U) << "direction " << direction << ", gap " << gap;
            EXPECT_EQ(outlet.Messages(), 1U);
        }
    }
    auto                  state = Roof(RoofEastWest, 100, 99, 50, 54, 2'147'483'644);
    test::RecordingOutlet outlet;
    AddRoof(state, Generation09, outlet);
    EXPECT_EQ(outlet.Lines(),
              (Lines{"send tile 0x05c4 100 100 50 55 2147483644", "send tile 0x05c4 101 101 50 55 2147483647",
                     "box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"}));
}

TEST(Roofs, FlatRoofsHaveNoOverhang)
{
    auto state = Roof(RoofEastWest, 100, 105, 50, 54, 20);
    state.tab = FlatRoofs;
    state.flatRoof = 3;
    EXPECT_EQ(LinesOf(state), Lines{"send tile 0x0583 100 105 50 54 20"});
    state.direction = RoofNorthSouth;
    EXPECT_EQ(LinesOf(state), Lines{"send tile 0x057f 100 105 50 54 20"});
}

TEST(Roofs, ChecksComeInTheirOrder)
{
    auto state = Roof(-1, 1, 2, 3, 4, 5);
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] You need to select a direction!"});
    state.tab = FlatRoofs;
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] You need to select a roof type!"});
    state = Roof(RoofEastWest, 1, 2, 3, 4, 5);
    state.custom = "";
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] Please select valid coordinates!"});
}

TEST(Roofs, SingleTilesAreDirectAdds)
{
    auto       state = Roof(RoofEastWest, 1, 2, 3, 4, 5);
    const auto lines = [&](int piece, core::ServerGeneration generation) {
        test::RecordingOutlet outlet;
        AddRoofTile(state, piece, generation, outlet);
        return outlet.Lines();
    };
    EXPECT_EQ(lines(0, Generation09), Lines{"send radd 0x05c4"});
    EXPECT_EQ(lines(1, Generation09), Lines{"send radd 0x05c2"});
    EXPECT_EQ(lines(2, Generation09), Lines{"send radd 0x05c3"});
    state.tableForm = Generation070;
    EXPECT_EQ(lines(2, Generation070), Lines{"send add 05 c3"});
    state.tab = FlatRoofs;
    EXPECT_EQ(lines(2, Generation070), Lines{"box 0 This only works with the Tile-roofs"});
}

TEST(Roofs, TheShownTileIsTheRidgeOrTheFixedOneOfAFlatRoof)
{
    auto state = Roof(RoofEastWest, 1, 2, 3, 4, 5);
    EXPECT_EQ(ShownRoofTile(state), 0x05C2);
    state.direction = -1;
    EXPECT_EQ(ShownRoofTile(state), std::nullopt);
    state.tab = FlatRoofs;
    EXPECT_EQ(ShownRoofTile(state), std::nullopt);
    state.flatRoof = 1;
    EXPECT_EQ(ShownRoofTile(state), 0x0573);
}

} // namespace
} // namespace qf::construction
