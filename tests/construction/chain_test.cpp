#include "construction/chain.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace qf::construction {
namespace {

TEST(Chain, HasNoTwoButtonsOfOneNameOnAPanel)
{
    std::set<std::pair<std::string_view, std::string_view>> seen;
    for (const auto& step : ChainSteps()) {
        EXPECT_TRUE(seen.emplace(step.from, step.button).second) << step.from << ' ' << step.button;
    }
}

TEST(Chain, LeadsFromFloorsToItems)
{
    std::string_view           place = "frmFloors";
    std::string                walk(place);
    std::set<std::string_view> visited{place};
    while (place != "frmItems") {
        const auto steps = ChainSteps();
        const auto next = std::ranges::find_if(
            steps, [&](const ChainStep& step) { return step.from == place && !visited.contains(step.to); });
        ASSERT_NE(next, steps.end()) << walk;
        place = next->to;
        visited.insert(place);
        walk += " > " + std::string(place);
    }
    EXPECT_EQ(walk, "frmFloors > frmWalls > frmRoof > frmStairs > frmForests > frmLandscapes > frmCoastlines > "
                    "frmCaves > frmItems");
}

TEST(Chain, StepsBackExceptFromFloors)
{
    EXPECT_TRUE(std::ranges::none_of(
        ChainSteps(), [](const ChainStep& step) { return step.from == "frmFloors" && step.caption.starts_with("<"); }));
}

TEST(Chain, MisnamesTheStepFromLandscapesToCoastlines)
{
    const auto steps = ChainSteps();
    const auto step = std::ranges::find_if(
        steps, [](const ChainStep& s) { return s.from == "frmLandscapes" && s.button == "Command8"; });
    ASSERT_NE(step, steps.end());
    EXPECT_EQ(step->caption, "> Items");
    EXPECT_EQ(step->to, "frmCoastlines");
    EXPECT_FALSE(step->copiesArea);
}

TEST(Chain, CopiesTheAreaUpToForestsAndNotBeyond)
{
    for (const auto& step : ChainSteps()) {
        const bool beyond = step.from == "frmLandscapes" || step.from == "frmCoastlines" || step.from == "frmCaves" ||
                            step.from == "frmItems" || step.from == "frmSpecial" || step.to == "frmLandscapes";
        EXPECT_EQ(step.copiesArea, !beyond) << step.from << ' ' << step.button;
    }
}

} // namespace
} // namespace qf::construction
