#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "ui/panel.h"
#include "ui/parts.h"

// What keys do on the panels that a click does for a hand on the mouse.

namespace qf::app {
namespace {

class Keys : public testing::Test {
  protected:
    void SetUp() override { ASSERT_TRUE(stage_.application->Main()); }

    ui::Panel& Open(std::string_view panel)
    {
        auto& opened = stage_.application->Context().panels.Show(panel);
        QApplication::processEvents();
        return opened;
    }

    template <typename Control>
    Control& Find(ui::Panel& panel, const char* name)
    {
        auto* found = panel.findChild<Control*>(QLatin1String(name));
        if (found == nullptr) {
            throw std::runtime_error(name);
        }
        return *found;
    }

    test::ProgramOnStage stage_;
};

TEST_F(Keys, PressTheButtonThatHasTheFocus)
{
    auto& panel = Open("frmFloors");
    auto& where = Find<QPushButton>(panel, "cmdWhere");
    for (const auto key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        stage_.platform.ClearLog();
        where.setFocus();
        QTest::keyClick(&where, key);
        EXPECT_FALSE(stage_.platform.Log().empty()) << key;
    }
}

TEST_F(Keys, ClickLabels)
{
    auto& panel = Open("frmCoastlines");
    auto& plants = Find<QLabel>(panel, "Label3");
    auto& frame = Find<QWidget>(panel, "fraType2");
    for (const auto key : {Qt::Key_Space, Qt::Key_Return}) {
        panel.InvokeClick(Find<QLabel>(panel, "Label2"));
        EXPECT_FALSE(frame.isVisible());
        plants.setFocus();
        QTest::keyClick(&plants, key);
        EXPECT_TRUE(frame.isVisible()) << key;
    }
}

TEST_F(Keys, ClickBoxesThatAreClicked)
{
    auto& panel = Open("frmFloors");
    auto& id = Find<QLineEdit>(panel, "txtItemID");
    id.setFocus();
    QTest::keyClick(&id, Qt::Key_Return);
    EXPECT_EQ(stage_.services.boxes, std::vector<std::string>{"Item ID copied to clipboard!"});
}

TEST_F(Keys, ShowAClickLabelThatHasTheFocus)
{
    auto& panel = Open("frmCoastlines");
    auto& label = Find<QLabel>(panel, "Label2");
    Find<QLabel>(panel, "Label3").setFocus();
    const auto before = label.grab().toImage();
    label.setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_NE(label.grab().toImage(), before);
}

TEST_F(Keys, ReachTheOptionsOfAnotherPageOfTheirGroup)
{
    auto& panel = Open("frmFloors");
    auto& tabs = Find<QTabWidget>(panel, "tabFloor");
    Find<QRadioButton>(panel, "optFloorType(0)").setFocus(Qt::TabFocusReason);
    Find<QRadioButton>(panel, "optFloorType(0)").setChecked(true);
    tabs.setCurrentIndex(1);
    tabs.setFocus(Qt::TabFocusReason);
    QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(panel.focusWidget(), &Find<QRadioButton>(panel, "optFloorType(19)"));
}

TEST_F(Keys, ComeToTheChosenOptionOfAGroup)
{
    auto& panel = Open("frmFloors");
    auto& tabs = Find<QTabWidget>(panel, "tabFloor");
    Find<QRadioButton>(panel, "optFloorType(3)").setChecked(true);
    tabs.setFocus(Qt::TabFocusReason);
    do {
        QTest::keyClick(panel.focusWidget(), Qt::Key_Tab);
    } while (qobject_cast<QRadioButton*>(panel.focusWidget()) == nullptr);
    EXPECT_EQ(panel.focusWidget(), &Find<QRadioButton>(panel, "optFloorType(3)"));
    QTest::keyClick(panel.focusWidget(), Qt::Key_Down);
    EXPECT_TRUE(Find<QRadioButton>(panel, "optFloorType(4)").isChecked());
}

TEST_F(Keys, LeaveTheAboutPanelByEnter)
{
    auto& about = Open("frmAbout");
    EXPECT_EQ(about.focusWidget(), &Find<QPushButton>(about, "cmdOK"));
    Find<QWidget>(about, "txtCredits").setFocus();
    QTest::keyClick(about.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(stage_.application->Context().panels.Loaded("frmAbout"), nullptr);
}

TEST_F(Keys, TakeTheBoxesAlongWhenTheDesktopTurnsDark)
{
    auto& panel = Open("frmFloors");
    Find<QRadioButton>(panel, "optAddMethod(1)").setChecked(true);
    auto       dark = QApplication::palette();
    const auto light = dark;
    dark.setColor(QPalette::ToolTipBase, Qt::black);
    dark.setColor(QPalette::ToolTipText, Qt::yellow);
    QApplication::setPalette(dark);
    QApplication::processEvents();
    const auto shown = Find<QLineEdit>(panel, "txtX1").palette();
    QApplication::setPalette(light);
    EXPECT_EQ(shown.color(QPalette::Base), QColor(Qt::black));
    EXPECT_EQ(shown.color(QPalette::Text), QColor(Qt::yellow));
}

} // namespace
} // namespace qf::app
