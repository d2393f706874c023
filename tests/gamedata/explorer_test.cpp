#include "gamedata/explorer.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::gamedata {
namespace {

using core::Generation070;
using core::Generation09;

constexpr core::ServerGeneration Neither{2};
constexpr AddModes               Plain{};
constexpr AddModes               RepeatAdd{.repeatAdd = true};
constexpr AddModes               Tile{.tile = true};

std::vector<std::string> Added(std::string_view tag, AddModes modes, core::ServerGeneration generation)
{
    return test::Collect([&](core::Outlet& outlet) { AddItem(tag, modes, generation, outlet); });
}

TEST(AddCommand, NamesItsWordByTheModesUnder09)
{
    EXPECT_EQ(AddCommand(5899, Plain, Generation09), "add 0x170B");
    EXPECT_EQ(AddCommand(5899, RepeatAdd, Generation09), "radd 0x170B");
    EXPECT_EQ(AddCommand(5899, Tile, Generation09), "tile 0x170B");
}

TEST(AddCommand, KnowsNoRepeatedAddUnder070)
{
    EXPECT_EQ(AddCommand(5899, Plain, Generation070), "add 0x170B");
    EXPECT_EQ(AddCommand(5899, RepeatAdd, Generation070), "add 0x170B");
    EXPECT_EQ(AddCommand(5899, Tile, Generation070), "tile 0x170B");
}

TEST(AddCommand, IsEmptyUnderNeitherGeneration)
{
    EXPECT_EQ(AddCommand(5899, Tile, Neither), "");
}

TEST(AddCommand, WritesNoLeadingZeros)
{
    EXPECT_EQ(AddCommand(0, Plain, Generation09), "add 0x0");
    EXPECT_EQ(AddCommand(10, Plain, Generation09), "add 0xA");
}

TEST(AddCommand, WritesANegativeNumberAsItsPattern)
{
    EXPECT_EQ(AddCommand(-1, Plain, Generation09), "add 0xFFFFFFFF");
}

TEST(AddItem, SendsTheNumberOfTheTag)
{
    EXPECT_EQ(Added(" 5899 ", Plain, Generation09), std::vector<std::string>{"add 0x170B"});
    EXPECT_EQ(Added("&H1F", Tile, Generation070), std::vector<std::string>{"tile 0x1F"});
}

TEST(AddItem, SendsNothingUnderNeitherGeneration)
{
    EXPECT_TRUE(Added("1", Plain, Neither).empty());
}

TEST(AddItem, RefusesATagThatIsNoNumber)
{
    EXPECT_RUNTIME_ERROR(13, Added("x", Plain, Generation09));
    EXPECT_RUNTIME_ERROR(6, Added("99999999999", Plain, Generation09));
}

TEST(RemoveItem, HasAWordForEachGeneration)
{
    const auto removed = [](core::ServerGeneration generation) {
        return test::Collect([&](core::Outlet& outlet) { RemoveItem(generation, outlet); });
    };
    EXPECT_EQ(removed(Generation070), std::vector<std::string>{"remove"});
    EXPECT_EQ(removed(Generation09), std::vector<std::string>{"rremove"});
    EXPECT_TRUE(removed(Neither).empty());
}

TEST(ModelIdText, ShowsBothForms)
{
    EXPECT_EQ(ModelIdText(5899), "0x170B (5899)");
    EXPECT_EQ(ModelIdText(0), "0x0 (0)");
    EXPECT_EQ(ModelIdText(-2), "0xFFFFFFFE (-2)");
}

TEST(CopiedPart, EndsAtTheFirstBlank)
{
    EXPECT_EQ(CopiedPart("0x170B (5899)"), "0x170B");
    EXPECT_EQ(CopiedPart("0x170B"), "0x170B");
}

} // namespace
} // namespace qf::gamedata
