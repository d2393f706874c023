#include "construction/commands.h"

#include <gtest/gtest.h>

#include "core/runtime_error.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using test::Collect;
using Lines = std::vector<std::string>;

constexpr core::ServerGeneration Neither{7};

TEST(AreaCommand, GivesBothXThenBothYThenZ)
{
    EXPECT_EQ(Collect([](auto& out) {
                  SendArea(out, Generation070, "04 a9", {1000, 1010, 500, 510}, 0);
              }),
              Lines{"tilew 04 a9 1000 1010 500 510 0"});
    EXPECT_EQ(Collect([](auto& out) {
                  SendArea(out, Generation09, "0x04a9", {-1, 2, 3, -4}, -5);
              }),
              Lines{"tile 0x04a9 -1 2 3 -4 -5"});
}

TEST(AreaCommand, SendsAnEmptyIdBetweenTwoBlanks)
{
    EXPECT_EQ(Collect([](auto& out) { SendArea(out, Generation09, "", {1, 2, 3, 4}, 5); }), Lines{"tile  1 2 3 4 5"});
    EXPECT_EQ(Collect([](auto& out) { SendArea(out, Generation070, "", {1, 2, 3, 4}, 5); }), Lines{"tilew  1 2 3 4 5"});
}

TEST(AreaCommand, SendsNothingForAGenerationThatIsNeither)
{
    EXPECT_EQ(Collect([](auto& out) { SendArea(out, Neither, "0x04a9", {1, 2, 3, 4}, 5); }), Lines{});
}

TEST(PointAndClick, StartsWithTileInBothDialects)
{
    EXPECT_EQ(Collect([](auto& out) { SendPointAndClick(out, "04 a9"); }), Lines{"tile 04 a9"});
    EXPECT_EQ(Collect([](auto& out) { SendPointAndClick(out, "0x04a9"); }), Lines{"tile 0x04a9"});
}

TEST(DirectAdd, ChoosesItsWordByGeneration)
{
    EXPECT_EQ(Collect([](auto& out) { SendDirectAdd(out, Generation070, "04 a9"); }), Lines{"add 04 a9"});
    EXPECT_EQ(Collect([](auto& out) { SendDirectAdd(out, Generation09, "0x04a9"); }), Lines{"radd 0x04a9"});
    EXPECT_EQ(Collect([](auto& out) { SendDirectAdd(out, Neither, "0x04a9"); }), Lines{});
}

TEST(Remove, ChoosesItsWordByGeneration)
{
    EXPECT_EQ(Collect([](auto& out) { SendRemove(out, Generation070); }), Lines{"remove"});
    EXPECT_EQ(Collect([](auto& out) { SendRemove(out, Generation09); }), Lines{"rremove"});
    EXPECT_EQ(Collect([](auto& out) { SendRemove(out, Neither); }), Lines{});
}

TEST(ToArea, RoundsAndRefusesAsEveryBox)
{
    const auto area = ToArea({" 2.5 ", "-7", "&H10", "3.5", "ignored"});
    EXPECT_EQ(area.x1, 2);
    EXPECT_EQ(area.y1, -7);
    EXPECT_EQ(area.x2, 16);
    EXPECT_EQ(area.y2, 4);
    EXPECT_RUNTIME_ERROR(13, ToArea({"1", "1", "N/A", "1", ""}));
    EXPECT_RUNTIME_ERROR(13, ToArea({"1", "", "1", "1", ""}));
    EXPECT_RUNTIME_ERROR(6, ToArea({"1", "1", "1", "2147483648", ""}));
}

TEST(StripOf, MovesEachEndFromItsOwnCorner)
{
    const auto strip = StripOf({10, 20, 30, 40}, {1, -1}, {2, 0}, {2, 2}, {1, 3});
    EXPECT_EQ(strip.x1, 9);
    EXPECT_EQ(strip.x2, 20);
    EXPECT_EQ(strip.y1, 42);
    EXPECT_EQ(strip.y2, 33);
    EXPECT_RUNTIME_ERROR(6, StripOf({0, 0, 0, 2147483647}, {1, 0}, {2, 0}, {1, 0}, {2, 1}));
}

TEST(TypedArea, TakesTheCornersBeforeTheHeight)
{
    const auto lines = [](const AreaTexts& corners, const std::string& height) {
        test::RecordingOutlet outlet;
        SendTypedArea(outlet, Generation09, "0x04a9", corners, height);
        return outlet.Lines();
    };
    const Lines missing{"box 64 [Dobrin's Quernfield 20250 ] Please provide a valid location, including height!"};
    const Lines tooLarge{"box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"};
    EXPECT_EQ(lines({"1", "3", "2", "4", "ignored"}, "5"), Lines{"send tile 0x04a9 1 2 3 4 5"});
    EXPECT_EQ(lines({"1", "3", "2", "4", "5"}, ""), missing);
    EXPECT_EQ(lines({"1", "3", "3000000000", "", ""}, ""), tooLarge);
    EXPECT_EQ(lines({"1", "", "2", "3000000000", ""}, "3000000000"), missing);
    EXPECT_EQ(lines({"1", "3", "2", "3000000000", ""}, ""), tooLarge);
    EXPECT_EQ(lines({"1", "3", "2", "4", ""}, "3000000000"), tooLarge);
}

TEST(RunTrapped, TellsATypeErrorInThePanelsWords)
{
    test::RecordingOutlet outlet;
    RunTrapped(outlet, "Fill it in", [&] {
        outlet.Send("one");
        throw core::RuntimeError(core::error::TypeMismatch);
    });
    EXPECT_EQ(outlet.Lines(), (Lines{"send one", "box 64 [Dobrin's Quernfield 20250 ] Fill it in"}));
}

TEST(RunTrapped, TellsAnyOtherErrorByNumber)
{
    test::RecordingOutlet outlet;
    RunTrapped(outlet, "Fill it in", [] { throw core::RuntimeError(core::error::Overflow); });
    EXPECT_EQ(outlet.Lines(), Lines{"box 16 [Dobrin's Quernfield 20250 ] 6: Overflow"});
}

TEST(RunTrapped, LetsAStoppedRunPass)
{
    test::RecordingOutlet outlet(1);
    EXPECT_THROW(RunTrapped(outlet, "",
                            [&] {
                                while (true) {
                                    outlet.Send("again");
                                }
                            }),
                 test::LimitReached);
}

} // namespace
} // namespace qf::construction
