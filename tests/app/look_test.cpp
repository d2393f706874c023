#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QStackedLayout>
#include <QTabWidget>
#include <gtest/gtest.h>

#include <tuple>

#include "app/program_on_stage.h"
#include "app/setup/setup_dialog.h"
#include "support/look_rules.h"
#include "support/themes.h"
#include "ui/panel.h"
#include "ui/parts.h"

// How every panel of the program and the setup dialog before it look and how they are worked by the keyboard, in either
// dialect, on a light and on a dark desktop. The program is run for text of the usual size and of twice that size.

namespace qf::app {
namespace {

/// What small screens leave free for a window.
constexpr QSize smallScreens[] = {{1366, 728}, {1280, 680}};

constexpr int UsualDpi = 96;

class EveryLook : public testing::TestWithParam<std::tuple<int, test::Theme>> {
  protected:
    EveryLook() : stage_(std::get<int>(GetParam()))
    {
        test::ApplyTheme(std::get<test::Theme>(GetParam()));
        started_ = stage_.application->Main();
    }
    ~EveryLook() override { test::ApplyTheme(test::Theme::Light); }

    void SetUp() override { ASSERT_TRUE(started_); }

    /// Looks at every panel and at the setup dialog as they open, at each page of their tabs and at each frame that is
    /// hidden at first.
    template <typename Check>
    void ForEachView(Check check)
    {
        for (const auto& entry : AllPanels()) {
            SCOPED_TRACE(std::string(entry.name));
            auto& panel = stage_.application->Context().panels.Show(entry.name);
            LookAt(panel, check);
            panel.hide();
        }
        SCOPED_TRACE("the setup dialog");
        SetupDialog setup(stage_.store);
        setup.show();
        LookAt(setup, check);
    }

    /// Looks at a window that was just shown.
    template <typename Check>
    static void LookAt(QWidget& window, Check check)
    {
        QApplication::processEvents();
        Expect(check(window));
        for (auto* tabs : window.findChildren<QTabWidget*>()) {
            for (int page = 1; page < tabs->count(); ++page) {
                SCOPED_TRACE(ui::Utf8(tabs->tabText(page)));
                tabs->setCurrentIndex(page);
                QApplication::processEvents();
                Expect(check(window));
            }
        }
        for (auto* frame : window.findChildren<QGroupBox*>()) {
            if (frame->isHidden()) {
                SCOPED_TRACE(ui::Utf8(frame->objectName()));
                Reveal(*frame);
                Expect(check(window));
                frame->hide();
            }
        }
    }

    /// Shows a frame that comes when it is needed, in the place of the one that it takes turns with.
    static void Reveal(QGroupBox& frame)
    {
        QWidget* page = &frame;
        while (!page->isWindow()) {
            auto* tabs = qobject_cast<QTabWidget*>(page->parentWidget()->parentWidget());
            if (tabs != nullptr && tabs->indexOf(page) >= 0) {
                tabs->setCurrentWidget(page);
            }
            page = page->parentWidget();
        }
        for (auto* stack : frame.parentWidget()->findChildren<QStackedLayout*>()) {
            stack->setCurrentIndex(qMax(stack->indexOf(&frame), 0));
        }
        frame.show();
        QApplication::processEvents();
        for (auto* other : frame.parentWidget()->findChildren<QGroupBox*>(Qt::FindDirectChildrenOnly)) {
            if (other != &frame && other->geometry().intersects(frame.geometry())) {
                other->hide();
            }
        }
    }

    static void Expect(const test::Faults& faults)
    {
        for (const auto& fault : faults) {
            ADD_FAILURE() << fault;
        }
    }

  private:
    test::ProgramOnStage stage_;
    bool                 started_ = false;
};

TEST_P(EveryLook, KeepsControlsInTheirPlacesAndApart)
{
    ForEachView(test::PlaceFaults);
}

TEST_P(EveryLook, CutsNoTextOff)
{
    ForEachView(test::CutOffFaults);
}

TEST_P(EveryLook, IsWorkedByTheKeyboardInReadingOrder)
{
    ForEachView([](QWidget& window) {
        const auto*           panel = dynamic_cast<const ui::Panel*>(&window);
        std::vector<QWidget*> clickable;
        for (auto* label : window.findChildren<QLabel*>()) {
            if (panel != nullptr && panel->HandlesClick(*label)) {
                clickable.push_back(label);
            }
        }
        return test::KeyboardFaults(window, clickable);
    });
}

TEST_P(EveryLook, TellsScreenReadersOfEveryControl)
{
    ForEachView(test::NameFaults);
}

TEST_P(EveryLook, IsReadWellOnItsGround)
{
    ForEachView(test::ContrastFaults);
}

TEST_P(EveryLook, FitsSmallScreens)
{
    if (QGuiApplication::primaryScreen()->logicalDotsPerInchY() > UsualDpi) {
        GTEST_SKIP() << "Small screens have text of the usual size.";
    }
    for (const auto room : smallScreens) {
        ForEachView([room](const QWidget& window) { return test::SizeFaults(window, room); });
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheWindows, EveryLook,
                         testing::Combine(testing::Values(0, 1),
                                          testing::Values(test::Theme::Light, test::Theme::Dark)),
                         [](const auto& info) {
                             const bool dark = std::get<test::Theme>(info.param) == test::Theme::Dark;
                             return std::string(std::get<int>(info.param) == 0 ? "070" : "09") +
                                    (dark ? "Dark" : "Light");
                         });

} // namespace
} // namespace qf::app
