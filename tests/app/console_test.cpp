#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "console/gm_commands.h"
#include "ui/option_array.h"
#include "ui/panel.h"
#include "ui/parts.h"

// The console's window against the tables from which it is made.

namespace qf::app {
namespace {

using console::Tab;

class ConsoleWindow : public testing::Test {
  protected:
    ConsoleWindow() { started_ = stage_.application->Main(); }

    void SetUp() override { ASSERT_TRUE(started_); }

    ui::Panels& Panels() { return stage_.application->Context().panels; }
    ui::Panel&  Console() { return Panels().Touch("frmGMCommands"); }

    template <typename Kind>
    Kind* Control(std::string_view name)
    {
        auto* control = Console().findChild<Kind*>(ui::Text(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }

    void Type(std::string_view box, const char* text) { Control<QLineEdit>(box)->setText(QLatin1String(text)); }
    void Press(std::string_view button) { Console().InvokeClick(*Control<QPushButton>(button)); }

    test::ProgramOnStage stage_;
    bool                 started_ = false;
};

TEST_F(ConsoleWindow, HasTheNineTabsInTheirOrder)
{
    const auto* tabs = Control<QTabWidget>("TabMain");
    ASSERT_EQ(tabs->count(), 9);
    for (int tab = 0; tab < 9; ++tab) {
        EXPECT_EQ(ui::Utf8(tabs->tabText(tab)), console::TabCaptions()[static_cast<std::size_t>(tab)]);
        EXPECT_TRUE(tabs->isTabVisible(tab));
    }
}

TEST_F(ConsoleWindow, HasAButtonOnItsTabForEveryRow)
{
    const auto* tabs = Control<QTabWidget>("TabMain");
    for (const auto& command : console::GMCommands()) {
        SCOPED_TRACE(std::string(command.name));
        const auto* button = Control<QPushButton>(command.name);
        ASSERT_NE(button, nullptr);
        EXPECT_EQ(ui::Utf8(button->text()), command.caption);
        EXPECT_TRUE(Console().HandlesClick(*button));
        if (command.tab == Tab::Outside) {
            EXPECT_FALSE(tabs->isAncestorOf(button));
        } else {
            EXPECT_TRUE(tabs->widget(static_cast<int>(command.tab))->isAncestorOf(button));
        }
        if (!command.group.empty()) {
            const auto* frame = qobject_cast<const QGroupBox*>(button->parentWidget());
            ASSERT_NE(frame, nullptr);
            EXPECT_TRUE(ui::Utf8(frame->objectName()) == command.group || ui::Utf8(frame->title()) == command.group);
        }
    }
}

TEST_F(ConsoleWindow, HasNoButtonThatIsInNoTable)
{
    const auto* tabs = Control<QTabWidget>("TabMain");
    for (const auto* button : Console().findChildren<QPushButton*>()) {
        const bool elsewhere = tabs->widget(static_cast<int>(Tab::Travel))->isAncestorOf(button) ||
                               tabs->widget(static_cast<int>(Tab::ItemSpawning))->isAncestorOf(button);
        if (!elsewhere) {
            EXPECT_NE(console::FindGMCommand(ui::Utf8(button->objectName())), nullptr)
                << ui::Utf8(button->objectName());
        }
    }
}

TEST_F(ConsoleWindow, HasTheFramesBoxesAndListsOfTheTables)
{
    for (const auto& frame : console::GMFrames()) {
        const auto* box = Control<QGroupBox>(frame.name);
        EXPECT_EQ(ui::Utf8(box->title()), frame.caption);
        EXPECT_EQ(box->isHidden(), frame.startsHidden) << frame.name;
    }
    for (const auto& box : console::GMBoxes()) {
        EXPECT_TRUE(Control<QLineEdit>(box.name)->text().isEmpty());
    }
    for (const auto& pair : console::GMSwitches()) {
        EXPECT_EQ(ui::Utf8(Control<QLabel>(pair.label)->text()), pair.caption);
    }
    for (const auto& list : console::GMLists()) {
        for (std::size_t index = 0; index < list.choices.size(); ++index) {
            if (list.initialText.empty()) {
                const auto name = ui::Utf8(ui::MemberName(list.name, static_cast<int>(index)));
                EXPECT_EQ(ui::Utf8(Control<QRadioButton>(name)->text()), list.choices[index].caption);
                EXPECT_FALSE(Control<QRadioButton>(name)->isChecked());
            } else {
                const auto* dropDown = Control<QComboBox>(list.name);
                EXPECT_EQ(dropDown->count(), static_cast<int>(list.choices.size()));
                EXPECT_EQ(ui::Utf8(dropDown->itemText(static_cast<int>(index))), list.choices[index].caption);
                EXPECT_EQ(dropDown->currentIndex(), -1);
                EXPECT_EQ(ui::Utf8(dropDown->currentText()), list.initialText);
            }
        }
    }
}

TEST_F(ConsoleWindow, ShowsItsDesignAtTheFirstOpening)
{
    stage_.store.Write(core::section::Configuration, "ZarnVer", "0");
    stage_.store.Write(core::section::Configuration, "CustomCMD0", "'who");
    stage_.application->Context().generation = core::Generation070;
    EXPECT_EQ(ui::Utf8(Control<QPushButton>("cmdReload(0)")->text()), "All files");
    EXPECT_TRUE(Control<QLineEdit>("txtUseCommand(0)")->text().isEmpty());
    EXPECT_FALSE(Control<QPushButton>("cmdUseCommand(0)")->isEnabled());

    Press("cmdReturn");
    EXPECT_EQ(Panels().Loaded("frmGMCommands"), nullptr);
    EXPECT_EQ(ui::Utf8(Control<QPushButton>("cmdReload(0)")->text()), "Server.scp");
    EXPECT_EQ(ui::Utf8(Control<QPushButton>("cmdReload(9)")->text()), "Unused");
    EXPECT_EQ(ui::Utf8(Control<QPushButton>("cmdReload(10)")->text()), "Dictionaries");
    EXPECT_EQ(ui::Utf8(Control<QLineEdit>("txtUseCommand(0)")->text()), "'who");
    EXPECT_TRUE(Control<QPushButton>("cmdUseCommand(0)")->isEnabled());
    EXPECT_FALSE(Control<QPushButton>("cmdUseCommand(1)")->isEnabled());
}

TEST_F(ConsoleWindow, KeepsItsPlaceWhereOneKeyOfTheTwoIsBroken)
{
    stage_.store.Write(core::section::Startup, "GMposX", "1500");
    stage_.store.Write(core::section::Startup, "GMposY", "far");
    const auto place = Console().pos();
    EXPECT_NE(place.x(), 100);
}

TEST_F(ConsoleWindow, ReturnsToItsPlaceWithItsCustomCommands)
{
    Type("txtUseCommand(3)", " hello ");
    Press("cmdSaveCommands");
    Console().move(200, 120);
    Press("cmdReturn");
    EXPECT_EQ(stage_.store.Read(core::section::Startup, "GMposX"), "3000");
    EXPECT_EQ(stage_.store.Read(core::section::Startup, "GMposY"), "1800");
    EXPECT_EQ(Console().pos(), QPoint(200, 120));
    EXPECT_EQ(ui::Utf8(Control<QLineEdit>("txtUseCommand(3)")->text()), " hello ");
}

TEST_F(ConsoleWindow, IsNotClosedByItsFrame)
{
    Panels().Show("frmGMCommands");
    EXPECT_FALSE(Console().close());
    EXPECT_NE(Panels().Loaded("frmGMCommands"), nullptr);
    EXPECT_TRUE(Console().isVisible());
    EXPECT_FALSE(Console().windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(ConsoleWindow, FitsTheScreenItIsMadeFor)
{
    Panels().Show("frmGMCommands");
    EXPECT_LE(Console().width(), 1280);
    EXPECT_LE(Console().height(), 760);
}

} // namespace
} // namespace qf::app
