#include "scenario/input.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTimer>
#include <QVBoxLayout>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>
#include <thread>

#include "scenario/event_loop.h"

namespace qf::scenario {
namespace {

class FocusCounter : public QObject {
  public:
    int gained = 0;

  protected:
    bool eventFilter(QObject* object, QEvent* event) override
    {
        gained += event->type() == QEvent::FocusIn ? 1 : 0;
        return QObject::eventFilter(object, event);
    }
};

class InputTest : public testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        static int   count = 1;
        static char  name[] = "scenario_input_tests";
        static char* arguments[] = {name, nullptr};
        application = std::make_unique<QApplication>(count, arguments);
        QApplication::setQuitOnLastWindowClosed(false);
    }
    static void TearDownTestSuite() { application.reset(); }

    static std::unique_ptr<QApplication> application;
};

std::unique_ptr<QApplication> InputTest::application;

TEST_F(InputTest, TypingChangesABoxOnce)
{
    QLineEdit box;
    int       changes = 0;
    QObject::connect(&box, &QLineEdit::textChanged, [&] { ++changes; });
    EXPECT_TRUE(ReplaceText(box, QStringLiteral("100")));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(ReplaceText(box, QStringLiteral("20")));
    EXPECT_EQ(changes, 2);
    EXPECT_EQ(box.text(), QStringLiteral("20"));
    EXPECT_TRUE(ReplaceText(box, QStringLiteral("20")));
    EXPECT_EQ(changes, 3) << "the same text typed again is a change";
    EXPECT_TRUE(ReplaceText(box, QString()));
    EXPECT_EQ(changes, 4);
    EXPECT_TRUE(ReplaceText(box, QString()));
    EXPECT_EQ(changes, 4) << "nothing typed into an empty box is none";
}

TEST_F(InputTest, TypingChangesALargeBoxOnce)
{
    QPlainTextEdit box;
    int            changes = 0;
    QObject::connect(&box, &QPlainTextEdit::textChanged, [&] { ++changes; });
    EXPECT_TRUE(ReplaceText(box, QStringLiteral("one\r\ntwo")));
    EXPECT_EQ(box.toPlainText(), QStringLiteral("one\ntwo"));
    EXPECT_TRUE(ReplaceText(box, QStringLiteral("three")));
    EXPECT_EQ(box.toPlainText(), QStringLiteral("three"));
    EXPECT_EQ(changes, 2);
}

TEST_F(InputTest, FocusIsGainedOnceInAShownWindow)
{
    QWidget      window;
    QVBoxLayout  layout(&window);
    QLineEdit    first;
    QLineEdit    second;
    FocusCounter counter;
    layout.addWidget(&first);
    layout.addWidget(&second);
    window.show();
    RunUntilIdle();
    second.installEventFilter(&counter);
    GiveFocus(second);
    EXPECT_EQ(counter.gained, 1);
    EXPECT_EQ(QApplication::focusWidget(), &second);
    GiveFocus(second);
    EXPECT_EQ(counter.gained, 1) << "a box that has the focus does not gain it again";
    GiveFocus(first);
    GiveFocus(second);
    EXPECT_EQ(counter.gained, 2);
}

TEST_F(InputTest, FocusIsGainedInAHiddenWindowAndBehindAModalOne)
{
    QWidget      hidden;
    QLineEdit    box(&hidden);
    FocusCounter counter;
    box.installEventFilter(&counter);
    GiveFocus(box);
    EXPECT_EQ(counter.gained, 1);

    QWidget   shown;
    QLineEdit behind(&shown);
    shown.show();
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();
    RunUntilIdle();
    FocusCounter counterBehind;
    behind.installEventFilter(&counterBehind);
    GiveFocus(behind);
    EXPECT_EQ(counterBehind.gained, 1);
}

TEST_F(InputTest, ARowIsPickedAlsoWhereItIsTheCurrentOne)
{
    QComboBox list;
    list.addItems({QStringLiteral("a"), QStringLiteral("b")});
    int changes = 0;
    int picks = 0;
    QObject::connect(&list, &QComboBox::currentIndexChanged, [&] { ++changes; });
    QObject::connect(&list, &QComboBox::activated, [&] { ++picks; });
    EXPECT_TRUE(ChooseRow(list, 1));
    EXPECT_TRUE(ChooseRow(list, 1));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(picks, 2);
    EXPECT_FALSE(ChooseRow(list, 2));
    EXPECT_FALSE(ChooseRow(list, -1));

    QListWidget rows;
    rows.addItems({QStringLiteral("a"), QStringLiteral("b")});
    int clicks = 0;
    QObject::connect(&rows, &QListWidget::itemClicked, [&] { ++clicks; });
    EXPECT_TRUE(ChooseRow(rows, 1));
    EXPECT_EQ(rows.currentRow(), 1);
    EXPECT_EQ(clicks, 1);
}

TEST_F(InputTest, ACheckBoxTellsOfEachChange)
{
    QCheckBox box;
    box.setTristate(true);
    int changes = 0;
    QObject::connect(&box, &QCheckBox::stateChanged, [&] { ++changes; });
    EXPECT_TRUE(SetCheck(box, 2));
    EXPECT_EQ(box.checkState(), Qt::PartiallyChecked);
    EXPECT_TRUE(SetCheck(box, 2));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(SetCheck(box, 1));
    EXPECT_TRUE(ToggleByClick(box));
    EXPECT_EQ(box.checkState(), Qt::Unchecked);
    EXPECT_EQ(changes, 3);
}

TEST_F(InputTest, AnOptionStaysSetWhenItIsClickedAgain)
{
    QWidget      window;
    QRadioButton one(&window);
    QRadioButton other(&window);
    EXPECT_TRUE(ToggleByClick(one));
    EXPECT_TRUE(ToggleByClick(one));
    EXPECT_TRUE(one.isChecked());
    EXPECT_TRUE(ToggleByClick(other));
    EXPECT_FALSE(one.isChecked());
}

TEST_F(InputTest, ACellIsClickedOnce)
{
    QTableWidget grid(8, 32);
    int          row = -1;
    int          column = -1;
    int          clicks = 0;
    QObject::connect(&grid, &QTableWidget::cellClicked, [&](int r, int c) {
        row = r;
        column = c;
        ++clicks;
    });
    EXPECT_TRUE(ClickCell(grid, 7, 31));
    EXPECT_EQ(row, 7);
    EXPECT_EQ(column, 31);
    EXPECT_EQ(clicks, 1);
    EXPECT_EQ(grid.currentRow(), 7);
    EXPECT_FALSE(ClickCell(grid, 8, 0));
    EXPECT_FALSE(ClickCell(grid, 0, -1));
}

TEST_F(InputTest, ABarIsHeldInItsBounds)
{
    QScrollBar bar;
    bar.setRange(0, 373);
    EXPECT_TRUE(SetBar(bar, 400));
    EXPECT_EQ(bar.value(), 373);
    QLineEdit box;
    EXPECT_FALSE(SetBar(box, 1));
}

TEST_F(InputTest, ANamedTimerFiresWhenToldAndNotByItself)
{
    const TimerStop stop;
    QTimer          timer;
    timer.setObjectName(QStringLiteral("tmrResize"));
    int shots = 0;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++shots; });
    timer.start(1);
    const auto end = std::chrono::steady_clock::now() + std::chrono::milliseconds(20);
    while (std::chrono::steady_clock::now() < end) {
        RunUntilIdle();
        std::this_thread::yield();
    }
    EXPECT_EQ(shots, 0);
    EXPECT_TRUE(FireTimer(timer));
    EXPECT_EQ(shots, 1);
    EXPECT_TRUE(timer.isActive());
    timer.setSingleShot(true);
    EXPECT_TRUE(FireTimer(timer));
    EXPECT_FALSE(timer.isActive());
}

TEST_F(InputTest, AMenuEntryIsChosenAlsoWhereItIsDisabled)
{
    QAction entry;
    int     choices = 0;
    QObject::connect(&entry, &QAction::triggered, [&] { ++choices; });
    ChooseEntry(entry);
    entry.setEnabled(false);
    ChooseEntry(entry);
    EXPECT_EQ(choices, 2);
    EXPECT_FALSE(entry.isEnabled());
}

TEST_F(InputTest, AWindowThatRefusesToCloseStays)
{
    class Stubborn : public QWidget {
      protected:
        void closeEvent(QCloseEvent* event) override { event->ignore(); }
    };
    Stubborn stubborn;
    QWidget  willing;
    stubborn.show();
    willing.show();
    CloseByFrame(stubborn);
    CloseByFrame(willing);
    EXPECT_TRUE(stubborn.isVisible());
    EXPECT_FALSE(willing.isVisible());
}

} // namespace
} // namespace qf::scenario
