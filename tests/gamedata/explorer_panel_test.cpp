#include <QAbstractEventDispatcher>
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>
#include <QTimer>
#include <fstream>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "gamedata/frmItemExplorer.h"
#include "ui/parts.h"

// What mouse and keyboard do to the item explorer, and what may happen while it draws a category.

namespace qf::gamedata {
namespace {

class ItemExplorer : public testing::Test {
  protected:
    ItemExplorer()
    {
        stage_.store.Write("Configuration", "UOPath", core::ProgramPath(stage_.Folder()) + "\\");
        std::filesystem::create_directory(stage_.Folder() / "ItemExplorer");
        WriteList("Few", 20);
        WriteList("Many", 3000);
        stage_.application->Main();
        panel_ = dynamic_cast<frmItemExplorer*>(&stage_.application->Context().panels.Show("frmItemExplorer"));
        panel_->activateWindow();
        QApplication::processEvents();
    }

    void WriteList(const std::string& category, int items) const
    {
        std::ofstream list(stage_.Folder() / "ItemExplorer" / (category + ".txt"), std::ios::binary);
        for (int item = 0; item < items; ++item) {
            list << (item > 0 ? "," : "") << 100 + item;
        }
    }

    template <typename Control>
    Control& Find(const char* name)
    {
        return *panel_->findChild<Control*>(QLatin1String(name));
    }

    ItemCell& Cell(int index)
    {
        return *dynamic_cast<ItemCell*>(panel_->findChild<QWidget*>(QStringLiteral("pctPicture(%1)").arg(index)));
    }

    void Choose(int row)
    {
        auto& list = Find<QComboBox>("comboItemType");
        list.setCurrentIndex(row);
        Q_EMIT list.activated(row);
    }

    std::string ModelId() { return ui::Utf8(Find<QLineEdit>("txtModelID").text()); }

    std::vector<std::string> Typed() { return stage_.platform.TakeLines(); }

    static void Settle()
    {
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
    }

    bool IsLoaded() { return stage_.application->Context().panels.Loaded("frmItemExplorer") != nullptr; }

    /// Runs an action at the first chance while the next category is drawn.
    template <typename Action>
    void WhileDrawing(Action action)
    {
        QTimer::singleShot(0, panel_, [this, action] {
            sawBusy_ = panel_->busy;
            action();
        });
    }

    test::ProgramOnStage stage_;
    frmItemExplorer*     panel_ = nullptr;
    bool                 sawBusy_ = false;
};

TEST_F(ItemExplorer, LetsTheArrowKeysMoveFromCellToCell)
{
    Choose(1);
    QTest::mouseClick(&Cell(1), Qt::LeftButton);
    EXPECT_EQ(ModelId(), "0x65 (101)");
    QTest::keyClick(&Cell(1), Qt::Key_Right);
    EXPECT_TRUE(Cell(2).hasFocus());
    EXPECT_EQ(ModelId(), "0x66 (102)");
    QTest::keyClick(&Cell(2), Qt::Key_Down);
    EXPECT_TRUE(Cell(9).hasFocus());
    QTest::keyClick(&Cell(9), Qt::Key_Left);
    QTest::keyClick(&Cell(8), Qt::Key_Up);
    EXPECT_TRUE(Cell(1).hasFocus());
    QTest::keyClick(&Cell(1), Qt::Key_Up);
    EXPECT_TRUE(Cell(1).hasFocus());
}

TEST_F(ItemExplorer, ScrollsToTheCellThatTheKeysReach)
{
    panel_->resize(620, 300);
    Choose(2);
    QTest::mouseClick(&Cell(0), Qt::LeftButton);
    for (int row = 0; row < 4; ++row) {
        QTest::keyClick(panel_->focusWidget(), Qt::Key_Down);
    }
    const auto& cell = Cell(28);
    EXPECT_TRUE(cell.hasFocus());
    const auto& viewport = Find<QWidget>("Picture1");
    EXPECT_TRUE(viewport.rect().contains(cell.mapTo(&viewport, QPoint(0, 0))));
    EXPECT_TRUE(viewport.rect().contains(cell.mapTo(&viewport, QPoint(74, 74))));
}

TEST_F(ItemExplorer, AddsTheFocusedCellByEnter)
{
    Choose(1);
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    EXPECT_TRUE(Typed().empty());
    QTest::keyClick(&Cell(3), Qt::Key_Return);
    EXPECT_EQ(Typed(), std::vector<std::string>{"'add 0x67"});
}

TEST_F(ItemExplorer, AddsTheFocusedCellByTheSpaceBar)
{
    Choose(1);
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    QTest::keyClick(&Cell(3), Qt::Key_Space);
    EXPECT_EQ(Typed(), std::vector<std::string>{"'add 0x67"});
    EXPECT_EQ(ui::Utf8(Cell(3).accessibleName()), "0x67 (103)");
}

TEST_F(ItemExplorer, AddsOnceByADoubleClick)
{
    Choose(1);
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    QTest::mouseDClick(&Cell(3), Qt::LeftButton);
    EXPECT_EQ(Typed(), std::vector<std::string>{"'add 0x67"});
}

TEST_F(ItemExplorer, AddsByAClickInHoverMode)
{
    Choose(1);
    Find<QAction>("HoverMode").trigger();
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    EXPECT_TRUE(Cell(3).hasFocus());
    EXPECT_EQ(Typed(), std::vector<std::string>{"'add 0x67"});
}

TEST_F(ItemExplorer, LetsTabComeToOneCellAndLeaveTheGrid)
{
    Choose(1);
    Find<QPushButton>("cmdExit").setFocus();
    QTest::keyClick(panel_->focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(Cell(0).hasFocus());
    QTest::keyClick(&Cell(0), Qt::Key_Right);
    QTest::keyClick(&Cell(1), Qt::Key_Tab);
    EXPECT_TRUE(Find<QLineEdit>("txtModelID").hasFocus());
    QTest::keyClick(panel_->focusWidget(), Qt::Key_Backtab);
    EXPECT_TRUE(Cell(1).hasFocus());
    QTest::keyClick(&Cell(1), Qt::Key_Backtab);
    EXPECT_TRUE(Find<QPushButton>("cmdExit").hasFocus());
}

TEST_F(ItemExplorer, FramesACellWhileItHasTheFocus)
{
    Choose(1);
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    EXPECT_EQ(Cell(3).Surface().At(0, 0), 0xFF0000U);
    EXPECT_EQ(Cell(3).Surface().At(74, 74), 0xFF0000U);
    EXPECT_EQ(Cell(3).Surface().At(1, 73), 0xFF0000U);
    EXPECT_NE(Cell(3).Surface().At(2, 72), 0xFF0000U);
    QTest::mouseClick(&Cell(4), Qt::LeftButton);
    EXPECT_EQ(Cell(3).Surface().At(0, 0), 0xFFFFFFU);
}

TEST_F(ItemExplorer, LeavesAFocusedCellWithoutAPictureOfItInTheNextCategory)
{
    Choose(1);
    QTest::mouseClick(&Cell(3), Qt::LeftButton);
    std::filesystem::remove(stage_.Folder() / "ItemExplorer" / "Many.txt");
    WriteList("Many", 1);
    Choose(2);
    Settle();
    EXPECT_TRUE(std::filesystem::exists(stage_.Folder() / "ItemExplorer/Many/item_100.bmp"));
    EXPECT_FALSE(std::filesystem::exists(stage_.Folder() / "ItemExplorer/Many/item_103.bmp"));
}

TEST_F(ItemExplorer, TakesPartsOfANotchTogether)
{
    auto&      bar = Find<QScrollBar>("VScroll1");
    const auto turn = [this](int delta) {
        const QPointF place(50, 50);
        QWheelEvent   event(place, place, {}, {0, delta}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&Cell(0), &event);
    };
    turn(-60);
    EXPECT_EQ(bar.value(), 0);
    turn(-60);
    EXPECT_EQ(bar.value(), 80);
    turn(120);
    EXPECT_EQ(bar.value(), 0);
}

TEST_F(ItemExplorer, KeepsTheWheelOffWhileItDraws)
{
    WhileDrawing([this] {
        const QPointF place(50, 50);
        QWheelEvent   event(place, place, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(panel_, &event);
        EXPECT_FALSE(Find<QComboBox>("comboItemType").isEnabled());
        EXPECT_FALSE(Find<QPushButton>("cmdRefreshCategories").isEnabled());
    });
    Choose(2);
    EXPECT_TRUE(sawBusy_);
    EXPECT_FALSE(panel_->busy);
    EXPECT_EQ(Find<QScrollBar>("VScroll1").value(), 0);
    EXPECT_TRUE(Find<QComboBox>("comboItemType").isEnabled());
}

TEST_F(ItemExplorer, BeginsNoSecondCategoryWhileItDraws)
{
    WhileDrawing([this] { Choose(1); });
    Choose(2);
    EXPECT_TRUE(sawBusy_);
    EXPECT_EQ(Cell(2999).tag, "3099");
}

TEST_F(ItemExplorer, HidesTheCellsBeforeWhileItDraws)
{
    Choose(2);
    bool hidden = false;
    WhileDrawing([&] { hidden = Cell(2999).isHidden(); });
    Choose(2);
    EXPECT_TRUE(sawBusy_);
    EXPECT_TRUE(hidden);
    EXPECT_FALSE(Cell(2999).isHidden());
}

TEST_F(ItemExplorer, MayBeResizedWhileItDraws)
{
    WhileDrawing([this] {
        panel_->resize(500, 400);
        QMetaObject::invokeMethod(&Find<QTimer>("tmrResize"), "timeout");
    });
    Choose(2);
    EXPECT_TRUE(sawBusy_);
    EXPECT_FALSE(Cell(2999).isHidden());
}

TEST_F(ItemExplorer, MayBeClosedWhileItDraws)
{
    const QPointer panel = panel_;
    WhileDrawing([this] { panel_->close(); });
    Choose(2);
    EXPECT_TRUE(sawBusy_);
    EXPECT_FALSE(IsLoaded());
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->findChild<QWidget*>(QStringLiteral("pctPicture(2999)")), nullptr);
    for (int turn = 0; turn < 3; ++turn) {
        QApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    EXPECT_FALSE(panel);
}

TEST_F(ItemExplorer, SavesWhatItDrewBeforeItIsClosed)
{
    Choose(1);
    stage_.application->Context().panels.Unload(*panel_);
    EXPECT_TRUE(std::filesystem::exists(stage_.Folder() / "ItemExplorer/Few/item_119.bmp"));
}

TEST_F(ItemExplorer, SavesWhatItDrewBeforeAnError)
{
    std::ofstream(stage_.Folder() / "ItemExplorer" / "Few.txt") << "1,2,x";
    Choose(1);
    EXPECT_EQ(stage_.services.boxes, std::vector<std::string>{"Type mismatch"});
    EXPECT_TRUE(std::filesystem::exists(stage_.Folder() / "ItemExplorer/Few/item_2.bmp"));
}

} // namespace
} // namespace qf::gamedata
