#include "console/travel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>
#include <stdexcept>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

// The tables as they are printed, written down apart from those of the program: number, name, X, Y, Z. A dash
// is a row to which no entry of the list leads.

constexpr const char* towns = R"(
| 0 | Britain - Castle Blackthorn | 1523 | 1458 | 15 |
| 1 | Britain - Castle British | 1403 | 1625 | 28 |
| 2 | Britain - Center | 1485 | 1634 | 20 |
| 3 | Britain - Docks | 1478 | 1756 | 0 |
| 4 | Britain - East Bank | 1660 | 1615 | 20 |
| 5 | Britain - Graveyard | 1369 | 1482 | 10 |
| 6 | Britain - Park | 1614 | 1639 | 35 |
| 7 | Britain - Sewers | 6031 | 1496 | 12 |
| 8 | Britain - Suburbs | 1662 | 1565 | 10 |
| 9 | Britain - Warrior's Guild | 1342 | 1749 | 20 |
| 10 | Britain - West Bank | 1430 | 1696 | 0 |
| 11 | Yew - Brigand Camp | 868 | 1683 | 0 |
| 12 | Yew - Crypts | 963 | 716 | -20 |
| 13 | Yew - Empath Abbey | 635 | 862 | 0 |
| 14 | Yew - Graveyard | 724 | 1138 | 0 |
| 15 | Yew - Orc Fort | 633 | 1487 | 0 |
| 16 | Yew - Prisons | 379 | 906 | 0 |
| 17 | Yew - Town Center | 545 | 988 | 0 |
| 18 | Skara Brae - Bank | 607 | 2146 | 0 |
| 19 | Skara Brae - Docks | 641 | 2235 | 0 |
| 20 | Skara Brae - Mainland | 787 | 2242 | 0 |
| 21 | Trinsic - Docks | 2058 | 2856 | 0 |
| 22 | Trinsic - Entrance | 1817 | 2779 | 0 |
| 23 | Trinsic - North Bank | 1915 | 2688 | 2 |
| 24 | Trinsic - Park | 1900 | 2761 | 0 |
| 25 | Trinsic - South Bank | 1824 | 2827 | 0 |
| 26 | Jhelom - Bank | 1325 | 3783 | 0 |
| 27 | Jhelom - Center Docks | 1372 | 3884 | 0 |
| 28 | Jhelom - Duelling Pit | 1403 | 3734 | 0 |
| 29 | Jhelom - East Docks | 1489 | 3699 | 0 |
| 30 | Jhelom - South Docks | 1508 | 3990 | 0 |
| 31 | Jhelom - West Docks | 1127 | 3682 | 0 |
| 32 | Serpent's Hold - Center | 2984 | 3433 | 15 |
| 33 | Serpent's Hold - Bank | 2893 | 3476 | 15 |
| 34 | Serpent's Hold - Docks | 3003 | 3461 | 15 |
| 35 | Buccaneer' Den - Bank | 2723 | 2186 | 0 |
| 36 | Buccaneer' Den - Baths | 2668 | 2103 | 0 |
| 37 | Buccaneer' Den - Docks | 2742 | 2166 | 0 |
| 38 | Cove - Docks | 2253 | 1188 | 0 |
| 39 | Cove - Graveyard | 2443 | 1118 | 8 |
| 40 | Cove - Orc Fort | 2170 | 1333 | 0 |
| 41 | Cove - Town Gates | 2289 | 1209 | 0 |
| 42 | Cove - Wathctower | 2221 | 1119 | 12 |
| 43 | Minoc - Bank | 2513 | 561 | 0 |
| 44 | Minoc - East Mines | 2585 | 493 | 40 |
| 45 | Minoc - Gypsy Camp | 2542 | 649 | 0 |
| 46 | Minoc - Mining Camp | 2563 | 514 | 15 |
| 47 | Minoc - North | 2477 | 418 | 15 |
| 48 | Minoc - North Mines | 2464 | 94 | 0 |
| 49 | Minoc - T2A Passage | 2409 | 223 | 0 |
| 50 | Vesper - Bank | 2895 | 690 | 0 |
| 51 | Vesper - Docks | 3013 | 825 | 0 |
| 52 | Vesper - Graveyard | 2774 | 868 | 0 |
| 53 | Vesper - Southwest Entrance | 2782 | 944 | 0 |
| 54 | Vesper - T2A Entrance | 2775 | 877 | 0 |
| 55 | Nujel'm - Bank | 3754 | 1320 | 0 |
| 56 | Nujel'm - Chessboard | 3729 | 1359 | 5 |
| 57 | Nujel'm - Graveyard | 3536 | 1145 | 20 |
| 58 | Nujel'm - Palace | 3721 | 1279 | 0 |
| 59 | Magincia - Bank | 3732 | 2164 | 20 |
| 60 | Magincia - Beach | 3714 | 2037 | 10 |
| 61 | Magincia - Docks | 3674 | 2278 | 0 |
| 62 | Occlo - Bank | 3685 | 2520 | 0 |
| 63 | Occlo - Docks | 3650 | 2658 | 0 |
| 64 | Occlo - Farms | 3724 | 2646 | 20 |
| 65 | Moonglow - Bank | 4459 | 1170 | 0 |
| 66 | Moonglow - Docks | 4405 | 1045 | 0 |
| 67 | Moonglow - Graveyard | 4543 | 1332 | 8 |
| 68 | Moonglow - Lyceaeum | 4305 | 1001 | 0 |
| 69 | Moonglow - Mage Shop | 4546 | 878 | 20 |
| 70 | Moonglow - Royal Zoo | 4524 | 1379 | 23 |
| 71 | Moonglow - Telescope | 4707 | 1124 | 0 |
| 72 | Delucia - Bank | 5280 | 3994 | 37 |
| 73 | Delucia - Town Gates | 5318 | 3972 | 10 |
| 74 | Delucia - Trinsic Passage (5160 4063) | 5160 | 4063 | 37 |
| 75 | Papua - Bank | 5682 | 3150 | 0 |
| 76 | Papua - Docks | 5827 | 3257 | 2 |
| 77 | Papua - Moonglow Portal | 5744 | 3215 | 0 |
| 78 | Wind - Entrance | 1368 | 892 | 0 |
| 79 | Wind - Exit | 5167 | 242 | 15 |
| 80 | Wind - Mage Shop | 5214 | 126 | 0 |
)";

constexpr const char* dungeons = R"(
| 0 | Covetous - Entrance | 2501 | 926 | 0 |
| 1 | Covetous - Level 1 | 5456 | 1863 | 0 |
| 2 | Covetous - Level 2 | 5614 | 1997 | 0 |
| 3 | Covetous - Level 3 | 5579 | 1924 | 0 |
| 4 | Covetous - Lake | 5467 | 1805 | 5 |
| 5 | Covetous - Torture Room | 5552 | 1807 | 0 |
| 6 | Deceit - Entrance | 4111 | 440 | 5 |
| 7 | Deceit - Level 1 | 5188 | 638 | 0 |
| 8 | Deceit - Level 2 | 5305 | 533 | 2 |
| 9 | Deceit - Level 3 | 5137 | 650 | 5 |
| 10 | Deceit - Level 4 | 5306 | 652 | 2 |
| 11 | Despise - Entrance | 1304 | 1083 | 0 |
| 12 | Despise - Entyway | 5587 | 631 | 30 |
| 13 | Despise - Level 1 | 5501 | 570 | 59 |
| 14 | Despise - Level 2 | 5519 | 673 | 20 |
| 15 | Despise - Level 3 | 5407 | 859 | 45 |
| 16 | Destard - Entrance | 1176 | 2643 | 0 |
| 17 | Destard - Level 1 | 5243 | 1006 | 0 |
| 18 | Destard - Level 2 | 5143 | 801 | 5 |
| 19 | Destard - Level 3 | 5137 | 986 | 5 |
| 20 | Hythloth - Entrance | 4723 | 3821 | 0 |
| 21 | Hythloth - Level 1 | 5905 | 20 | 46 |
| 22 | Hythloth - Level 2 | 5976 | 169 | 0 |
| 23 | Hythloth - Level 3 | 6083 | 145 | 236 |
| 24 | Hythloth - Level 4 | 6059 | 89 | 24 |
| 25 | Ice - Entrance | 2000 | 82 | 4 |
| 26 | Lost Lands - Fire Dungeon | 5760 | 2908 | 15 |
| 27 | Lost Lands - Ice Dungeon | 5208 | 2322 | 31 |
| 28 | Lost Lands - Khaldun Dungeon | 6009 | 3778 | 20 |
| 29 | Lost Lands - Ophidian Lair | 5760 | 2639 | 39 |
| 30 | Lost Lands - Terathan Keep | 5425 | 3149 | 0 |
| 31 | Shame - Entrance | 511 | 1569 | 0 |
| 32 | Shame - Level 1 | 5395 | 126 | 0 |
| 33 | Shame - Level 2 | 5515 | 11 | 5 |
| 34 | Shame - Level 3 | 5514 | 148 | 25 |
| 35 | Wrong - Entrance | 5875 | 20 | 251 |
| 36 | Wrong - Level 1 | 2040 | 241 | 10 |
| 37 | Wrong - Level 2 | 5825 | 630 | 10 |
| 38 | Wrong - Level 3 | 5690 | 569 | 25 |
| 39 | - | 5703 | 639 | 0 |
)";

constexpr const char* moongates = R"(
| 0 | Britain | 1344 | 2001 | 0 |
| 1 | Jhelom | 1500 | 3775 | 0 |
| 2 | Magincia | 3567 | 2141 | 33 |
| 3 | Moonglow | 4473 | 1286 | 0 |
| 4 | Skara Brae | 651 | 2069 | 0 |
| 5 | Trinsic | 1832 | 2953 | 0 |
| 6 | Vesper/Minoc | 2703 | 698 | 0 |
| 7 | Yew | 772 | 748 | 0 |
)";

constexpr const char* shrines = R"(
| 0 | Chaos | 1464 | 854 | 0 |
| 1 | Compassion | 1857 | 865 | -1 |
| 2 | Honesty | 4221 | 564 | 36 |
| 3 | Honor | 1729 | 3527 | 3 |
| 4 | Humility | 4274 | 3704 | 0 |
| 5 | Justice | 1300 | 641 | 15 |
| 6 | Sacrifice | 3354 | 297 | 9 |
| 7 | Spirituality | 1602 | 2490 | 5 |
)";

constexpr const char* specials = R"(
| 0 | Fire Isle Temple | 4595 | 3603 | 30 |
| 1 | Green Acres | 5600 | 1200 | 0 |
| 2 | Hedgemaze - Center | 1174 | 2231 | 0 |
| 3 | Hedgemaze - Entrance | 1254 | 2304 | 0 |
| 4 | Island Temple Portal | 2495 | 3586 | 5 |
| 5 | Jails | 5289 | 1174 | 0 |
| 6 | Marble House T2A Entrance | 1958 | 2079 | 0 |
| 7 | Lost Lands - Cyclope Valley | 5148 | 3015 | 69 |
| 8 | Lost Lands - Graveyard | 5222 | 3661 | 0 |
| 9 | Lost Lands - Lighthouse | 5682 | 2409 | 43 |
| 10 | Lost Lands - Oasis | 5547 | 2633 | 0 |
| 11 | Lost Lands - Orc Fort | 5215 | 3635 | 0 |
| 12 | Lost Lands - Passage to Minoc | 6094 | 3678 | 20 |
| 13 | Lost Lands - Portal to Island Temple | 5914 | 4077 | 18 |
| 14 | Star Chamber | 5146 | 1775 | 0 |
| 15 | Trinsic Hidden Vulcano | 1652 | 2890 | 0 |
)";

struct PrintedPlace {
    int         number = 0;
    std::string name;
    std::string x;
    std::string y;
    std::string z;
};

std::vector<PrintedPlace> Read(const char* table)
{
    std::vector<PrintedPlace> places;
    std::istringstream        lines(table);
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> cells;
        for (std::size_t start = 2, bar = 0; (bar = line.find(" |", start)) != std::string::npos; start = bar + 3) {
            cells.push_back(line.substr(start, bar - start));
        }
        if (cells.size() == 5) {
            places.push_back({std::stoi(cells[0]), cells[1], cells[2], cells[3], cells[4]});
        }
    }
    return places;
}

constexpr std::array printedTables{towns, dungeons, moongates, shrines, specials};
constexpr std::array printedCounts{81U, 40U, 8U, 8U, 16U};

const PlaceGroup& GroupOf(std::string_view entry)
{
    for (const auto& group : PlaceGroups()) {
        if (group.entry == entry) {
            return group;
        }
    }
    throw std::out_of_range("no such group");
}

int IndexOf(const PlaceGroup& group, std::string_view name)
{
    const auto entries = ListEntries(group);
    const auto found = std::ranges::find(entries, name);
    return found == entries.end() ? -1 : static_cast<int>(found - entries.begin());
}

std::string Boxes(const TravelState& state)
{
    return state.txtLocX + "," + state.txtLocY + "," + state.txtLocZ;
}

std::string BoxesAfter(std::string_view group, std::string_view name)
{
    TravelState state;
    ChoosePlace(state, GroupOf(group), IndexOf(GroupOf(group), name));
    return Boxes(state);
}

const TravelCommand& CommandOf(std::string_view name)
{
    for (const auto& command : TravelCommands()) {
        if (command.name == name) {
            return command;
        }
    }
    throw std::out_of_range("no such command");
}

Lines LinesOf(std::string_view command, const TravelState& state)
{
    test::RecordingOutlet outlet;
    SendTravelCommand(CommandOf(command), state, outlet);
    return outlet.Lines();
}

TravelState StateOf(std::string_view x, std::string_view y, std::string_view z)
{
    TravelState state;
    state.txtLocX = x;
    state.txtLocY = y;
    state.txtLocZ = z;
    return state;
}

TEST(Travel, EveryPlaceStandsAsPrinted)
{
    ASSERT_EQ(PlaceGroups().size(), printedTables.size());
    for (std::size_t number = 0; number < printedTables.size(); ++number) {
        const auto& group = PlaceGroups()[number];
        const auto  printed = Read(printedTables[number]);
        ASSERT_EQ(printed.size(), printedCounts[number]) << group.entry;
        ASSERT_EQ(group.places.size(), printed.size()) << group.entry;
        for (std::size_t index = 0; index < printed.size(); ++index) {
            const auto& row = printed[index];
            const auto& place = group.places[index];
            EXPECT_EQ(row.number, static_cast<int>(index));
            EXPECT_EQ(place.name, row.name == "-" ? "" : row.name) << group.entry << ' ' << index;
            EXPECT_EQ(place.x, row.x) << group.entry << ' ' << index;
            EXPECT_EQ(place.y, row.y) << group.entry << ' ' << index;
            EXPECT_EQ(place.z, row.z) << group.entry << ' ' << index;
        }
    }
}

TEST(Travel, GroupsEntriesListsAndInitialTexts)
{
    const std::array<std::array<std::string_view, 3>, 5> expected{{
        {"-TOWNS-", "comboTowns", "[Towns]"},
        {"-DUNGEONS-", "comboDungeons", "[Dungeons]"},
        {"-MOONGATES-", "comboMoongates", "[MOONGATES]"},
        {"-SHRINES-", "comboShrines", "[Shrines]"},
        {"-SPECIAL LOCATIONS-", "comboSpecials", "[Special Locations]"},
    }};
    ASSERT_EQ(PlaceGroups().size(), expected.size());
    for (std::size_t number = 0; number < expected.size(); ++number) {
        const auto& group = PlaceGroups()[number];
        EXPECT_EQ((std::array{group.entry, group.list, group.initialText}), expected[number]);
    }
}

TEST(Travel, TheListOfDungeonsIsOneShorterThanItsTable)
{
    const std::array<std::size_t, 5> lengths{81, 39, 8, 8, 16};
    for (std::size_t number = 0; number < lengths.size(); ++number) {
        const auto entries = ListEntries(PlaceGroups()[number]);
        ASSERT_EQ(entries.size(), lengths[number]);
        for (std::size_t index = 0; index < entries.size(); ++index) {
            EXPECT_EQ(entries[index], PlaceGroups()[number].places[index].name);
        }
    }
    EXPECT_EQ(ListEntries(GroupOf("-DUNGEONS-")).back(), "Wrong - Level 3");
}

TEST(Travel, AChoiceFillsTheBoxesWithTheRowOfItsIndex)
{
    for (std::size_t number = 0; number < printedTables.size(); ++number) {
        const auto& group = PlaceGroups()[number];
        const auto  printed = Read(printedTables[number]);
        for (std::size_t index = 0; index < ListEntries(group).size(); ++index) {
            auto state = StateOf("old", "old", "old");
            ChoosePlace(state, group, static_cast<int>(index));
            EXPECT_EQ(Boxes(state), printed[index].x + "," + printed[index].y + "," + printed[index].z);
        }
    }
}

TEST(Travel, PlacesThatLookOdd)
{
    EXPECT_EQ(BoxesAfter("-TOWNS-", "Yew - Crypts"), "963,716,-20");
    EXPECT_EQ(BoxesAfter("-SHRINES-", "Compassion"), "1857,865,-1");
    EXPECT_EQ(BoxesAfter("-TOWNS-", "Britain - Sewers"), "6031,1496,12");
    EXPECT_EQ(BoxesAfter("-TOWNS-", "Delucia - Trinsic Passage (5160 4063)"), "5160,4063,37");
    EXPECT_EQ(BoxesAfter("-DUNGEONS-", "Wrong - Entrance"), "5875,20,251");
    EXPECT_EQ(BoxesAfter("-DUNGEONS-", "Wrong - Level 1"), "2040,241,10");
    EXPECT_EQ(BoxesAfter("-DUNGEONS-", "Wrong - Level 3"), "5690,569,25");
}

TEST(Travel, NoEntryLeadsToTheLastRowOfTheDungeons)
{
    const auto& group = GroupOf("-DUNGEONS-");
    for (const auto entry : ListEntries(group)) {
        EXPECT_NE(BoxesAfter("-DUNGEONS-", entry), "5703,639,0") << entry;
    }
    EXPECT_EQ(group.places.back().x, "5703");
}

TEST(Travel, AnIndexOutsideTheTableChangesNothing)
{
    for (const auto& group : PlaceGroups()) {
        for (const int index : {-1, -100, static_cast<int>(group.places.size()), 1000}) {
            auto state = StateOf("1", "2", "3");
            state.shownGroup = 2;
            ChoosePlace(state, group, index);
            EXPECT_EQ(Boxes(state), "1,2,3") << group.entry << ' ' << index;
            EXPECT_EQ(state.shownGroup, 2);
        }
    }
}

TEST(Travel, AChoiceOfAPlaceLeavesTheListThatIsShown)
{
    TravelState state;
    state.shownGroup = 4;
    ChoosePlace(state, GroupOf("-TOWNS-"), 0);
    EXPECT_EQ(state.shownGroup, 4);
}

TEST(Travel, AGroupShowsItsListAndLeavesTheBoxes)
{
    auto state = StateOf("1", "2", "3");
    EXPECT_EQ(state.shownGroup, -1);
    for (const int group : {0, 1, 2, 3, 4, 0}) {
        ChoosePlaceGroup(state, group);
        EXPECT_EQ(state.shownGroup, group);
        EXPECT_EQ(Boxes(state), "1,2,3");
    }
    ChoosePlaceGroup(state, 3);
    for (const int group : {-1, 5, 6, -5}) {
        ChoosePlaceGroup(state, group);
        EXPECT_EQ(state.shownGroup, 3) << group;
    }
}

TEST(Travel, EveryButtonHasItsCaptionCommandAndToolTip)
{
    const std::array<std::array<std::string, 4>, 5> expected{{
        {"cmdGoPlace", "Teleport", "send go 10 -20 +30", "Takes you to X, Y, Z"},
        {"cmdXGoPlace", "Teleport Other", "send xgo 10 -20 +30", "Takes a target to X, Y, Z"},
        {"cmdCharTele", "Teleport to target location", "send rtele", "Takes you to a place you click"},
        {"cmdXTele", "Teleport char/item to target location", "send telestuff", "Takes what you click to a place"},
        {"cmdTravelWhere", "Where am I?", "send where", "Tells the place where you stand"},
    }};
    ASSERT_EQ(TravelCommands().size(), expected.size());
    for (const auto& [name, caption, line, toolTip] : expected) {
        EXPECT_EQ(CommandOf(name).caption, caption);
        EXPECT_EQ(CommandOf(name).toolTip, toolTip);
        EXPECT_EQ(LinesOf(name, StateOf("10", "-20", "+30")), Lines{line});
    }
}

TEST(Travel, TheBoxesGoOutAsTheyStand)
{
    EXPECT_EQ(LinesOf("cmdGoPlace", {}), Lines{"send go   "});
    EXPECT_EQ(LinesOf("cmdXGoPlace", {}), Lines{"send xgo   "});
    EXPECT_EQ(LinesOf("cmdGoPlace", StateOf(" 1 ", "", "x y")), Lines{"send go  1   x y"});
    EXPECT_EQ(LinesOf("cmdXGoPlace", StateOf("99999999999", "&H10", "2.5")), Lines{"send xgo 99999999999 &H10 2.5"});
}

TEST(Travel, AChosenPlaceIsWhereTheTeleportGoes)
{
    TravelState state;
    const auto& specials = GroupOf("-SPECIAL LOCATIONS-");
    ChoosePlace(state, specials, IndexOf(specials, "Jails"));
    EXPECT_EQ(LinesOf("cmdGoPlace", state), Lines{"send go 5289 1174 0"});
    EXPECT_EQ(LinesOf("cmdXGoPlace", state), Lines{"send xgo 5289 1174 0"});
    state.txtLocZ = "5";
    EXPECT_EQ(LinesOf("cmdGoPlace", state), Lines{"send go 5289 1174 5"});
}

} // namespace
} // namespace qf::console
