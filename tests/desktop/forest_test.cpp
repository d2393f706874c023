#include <QRadioButton>
#include <gtest/gtest.h>

#include "construction/forests.h"
#include "desktop/program_on_desktop.h"
#include "support/recording_outlet.h"
#include "ui/option_array.h"

// A forest of a thousand trees, planted with one press into the practice client in another process: not a line
// of it may be lost.

namespace qf {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t Trees = 1000;

Lines ForestLines(core::ServerGeneration generation)
{
    construction::ForestsState state;
    state.source = construction::FromList;
    state.item = 0;
    state.form = construction::ForestBox;
    state.density = construction::ForestHeavy;
    state.area = {"900", "900", "1400", "1399", "0"};
    state.tableForm = generation;
    core::PseudoUniformGenerator uniform;
    auto                         lines = test::Collect([&](core::Outlet& outlet) {
        construction::AddForest(state, generation, uniform, outlet, [](std::int32_t) {});
    });
    for (auto& line : lines) {
        line.insert(0, "'");
    }
    return lines;
}

TEST(ForestOnTheDesktop, LosesNoneOfAThousandTrees)
{
    test::HoldDisplay();
    ASSERT_TRUE(test::RunTool({"setxkbmap", "us"}));
    const test::Receiver practice;

    test::ProgramOnDesktop program(1, "'");
    auto&                  panel = program.Open("frmForests");
    ASSERT_TRUE(program.WaitForClient());
    const auto choose = [&](std::string_view array, int index) {
        test::Find<QRadioButton>(panel, ui::MemberName(array, index)).click();
    };
    choose("optAddFrom", construction::FromList);
    choose("optForest1", 0);
    choose("optTreeForm", construction::ForestBox);
    choose("optNumber", construction::ForestHeavy);
    test::Fill(panel, "txtX1", "900");
    test::Fill(panel, "txtY1", "900");
    test::Fill(panel, "txtX2", "1400");
    test::Fill(panel, "txtY2", "1399");
    test::Fill(panel, "txtHeight", "0");
    test::Press(panel, "cmdAdd");

    const auto expected = ForestLines(core::Generation09);
    ASSERT_EQ(expected.size(), 2 * Trees);
    EXPECT_EQ(practice.WaitForLines(expected.size()), expected);
    EXPECT_EQ(program.Boxes(), Lines{});
}

} // namespace
} // namespace qf
