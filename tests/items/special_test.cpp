#include "items/special.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "support/recording_outlet.h"

namespace qf::items {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

Lines Add(const SpecialState& state, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    AddSpecial(state, generation, outlet);
    return outlet.Lines();
}

Lines Add(int tab, int option, core::ServerGeneration generation)
{
    return Add({.tab = tab, .option = option, .x = "1422", .y = "1690", .z = "5"}, generation);
}

Lines Box(const std::string& text)
{
    return {"box 64 [Dobrin's Quernfield 20250 ] " + text};
}

const auto invalidPlace = Box("You need to fill in valid coordinates!");

TEST(SpecialTables, HoldEveryObjectWithAllItsComponents)
{
    const std::vector<std::vector<std::size_t>> expected{
        {8, 10, 12, 11, 16, 16, 15, 9, 9, 34, 65, 24, 12, 12, 2, 2, 2},
        {3, 3, 3, 3, 2, 3, 3, 8, 8, 9, 9, 12, 12, 9, 9, 9, 9},
        {12, 12, 12, 12, 9, 8, 8, 18, 3, 3, 2, 3, 2, 3, 2, 2},
        {3, 3, 3, 3, 3, 3, 2, 2, 9, 9, 9, 9, 9, 9},
        {4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4, 4},
        {2, 2, 6, 6, 17, 22, 22},
    };
    std::vector<std::vector<std::size_t>> counted;
    std::size_t                           objects = 0;
    std::size_t                           components = 0;
    for (const auto& menu : SpecialMenus()) {
        auto& counts = counted.emplace_back();
        for (const auto& object : menu.objects) {
            counts.push_back(object.components.size());
            components += object.components.size();
        }
        objects += menu.objects.size();
    }
    EXPECT_EQ(counted, expected);
    EXPECT_EQ(objects, 87U);
    EXPECT_EQ(components, 701U);
}

TEST(SpecialTables, SpellEachByteWithOneOrTwoLowerCaseDigits)
{
    const auto isByte = [](std::string_view text) {
        return !text.empty() && text.size() <= 2 &&
               text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
    };
    for (const auto& menu : SpecialMenus()) {
        for (const auto& object : menu.objects) {
            for (const auto& component : object.components) {
                const auto blank = component.bytes.find(' ');
                ASSERT_NE(blank, std::string_view::npos) << object.name;
                EXPECT_TRUE(isByte(component.bytes.substr(0, blank))) << object.name << ": " << component.bytes;
                EXPECT_TRUE(isByte(component.bytes.substr(blank + 1))) << object.name << ": " << component.bytes;
            }
        }
    }
}

TEST(SpecialTables, NameEveryObjectOnce)
{
    std::set<std::string_view> names;
    for (const auto& menu : SpecialMenus()) {
        for (const auto& object : menu.objects) {
            EXPECT_TRUE(names.insert(object.name).second) << object.name;
        }
    }
    EXPECT_TRUE(names.contains("Ankh of Sacrifice"));
    EXPECT_TRUE(names.contains("Polar Bearskin Rug (E/W)"));
    EXPECT_TRUE(names.contains("Vat of Grapes (South)"));
    EXPECT_TRUE(names.contains("Sacrifice (N/S)"));
}

TEST(SpecialTables, RaiseOnlyACarvingAndTheTopsOfDisplayCases)
{
    for (const auto& menu : SpecialMenus()) {
        for (const auto& object : menu.objects) {
            const auto raised =
                std::ranges::count_if(object.components, [](const SpecialComponent& part) { return part.dz != 0; });
            const bool isCase = object.name.find("Display Case") != std::string_view::npos;
            EXPECT_EQ(raised != 0, isCase || object.name == "Wall Carving 5(E/W)") << object.name;
        }
    }
}

TEST(Special, LaysATreasurePileInBothDialects)
{
    EXPECT_EQ(Add(0, 0, Generation070),
              (Lines{"send tilew 1b 4d 1422 1422 1690 1690 5", "send tilew 1b 51 1423 1423 1690 1690 5",
                     "send tilew 1b 50 1424 1424 1690 1690 5", "send tilew 1b 4c 1422 1422 1691 1691 5",
                     "send tilew 1b 4e 1423 1423 1691 1691 5", "send tilew 1b 4f 1424 1424 1691 1691 5",
                     "send tilew 1b 4b 1422 1422 1692 1692 5", "send tilew 1b 4a 1423 1423 1692 1692 5"}));
    EXPECT_EQ(Add(0, 0, Generation09),
              (Lines{"send tile 0x1b4d 1422 1422 1690 1690 5", "send tile 0x1b51 1423 1423 1690 1690 5",
                     "send tile 0x1b50 1424 1424 1690 1690 5", "send tile 0x1b4c 1422 1422 1691 1691 5",
                     "send tile 0x1b4e 1423 1423 1691 1691 5", "send tile 0x1b4f 1424 1424 1691 1691 5",
                     "send tile 0x1b4b 1422 1422 1692 1692 5", "send tile 0x1b4a 1423 1423 1692 1692 5"}));
}

TEST(Special, PadsTheBytesOnlyInTheNewerDialect)
{
    EXPECT_EQ(Add(0, 15, Generation070),
              (Lines{"send tilew 0 2 1422 1422 1690 1690 5", "send tilew 0 3 1422 1422 1689 1689 5"}));
    EXPECT_EQ(Add(0, 15, Generation09),
              (Lines{"send tile 0x0002 1422 1422 1690 1690 5", "send tile 0x0003 1422 1422 1689 1689 5"}));
    EXPECT_EQ(Add(0, 9, Generation070).at(7), "send tilew 1d a 1423 1423 1691 1691 5");
    EXPECT_EQ(Add(0, 9, Generation09).at(7), "send tile 0x1d0a 1423 1423 1691 1691 5");
    EXPECT_EQ(Add(5, 0, Generation070),
              (Lines{"send tilew 0b 09 1422 1422 1690 1690 5", "send tilew 0b 0b 1422 1422 1690 1690 8"}));
    EXPECT_EQ(Add(5, 1, Generation070),
              (Lines{"send tilew b 0a 1422 1422 1690 1690 5", "send tilew b 0c 1422 1422 1690 1690 8"}));
    EXPECT_EQ(Add(5, 1, Generation09),
              (Lines{"send tile 0x0b0a 1422 1422 1690 1690 5", "send tile 0x0b0c 1422 1422 1690 1690 8"}));
}

TEST(Special, KeepsOneCarvingsLastTileWhereItIs)
{
    EXPECT_EQ(Add(1, 1, Generation070),
              (Lines{"send tilew 12 3c 1422 1422 1690 1690 5", "send tilew 12 3a 1422 1422 1691 1691 5",
                     "send tilew 12 3b 0 0 2 2 0"}));
    EXPECT_EQ(Add(1, 1, Generation09), (Lines{"send tile 0x123c 1422 1422 1690 1690 5",
                                              "send tile 0x123a 1422 1422 1691 1691 5", "send tile 0x123b 0 0 2 2 0"}));
}

TEST(Special, RaisesTheFirstTileOfAnotherCarving)
{
    EXPECT_EQ(Add(1, 5, Generation09),
              (Lines{"send tile 0x1231 1422 1422 1690 1690 7", "send tile 0x1232 1423 1423 1690 1690 5",
                     "send tile 0x1233 1424 1424 1690 1690 5"}));
}

TEST(Special, SpotsOfTheLargerObjects)
{
    const auto telescope = Add(0, 10, Generation09);
    EXPECT_EQ(telescope.front(), "send tile 0x147d 1421 1421 1690 1690 5");
    EXPECT_EQ(telescope.at(26), "send tile 0x1494 1416 1416 1695 1695 5");
    EXPECT_EQ(telescope.back(), "send tile 0x1463 1422 1422 1700 1700 5");
    const auto jungleTree = Add(2, 0, Generation070);
    EXPECT_EQ(jungleTree.front(), "send tilew d 41 1420 1420 1692 1692 5");
    EXPECT_EQ(jungleTree.back(), "send tilew d 4c 1425 1425 1687 1687 5");
    EXPECT_EQ(Add(2, 7, Generation09).back(), "send tile 0x12c7 1430 1430 1682 1682 5");
    EXPECT_EQ(Add(3, 13, Generation09).at(7), "send tile 0x1550 1422 1422 1692 1692 5");
    EXPECT_EQ(Add(4, 14, Generation070).front(), "send tilew 15 0a 1422 1422 1690 1690 5");
    EXPECT_EQ(Add(5, 6, Generation070).at(5), "send tilew 0b f 1423 1423 1691 1691 5");
    EXPECT_EQ(Add(5, 6, Generation09).back(), "send tile 0x0b18 1425 1425 1692 1692 8");
}

TEST(Special, SendsEveryObjectOnceForEachComponent)
{
    for (std::size_t tab = 0; tab < SpecialMenus().size(); ++tab) {
        const auto objects = SpecialMenus()[tab].objects;
        for (std::size_t option = 0; option < objects.size(); ++option) {
            for (const auto generation : {Generation070, Generation09}) {
                const auto lines = Add(static_cast<int>(tab), static_cast<int>(option), generation);
                EXPECT_EQ(lines.size(), objects[option].components.size());
                for (const auto& line : lines) {
                    EXPECT_TRUE(line.starts_with(generation.Is070() ? "send tilew " : "send tile 0x")) << line;
                }
            }
        }
    }
}

TEST(Special, TakesNegativeAndRoundedCoordinates)
{
    EXPECT_EQ(Add({.tab = 0, .option = 15, .x = "-5", .y = "0", .z = "-1"}, Generation09),
              (Lines{"send tile 0x0002 -5 -5 0 0 -1", "send tile 0x0003 -5 -5 -1 -1 -1"}));
    EXPECT_EQ(Add({.tab = 0, .option = 14, .x = " 2.5 ", .y = "3.5", .z = "1e1"}, Generation070),
              (Lines{"send tilew 0 4 2 2 4 4 10", "send tilew 0 5 3 3 4 4 10"}));
}

TEST(Special, TellsThatABoxHoldsNoNumberBeforeItLooksForAnObject)
{
    for (const std::string text : {"", " ", "N/A", "12a", "- 5"}) {
        EXPECT_EQ(Add({.tab = 0, .option = 0, .x = text, .y = "1", .z = "1"}, Generation09), invalidPlace);
        EXPECT_EQ(Add({.tab = 0, .option = 0, .x = "1", .y = text, .z = "1"}, Generation09), invalidPlace);
        EXPECT_EQ(Add({.tab = 0, .option = -1, .x = "1", .y = "1", .z = text}, Generation070), invalidPlace);
    }
    EXPECT_EQ(Add({.tab = 0, .option = -1, .x = "1", .y = "1", .z = "1"}, Generation09), Lines{});
}

TEST(Special, TellsAnyOtherFailureInItsOwnWords)
{
    EXPECT_EQ(Add({.tab = 0, .option = -1, .x = "2147483648", .y = "", .z = ""}, Generation09), Box("Overflow"));
    EXPECT_EQ(Add({.tab = 0, .option = -1, .x = "", .y = "2147483648", .z = "1"}, Generation09), invalidPlace);
    const auto carving = Add({.tab = 1, .option = 0, .x = "2147483646", .y = "1", .z = "1"}, Generation09);
    EXPECT_EQ(carving, (Lines{"send tile 0x1237 2147483646 2147483646 1 1 1",
                              "send tile 0x1238 2147483647 2147483647 1 1 1", Box("Overflow").front()}));
}

TEST(Special, SendsNothingForAGenerationThatIsNeither)
{
    const core::ServerGeneration other(2);
    EXPECT_EQ(Add(0, 0, other), Lines{});
    EXPECT_EQ(Add({.tab = 0, .option = 0, .x = "2147483647", .y = "1", .z = "1"}, other), Lines{});
    EXPECT_EQ(Add({.tab = 0, .option = 0, .x = "", .y = "1", .z = "1"}, other), invalidPlace);
    EXPECT_EQ(ComponentId("1b 4d", other), "");
}

TEST(Special, ExplainsItself)
{
    test::RecordingOutlet outlet;
    ShowSpecialHelp(outlet);
    EXPECT_EQ(outlet.Lines(), Box("These are special items made up of several component items, that all together "
                                  "cover more than one tile."));
}

} // namespace
} // namespace qf::items
