#include "console/pick_list.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace qf::console {
namespace {

class PickListTest : public testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        static int   argc = 1;
        static char  name[] = "pick_list_tests";
        static char* argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(argc, argv);
    }
    static void TearDownTestSuite() { application.reset(); }

    PickListTest()
    {
        QObject::connect(&list, &QComboBox::activated, &list, [this](int row) { picked.push_back(row); });
        window.show();
        window.activateWindow();
        list.setFocus();
        QCoreApplication::processEvents();
    }

    void Type(const char* text) { QTest::keyClicks(list.lineEdit(), QLatin1String(text)); }
    void PressEnter() { QTest::keyClick(list.lineEdit(), Qt::Key_Return); }

    static inline std::unique_ptr<QApplication> application;

    QWidget          window;
    PickList         list{&window,
                  "comboPlaces",
                  "[Places]",
                  {QStringLiteral("Cove - Bank"), QStringLiteral("Yew - Crypts"), QStringLiteral("Yew - Bank")}};
    std::vector<int> picked;
};

TEST_F(PickListTest, ShowsItsInitialTextAndNoRowIsPicked)
{
    EXPECT_EQ(list.objectName(), QStringLiteral("comboPlaces"));
    EXPECT_EQ(list.currentText(), QStringLiteral("[Places]"));
    EXPECT_EQ(list.currentIndex(), -1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_TRUE(picked.empty());
}

TEST_F(PickListTest, APartOfAnEntryOffersTheEntriesThatHoldIt)
{
    list.lineEdit()->selectAll();
    Type("bank");
    const auto* offered = list.completer()->completionModel();
    ASSERT_EQ(offered->rowCount(), 2);
    EXPECT_EQ(offered->index(1, 0).data().toString(), QStringLiteral("Yew - Bank"));
    EXPECT_TRUE(picked.empty());

    Q_EMIT list.completer()->activated(offered->index(1, 0));
    EXPECT_EQ(list.currentIndex(), 2);
    EXPECT_EQ(picked, std::vector<int>{2});
}

TEST_F(PickListTest, AWholeEntryIsPicked)
{
    list.lineEdit()->selectAll();
    Type("Yew - Crypts");
    PressEnter();
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(picked, std::vector<int>{1});
    EXPECT_EQ(list.count(), 3);
}

TEST_F(PickListTest, WhatLeadsToNoEntryIsForgotten)
{
    list.lineEdit()->selectAll();
    Type("nowhere");
    PressEnter();
    EXPECT_EQ(list.currentText(), QStringLiteral("[Places]"));
    EXPECT_EQ(list.currentIndex(), -1);

    list.setCurrentIndex(1);
    list.lineEdit()->selectAll();
    Type("nowhere");
    PressEnter();
    EXPECT_EQ(list.currentText(), QStringLiteral("Yew - Crypts"));
    EXPECT_EQ(list.currentIndex(), 1);
    EXPECT_EQ(list.count(), 3);
    EXPECT_TRUE(picked.empty());
}

TEST_F(PickListTest, AClickOnTheTextDropsTheListDown)
{
    EXPECT_FALSE(list.view()->isVisible());
    QTest::mousePress(list.lineEdit(), Qt::LeftButton);
    EXPECT_FALSE(list.view()->isVisible());
    QTest::mouseRelease(list.lineEdit(), Qt::LeftButton);
    EXPECT_TRUE(list.view()->isVisible());

    // A release that belongs to no press of its own leaves the list closed.
    list.hidePopup();
    QTest::mouseRelease(list.lineEdit(), Qt::LeftButton);
    EXPECT_FALSE(list.view()->isVisible());
    EXPECT_TRUE(picked.empty());
}

} // namespace
} // namespace qf::console
