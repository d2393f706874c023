#include <QCoreApplication>
#include <QElapsedTimer>
#include <QPoint>
#include <chrono>
#include <gtest/gtest.h>
#include <thread>

#include "core/twips.h"
#include "desktop/program_on_desktop.h"

// Where panels stand on a desktop whose window manager puts frames around them: a panel comes to the place that is
// told, frame and all, and stays there however often it is hidden and shown.

namespace qf {
namespace {

using core::TwipsPerPixel;
using test::Press;
using test::ProgramOnDesktop;

/// Where the panel's frame stands once the window manager has framed it and nothing moves any more.
QPoint RestingPlace(const ui::Panel& panel)
{
    constexpr int Rest = 300;
    constexpr int Patience = 20'000;
    const auto    hasFrame = [&] { return panel.isVisible() && panel.frameGeometry().top() < panel.geometry().top(); };
    QElapsedTimer all;
    QElapsedTimer still;
    all.start();
    still.start();
    for (auto place = panel.pos(); all.elapsed() < Patience && (!hasFrame() || still.elapsed() < Rest);) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        if (!hasFrame()) {
            test::NudgeWindowManager();
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        if (panel.pos() != place) {
            place = panel.pos();
            still.restart();
        }
    }
    EXPECT_TRUE(hasFrame()) << "no frame around " << panel.Name();
    return panel.pos();
}

/// A panel that is open and was moved, as a user does it.
ui::Panel& OpenAt(ProgramOnDesktop& program, std::string_view name, const QPoint& place)
{
    auto& panel = program.Open(name);
    RestingPlace(panel);
    panel.move(place);
    EXPECT_EQ(RestingPlace(panel), place);
    return panel;
}

class PlaceOnDesktop : public testing::Test {
  protected:
    test::WindowManager manager_;
};

TEST_F(PlaceOnDesktop, TheMainPanelOpensWhereItWasLeft)
{
    QPoint place(300, 260);
    for (int start = 0; start < 3; ++start) {
        ProgramOnDesktop program(1, "'",
                                 {{"QFMainPosX", std::to_string(place.x() * TwipsPerPixel)},
                                  {"QFMainPosY", std::to_string(place.y() * TwipsPerPixel)}});
        place = RestingPlace(program.Context().panels.Touch("frmMain"));
        EXPECT_EQ(place, QPoint(300, 260)) << "start " << start;
    }
}

TEST_F(PlaceOnDesktop, TheMainPanelComesBackWhereItStood)
{
    ProgramOnDesktop program(1, "'");
    auto&            main = OpenAt(program, "frmMain", {210, 150});
    for (int round = 0; round < 2; ++round) {
        Press(main, "cmdFloors");
        auto& floors = program.Context().panels.Touch("frmFloors");
        RestingPlace(floors);
        EXPECT_FALSE(main.isVisible());
        Press(floors, "cmdReturn");
        EXPECT_EQ(RestingPlace(main), QPoint(210, 150)) << "round " << round;
    }
}

TEST_F(PlaceOnDesktop, ANeighbourOpensWhereThePanelStood)
{
    ProgramOnDesktop program(1, "'");
    auto&            floors = OpenAt(program, "frmFloors", {90, 120});
    for (int round = 0; round < 2; ++round) {
        Press(floors, "Command6");
        auto& walls = program.Context().panels.Touch("frmWalls");
        EXPECT_EQ(RestingPlace(walls), QPoint(90, 120)) << "round " << round;
        Press(walls, "Command3");
        EXPECT_EQ(RestingPlace(floors), QPoint(90, 120)) << "round " << round;
    }
}

TEST_F(PlaceOnDesktop, TheConsoleOpensWhereItWasLeft)
{
    ProgramOnDesktop program(1, "'");
    OpenAt(program, "frmGMCommands", {120, 140});
    for (int round = 0; round < 2; ++round) {
        Press(program.Context().panels.Touch("frmGMCommands"), "cmdReturn");
        EXPECT_EQ(RestingPlace(program.Open("frmGMCommands")), QPoint(120, 140)) << "round " << round;
    }
}

TEST_F(PlaceOnDesktop, APanelStaysWhereItIsWhenItGoesOnTop)
{
    ProgramOnDesktop program(1, "'");
    auto&            floors = OpenAt(program, "frmFloors", {90, 120});
    floors.SetStayOnTop(true);
    EXPECT_EQ(RestingPlace(floors), QPoint(90, 120));
    floors.SetStayOnTop(false);
    EXPECT_EQ(RestingPlace(floors), QPoint(90, 120));
}

} // namespace
} // namespace qf
