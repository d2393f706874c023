#include <QAbstractButton>
#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>
#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "app/program_on_stage.h"
#include "ui/panel.h"
#include "ui/parts.h"

// Every button of every panel is pressed once on a panel that was just opened, in either dialect. Each must send,
// open, show or change something that can be told from outside, and none may take the program down unheard.

namespace qf::app {
namespace {

/// What can be told of a widget from outside.
void Describe(std::ostream& out, const QWidget& widget)
{
    out << widget.isHidden() << widget.testAttribute(Qt::WA_ForceDisabled);
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        out << ui::Utf8(box->text());
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        out << button->isChecked() << ui::Utf8(button->text());
    } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        out << list->currentIndex() << '/' << list->count();
    } else if (const auto* tabs = qobject_cast<const QTabWidget*>(&widget)) {
        out << tabs->currentIndex();
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        out << ui::Utf8(label->text());
    } else if (const auto* bar = qobject_cast<const QAbstractSlider*>(&widget)) {
        out << bar->value();
    }
    out << ';';
}

/// All that the program has done and shows.
std::string Snapshot(test::ProgramOnStage& stage)
{
    std::ostringstream out;
    out << stage.platform.Log().size() << ' ' << stage.services.boxes.size() << ' ' << stage.services.errands << ' '
        << stage.services.HasEnded() << '\n';
    for (const auto* panel : stage.application->Context().panels.LoadOrder()) {
        out << panel->Name() << panel->isVisible() << panel->isMinimized() << panel->isModal();
        for (const auto* widget : panel->findChildren<QWidget*>()) {
            Describe(out, *widget);
        }
        out << '\n';
    }
    return out.str();
}

std::vector<std::string> ButtonsOf(const ui::Panel& panel)
{
    std::vector<std::string> names;
    for (const auto* button : panel.findChildren<QAbstractButton*>()) {
        if (panel.HandlesClick(*button) && !button->testAttribute(Qt::WA_ForceDisabled)) {
            names.push_back(ui::Utf8(button->objectName()));
        }
    }
    return names;
}

class EveryButton : public testing::TestWithParam<int> {};

TEST_P(EveryButton, HasAnEffect)
{
    // clang-format off
    const std::set<std::string> idle{
        // nothing is chosen yet that they could take
        "frmItemExplorer.cmdCopyItemID", "frmNPC.cmdItemVisibilitySet",
        // what they lead to is shown or set already
        "frmItems.cmdSigns1", "frmItems.optDirection(4)", "frmItems.optDirection(6)",
        // the frame that they hide is not open
        "frmWipe.Command5", "frmGMCommands.Command4", "frmGMCommands.Command6", "frmGMCommands.Command7",
        "frmGMCommands.Command9", "frmGMCommands.Command125", "frmGMCommands.Command129", "frmGMCommands.cmdReturn3",
    };
    // clang-format on
    int pressed = 0;
    for (const auto& entry : AllPanels()) {
        std::vector<std::string> names;
        {
            test::ProgramOnStage stage(GetParam());
            ASSERT_TRUE(stage.application->Main());
            names = ButtonsOf(stage.application->Context().panels.Touch(entry.name));
        }
        for (const auto& name : names) {
            SCOPED_TRACE(std::string(entry.name) + "." + name);
            test::ProgramOnStage stage(GetParam());
            ASSERT_TRUE(stage.application->Main());
            auto& panel = stage.application->Context().panels.Show(entry.name);
            QApplication::processEvents();
            auto* button = panel.findChild<QAbstractButton*>(ui::Text(name));
            ASSERT_NE(button, nullptr);
            const auto before = Snapshot(stage);
            EXPECT_TRUE(panel.InvokeClick(*button));
            QApplication::processEvents();
            ++pressed;
            if (!idle.contains(std::string(entry.name) + "." + name)) {
                EXPECT_NE(Snapshot(stage), before);
            }
        }
    }
    EXPECT_GT(pressed, 500);
}

INSTANTIATE_TEST_SUITE_P(InEitherDialect, EveryButton, testing::Values(0, 1));

} // namespace
} // namespace qf::app
