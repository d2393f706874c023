#include "construction/floors.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

#include "core/tile_id.h"
#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

constexpr core::ServerGeneration Neither{7};

FloorsState FloorState(int type, int direction, core::ServerGeneration form = Generation09)
{
    FloorsState state;
    state.tab = type < 19 ? FloorsOne : FloorsTwo;
    state.floorType = type;
    state.direction = direction;
    state.addMethod = FloorCoordinates;
    state.area = {"100", "100", "103", "102", ""};
    state.custom = "0";
    state.tableForm = form;
    return state;
}

FloorsState CarpetState(int carpet, int direction)
{
    auto state = FloorState(0, direction);
    state.tab = Carpets;
    state.carpet = carpet;
    return state;
}

Lines LinesOf(const FloorsState& state, core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    AddFloor(state, generation, outlet);
    return outlet.Lines();
}

TEST(Floors, WoodDarkEastWestGivesNineCommands)
{
    EXPECT_EQ(LinesOf(FloorState(0, EastWest)),
              (Lines{"send tile 0x04a9 101 102 101 101 0", "send tile 0x04b4 100 100 100 100 0",
                     "send tile 0x04b3 103 103 100 100 0", "send tile 0x04b1 103 103 102 102 0",
                     "send tile 0x04b2 100 100 102 102 0", "send tile 0x04b0 101 102 100 100 0",
                     "send tile 0x04ae 101 102 102 102 0", "send tile 0x04ad 100 100 101 101 0",
                     "send tile 0x04af 103 103 101 101 0"}));
}

TEST(Floors, WoodDarkUnderTheOlderDialectStartsWithTilew)
{
    const auto lines = LinesOf(FloorState(0, EastWest, Generation070), Generation070);
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines.front(), "send tilew 04 a9 101 102 101 101 0");
}

TEST(Floors, MarbleWhiteGivesExactlyOneCommand)
{
    EXPECT_EQ(LinesOf(FloorState(4, NorthSouth)), Lines{"send tile 0x050d 100 103 100 102 0"});
}

TEST(Floors, SandFloorHasBordersAndDarkWoodenFloorHasNone)
{
    EXPECT_EQ(LinesOf(FloorState(23, NorthSouth)).size(), 9U);
    EXPECT_EQ(LinesOf(FloorState(22, NorthSouth)).size(), 1U);
}

TEST(Floors, SixTypesHaveBordersInBothDirections)
{
    const std::set<int> bordered{0, 1, 19, 20, 21, 23};
    for (int type = 0; type < 31; ++type) {
        for (const int direction : {NorthSouth, EastWest}) {
            EXPECT_EQ(BorderOfFloor(type, direction) != nullptr, bordered.contains(type)) << type;
        }
    }
}

TEST(Floors, CarpetsIgnoreTheDirectionButForGozaMat)
{
    for (int carpet = 0; carpet < 12; ++carpet) {
        const bool same = LinesOf(CarpetState(carpet, NorthSouth)) == LinesOf(CarpetState(carpet, EastWest));
        EXPECT_EQ(same, carpet != GozaMat) << carpet;
    }
}

TEST(Floors, TheOtherCentreOfTwoCarpetsIsSeenInPreviewAndDirectAddAlone)
{
    EXPECT_EQ(FloorTileId(Carpets, EastWest, 3, Generation09), "0x0ac6");
    EXPECT_EQ(FloorTileId(Carpets, EastWest, 4, Generation09), "0x0abf");
    EXPECT_EQ(FloorTileId(Carpets, -1, 4, Generation09), "");
    EXPECT_EQ(FloorTileId(Carpets, EastWest, -1, Generation09), "");
    EXPECT_EQ(FloorTileId(Carpets, EastWest, 12, Generation09), "");
    EXPECT_EQ(LinesOf(CarpetState(3, EastWest)).front(), "send tile 0x0ac7 101 102 101 101 0");
    EXPECT_EQ(LinesOf(CarpetState(4, EastWest)).front(), "send tile 0x0abd 101 102 101 101 0");
}

TEST(Floors, ATypeOfTheOtherTabGoesOutWithAnEmptyId)
{
    auto state = FloorState(25, NorthSouth);
    state.tab = FloorsOne;
    EXPECT_EQ(LinesOf(state), Lines{"send tile  100 103 100 102 0"});
}

TEST(Floors, ABorderedTypeOfTheOtherTabLosesItsCentreAlone)
{
    auto state = FloorState(19, NorthSouth);
    state.tab = FloorsOne;
    const auto lines = LinesOf(state);
    ASSERT_EQ(lines.size(), 9U);
    EXPECT_EQ(lines[0], "send tile  101 102 101 101 0");
    EXPECT_EQ(lines[1], "send tile 0x2427 100 100 100 100 0");
}

TEST(Floors, ABoxWithoutRoomForACentreGoesOutAsItIs)
{
    auto state = FloorState(0, NorthSouth);
    state.area.x2 = "101";
    EXPECT_EQ(LinesOf(state).front(), "send tile 0x04b5 101 100 101 101 0");
}

TEST(Floors, ValidatesDirectionThenTypeThenMethod)
{
    const auto box = [](const char* text) { return Lines{std::string("box 64 [Dobrin's Quernfield 20250 ] ") + text}; };
    FloorsState state;
    EXPECT_EQ(LinesOf(state), box("Please select a direction!"));
    state.direction = NorthSouth;
    EXPECT_EQ(LinesOf(state), box("Please select a floor type!"));
    state.floorType = 4;
    EXPECT_EQ(LinesOf(state), box("Please select an add method!"));
    state.addMethod = FloorCoordinates;
    EXPECT_EQ(LinesOf(state), box("Please fill in a valid set of coordinates"));
    state.tab = Rugs;
    EXPECT_EQ(LinesOf(state), box("Please select a floor type!"));
    state.tab = Carpets;
    EXPECT_EQ(LinesOf(state), box("Please select a floor type!"));
}

TEST(Floors, EveryBoxMustHoldANumber)
{
    for (auto AreaTexts::*text : {&AreaTexts::x1, &AreaTexts::x2, &AreaTexts::y1, &AreaTexts::y2}) {
        auto state = FloorState(4, NorthSouth);
        state.area.*text = "";
        EXPECT_EQ(LinesOf(state),
                  Lines{"box 64 [Dobrin's Quernfield 20250 ] Please fill in a valid set of coordinates"});
    }
    auto state = FloorState(4, NorthSouth);
    state.custom = "N/A";
    EXPECT_EQ(LinesOf(state), Lines{"box 64 [Dobrin's Quernfield 20250 ] Please fill in a valid set of coordinates"});
}

TEST(Floors, AStripThatLeavesTheNumbersOverflowsBeforeItsCommand)
{
    auto state = FloorState(0, NorthSouth);
    state.area.x1 = "2147483647";
    EXPECT_EQ(LinesOf(state), Lines{"box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"});
}

TEST(Floors, PointAndClickTakesTheShownId)
{
    auto state = FloorState(4, NorthSouth);
    state.addMethod = FloorPointAndClick;
    state.itemId = "04 a9";
    EXPECT_EQ(LinesOf(state, Generation070), Lines{"send tile 04 a9"});
    state.useZ = true;
    EXPECT_EQ(LinesOf(state, Generation070), Lines{"send rndtile 04 a9"});
    EXPECT_EQ(LinesOf(state, Generation09), Lines{"send rndtile 04 a9"});
    EXPECT_EQ(LinesOf(state, Neither), Lines{"send rndtile 04 a9"});
}

TEST(Floors, NoAreaCommandForAGenerationThatIsNeither)
{
    EXPECT_EQ(LinesOf(FloorState(0, NorthSouth, Neither), Neither), Lines{});
}

TEST(Floors, TableFormAndCommandWordMayDiffer)
{
    EXPECT_EQ(LinesOf(FloorState(4, NorthSouth, Generation070), Generation09),
              Lines{"send tile 05 0d 100 103 100 102 0"});
}

TEST(Floors, DirectAddNeedsADirection)
{
    test::RecordingOutlet outlet;
    FloorsState           state;
    AddFloorPiece(state, Rugs, 0, Generation09, outlet);
    state.direction = EastWest;
    state.tableForm = Generation070;
    AddFloorPiece(state, Rugs, 0, Generation070, outlet);
    EXPECT_EQ(outlet.Lines(),
              (Lines{"box 64 [Dobrin's Quernfield 20250 ] Please select a direction first", "send add 1e 44"}));
}

TEST(Floors, EveryTableEntryIsFourHexDigits)
{
    const auto good = [](std::string_view digits) {
        return digits.size() == 4 && digits.find_first_not_of("0123456789abcdefABCDEF") == std::string_view::npos;
    };
    for (const auto rows : {FloorRows(), RugRows(), CarpetRows()}) {
        for (const auto& row : rows) {
            EXPECT_TRUE(good(row.northSouth) && good(row.eastWest)) << row.caption;
        }
    }
    EXPECT_EQ(FloorRows().size(), 31U);
    EXPECT_EQ(RugRows().size(), 7U);
    EXPECT_EQ(CarpetRows().size(), 12U);
}

struct Strip {
    int x1, x2, y1, y2;
};

TEST(Floors, ABorderedFloorCoversEveryTileOfItsBoxOnce)
{
    std::mt19937                       random(20250);
    std::uniform_int_distribution<int> corner(0, 40);
    for (int round = 0; round < 500; ++round) {
        auto      state = FloorState(std::vector{0, 1, 19, 20, 21, 23}[static_cast<std::size_t>(round) % 6], round % 2);
        const int x1 = corner(random);
        const int y1 = corner(random);
        const int x2 = x1 + 1 + corner(random);
        const int y2 = y1 + 1 + corner(random);
        state.area = {std::to_string(x1), std::to_string(y1), std::to_string(x2), std::to_string(y2), ""};
        std::multiset<std::pair<int, int>> tiles;
        for (const auto& line : LinesOf(state)) {
            Strip strip{};
            ASSERT_EQ(
                std::sscanf(line.c_str(), "send tile 0x%*4c %d %d %d %d", &strip.x1, &strip.x2, &strip.y1, &strip.y2),
                4);
            for (int x = strip.x1; x <= strip.x2; ++x) {
                for (int y = strip.y1; y <= strip.y2; ++y) {
                    tiles.emplace(x, y);
                }
            }
        }
        const auto area = static_cast<std::size_t>((x2 - x1 + 1) * (y2 - y1 + 1));
        EXPECT_EQ(tiles.size(), area);
        EXPECT_EQ(std::set(tiles.begin(), tiles.end()).size(), area);
    }
}

} // namespace
} // namespace qf::construction
