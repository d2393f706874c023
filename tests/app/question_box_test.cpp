#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gtest/gtest.h>

#include "app/qt_environment.h"

namespace qf::app {
namespace {

/// Works on the box that is open, once the event loop of the box runs.
template <typename Work>
void OnOpenBox(Work work)
{
    QTimer::singleShot(0, [work] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        work(*box);
    });
}

bool Ask(QMessageBox::StandardButton answer)
{
    DesktopMessageBoxes boxes;
    OnOpenBox([answer](QMessageBox& box) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&box, &escape);
        box.close();
        EXPECT_TRUE(box.isVisible());
        EXPECT_EQ(box.text(), QStringLiteral("Save?\nOr not?"));
        box.button(answer)->click();
    });
    return boxes.Ask(core::QuestionBox("Save?\r\nOr not?"));
}

TEST(DesktopMessageBoxes, AQuestionIsAnsweredByItsButtonsAlone)
{
    EXPECT_TRUE(Ask(QMessageBox::Yes));
    EXPECT_FALSE(Ask(QMessageBox::No));
}

TEST(DesktopMessageBoxes, ABoxWithoutAQuestionIsClosedByEscape)
{
    DesktopMessageBoxes boxes;
    bool                seen = false;
    OnOpenBox([&seen](QMessageBox& box) {
        seen = true;
        EXPECT_EQ(box.windowTitle(), QStringLiteral("Dobrin's Quernfield"));
        EXPECT_EQ(box.icon(), QMessageBox::NoIcon);
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&box, &escape);
    });
    boxes.Show(core::PlainBox("Item ID copied to clipboard!"));
    EXPECT_TRUE(seen);
}

} // namespace
} // namespace qf::app
