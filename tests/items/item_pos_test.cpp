#include "items/item_pos.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::items {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

constexpr core::ServerGeneration OtherGeneration(2);

Lines Send(std::string_view name, std::string_view text, core::ServerGeneration generation)
{
    const auto            button = std::ranges::find(ValueButtons(), name, &ValueButton::name);
    test::RecordingOutlet outlet;
    SendValue(*button, text, generation, outlet);
    return outlet.Lines();
}

Lines Plain(core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    for (const auto& button : PlainButtons()) {
        SendWords(button.words, {}, generation, outlet);
    }
    return outlet.Lines();
}

TEST(ItemPos, SendsTheBoxAsItStands)
{
    struct Row {
        std::string_view name;
        std::string_view box;
        std::string      in070;
        std::string      in09;
    };
    const Row rows[] = {
        {"Command3", "txtIncrease", "send incx 7", "send rincx 7"},
        {"Command2", "txtIncrease", "send incy 7", "send rincy 7"},
        {"Command10", "txtIncrease", "send incz 7", "send rincz 7"},
        {"Command6", "txtNewPos", "send newx 7", "send set x 7"},
        {"Command5", "txtNewPos", "send newy 7", "send set y 7"},
        {"Command4", "txtNewPos", "send newz 7", "send set z 7"},
    };
    EXPECT_EQ(ValueButtons().size(), std::size(rows));
    for (const auto& row : rows) {
        EXPECT_EQ(std::ranges::find(ValueButtons(), row.name, &ValueButton::name)->box, row.box);
        EXPECT_EQ(Send(row.name, "7", Generation070), Lines{row.in070});
        EXPECT_EQ(Send(row.name, "7", Generation09), Lines{row.in09});
        EXPECT_EQ(Send(row.name, "7", OtherGeneration), Lines{});
    }
    EXPECT_EQ(Send("Command3", "-5", Generation070), Lines{"send incx -5"});
    EXPECT_EQ(Send("Command6", " some where ", Generation09), Lines{"send set x  some where "});
    EXPECT_EQ(Send("Command4", " ", Generation070), Lines{"send newz  "});
}

TEST(ItemPos, WantsAValue)
{
    for (const auto& button : ValueButtons()) {
        for (const auto generation : {Generation070, Generation09}) {
            EXPECT_EQ(Send(button.name, "", generation), Lines{"box 0 You need to enter a value first."});
        }
    }
}

TEST(ItemPos, MovesWithoutAValue)
{
    EXPECT_EQ(Plain(Generation070), (Lines{"send telestuff", "send movetobag", "send xtele"}));
    EXPECT_EQ(Plain(Generation09), (Lines{"send telestuff", "send movetobag", "send xteleport"}));
    EXPECT_EQ(Plain(OtherGeneration), (Lines{"send telestuff", "send movetobag"}));
}

TEST(ItemPos, StepsEachBoxByOne)
{
    std::string steps;
    for (const auto& button : StepButtons()) {
        steps += std::string(button.name) + ' ' + std::string(button.box) + ' ' + Stepped("4", button.step) + '\n';
    }
    EXPECT_EQ(steps,
              "Command11 txtIncrease 5\nCommand12 txtIncrease 3\nCommand13 txtNewPos 5\nCommand14 txtNewPos 3\n");
    EXPECT_EQ(Stepped("2.5", 1), "3.5");
    EXPECT_EQ(Stepped("2.5", -1), "1.5");
    EXPECT_EQ(Stepped("0", -1), "-1");
    EXPECT_EQ(Stepped("-1", 1), "0");
    EXPECT_EQ(Stepped(" 007 ", 1), "8");
    EXPECT_EQ(Stepped("-0.5", 1), "0.5");
    EXPECT_EQ(Stepped("&HFF", 1), "256");
    EXPECT_EQ(Stepped("1e15", 1), "1.000000000000001E+15");
    EXPECT_EQ(Stepped("1e300", -1), "1E+300");
}

TEST(ItemPos, CannotStepWhatIsNoNumber)
{
    for (const std::string_view text : {"", " ", "abc", "1 2", "N/A"}) {
        EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, Stepped(text, 1)) << text;
        EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, Stepped(text, -1)) << text;
    }
    EXPECT_RUNTIME_ERROR(core::error::Overflow, Stepped("1e999", 1));
}

} // namespace
} // namespace qf::items
