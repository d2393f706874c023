#include "gamedata/dye.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/recording_outlet.h"

namespace qf::gamedata {
namespace {

TEST(Dye, AHueIsNumberedByGroupAndRow)
{
    EXPECT_EQ(HueNumber(0, 0), 0);
    EXPECT_EQ(HueNumber(0, 7), 7);
    EXPECT_EQ(HueNumber(1, 0), 8);
    EXPECT_EQ(HueNumber(373, 7), 2991);
}

TEST(Dye, TheCommandNamesTheHueInTwoPairs)
{
    EXPECT_EQ(DyeCommand(HueNumber(0, 0)), "dye 00 00");
    EXPECT_EQ(DyeCommand(HueNumber(2, 1)), "dye 00 11");
    EXPECT_EQ(DyeCommand(HueNumber(36, 3)), "dye 01 23");
    EXPECT_EQ(DyeCommand(HueNumber(373, 7)), "dye 0B AF");
}

TEST(Dye, TheGroupIsNamedByItsFirstHueWithAllTwentyCharacters)
{
    HueGroup group;
    group.entries[1].name.fill('x');
    EXPECT_EQ(GroupName(group), std::string(20, '\0'));

    std::ranges::copy(std::string_view("Red\0is\xE9\x80", 8), group.entries[0].name.begin());
    EXPECT_EQ(GroupName(group), std::string("Red\0is\u00E9\u20AC", 11) + std::string(12, '\0'));

    group.entries[0].name.fill('a');
    EXPECT_EQ(GroupName(group), std::string(20, 'a'));
}

TEST(Dye, TheLoadIsWholeAtTheLastGroup)
{
    EXPECT_EQ(HuePercent(0), 0);
    EXPECT_EQ(HuePercent(187), 50);
    EXPECT_EQ(HuePercent(372), 99);
    EXPECT_EQ(HuePercent(373), 100);
}

TEST(Dye, HelpIsAPlainBox)
{
    test::RecordingOutlet outlet;
    ShowDyeHelp(outlet);
    EXPECT_EQ(outlet.Lines(), std::vector<std::string>{
                                  "box 0 Just scroll left or right, and when you find a color you wish to use, click "
                                  "on it. It should then send a command with that color to the UO client."});
}

} // namespace
} // namespace qf::gamedata
