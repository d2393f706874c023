// A walk over the whole product of options and states of the directions, held against the printed tables.

#include <gtest/gtest.h>

#include "items/items_desk.h"
#include "items/printed_tables.h"
#include "support/expect_error.h"

namespace qf::items {
namespace {

using core::Generation070;
using core::Generation09;
using core::ServerGeneration;

constexpr int NoFacing = -1;

const PrintedRow& Printed(int tab, int option)
{
    return PrintedTables()[static_cast<std::size_t>(tab)][static_cast<std::size_t>(option)];
}

int Rows(int tab)
{
    return static_cast<int>(PrintedTables()[static_cast<std::size_t>(tab)].size());
}

bool HasLetter(const PrintedRow& row, char letter)
{
    return row.directions.find(letter) != std::string::npos;
}

/// The ID text that the tables on paper give.
std::string Cell(int tab, int option, int facing, int layer, ServerGeneration form)
{
    const auto& row = Printed(tab, option);
    if (form.Is070() && tab == Doors &&
        ((facing == 1 && (option == 0 || option == 1 || option == 2)) || (facing == 3 && option == 4))) {
        layer = layer == 0 ? 1 : 0;
    }
    auto digits = (layer == 0 ? row.tiles : row.second)[static_cast<std::size_t>(tab == Plants ? 2 : facing)];
    if (digits.empty() || (form.Is070() && tab == Tables && option >= 20)) {
        return "";
    }
    if (form.Is09()) {
        return "0x" + digits;
    }
    std::erase(digits, ' ');
    return digits.substr(0, 2) + " " + digits.substr(2);
}

std::int32_t Number(const std::string& cell, ServerGeneration generation)
{
    std::string digits = generation.Is09() ? cell.substr(2) : cell;
    std::erase(digits, ' ');
    const long number = digits.empty() ? 0 : std::stol(digits, nullptr, 16);
    return static_cast<std::int32_t>(generation.Is070() && number >= 0x8000 ? number - 0x10000 : number);
}

int FallbackColumn(int tab, int option)
{
    if (tab <= Plants) {
        return 2;
    }
    return tab == WallDecor && option == 13 ? 1 : 0;
}

bool IsNorthWestDoor(int option)
{
    return option == 16 || (option >= 18 && option <= 38);
}

void SetFacing(DeskOnPaper& desk, int facing)
{
    for (int place = 0; place < 4; ++place) {
        desk.state.directionSet[static_cast<std::size_t>(place)] = place == facing;
    }
}

/// What is set after the option of a door: the facing, and which open directions.
struct DoorAfter {
    int  facing;
    bool set[4]; ///< the open directions N, S, E, W
    bool framesChange = false;
    bool north = false; ///< which of the frames is shown where they change
};

/// What choosing a facing of a door does to its open directions.
void Turn(DoorAfter& after)
{
    after.framesChange = true;
    after.north = after.facing == 0 || after.facing == 2;
    after.set[after.north ? 0 : 2] = after.set[after.north ? 1 : 3] = false;
}

DoorAfter AfterDoor(int option, int facing, const bool (&open)[4])
{
    DoorAfter after{facing, {open[0], open[1], open[2], open[3]}};
    if (IsNorthWestDoor(option) && facing != 1 && facing != 0) {
        after.facing = 0;
        Turn(after);
    }
    if (!after.set[2]) {
        after.set[2] = true;
        after.set[3] = false;
        Turn(after);
    }
    return after;
}

class Walk : public testing::TestWithParam<ServerGeneration> {};

TEST_P(Walk, AnOptionOfEveryTabAfterEveryDirection)
{
    const auto generation = GetParam();
    for (int tab = 0; tab < TabCount; ++tab) {
        if (tab == Doors) {
            continue;
        }
        for (int option = 0; option < Rows(tab); ++option) {
            for (int facing = NoFacing; facing < 4; ++facing) {
                for (int available = 0; available < 16; ++available) {
                    SCOPED_TRACE(Printed(tab, option).name + " after " + std::to_string(facing));
                    DeskOnPaper desk(generation, tab);
                    SetFacing(desk, facing);
                    for (std::size_t place = 0; place < 4; ++place) {
                        desk.state.directionEnabled[place] = (available >> place & 1) != 0;
                    }
                    const auto& row = Printed(tab, option);
                    int         expected = facing;
                    if (tab == Chairs && (option <= 3 || option == 12 || option == 13 || option == 17) && facing != 3) {
                        expected = 2;
                    }
                    const bool counts = expected != NoFacing && HasLetter(row, "NWSE"[expected]);
                    const auto cell = Cell(tab, option, counts ? expected : FallbackColumn(tab, option), 0, generation);
                    if (cell.empty() && generation.Is09()) {
                        EXPECT_RUNTIME_ERROR(core::error::InvalidCall, desk.Option(option));
                        continue;
                    }
                    desk.Option(option);
                    std::string enabled;
                    for (const char letter : {'N', 'W', 'S', 'E'}) {
                        enabled += HasLetter(row, letter) ? '1' : '0';
                    }
                    EXPECT_EQ(Flags(desk.state.directionEnabled), enabled + "1111");
                    EXPECT_EQ(GetDirection(desk.state), counts ? expected : -1);
                    for (int place = 0; place < 4; ++place) {
                        EXPECT_EQ(desk.state.directionSet[static_cast<std::size_t>(place)], place == expected);
                    }
                    EXPECT_EQ(GetOption(desk.state, tab), option);
                    EXPECT_EQ(desk.state.txtItemID, cell);
                    ASSERT_FALSE(desk.drawn.empty());
                    EXPECT_EQ(desk.drawn.back(), Number(cell, generation));
                    EXPECT_FALSE(desk.state.fraDoorOpenNS || desk.state.fraDoorOpenEW);
                }
            }
        }
    }
}

TEST_P(Walk, ADoorAfterEveryDirectionAndOpenDirection)
{
    const auto generation = GetParam();
    for (int option = 0; option < Rows(Doors); ++option) {
        for (int facing = NoFacing; facing < 4; ++facing) {
            for (int choice = 0; choice < 9; ++choice) {
                const bool open[4] = {choice % 3 == 1, choice % 3 == 2, choice / 3 == 1, choice / 3 == 2};
                if (facing == NoFacing && !open[2]) {
                    continue; // nothing takes the second open direction away before a facing is chosen
                }
                SCOPED_TRACE(Printed(Doors, option).name + " after " + std::to_string(facing) + " and " +
                             std::to_string(choice));
                DeskOnPaper desk(generation, Doors);
                SetFacing(desk, facing);
                for (std::size_t place = 0; place < 4; ++place) {
                    desk.state.directionSet[OpenNorth + place] = open[place];
                }
                const auto after = AfterDoor(option, facing, open);
                const bool firstLayer = after.set[0] || after.set[2] || (!after.set[1] && !after.set[3]);
                const auto cell = after.facing == NoFacing
                                      ? Cell(Doors, option, 0, 0, generation)
                                      : Cell(Doors, option, after.facing, firstLayer ? 0 : 1, generation);
                if (cell.empty() && generation.Is09()) {
                    EXPECT_RUNTIME_ERROR(core::error::InvalidCall, desk.Option(option));
                    continue;
                }
                desk.Option(option);
                const bool  narrow = IsNorthWestDoor(option);
                std::string enabled = narrow ? "1100" : "1111";
                enabled += after.framesChange && after.north ? '0' : '1';
                enabled += narrow ? '0' : '1';
                enabled += after.framesChange && !after.north ? '0' : '1';
                enabled += narrow ? '0' : '1';
                EXPECT_EQ(Flags(desk.state.directionEnabled), enabled);
                EXPECT_EQ(GetDirection(desk.state), after.facing);
                for (std::size_t place = 0; place < 4; ++place) {
                    EXPECT_EQ(desk.state.directionSet[OpenNorth + place], after.set[place]) << place;
                }
                EXPECT_EQ(desk.state.fraDoorOpenNS, after.framesChange && after.north);
                EXPECT_EQ(desk.state.fraDoorOpenEW, after.framesChange && !after.north);
                EXPECT_EQ(desk.state.txtItemID, cell);
                EXPECT_EQ(desk.drawn.back(), Number(cell, generation));
            }
        }
    }
}

TEST_P(Walk, EveryDirectionOfAnItem)
{
    const auto generation = GetParam();
    for (int tab = 0; tab < TabCount; ++tab) {
        for (int option = 0; option < Rows(tab); ++option) {
            for (int facing = 0; facing < 4; ++facing) {
                const auto& row = Printed(tab, option);
                if (tab == Doors || !HasLetter(row, "NWSE"[facing])) {
                    continue;
                }
                SCOPED_TRACE(row.name + " to " + std::to_string(facing));
                DeskOnPaper desk(generation, tab);
                desk.Option(option);
                const auto enabled = desk.state.directionEnabled;
                const auto cell = Cell(tab, option, facing, 0, generation);
                desk.Direction(facing);
                EXPECT_EQ(desk.state.directionEnabled, enabled);
                EXPECT_EQ(GetDirection(desk.state), facing);
                EXPECT_EQ(desk.state.txtItemID, cell);
                EXPECT_EQ(desk.drawn.back(), Number(cell, generation));
                EXPECT_EQ(desk.Add(), std::vector<std::string>{"send add " + cell});
            }
        }
    }
}

TEST_P(Walk, EveryFacingAndOpenDirectionOfADoor)
{
    const auto generation = GetParam();
    for (int option = 0; option < Rows(Doors); ++option) {
        const bool narrow = IsNorthWestDoor(option);
        for (int facing = 0; facing < (narrow ? 2 : 4); ++facing) {
            SCOPED_TRACE(Printed(Doors, option).name + " to " + std::to_string(facing));
            const bool  north = facing == 0 || facing == 2;
            DeskOnPaper desk(generation, Doors);
            desk.Option(option);
            const auto first = Cell(Doors, option, facing, 0, generation);
            if (first.empty() && generation.Is09()) {
                EXPECT_RUNTIME_ERROR(core::error::InvalidCall, desk.Direction(facing));
                continue;
            }
            desk.Direction(facing);
            EXPECT_EQ(desk.state.fraDoorOpenNS, north);
            EXPECT_EQ(desk.state.fraDoorOpenEW, !north);
            std::string enabled = narrow ? "1100" : "1111";
            enabled += north ? '0' : '1';
            enabled += narrow ? '0' : '1';
            enabled += north ? '1' : '0';
            enabled += narrow ? '0' : '1';
            EXPECT_EQ(Flags(desk.state.directionEnabled), enabled);
            EXPECT_EQ(desk.state.txtItemID, first);
            EXPECT_EQ(desk.drawn.back(), Number(first, generation));

            for (int open = north ? OpenEast : OpenNorth; open <= (north ? OpenWest : OpenSouth); ++open) {
                const int  layer = open % 2;
                const auto cell = Cell(Doors, option, facing, layer, generation);
                desk.Direction(open);
                EXPECT_EQ(desk.state.txtItemID, cell);
                EXPECT_EQ(desk.drawn.back(), Number(cell, generation));
                EXPECT_EQ(desk.Add(), std::vector<std::string>{"send add " + cell});
            }
            // A facing shows the first layer although the second open direction stays set.
            desk.Direction(facing);
            EXPECT_EQ(desk.state.txtItemID, first);
            EXPECT_EQ(desk.Add(), std::vector<std::string>{"send add " + Cell(Doors, option, facing, 1, generation)});
        }
    }
}

TEST_P(Walk, TurningADoorLeavesItsOpenDirectionToBeChosenAnew)
{
    DeskOnPaper desk(GetParam(), Doors);
    desk.Option(3);
    desk.Direction(West);
    desk.Direction(North);
    EXPECT_EQ(desk.Add(), std::vector<std::string>{"box 64 [Dobrin's Quernfield 20250 ] You must choose a valid open "
                                                   "direction for the door!"});
    desk.Option(3);
    EXPECT_TRUE(desk.state.directionSet[OpenEast]);
    EXPECT_EQ(desk.Add().front().substr(0, 9), "send add ");
}

TEST_P(Walk, ADirectionWithoutAnItemDrawsNothing)
{
    for (int tab = 0; tab < TabCount; ++tab) {
        DeskOnPaper desk(GetParam(), tab);
        desk.Direction(East);
        EXPECT_TRUE(desk.drawn.empty());
        EXPECT_EQ(desk.state.txtItemID, "00 00");
        EXPECT_EQ(GetDirection(desk.state), East);
        EXPECT_EQ(desk.state.fraDoorOpenEW, tab == Doors);
    }
}

INSTANTIATE_TEST_SUITE_P(BothGenerations, Walk, testing::Values(Generation070, Generation09),
                         [](const auto& generation) { return generation.param.Is070() ? "Older" : "Newer"; });

} // namespace
} // namespace qf::items
