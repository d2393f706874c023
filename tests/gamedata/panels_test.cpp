#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QTest>
#include <fstream>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "gamedata/frmPicture.h"
#include "ui/parts.h"

// What mouse, keyboard and window do to the panels of the game data.

namespace qf::gamedata {
namespace {

constexpr std::size_t BlockBytes = 708;
constexpr std::size_t EntryBytes = 88;

class GamedataPanels : public testing::Test {
  protected:
    GamedataPanels() { stage_.store.Write("Configuration", "UOPath", core::ProgramPath(stage_.Folder()) + "\\"); }

    /// Writes a file of all groups, in which every second colour is bright blue.
    void WriteHues() const
    {
        std::string bytes(BlockBytes * 374, '\0');
        for (std::size_t at = 4; at + 1 < bytes.size(); at += 4) {
            bytes[at] = '\xFF';
            bytes[at + 1] = '\x7F';
        }
        for (std::size_t group = 0; group < 374; ++group) {
            bytes.replace(BlockBytes * group + 4 + EntryBytes - 20, 20,
                          ("Group " + std::to_string(group) + std::string(20, '\0')).substr(0, 20));
        }
        std::ofstream(stage_.Folder() / "hues.mul", std::ios::binary) << bytes;
    }

    ui::Panel& Open(std::string_view name)
    {
        if (!started_) {
            started_ = stage_.application->Main();
        }
        auto& panel = stage_.application->Context().panels.Show(name);
        panel.activateWindow();
        QApplication::processEvents();
        return panel;
    }

    template <typename Control>
    static Control& Find(ui::Panel& panel, const char* name)
    {
        return *panel.findChild<Control*>(QLatin1String(name));
    }

    static QPoint Middle(QAbstractItemView& grid, int row, int column)
    {
        return grid.visualRect(grid.model()->index(row, column)).center();
    }

    test::ProgramOnStage stage_;
    bool                 started_ = false;
};

using Lines = std::vector<std::string>;

TEST_F(GamedataPanels, AClickOnACellDyesWithItsRow)
{
    WriteHues();
    auto& grid = Find<QAbstractItemView>(Open("frmDye"), "flxDyeVat");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 3, 20));
    EXPECT_EQ(stage_.platform.TakeLines(), Lines{"'dye 00 03"});
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 3, 20));
    EXPECT_EQ(stage_.platform.TakeLines(), Lines{"'dye 00 03"});
}

TEST_F(GamedataPanels, ADoubleClickIsOneClick)
{
    auto& grid = Find<QAbstractItemView>(Open("frmDye"), "flxDyeVat");
    QTest::mouseClick(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 5, 1));
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 5, 1));
    QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, Middle(grid, 5, 1));
    EXPECT_EQ(stage_.platform.TakeLines(), Lines{"'dye 00 05"});
}

TEST_F(GamedataPanels, TheKeyboardMovesOverTheCellsAndDyes)
{
    auto& panel = Open("frmDye");
    auto& grid = Find<QAbstractItemView>(panel, "flxDyeVat");
    grid.setFocus();
    QTest::keyClick(&grid, Qt::Key_Up);
    QTest::keyClick(&grid, Qt::Key_Left);
    EXPECT_EQ(stage_.platform.TakeLines(), Lines{});
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(6, 30));
    QTest::keyClick(&grid, Qt::Key_Return);
    QTest::keyClick(&grid, Qt::Key_Space);
    EXPECT_EQ(stage_.platform.TakeLines(), (Lines{"'dye 00 06", "'dye 00 06"}));

    auto& bar = Find<QScrollBar>(panel, "sclCurrentHue");
    bar.setFocus();
    QTest::keyClick(&bar, Qt::Key_PageDown);
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(bar.value(), 11);
    QTest::keyClick(&bar, Qt::Key_Left);
    EXPECT_EQ(bar.value(), 10);
}

TEST_F(GamedataPanels, AGroupIsShownInOneStep)
{
    WriteHues();
    auto& panel = Open("frmDye");
    auto& grid = Find<QAbstractItemView>(panel, "flxDyeVat");
    int   changes = 0;
    QObject::connect(grid.model(), &QAbstractItemModel::dataChanged, &grid, [&] { ++changes; });
    Find<QScrollBar>(panel, "sclCurrentHue").setValue(12);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(ui::Utf8(Find<QLineEdit>(panel, "txtDyeVat").text()), "Group 12" + std::string(12, '\0'));
    EXPECT_EQ(grid.currentIndex(), grid.model()->index(7, 31));
    EXPECT_EQ(grid.model()->index(2, 4).data(Qt::BackgroundRole).value<QColor>(), QColor(0, 0, 248));
}

TEST_F(GamedataPanels, TheSelectedCellShowsItsPlainColour)
{
    WriteHues();
    auto& grid = Find<QAbstractItemView>(Open("frmDye"), "flxDyeVat");
    grid.setFocus();
    grid.setCurrentIndex(grid.model()->index(4, 2));
    const auto picture = grid.viewport()->grab().toImage();
    EXPECT_EQ(picture.pixelColor(Middle(grid, 4, 2)), QColor(0, 0, 248));
    EXPECT_EQ(picture.pixelColor(Middle(grid, 4, 3)), QColor(0, 0, 0));
}

TEST_F(GamedataPanels, TheColoursFillTheGridInEvenWidths)
{
    auto& panel = Open("frmDye");
    auto& grid = Find<QAbstractItemView>(panel, "flxDyeVat");
    for (const QSize size : {panel.size(), QSize(900, 600), QSize(1231, 777)}) {
        panel.resize(size);
        QApplication::processEvents();
        int least = grid.width();
        int most = 0;
        for (int column = 0; column < 32; ++column) {
            const int width = grid.visualRect(grid.model()->index(0, column)).width();
            least = std::min(least, width);
            most = std::max(most, width);
        }
        EXPECT_LE(most - least, 1);
        const auto last = grid.visualRect(grid.model()->index(7, 31));
        EXPECT_EQ(last.right(), grid.viewport()->rect().right());
        EXPECT_EQ(last.bottom(), grid.viewport()->rect().bottom());
    }
}

TEST_F(GamedataPanels, TheSplashTellsTheLoadOfTheHuesUnseen)
{
    WriteHues();
    Open("frmDye");
    auto& panels = stage_.application->Context().panels;
    auto* splash = panels.Loaded("frmSplash");
    ASSERT_NE(splash, nullptr);
    EXPECT_FALSE(splash->isVisible());
    EXPECT_EQ(Find<QLabel>(*splash, "lblWarning").text(), QStringLiteral("Loading Hue Data now"));
    EXPECT_EQ(Find<QProgressBar>(*splash, "barTest").value(), 100);
    EXPECT_EQ(Find<QProgressBar>(*splash, "barTest").maximum(), 100);
}

TEST_F(GamedataPanels, HuesAreLoadedOnceAndTriedAgainWhileMissing)
{
    auto& context = stage_.application->Context();
    context.panels.Unload(Open("frmDye"));
    EXPECT_FALSE(context.hues.loaded);
    EXPECT_EQ(context.panels.Loaded("frmSplash"), nullptr);

    WriteHues();
    context.panels.Unload(Open("frmDye"));
    EXPECT_TRUE(context.hues.loaded);

    std::filesystem::remove(stage_.Folder() / "hues.mul");
    auto& name = Find<QLineEdit>(Open("frmDye"), "txtDyeVat");
    EXPECT_TRUE(name.text().startsWith(QLatin1String("Group 0")));
}

TEST_F(GamedataPanels, ThePicturePanelIsTenPixelsLargerThanItsPicture)
{
    auto& panel = dynamic_cast<frmPicture&>(Open("frmPicture"));
    panel.resize(400, 400);
    panel.Draw(0x170b);
    EXPECT_EQ(panel.size(), QSize(131, 183));

    // A tile of 40 by 30 pixels whose lines are empty, with index record 0x4000; the picture's margin is 5.
    std::ofstream(stage_.Folder() / "artidx.mul", std::ios::binary) << std::string((0x4000 + 1) * 12, '\0');
    std::string tile("\1\0\0\0\x28\0\x1E\0", 8);
    tile.resize(200, '\0');
    std::ofstream(stage_.Folder() / "art.mul", std::ios::binary) << tile;
    stage_.application->Context().settings.ItemPic = true;
    stage_.application->Context().panels.Unload(stage_.application->Context().panels.Touch("frmOptions"));
    panel.Draw(0);
    EXPECT_EQ(panel.size(), QSize(55, 45));
    QApplication::processEvents();
    EXPECT_EQ(panel.size(), QSize(55, 45));
}

} // namespace
} // namespace qf::gamedata
