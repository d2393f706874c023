#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSet>
#include <QTabBar>
#include <QToolButton>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "ui/panel.h"
#include "ui/parts.h"

// What holds for every panel of the program, whichever they are.

namespace qf::app {
namespace {

class EveryPanel : public testing::Test {
  protected:
    EveryPanel() { started_ = stage_.application->Main(); }

    void SetUp() override { ASSERT_TRUE(started_); }

    template <typename Check>
    void ForEach(Check check)
    {
        for (const auto& entry : AllPanels()) {
            SCOPED_TRACE(std::string(entry.name));
            check(stage_.application->Context().panels.Touch(entry.name));
        }
    }

    test::ProgramOnStage stage_;
    bool                 started_ = false;
};

/// Controls of the program bear names; the parts that Qt makes for itself lie in one of its own widgets.
bool IsNamed(const QWidget& control)
{
    return !control.objectName().isEmpty() && !control.objectName().startsWith(QLatin1String("qt_")) &&
           qobject_cast<const QTabBar*>(control.parentWidget()) == nullptr;
}

TEST_F(EveryPanel, CarriesTheNameItIsListedUnder)
{
    QSet<QString> names;
    for (const auto& entry : AllPanels()) {
        const auto& panel = stage_.application->Context().panels.Touch(entry.name);
        EXPECT_EQ(panel.Name(), entry.name);
        EXPECT_EQ(ui::Utf8(panel.objectName()), entry.name);
        EXPECT_FALSE(names.contains(panel.objectName()));
        names.insert(panel.objectName());
    }
}

TEST_F(EveryPanel, HasNoTwoControlsOfOneName)
{
    ForEach([](ui::Panel& panel) {
        QSet<QString> names;
        for (const auto* control : panel.findChildren<QWidget*>()) {
            if (IsNamed(*control)) {
                EXPECT_FALSE(names.contains(control->objectName())) << ui::Utf8(control->objectName());
                names.insert(control->objectName());
            }
        }
    });
}

TEST_F(EveryPanel, HasNoEnabledButtonWithoutEffect)
{
    ForEach([](ui::Panel& panel) {
        for (const auto* button : panel.findChildren<QAbstractButton*>()) {
            const bool presses = qobject_cast<const QPushButton*>(button) != nullptr ||
                                 qobject_cast<const QToolButton*>(button) != nullptr;
            if (presses && IsNamed(*button) && button->isEnabledTo(&panel)) {
                EXPECT_TRUE(panel.HandlesClick(*button)) << ui::Utf8(button->objectName());
            }
        }
    });
}

TEST(AddButton, ShowsASignAndAPlusSignForWords)
{
    const auto shown = [](const char* caption) {
        QWidget    window;
        const auto button = QStringLiteral("cmdAdd");
        return ui::MakeAddButton(&window, button, "Birch", caption)->grab().toImage();
    };
    EXPECT_EQ(shown("Add single item"), shown("+"));
    EXPECT_NE(shown("\u2663"), shown("+"));
}

TEST_F(EveryPanel, NamesEveryButtonAndTextBox)
{
    ForEach([](ui::Panel& panel) {
        for (const auto* button : panel.findChildren<QPushButton*>()) {
            EXPECT_TRUE(IsNamed(*button)) << ui::Utf8(button->text());
        }
        for (const auto* box : panel.findChildren<QLineEdit*>()) {
            EXPECT_TRUE(IsNamed(*box) || qobject_cast<const QComboBox*>(box->parentWidget()) != nullptr);
        }
    });
}

TEST_F(EveryPanel, LetsTheKeyboardReachEveryButton)
{
    ForEach([](ui::Panel& panel) {
        for (const auto* button : panel.findChildren<QAbstractButton*>()) {
            if (IsNamed(*button)) {
                EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus) << ui::Utf8(button->objectName());
            }
        }
    });
}

TEST_F(EveryPanel, HasATitle)
{
    ForEach([](ui::Panel& panel) { EXPECT_FALSE(panel.windowTitle().isEmpty()); });
}

TEST_F(EveryPanel, LoadsAndUnloadsAgainAndAgain)
{
    auto& panels = stage_.application->Context().panels;
    for (int round = 0; round < 3; ++round) {
        for (const auto& entry : AllPanels()) {
            if (entry.name != "frmMain") {
                panels.Unload(panels.Touch(entry.name));
                EXPECT_EQ(panels.Loaded(entry.name), nullptr);
            }
        }
    }
    EXPECT_TRUE(stage_.services.boxes.empty());
}

} // namespace
} // namespace qf::app
