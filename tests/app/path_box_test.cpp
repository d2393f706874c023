#include "ui/path_box.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

#include "ui/parts.h"

namespace qf::ui {
namespace {

class PathBoxTest : public testing::Test {
  protected:
    static void SetUpTestSuite()
    {
        static int   argc = 1;
        static char  name[] = "path_box_tests";
        static char* argv[] = {name, nullptr};
        qputenv("QT_QPA_PLATFORM", "offscreen");
        application = std::make_unique<QApplication>(argc, argv);
    }
    static void TearDownTestSuite() { application.reset(); }

    static inline std::unique_ptr<QApplication> application;

    PathBox box;
};

#ifdef _WIN32
constexpr auto Separator = "\\";
#else
constexpr auto Separator = "/";
#endif

TEST_F(PathBoxTest, ShowsTheSystemsForm)
{
    box.SetProgramText(R"(\home\ann\uo\)");
    EXPECT_EQ(box.text(), QStringLiteral("?home?ann?uo?").replace(QLatin1Char('?'), QLatin1String(Separator)));
    EXPECT_EQ(box.ProgramText(), R"(\home\ann\uo\)");
}

TEST_F(PathBoxTest, WhatIsTypedIsTakenInEitherForm)
{
    QTest::keyClicks(&box, QStringLiteral("/srv/games"));
    EXPECT_EQ(box.ProgramText(), R"(\srv\games)");
    box.clear();
    EXPECT_EQ(box.ProgramText(), "");
    QTest::keyClicks(&box, QStringLiteral("\\srv\\games"));
    EXPECT_EQ(box.ProgramText(), R"(\srv\games)");
}

TEST_F(PathBoxTest, PathThatIsNotTouchedStaysAsItWasSet)
{
    for (const char* path : {R"(C:\Program Files\Ultima Online)", "C:/mixed\\path", "/srv/x", "*zarn*.exe", ""}) {
        box.SetProgramText(path);
        EXPECT_EQ(box.ProgramText(), path);
    }
}

TEST_F(PathBoxTest, PathWithADriveIsShownAsItStandsAndEditedSo)
{
    box.SetProgramText(R"(C:\Program Files\Ultima Online)");
    EXPECT_EQ(box.text(), QStringLiteral("C:\\Program Files\\Ultima Online"));
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClicks(&box, QStringLiteral("\\x"));
    EXPECT_EQ(box.ProgramText(), R"(C:\Program Files\Ultima Online\x)");
}

TEST_F(PathBoxTest, ListenersToAChangeReadTheNewPath)
{
    std::vector<std::string> heard;
    QObject::connect(&box, &QLineEdit::textChanged, [&] { heard.push_back(box.ProgramText()); });
    box.SetProgramText(R"(\a)");
    QTest::keyClicks(&box, QStringLiteral("/"));
    EXPECT_EQ(heard, (std::vector<std::string>{"\\a", "\\a\\"}));
}

TEST_F(PathBoxTest, NamesWithOtherLettersSurvive)
{
    box.SetProgramText("\\home\\J\u00f6rg\\\u20ac");
    EXPECT_EQ(box.ProgramText(), "\\home\\J\u00f6rg\\\u20ac");
    QTest::keyClick(&box, Qt::Key_End);
    box.insert(QStringLiteral("\u00e9"));
    EXPECT_EQ(box.ProgramText(), "\\home\\J\u00f6rg\\\u20ac\u00e9");
    box.selectAll();
    EXPECT_EQ(box.SelectedProgramText(), box.ProgramText());
}

} // namespace
} // namespace qf::ui
