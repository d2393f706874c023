#include <QApplication>
#include <QLabel>
#include <QTimer>

#include "client/calibration.h"
#include "client/location.h"
#include "desktop/program_on_desktop.h"

// The player's place comes back out of another process: the practice client is told to go somewhere, its memory
// is searched, and a panel fills its boxes from what was found.

namespace qf {
namespace {

using client::PlayerLocation;

constexpr std::int32_t PracticeAddress = 0x400000;

class PositionOnTheDesktop : public testing::Test {
  protected:
    PositionOnTheDesktop()
    {
        test::HoldDisplay();
        practice_.emplace();
        program_.emplace(1, "'");
        EXPECT_TRUE(program_->WaitForClient());
    }

    bool Go(const PlayerLocation& place)
    {
        program_->Context().Outlet().Send("go " + std::to_string(place.x) + ' ' + std::to_string(place.y) + ' ' +
                                          std::to_string(place.z));
        return test::Eventually([&] { return Place() == place; });
    }

    PlayerLocation Place() { return client::GetPlayerLocation(program_->Platform(), PracticeAddress, false); }

    std::string Stored()
    {
        return program_->Context().environment.store.Read(core::section::Configuration, "Calibration");
    }

    std::optional<test::Receiver>         practice_;
    std::optional<test::ProgramOnDesktop> program_;
};

std::string Shown(const ui::Panel& panel, const char* box)
{
    return ui::Utf8(test::Find<QLineEdit>(panel, QLatin1String(box)).text());
}

TEST_F(PositionOnTheDesktop, IsFoundInTheMemoryOfThePracticeClient)
{
    ASSERT_TRUE(Go({5, 2000, 1000}));
    int blocks = 0;
    EXPECT_EQ(client::CalibrateLocation(program_->Platform(), 1000, 2000, 5, false, [&blocks] { ++blocks; }),
              PracticeAddress);
    EXPECT_EQ(blocks, 1);
    EXPECT_EQ(client::CalibrateLocation(program_->Platform(), 1000, 2000, 6, false), 0);
}

TEST_F(PositionOnTheDesktop, FillsTheBoxesOfAPanelOnceCalibrated)
{
    ASSERT_TRUE(Go({5, 2000, 1000}));
    auto& options = program_->Open("frmOptions");
    auto& state = test::Find<QLabel>(options, QStringLiteral("lblCalibrate"));
    test::Fill(options, "x", "1000");
    test::Fill(options, "y", "2000");
    test::Fill(options, "z", "5");
    std::string during;
    QTimer::singleShot(0, [&] {
        during = ui::Utf8(state.text() + QLatin1Char(' ') + state.palette().color(QPalette::WindowText).name());
    });
    test::Press(options, "cmdCalibrate");
    EXPECT_EQ(during, "Calibrating...Do not move ingame... #ff0000");
    EXPECT_EQ(program_->Boxes(), std::vector<std::string>{"Calibration Successful!"});
    EXPECT_EQ(Stored(), std::to_string(PracticeAddress));
    EXPECT_EQ(state.text(), QStringLiteral("Ready to Calibrate"));
    EXPECT_EQ(state.palette().color(QPalette::WindowText), QColor(0, 255, 0));

    auto& floors = program_->Open("frmFloors");
    test::Press(floors, "cmdwhere1");
    EXPECT_EQ(Shown(floors, "txtX1"), "1000");
    EXPECT_EQ(Shown(floors, "txtY1"), "2000");

    ASSERT_TRUE(Go({-15, 1433, 1600}));
    test::Press(floors, "cmdwhere2");
    test::Press(floors, "cmdCurrZ");
    EXPECT_EQ(Shown(floors, "txtX2"), "1600");
    EXPECT_EQ(Shown(floors, "txtY2"), "1433");
    EXPECT_EQ(Shown(floors, "txtCurrentHeight"), "-15");
    EXPECT_EQ(Shown(floors, "txtX1"), "1000");
    EXPECT_EQ(program_->Boxes().size(), 1U);
}

TEST_F(PositionOnTheDesktop, IsNotKnownOnceTheClientIsGone)
{
    ASSERT_TRUE(Go({5, 2000, 1000}));
    program_->Context().environment.store.Write(core::section::Configuration, "Calibration",
                                                std::to_string(PracticeAddress));
    practice_.reset();
    ASSERT_TRUE(test::Eventually([this] { return Place() == client::UnknownLocation; }));
    auto& floors = program_->Open("frmFloors");
    test::Press(floors, "cmdwhere1");
    EXPECT_EQ(Shown(floors, "txtX1"), "-1");
    EXPECT_EQ(program_->Boxes().size(), 1U);
}

} // namespace
} // namespace qf
