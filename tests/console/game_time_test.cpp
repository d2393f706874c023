#include "console/game_time.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

/// What "SET TIME" does and how it leaves the fields.
struct Outcome {
    Lines         lines;
    GameTimeState state;
};

Outcome Set(std::string_view hours, std::string_view minutes, std::string_view ampm, std::string_view added = {})
{
    GameTimeState state;
    state.Hours = hours;
    state.Minutes = minutes;
    state.ampm = ampm;
    state.added = added;
    test::RecordingOutlet outlet;
    SetGameTime(state, outlet);
    return {outlet.Lines(), state};
}

TEST(GameTime, TheFirstMissingFieldIsAMessage)
{
    const Lines noHour{"box 0 You have to enter the Hour value first!"};
    const Lines noMinutes{"box 0 You have to enter the Minutes value first!"};
    const Lines noHalf{"box 0 You have to enter the AM/PM value first!"};
    EXPECT_EQ(Set("", "", "").lines, noHour);
    EXPECT_EQ(Set("", "30", "pm").lines, noHour);
    EXPECT_EQ(Set("3", "", "").lines, noMinutes);
    EXPECT_EQ(Set("3", "", "pm").lines, noMinutes);
    EXPECT_EQ(Set("3", "30", "").lines, noHalf);
}

TEST(GameTime, AMessageLeavesEveryFieldAsItWas)
{
    const auto outcome = Set("03", "", "pm", "0");
    EXPECT_EQ(outcome.state.Hours, "03");
    EXPECT_EQ(outcome.state.Minutes, "");
    EXPECT_EQ(outcome.state.ampm, "pm");
    EXPECT_EQ(outcome.state.added, "0");
}

TEST(GameTime, TheMorningGoesOutAsTyped)
{
    for (const std::string hours : {"3", "03", "12", "7.5", " 4", "noon", "99", "-1"}) {
        const auto outcome = Set(hours, "30", "am");
        EXPECT_EQ(outcome.lines, Lines{"send settime " + hours + " 30"});
        EXPECT_EQ(outcome.state.Hours, hours);
        EXPECT_EQ(outcome.state.added, "");
    }
}

TEST(GameTime, TheEveningAddsTwelveAndTakesItOffAgain)
{
    struct Evening {
        const char* typed;
        const char* sent;
        const char* after;
    };
    // clang-format off
    constexpr Evening evenings[] = {
        {"3",    "15",    "3"},
        {"7",    "19",    "7"},
        {"12",   "24",   "12"},
        {"0",    "12",    "0"},
        {"7.5",  "19.5",  "7.5"},
        {"7.25", "19.25", "7.25"},
        {"03",   "15",    "3"},
        {" 3 ",  "15",    "3"},
        {"-13",  "-1",  "-13"},
        {"23",   "35",   "23"},
        {"1e2",  "112", "100"},
        {"&HA",  "22",   "10"},
    };
    // clang-format on
    for (const auto& evening : evenings) {
        const auto outcome = Set(evening.typed, "30", "pm");
        EXPECT_EQ(outcome.lines, Lines{std::string("send settime ") + evening.sent + " 30"}) << evening.typed;
        EXPECT_EQ(outcome.state.Hours, evening.after) << evening.typed;
        EXPECT_EQ(outcome.state.added, "0") << evening.typed;
        EXPECT_EQ(outcome.state.ampm, "pm") << evening.typed;
    }
}

TEST(GameTime, TheSumIsOneOfDoubles)
{
    const auto outcome = Set("0.1", "0", "pm");
    EXPECT_EQ(outcome.lines, Lines{"send settime 12.1 0"});
    EXPECT_EQ(outcome.state.Hours, "0.09999999999999964");
}

TEST(GameTime, AnEveningHourThatIsNoNumberIsAMessage)
{
    for (const auto* hours : {"x", "7h", "7:30", " ", "1 2", "1e999"}) {
        const auto outcome = Set(hours, "30", "pm", "0");
        EXPECT_EQ(outcome.lines, Lines{"box 0 You have to enter a number as the Hour value!"}) << hours;
        EXPECT_EQ(outcome.state.Hours, hours);
        EXPECT_EQ(outcome.state.added, "0") << hours;
    }
}

TEST(GameTime, MinutesPassUnchanged)
{
    for (const std::string minutes : {"0", "00", "59", "75", "x", " "}) {
        EXPECT_EQ(Set("3", minutes, "pm").lines, Lines{"send settime 15 " + minutes});
    }
}

TEST(GameTime, WhatWasAddedIsTakenOffWhateverTheHalfOfTheDay)
{
    for (const auto* added : {"1", " 1 ", "1.0"}) {
        const auto outcome = Set("15", "30", "am", added);
        EXPECT_EQ(outcome.lines, Lines{"send settime 15 30"});
        EXPECT_EQ(outcome.state.Hours, "3");
        EXPECT_EQ(outcome.state.added, "0");
    }
    EXPECT_EQ(Set("15", "30", "am", "0").state.Hours, "15");
    EXPECT_EQ(Set("15", "30", "am", "2").state.Hours, "15");
    EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, Set("15", "30", "am", "x"));
}

TEST(GameTime, HoursThatCannotBeTakenBackStay)
{
    const auto outcome = Set("x", "30", "am", "1");
    EXPECT_EQ(outcome.lines, (Lines{"send settime x 30", "box 0 You have to enter a number as the Hour value!"}));
    EXPECT_EQ(outcome.state.Hours, "x");
    EXPECT_EQ(outcome.state.added, "1");
}

TEST(GameTime, TheHalvesOfTheDay)
{
    ASSERT_EQ(dayHalves.size(), 2U);
    EXPECT_EQ(dayHalves[0].name, "Option1");
    EXPECT_EQ(dayHalves[0].caption, "AM(morning)");
    EXPECT_EQ(dayHalves[0].value, "am");
    EXPECT_EQ(dayHalves[1].name, "Option2");
    EXPECT_EQ(dayHalves[1].caption, "PM(evening)");
    EXPECT_EQ(dayHalves[1].value, "pm");
}

TEST(GameTime, ShowTimeAsksTheServer)
{
    test::RecordingOutlet outlet;
    ShowGameTime(outlet);
    EXPECT_EQ(outlet.Lines(), Lines{"send time"});
}

TEST(GameTime, TheSpeedGoesOutAsTyped)
{
    GameTimeState         state;
    test::RecordingOutlet outlet;
    SetSecondsPerMinute(state, outlet);
    for (const auto* seconds : {"5", "2.5", "slow", " "}) {
        state.uoseconds = seconds;
        SetSecondsPerMinute(state, outlet);
    }
    EXPECT_EQ(outlet.Lines(),
              (Lines{"box 0 Enter the value first!", "send secondsperuominute 5", "send secondsperuominute 2.5",
                     "send secondsperuominute slow", "send secondsperuominute  "}));
}

} // namespace
} // namespace qf::console
