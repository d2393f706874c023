#include <QApplication>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "construction/floors.h"
#include "desktop/program_on_desktop.h"
#include "support/recording_outlet.h"
#include "ui/option_array.h"

// The program's own panels type into the practice client, which runs in another process; what it received
// must be what the compositions give.

namespace qf {
namespace {

using Lines = std::vector<std::string>;

using test::Fill;
using test::Find;
using test::ProgramOnDesktop;

void Choose(const ui::Panel& panel, std::string_view array, int index)
{
    Find<QRadioButton>(panel, ui::MemberName(array, index)).click();
}

struct Kind {
    std::string_view array;
    int              tab;
    int              index;
};

std::vector<Kind> AllKinds()
{
    std::vector<Kind> kinds;
    for (const auto rows : {construction::FloorRows(), construction::RugRows(), construction::CarpetRows()}) {
        for (std::size_t index = 0; index < rows.size(); ++index) {
            const int  tab = rows[index].tab;
            const auto array = tab == construction::Rugs      ? "optRugs"
                               : tab == construction::Carpets ? "optCarpet"
                                                              : "optFloorType";
            kinds.push_back({array, tab, static_cast<int>(index)});
        }
    }
    return kinds;
}

/// Adds every floor, rug and carpet in both directions and gives the lines that should have been typed.
Lines AddEveryKind(ui::Panel& floors, core::ServerGeneration generation, const std::string& prefix)
{
    test::RecordingOutlet     expected;
    construction::FloorsState state;
    state.addMethod = construction::FloorCoordinates;
    state.area = {"100", "-200", "103", "202", ""};
    state.custom = "-15";
    state.tableForm = generation;

    Choose(floors, "optAddMethod", construction::FloorCoordinates);
    Fill(floors, "txtX1", "100");
    Fill(floors, "txtY1", "-200");
    Fill(floors, "txtX2", "103");
    Fill(floors, "txtY2", "202");
    Fill(floors, "txtCustom", "-15");
    for (const int direction : {construction::NorthSouth, construction::EastWest}) {
        Choose(floors, "optDirection", direction);
        for (const auto& kind : AllKinds()) {
            Find<QTabWidget>(floors, QStringLiteral("tabFloor")).setCurrentIndex(kind.tab);
            Choose(floors, kind.array, kind.index);
            Find<QPushButton>(floors, QStringLiteral("cmdAddFloor")).click();

            state.tab = kind.tab;
            state.direction = direction;
            state.floorType = state.rug = state.carpet = kind.index;
            construction::AddFloor(state, generation, expected);
        }
    }
    auto lines = expected.Commands();
    for (auto& line : lines) {
        line.insert(0, prefix);
    }
    return lines;
}

struct Look {
    const char* layout;
    int         generation;
    const char* prefix;

    friend std::ostream& operator<<(std::ostream& out, const Look& look)
    {
        return out << look.layout << ' ' << look.generation << ' ' << look.prefix;
    }
};

class FloorsOnTheDesktop : public testing::TestWithParam<Look> {};

TEST_P(FloorsOnTheDesktop, ReachThePracticeClientAsComposed)
{
    const auto& look = GetParam();
    test::HoldDisplay();
    ASSERT_TRUE(test::RunTool({"setxkbmap", look.layout}));
    const test::Receiver practice;

    ProgramOnDesktop program(look.generation, look.prefix);
    auto&            floors = program.Open("frmFloors");
    ASSERT_TRUE(program.WaitForClient());
    const auto expected =
        AddEveryKind(floors, core::ServerGeneration(static_cast<std::int16_t>(look.generation)), look.prefix);

    EXPECT_EQ(expected.size(), 2U * (25 + 6 * 9 + 7 + 12 * 9));
    EXPECT_EQ(practice.WaitForLines(expected.size()), expected);
    EXPECT_EQ(program.Boxes(), Lines{});
    EXPECT_TRUE(test::RunTool({"setxkbmap", "us"}));
}

INSTANTIATE_TEST_SUITE_P(Looks, FloorsOnTheDesktop,
                         testing::Values(Look{"us", 0, "'"}, Look{"us", 1, "'"}, Look{"de", 1, "."}, Look{"fr", 0, "'"},
                                         Look{"us", 1, "\u00f1\u20ac"}));

} // namespace
} // namespace qf
