#include "construction/stairs.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>
#include <random>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

StairsState Stairs(int direction, const char* start, const char* end)
{
    StairsState state;
    state.material = 0;
    state.direction = direction;
    state.area = {"100", "200", "102", "203", ""};
    state.customStart = start;
    state.customEnd = end;
    state.tableForm = Generation09;
    return state;
}

Lines LinesOf(const StairsState& state, core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    AddStairs(state, generation, outlet);
    return outlet.Lines();
}

TEST(Stairs, FourRowsLeadUpAStorey)
{
    EXPECT_EQ(LinesOf(Stairs(StairsNorth, "0", "20")),
              (Lines{"send tile 0x0721 100 102 200 200 0", "send tile 0x0721 100 102 200 200 5",
                     "send tile 0x0721 100 102 200 200 10", "send tile 0x0724 100 102 200 200 15",
                     "send tile 0x0721 100 102 199 199 0", "send tile 0x0721 100 102 199 199 5",
                     "send tile 0x0724 100 102 199 199 10", "send tile 0x0721 100 102 198 198 0",
                     "send tile 0x0724 100 102 198 198 5", "send tile 0x0724 100 102 197 197 0"}));
}

TEST(Stairs, TheLowestFlightHasTwoRows)
{
    EXPECT_EQ(LinesOf(Stairs(StairsEast, "0", "10")),
              (Lines{"send tile 0x0721 100 100 200 203 0", "send tile 0x0723 100 100 200 203 5",
                     "send tile 0x0723 101 101 200 203 0"}));
}

TEST(Stairs, TheStepsOfAFlightFallByFiveFromRowToRow)
{
    std::mt19937                       generator(4);
    std::uniform_int_distribution<int> start(-100, 100);
    std::uniform_int_distribution<int> rises(2, 30);
    for (int run = 0; run < 1000; ++run) {
        const int  direction = run % 4;
        const int  low = start(generator);
        const int  high = low + 5 * rises(generator);
        const auto state = Stairs(direction, std::to_string(low).c_str(), std::to_string(high).c_str());
        std::map<int, std::vector<std::pair<unsigned, int>>> byRow;
        for (const auto& command :
             test::Collect([&](core::Outlet& outlet) { AddStairs(state, Generation09, outlet); })) {
            unsigned id = 0;
            int      x1 = 0;
            int      x2 = 0;
            int      y1 = 0;
            int      y2 = 0;
            int      z = 0;
            ASSERT_EQ(std::sscanf(command.c_str(), "tile 0x%x %d %d %d %d %d", &id, &x1, &x2, &y1, &y2, &z), 6)
                << command;
            const bool alongX = direction == StairsNorth || direction == StairsSouth;
            const int  moved = alongX ? y1 - 200 : x1 - 100;
            byRow[std::abs(moved)].emplace_back(id, z);
        }
        ASSERT_EQ(byRow.size(), static_cast<std::size_t>((high - low) / 5));
        int expected = high - 5;
        for (const auto& [row, pieces] : byRow) {
            EXPECT_EQ(pieces.back().second, expected) << "row " << row;
            EXPECT_NE(pieces.back().first, 0x0721U);
            for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
                EXPECT_EQ(pieces[i], std::make_pair(0x0721U, low + 5 * static_cast<int>(i)));
            }
            expected -= 5;
        }
        EXPECT_EQ(expected, low - 5);
    }
}

TEST(Stairs, HeightsAreCheckedInTheirOrder)
{
    const auto        only = [](const char* text) { return Lines{"box 0 " + std::string(text)}; };
    const char* const tooLow = "The starting height of the stairs must be at least 10 Z below the End Height.";
    EXPECT_EQ(LinesOf(Stairs(-1, "", "")), only("You need to select a starting floor."));
    EXPECT_EQ(LinesOf(Stairs(-1, "0", "")), only("You need to select an ending floor."));
    EXPECT_EQ(LinesOf(Stairs(-1, "0", "5")), only(tooLow));
    EXPECT_EQ(LinesOf(Stairs(-1, "20", "20")), only(tooLow));
    EXPECT_EQ(LinesOf(Stairs(-1, "30000", "-30000")), only(tooLow));
    EXPECT_EQ(LinesOf(Stairs(-1, "0", "10")),
              Lines{"box 64 [Dobrin's Quernfield 20250 ] You must select a direction!"});
    auto noMaterial = Stairs(0, "0", "10");
    noMaterial.material = -1;
    EXPECT_EQ(LinesOf(noMaterial), Lines{"box 64 [Dobrin's Quernfield 20250 ] You must select a valid material!"});
}

TEST(Stairs, AHeightThatIsNo16BitNumberIsAnError)
{
    test::RecordingOutlet outlet;
    EXPECT_RUNTIME_ERROR(13, AddStairs(Stairs(0, "x", "20"), Generation09, outlet));
    EXPECT_RUNTIME_ERROR(6, AddStairs(Stairs(0, "0", "40000"), Generation09, outlet));
    EXPECT_TRUE(outlet.Lines().empty());
}

TEST(Stairs, MultiplesOfFiveAreMeasuredFromTheStart)
{
    EXPECT_EQ(LinesOf(Stairs(StairsNorth, "5", "15")).size(), 3U);
    EXPECT_EQ(LinesOf(Stairs(StairsNorth, "-3", "7")).size(), 3U);
}

TEST(Stairs, AnUnevenHeightTellsAndThenRisesWithoutEnd)
{
    test::RecordingOutlet outlet(1000);
    EXPECT_THROW(AddStairs(Stairs(StairsNorth, "3", "14"), Generation09, outlet), test::LimitReached);
    const auto lines = outlet.Lines();
    EXPECT_EQ(lines[0], "box 0 This annoying error was brought to you by Dobrin");
    EXPECT_EQ(lines[1], "send tile 0x0721 100 102 200 200 3");
    EXPECT_EQ(lines[999], "send tile 0x0721 100 102 200 200 4993");
}

TEST(Stairs, AFlightWithoutEndRunsUntilItsNumbersLeave32Bits)
{
    Flight flight{.direction = StairsSouth, .block = "0x0721", .step = "0x0722", .x1 = 1, .y1 = 1, .farEnd = 2};
    flight.start = 2'147'473'648;
    flight.end = 2'147'473'659;
    test::CountingOutlet outlet(1'000'000);
    EXPECT_RUNTIME_ERROR(6, LayFlight(flight, Generation09, outlet));
    EXPECT_EQ(outlet.Commands(), 2000U);
}

TEST(Stairs, SwappedCornersAreRefused)
{
    auto state = Stairs(StairsSouth, "0", "10");
    state.area.x2 = "99";
    state.area.y2 = "?";
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] X2 is smaller than X1"});
    state.direction = StairsWest;
    EXPECT_EQ(LinesOf(state),
              Lines{"box 64 [Dobrin's Quernfield 20250 ] You must fill in a valid set of coordinates!"});
    state.area.y2 = "199";
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] Y2 is smaller than Y1"});
}

TEST(Stairs, ASingleItemReadsNoBox)
{
    auto state = Stairs(StairsWest, "", "");
    state.area = {};
    state.singleItem = true;
    state.material = 2;
    EXPECT_EQ(LinesOf(state), Lines{"send add 0x087c"});
    state.repeat = true;
    state.tableForm = Generation070;
    EXPECT_EQ(LinesOf(state, Generation070), Lines{"send radd 08 7c"});
}

TEST(Stairs, ThePieceButtonsHaveATableOfTheirOwn)
{
    EXPECT_EQ(StairPieceId(2, Generation09), "0x738");
    EXPECT_EQ(StairPieceId(2, Generation070), "7 38");
    EXPECT_EQ(StairPieceId(9, Generation070), "7 09");
    auto                  state = Stairs(-1, "", "");
    test::RecordingOutlet outlet;
    AddStairPiece(state, 0, Generation09, outlet);
    state.repeat = true;
    AddStairPiece(state, 0, Generation09, outlet);
    state.tableForm = Generation070;
    AddStairPiece(state, 0, Generation070, outlet);
    EXPECT_EQ(outlet.Lines(), (Lines{"send add 0x721", "send radd 0x721", "send add 7 21"}));
}

} // namespace
} // namespace qf::construction
