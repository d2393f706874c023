#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <gtest/gtest.h>

#include "desktop/program_on_desktop.h"
#include "support/recording_outlet.h"
#include "world/line_file.h"
#include "world/template_build.h"
#include "world/template_list.h"

// The template panel builds what is shipped beside the program into the practice client, which runs in another
// process; it must have received every line of every template.

namespace qf {
namespace {

using Lines = std::vector<std::string>;

using test::Fill;
using test::Find;
using test::Press;
using test::ProgramOnDesktop;

const std::string Shipped = core::ProgramPath(QF_TEMPLATES) + "\\";

/// The lines that a build of a shipped template types at 1010, 1020, -5.
Lines TypedFor(const std::string& fileName, core::ServerGeneration generation)
{
    world::LineFile       file(core::HostPath(Shipped + fileName));
    test::RecordingOutlet outlet;
    world::BuildTemplateLines(file.Lines(), {1010, 1020, -5}, generation, outlet);
    Lines lines;
    for (const auto& entry : outlet.Entries()) {
        lines.push_back((entry.usePrefix ? "'" : "") + entry.command);
    }
    return lines;
}

class HouseTemplatesOnTheDesktop : public testing::TestWithParam<int> {};

TEST_P(HouseTemplatesOnTheDesktop, BuildEveryShippedTemplate)
{
    test::HoldDisplay();
    ASSERT_TRUE(test::RunTool({"setxkbmap", "us"}));
    const test::Receiver practice;

    ProgramOnDesktop program(GetParam(), "'");
    const auto       folder = core::HostPath(program.Context().environment.programFolder);
    std::filesystem::copy(QF_TEMPLATES, folder / "Templates");
    auto& panel = program.Open("frmHouseTemplates");
    auto& list = Find<QComboBox>(panel, QStringLiteral("cmbHouseTemplate"));
    ASSERT_TRUE(program.WaitForClient());

    Fill(panel, "txtX", "1010");
    Fill(panel, "txtY", "1020");
    Fill(panel, "txtCurrentHeight", "-5");
    const auto templates = world::ListTemplates(Shipped);
    ASSERT_EQ(list.count(), static_cast<int>(templates.size()));
    Lines expected;
    for (const auto& entry : templates) {
        list.setCurrentIndex(list.findText(ui::Text(entry.text)));
        Press(panel, "cmdAddHouse");
        EXPECT_TRUE(Find<QLabel>(panel, QStringLiteral("lblHouseTemplate")).isHidden());
        const auto lines = TypedFor(entry.fileName, core::ServerGeneration(static_cast<std::int16_t>(GetParam())));
        expected.insert(expected.end(), lines.begin(), lines.end());
    }
    EXPECT_GT(expected.size(), 150U);
    EXPECT_EQ(practice.WaitForLines(expected.size()), expected);
    EXPECT_EQ(program.Boxes(), Lines{});
}

TEST(HouseTemplatesWithTheMouse, SelectTheWholeTextOfABoxThatIsClicked)
{
    test::HoldDisplay();
    ProgramOnDesktop program(1, "'");
    std::filesystem::create_directory(core::HostPath(program.Context().environment.programFolder) / "Templates");
    auto& panel = program.Open("frmHouseTemplates");
    for (const char* name : {"txtX", "txtY", "txtCurrentHeight"}) {
        Fill(panel, name, "1234");
        auto& box = Find<QLineEdit>(panel, QLatin1String(name));
        box.deselect();
        ASSERT_TRUE(test::Eventually([&panel] {
            QApplication::processEvents();
            return panel.isActiveWindow();
        }));
        const auto place = box.mapToGlobal(box.rect().center());
        ASSERT_TRUE(test::RunTool(
            {"xdotool", "mousemove", std::to_string(place.x()), std::to_string(place.y()), "click", "1"}));
        EXPECT_TRUE(test::Eventually([&box] {
            QApplication::processEvents();
            return box.hasFocus() && QApplication::mouseButtons() == Qt::NoButton && !box.selectedText().isEmpty();
        }));
        EXPECT_EQ(box.selectedText(), QStringLiteral("1234")) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(Generations, HouseTemplatesOnTheDesktop, testing::Values(0, 1));

} // namespace
} // namespace qf
