#include "construction/forests.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <map>

#include "support/recording_outlet.h"
#include "support/scripted_uniform.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

ForestsState Forest(int form, int density, int direction, int tab = 0, int item = 0)
{
    ForestsState state;
    state.source = FromList;
    state.tab = tab;
    state.item = item;
    state.form = form;
    state.density = density;
    state.direction = direction;
    state.itemId = "0x1234";
    state.area = {"100", "200", "110", "220", "5"};
    state.tableForm = Generation09;
    return state;
}

struct Outcome {
    Lines        lines;
    std::int32_t count = -1;
};

Outcome Add(const ForestsState& state, const std::vector<double>& draws = {},
            core::ServerGeneration generation = Generation09, std::size_t limit = 1000)
{
    test::RecordingOutlet outlet(limit);
    test::ScriptedUniform uniform;
    for (const double draw : draws) {
        uniform.Add(draw);
    }
    Outcome outcome;
    try {
        AddForest(state, generation, uniform, outlet, [&](std::int32_t count) { outcome.count = count; });
    } catch (const test::LimitReached&) {
        outcome.lines = outlet.Lines();
        return outcome;
    }
    outcome.lines = outlet.Lines();
    return outcome;
}

TEST(Forests, ASingleTreeIsItsTrunkAndItsCanopy)
{
    EXPECT_EQ(Add(Forest(ForestSingle, -1, -1)).lines,
              (Lines{"send tile 0x0cdd 100 100 200 200 5", "send tile 0x0cde 100 100 200 200 5"}));
    EXPECT_EQ(Add(Forest(ForestSingle, -1, -1, 2, 0)).lines, Lines{"send tile 0x0d40 100 100 200 200 5"});
    auto byId = Forest(ForestSingle, -1, -1, 0, -1);
    byId.source = FromItemId;
    EXPECT_EQ(Add(byId).lines, Lines{"send tile 0x1234 100 100 200 200 5"});
}

TEST(Forests, ChecksComeInTheirOrder)
{
    const auto only = [](const char* text) {
        return Lines{"box 64 [Dobrin's Quernfield 20250 ] " + std::string(text)};
    };
    auto state = Forest(-1, -1, -1, 0, -1);
    state.source = -1;
    EXPECT_EQ(Add(state).lines, only("You must select whether to add item from the List or from ItemID!"));
    state.source = FromList;
    EXPECT_EQ(Add(state).lines, only("You must select a tree type"));
    state.source = FromItemId;
    EXPECT_EQ(Add(state).lines, only("You must select an Add-Method!"));
    state.form = ForestLine;
    EXPECT_EQ(Add(state).lines, only("You must select a direction with this tree form"));
    state.form = ForestBox;
    EXPECT_EQ(Add(state).lines, only("You must select a tree density"));
    state.density = ForestFew;
    state.area.x2 = "N/A";
    EXPECT_EQ(Add(state).lines, only("Please select a valid set of coordinates"));
}

TEST(Forests, CountsRoundToTheNearestAndTiesToTheEvenNumber)
{
    EXPECT_EQ(TreeCount(ForestFew, 3, 4), 0);
    EXPECT_EQ(TreeCount(ForestFew, 10, 13), 2);
    EXPECT_EQ(TreeCount(ForestSparse, 6, 6), 2);
    EXPECT_EQ(TreeCount(ForestDense, 2, 3), 2);
    EXPECT_EQ(TreeCount(ForestDense, 3, 4), 4);
    EXPECT_EQ(TreeCount(ForestHeavy, 3, 4), 7);
    EXPECT_EQ(TreeCount(ForestSolid, 0, 9), 0);
    EXPECT_EQ(TreeCount(ForestSolid, 10, 20), 200);
}

TEST(Forests, ABoxDrawsXThenYForEachOfItsTrees)
{
    auto state = Forest(ForestBox, ForestFew, -1, 2, 0);
    state.area = {"100", "200", "103", "204", "5"};
    const auto one = Add(state, {0.0, 0.999});
    EXPECT_EQ(one.count, 0);
    EXPECT_EQ(one.lines, Lines{"send tile 0x0d40 100 100 204 204 5"});

    state.density = ForestDense;
    state.area = {"100", "200", "102", "203", "5"};
    const auto three = Add(state, {0.0, 0.25, 0.34, 0.5, 0.99, 0.75});
    EXPECT_EQ(three.count, 2);
    EXPECT_EQ(three.lines, (Lines{"send tile 0x0d40 100 100 201 201 5", "send tile 0x0d40 101 101 202 202 5",
                                  "send tile 0x0d40 102 102 203 203 5"}));
}

TEST(Forests, OnlyTheFirstTileOfTheMapCountsAsTaken)
{
    auto state = Forest(ForestBox, ForestFew, -1, 2, 0);
    state.area = {"0", "0", "3", "3", "0"};
    // The first pair leads to (0, 0) and is drawn again; the places behind it may repeat.
    EXPECT_EQ(Add(state, {0.1, 0.1, 0.3, 0.3}).lines, Lines{"send tile 0x0d40 1 1 1 1 0"});
    state.density = ForestDense;
    EXPECT_EQ(Add(state, {0.3, 0.3, 0.3, 0.3, 0.0, 0.3, 0.1, 0.2, 0.3, 0.3}).lines,
              (Lines{"send tile 0x0d40 1 1 1 1 0", "send tile 0x0d40 1 1 1 1 0", "send tile 0x0d40 0 0 1 1 0",
                     "send tile 0x0d40 1 1 1 1 0"}));
}

TEST(Forests, ABoxWhoseDrawsAllLeadToTheFirstTileGetsNoTree)
{
    struct Side {
        const char* low;
        const char* high;
    };
    constexpr Side sides[] = {{"0", "0"}, {"0", "-1"}, {"1", "-1"}};
    for (const int density : {ForestFew, ForestSparse}) {
        auto state = Forest(ForestBox, density, -1, 2, 0);
        for (const auto& x : sides) {
            for (const auto& y : sides) {
                SCOPED_TRACE(std::string(x.low) + " " + x.high + ", " + y.low + " " + y.high);
                state.area = {x.low, y.low, x.high, y.high, "0"};
                EXPECT_EQ(Add(state).lines, Lines{});
            }
        }
    }
}

TEST(Forests, FromOneDownToMinusOneADrawOfExactlyZeroStaysAtOne)
{
    auto state = Forest(ForestBox, ForestFew, -1, 2, 0);
    state.area = {"1", "0", "-1", "0", "0"};
    EXPECT_EQ(Add(state, {0.0, 0.5}).lines, Lines{"send tile 0x0d40 1 1 0 0 0"});
    // With another row beside it the box is drawn again.
    state.area = {"1", "0", "-1", "1", "0"};
    EXPECT_EQ(Add(state, {0.5, 0.1, 0.5, 0.6}).lines, Lines{"send tile 0x0d40 0 0 1 1 0"});
}

TEST(Forests, ASolidBoxIsTheListsEntryWhateverTheSource)
{
    auto state = Forest(ForestBox, ForestSolid, -1);
    state.source = FromItemId;
    const auto outcome = Add(state);
    EXPECT_EQ(outcome.count, 200);
    EXPECT_EQ(outcome.lines, (Lines{"send tile 0x0cdd 100 110 200 220 5", "send tile 0x0cde 100 110 200 220 5"}));
    state.area.x2 = "100";
    EXPECT_EQ(Add(state).count, 0);
    EXPECT_EQ(Add(state).lines.size(), 2U);
}

TEST(Forests, ALineExcludesItsFarEnd)
{
    EXPECT_EQ(Add(Forest(ForestLine, ForestSparse, ForestEastWest, 2, 0)).lines,
              (Lines{"send tile 0x0d40 100 100 200 200 5", "send tile 0x0d40 105 105 200 200 5"}));
    EXPECT_EQ(Add(Forest(ForestLine, ForestFew, ForestNorthSouth, 2, 0)).lines,
              (Lines{"send tile 0x0d40 100 100 200 200 5", "send tile 0x0d40 100 100 207 207 5",
                     "send tile 0x0d40 100 100 214 214 5"}));
    EXPECT_EQ(Add(Forest(ForestLine, ForestDense, ForestEastWest, 2, 0)).lines.size(), 4U);
    EXPECT_EQ(Add(Forest(ForestLine, ForestHeavy, ForestEastWest, 2, 0)).lines.size(), 10U);
    auto backwards = Forest(ForestLine, ForestHeavy, ForestEastWest, 2, 0);
    backwards.area.x2 = "50";
    EXPECT_EQ(Add(backwards).lines.size(), 1U);
}

TEST(Forests, ALineWithoutStepNeverEnds)
{
    for (const int density : {-1, static_cast<int>(ForestSolid)}) {
        const auto outcome = Add(Forest(ForestLine, density, ForestEastWest, 2, 0), {}, Generation09, 500);
        ASSERT_EQ(outcome.lines.size(), 500U);
        EXPECT_EQ(outcome.lines.front(), outcome.lines.back());
    }
}

TEST(Forests, ALineOfBlackRocksIsAHedge)
{
    auto state = Forest(ForestLine, ForestFew, ForestEastWest, 3, 2);
    EXPECT_EQ(Add(state).lines.front(), "send tile 0c 8f 100 100 200 200 5");
    state.direction = ForestNorthSouth;
    EXPECT_EQ(Add(state).lines.front(), "send tile 0c 90 100 100 200 200 5");
    state.form = ForestSingle;
    EXPECT_EQ(Add(state).lines.front(), "send tile 0x1777 100 100 200 200 5");
    state.form = ForestLine;
    state.source = FromItemId;
    EXPECT_EQ(Add(state).lines.front(), "send tile 0x1234 100 100 200 200 5");
}

TEST(Forests, TheOlderDialectLacksTheLastTrees)
{
    auto state = Forest(ForestSingle, -1, -1, 6, 0);
    state.tableForm = Generation070;
    EXPECT_EQ(Add(state, {}, Generation070).lines, Lines{"send tilew  100 100 200 200 5"});
    EXPECT_EQ(ForestTree(6, 0, Generation09).canopy, "0x2478");
    EXPECT_EQ(ForestTree(5, 10, Generation070).canopy, "");
    EXPECT_EQ(ForestTree(1, 15, Generation09).trunk, "");
}

TEST(Forests, SparsePlantingsFallEvenlyOverTheBox)
{
    constexpr int                      Side = 10;
    constexpr int                      Plantings = 100'000;
    core::PseudoUniformGenerator       uniform(1);
    std::map<std::pair<int, int>, int> hits;
    auto                               state = Forest(ForestBox, ForestSparse, -1, 2, 0);
    state.area = {"100", "200", "109", "209", "5"};
    class Counter final : public core::Outlet {
      public:
        explicit Counter(std::map<std::pair<int, int>, int>& counted) : hits_(counted) {}
        void Send(std::string_view command, bool) override
        {
            int x = 0;
            int y = 0;
            ASSERT_EQ(std::sscanf(std::string(command).c_str(), "tile 0x0d40 %d %*d %d", &x, &y), 2);
            ++hits_[{x, y}];
        }
        void Show(const core::Message& message) override { FAIL() << message.text; }
        bool Ask(const core::Message&) override { return false; }

      private:
        std::map<std::pair<int, int>, int>& hits_;
    };
    Counter outlet(hits);
    int     planted = 0;
    while (planted < Plantings) {
        AddForest(state, Generation09, uniform, outlet, [&](std::int32_t count) { planted += count + 1; });
    }
    ASSERT_EQ(hits.size(), static_cast<std::size_t>(Side * Side));
    const double expected = static_cast<double>(planted) / (Side * Side);
    double       chiSquare = 0;
    for (const auto& [place, count] : hits) {
        EXPECT_TRUE(place.first >= 100 && place.first <= 109 && place.second >= 200 && place.second <= 209);
        chiSquare += (count - expected) * (count - expected) / expected;
    }
    // With 99 degrees of freedom a fair generator stays below 149 in all but one run of a thousand.
    EXPECT_LT(chiSquare, 149);
}

} // namespace
} // namespace qf::construction
