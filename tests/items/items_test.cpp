#include "items/items.h"

#include <gtest/gtest.h>

#include "items/items_desk.h"
#include "items/printed_tables.h"
#include "support/expect_error.h"

namespace qf::items {
namespace {

using core::Generation070;
using core::Generation09;
using core::ServerGeneration;
using Lines = std::vector<std::string>;

constexpr ServerGeneration Neither{2};

Lines Box(const std::string& text)
{
    return {"box 64 [Dobrin's Quernfield 20250 ] " + text};
}

TEST(ItemTables, AreThoseOnPaper)
{
    const std::size_t sizes[TabCount] = {18, 18, 23, 16, 19, 11, 15, 24, 23, 10, 41, 73, 14};
    for (int tab = 0; tab < TabCount; ++tab) {
        const auto& rows = TabInfo(tab).rows;
        const auto& printed = PrintedTables()[static_cast<std::size_t>(tab)];
        ASSERT_EQ(rows.size(), sizes[tab]);
        ASSERT_EQ(printed.size(), sizes[tab]);
        for (std::size_t row = 0; row < rows.size(); ++row) {
            SCOPED_TRACE(printed[row].name);
            EXPECT_EQ(rows[row].caption, printed[row].name);
            EXPECT_EQ(rows[row].facings, printed[row].directions);
            for (std::size_t facing = 0; facing < 4; ++facing) {
                EXPECT_EQ(rows[row].tiles[facing], printed[row].tiles[facing]) << facing;
                EXPECT_EQ(rows[row].otherTiles[facing], printed[row].second[facing]) << facing;
            }
        }
    }
}

TEST(ItemTables, SpotCellsInBothForms)
{
    struct Spot {
        int         tab;
        int         option;
        int         direction;
        const char* in070;
        const char* in09;
    };
    const Spot spots[] = {
        {Chairs, 4, North, "0b 31", "0x0b31"},
        {Chairs, 0, North, "", ""},
        {Tables, 19, East, "1d c5", "0x1dc5"},
        {Tables, 20, South, "", "0x1667"},
        {Tables, 22, East, "", "0x166a"},
        {Lightsources, 0, North, "0A 0c", "0x0A0c"},
        {Other1, 16, West, "12 5e", "0x125e"},
        {Other2, 9, West, "0e b1", "0x0eb1"},
        {Doors, 0, West, "06 75", "0x0679"},
        {Doors, 1, West, "06 c5", "0x06c9"},
        {Doors, 2, West, "06 85", "0x0689"},
        {Doors, 3, West, "08 50", "0x0850"},
        {Doors, 4, East, "06 97", "0x069b"},
        {Doors, 4, West, "06 99", "0x0699"},
        {Doors, 0, East, "06 7b", "0x067b"},
        {Signs, 7, North, "0b a4", "0x0ba4"},
        {Signs, 7, West, "0b a3", "0x0ba3"},
        {Signs, 57, West, "0c 07", "0x0c07"},
        {Signs, 60, West, "", ""},
        {Signs, 72, North, "1f 28", "0x1f28"},
        {RuinedFurniture, 13, East, "0c 30", "0x0c 30"},
        {RuinedFurniture, 13, South, "0c 2f", "0x0c2f"},
        {RuinedFurniture, 2, 4, "", ""},
    };
    for (const auto& spot : spots) {
        ItemsState state;
        state.tableForm = Generation070;
        EXPECT_EQ(GetItemString(state, spot.tab, spot.direction, spot.option), spot.in070);
        state.tableForm = Generation09;
        EXPECT_EQ(GetItemString(state, spot.tab, spot.direction, spot.option), spot.in09);
        state.tableForm = Neither;
        EXPECT_EQ(GetItemString(state, spot.tab, spot.direction, spot.option), "");
    }
}

TEST(ItemTables, PlantsHaveOneTextForAllDirections)
{
    ItemsState state;
    state.tableForm = Generation09;
    for (const int direction : {-1, 0, 1, 2, 3, 4}) {
        EXPECT_EQ(GetItemString(state, Plants, direction, 5), "0x1e0f");
    }
}

TEST(ItemTables, EndWhereTheirColumnsEnd)
{
    ItemsState state;
    state.tableForm = Generation09;
    for (int tab = 0; tab < TabCount; ++tab) {
        const bool narrow = tab == Lightsources || tab == Other1;
        const bool open = tab == Plants || tab == Signs;
        for (int direction = -1; direction <= 5; ++direction) {
            const int columns = narrow ? 2 : tab == RuinedFurniture ? 5 : 4;
            const int expected = open || (direction >= 0 && direction < columns) ? 0 : core::error::SubscriptRange;
            EXPECT_RUNTIME_ERROR(expected, GetItemString(state, tab, direction, 0)) << tab << ' ' << direction;
        }
    }
    EXPECT_EQ(GetItemString(state, Signs, South, 0), "");
    EXPECT_EQ(GetItemString(state, Signs, -1, 0), "");
}

TEST(Items, TheOpenDirectionPicksTheLayerOfADoor)
{
    for (int set = 0; set < 16; ++set) {
        ItemsState state;
        state.tableForm = Generation09;
        for (int open = 0; open < 4; ++open) {
            state.directionSet[static_cast<std::size_t>(OpenNorth + open)] = (set >> open & 1) != 0;
        }
        const bool firstLayer = (set & 0b0101) != 0 || set == 0;
        EXPECT_EQ(GetItemString(state, Doors, North, 3), firstLayer ? "0x0856" : "0x085a") << set;
    }
}

TEST(Items, GetDirectionTakesTheLowestThatIsSetAndAvailable)
{
    ItemsState state;
    EXPECT_EQ(GetDirection(state), -1);
    state.directionSet[East] = true;
    EXPECT_EQ(GetDirection(state), East);
    state.directionSet[West] = true;
    EXPECT_EQ(GetDirection(state), West);
    state.directionEnabled[West] = false;
    EXPECT_EQ(GetDirection(state), East);
    state.directionEnabled[East] = false;
    EXPECT_EQ(GetDirection(state), -1);
}

TEST(Items, GetOptionTakesTheFirstOfTheTab)
{
    ItemsState state;
    EXPECT_EQ(GetOption(state, Chairs), -1);
    state.options[Signs].set(72);
    EXPECT_EQ(GetOption(state, Signs), 72);
    state.options[Signs].set(3);
    EXPECT_EQ(GetOption(state, Signs), 3);
    EXPECT_EQ(GetOption(state, Chairs), -1);
    EXPECT_EQ(GetOption(state, 13), -1);
    EXPECT_EQ(GetOption(state, 100), -1);
    EXPECT_EQ(GetOption(state, -1), -1);
}

TEST(Items, ThePictureReadsATextInTheWayOfItsGeneration)
{
    EXPECT_EQ(PictureNumber("0b 31", Generation070), 0x0b31);
    EXPECT_EQ(PictureNumber("0A 0c", Generation070), 0x0a0c);
    EXPECT_EQ(PictureNumber("7f ff", Generation070), 0x7fff);
    EXPECT_EQ(PictureNumber("80 00", Generation070), -0x8000);
    EXPECT_EQ(PictureNumber("9e 8e", Generation070), 0x9e8e - 0x10000);
    EXPECT_EQ(PictureNumber("", Generation070), 0);
    EXPECT_EQ(PictureNumber("0x0b31", Generation070), 0);
    EXPECT_EQ(PictureNumber("0x0b31", Generation09), 0x0b31);
    EXPECT_EQ(PictureNumber("0x9e8e", Generation09), 0x9e8e);
    EXPECT_EQ(PictureNumber("0x0c 30", Generation09), 0x0c30);
    EXPECT_EQ(PictureNumber("0a 2a", Generation09), 0x2a);
    EXPECT_EQ(PictureNumber("0x", Generation09), 0);
    EXPECT_RUNTIME_ERROR(core::error::InvalidCall, PictureNumber("", Generation09));
    EXPECT_RUNTIME_ERROR(core::error::InvalidCall, PictureNumber("0", Generation09));
    EXPECT_EQ(PictureNumber("", Neither), 0);
}

TEST(Items, ADirectionThatAnotherTabLeftAvailableReachesPastANarrowTable)
{
    for (const int tab : {Lightsources, Other1}) {
        DeskOnPaper desk(Generation09, tab);
        desk.Option(0);
        desk.Tab(Chairs);
        desk.Option(4);
        desk.Direction(South);
        desk.Tab(tab);
        EXPECT_RUNTIME_ERROR(core::error::SubscriptRange, desk.Add());
        EXPECT_RUNTIME_ERROR(core::error::SubscriptRange, desk.Direction(East));
    }
    DeskOnPaper desk(Generation09, Signs);
    desk.Option(0);
    desk.Tab(Chairs);
    desk.Option(4);
    desk.Direction(South);
    desk.Tab(Signs);
    EXPECT_EQ(desk.Add(), Lines{"send add "});
    EXPECT_RUNTIME_ERROR(core::error::InvalidCall, desk.Direction(East));
}

TEST(Items, ADisabledDirectionCountsAsNone)
{
    DeskOnPaper desk(Generation09);
    desk.Option(4);
    desk.Direction(East);
    EXPECT_EQ(desk.Add(), Lines{"send add 0x0b2f"});
    desk.Option(0);
    EXPECT_TRUE(desk.state.directionSet[East]);
    EXPECT_FALSE(desk.state.directionEnabled[East]);
    EXPECT_EQ(desk.drawn.back(), 0x0a2a);
    EXPECT_EQ(desk.state.txtItemID, "0x0a2a");
    EXPECT_EQ(desk.Add(), Box("You must specify a direction"));
}

TEST(Items, AnEmptyEntryIsSentUnderTheOlderAndFailsAtThePictureUnderTheNewerGeneration)
{
    DeskOnPaper older(Generation070, Doors);
    older.Option(22);
    older.Direction(West);
    EXPECT_EQ(older.drawn.back(), 0);
    EXPECT_EQ(older.state.txtItemID, "");
    older.Direction(OpenNorth);
    EXPECT_EQ(older.Add(), Lines{"send add "});

    DeskOnPaper newer(Generation09, Doors);
    newer.Option(22);
    EXPECT_RUNTIME_ERROR(core::error::InvalidCall, newer.Direction(West));

    for (const int row : {20, 21, 22}) {
        DeskOnPaper tables(Generation070, Tables);
        tables.Option(row);
        tables.Direction(South);
        EXPECT_EQ(tables.drawn, (std::vector<std::int32_t>{0, 0}));
        EXPECT_EQ(tables.Add(), Lines{"send add "});
    }
}

TEST(Items, WhatDrawingThrowsLeavesTheShownTextAsItWas)
{
    ItemsState state;
    state.tableForm = Generation070;
    const ItemsDesk desk{Generation070, [](std::int32_t number) {
                             if (number < 0) {
                                 throw core::RuntimeError(core::error::BadRecordNumber);
                             }
                         }};
    EXPECT_RUNTIME_ERROR(core::error::BadRecordNumber, ClickOption(state, Chairs, 14, desk));
    EXPECT_EQ(state.txtItemID, "00 00");
}

TEST(Items, AddRefusesInOrder)
{
    DeskOnPaper desk(Generation09, Doors);
    EXPECT_EQ(desk.Add(), Box("You must specify a direction"));
    desk.state.directionSet[North] = true;
    desk.state.directionSet[OpenNorth] = desk.state.directionSet[OpenEast] = false;
    EXPECT_EQ(desk.Add(), Box("You must choose a valid open direction for the door!"));
    for (int open = OpenNorth; open <= OpenWest; ++open) {
        auto one = desk;
        one.state.directionSet[static_cast<std::size_t>(open)] = true;
        EXPECT_EQ(one.Add(), Box("Please select a valid item!"));
    }
    desk.state.tab = Chairs;
    EXPECT_EQ(desk.Add(), Box("Please select a valid item!"));

    test::RecordingOutlet outlet;
    desk.state.directionEnabled[West] = false;
    AddItem(desk.state, West, outlet);
    EXPECT_EQ(outlet.Lines(), Box("You must choose a valid direction!"));
}

TEST(Items, RepeatPicksTheWordAndGreySendsNothing)
{
    for (const auto generation : {Generation070, Generation09}) {
        const std::string id = generation.Is070() ? "0b 31" : "0x0b31";
        DeskOnPaper       desk(generation);
        desk.Option(4);
        desk.Direction(North);
        EXPECT_EQ(desk.Add(), Lines{"send add " + id});
        desk.state.repeatCheck = 1;
        EXPECT_EQ(desk.Add(), Lines{"send radd " + id});
        desk.state.repeatCheck = 2;
        EXPECT_EQ(desk.Add(), Lines{});
    }
}

TEST(Items, WordsOfTheButtons)
{
    const auto sent = [](const core::CommandWords& words) {
        test::RecordingOutlet outlet;
        for (const auto generation : {Generation070, Generation09, Neither}) {
            SendWords(words, "", generation, outlet);
        }
        return outlet.Lines();
    };
    EXPECT_EQ(sent(core::RemoveItemWords), (Lines{"send remove", "send rremove"}));
    EXPECT_EQ(sent(BasicLight), (Lines{"send setdir 1", "send set dir 1"}));
    EXPECT_EQ(sent(SetContainer), (Lines{"send settype 1", "send set type 1"}));
    EXPECT_EQ(sent(SetDoor), (Lines{"send settype 12", "send set type 12"}));
}

TEST(Items, TabsBringAndTakeTheirButtons)
{
    for (const auto generation : {Generation070, Generation09, Neither}) {
        for (int from = 0; from < TabCount; ++from) {
            for (int to = 0; to < TabCount; ++to) {
                if (from == to) {
                    continue;
                }
                DeskOnPaper desk(generation);
                desk.Tab(from);
                desk.state.fraDoorOpenNS = desk.state.fraDoorOpenEW = from == Doors;
                desk.Tab(to);
                SCOPED_TRACE(std::to_string(from) + " to " + std::to_string(to));
                EXPECT_EQ(desk.state.tab, to);
                EXPECT_EQ(desk.state.cmdSetContainer, to == Containers);
                EXPECT_EQ(desk.state.cmdBasicLight, to == Lightsources);
                EXPECT_EQ(desk.state.cmdAdvancedLight, to == Lightsources);
                EXPECT_EQ(desk.state.cmdSetDoor, generation.Is070() && (from == Doors || to == Doors));
                EXPECT_FALSE(desk.state.fraDoorOpenNS);
                EXPECT_FALSE(desk.state.fraDoorOpenEW);
            }
        }
    }
}

TEST(Signs, LieOnFourPages)
{
    int next = 0;
    for (int page = 0; page < SignPageCount; ++page) {
        const auto [first, count] = SignsOnPage(page);
        EXPECT_EQ(first, next);
        EXPECT_TRUE(count == 18 || count == 19);
        for (int sign = first; sign < first + count; ++sign) {
            EXPECT_EQ(PageOfSign(sign), page);
        }
        next = first + count;
    }
    EXPECT_EQ(next, 73);
}

TEST(Signs, APageClearsAllButTheLastSign)
{
    for (int page = 0; page < SignPageCount; ++page) {
        for (int sign = 0; sign < 73; ++sign) {
            DeskOnPaper desk(Generation09, Signs);
            desk.Option(sign);
            ShowSignPage(desk.state, page);
            EXPECT_EQ(desk.state.signPage, page);
            EXPECT_EQ(GetOption(desk.state, Signs), sign == 72 ? 72 : -1);
        }
    }
}

TEST(Signs, TheKeptSignShowsAtADirectionWhileAddTakesTheOther)
{
    DeskOnPaper desk(Generation09, Signs);
    desk.Option(72);
    ShowSignPage(desk.state, 0);
    desk.Option(0);
    EXPECT_EQ(desk.state.txtItemID, "0x0b98");
    desk.Direction(West);
    EXPECT_EQ(desk.state.txtItemID, "0x1f29");
    EXPECT_EQ(desk.Add(), Lines{"send add 0x0b97"});

    ShowSignPage(desk.state, 3);
    desk.Option(60);
    EXPECT_EQ(desk.state.options[Signs].count(), 1U);
    EXPECT_EQ(GetOption(desk.state, Signs), 60);
}

TEST(Signs, OneOfAllOthersIsSetAtATime)
{
    DeskOnPaper desk(Generation09, Signs);
    for (int sign = 0; sign < 73; ++sign) {
        desk.Option(sign);
        EXPECT_EQ(desk.state.options[Signs].count(), 1U);
        EXPECT_EQ(GetOption(desk.state, Signs), sign);
    }
}

} // namespace
} // namespace qf::items
