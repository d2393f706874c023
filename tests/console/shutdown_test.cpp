#include "console/shutdown.h"

#include <gtest/gtest.h>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

/// A button as it is to be: its name, its caption and the command that it sends.
struct Expected {
    const char* name;
    const char* caption;
    const char* line;
};

// clang-format off
constexpr Expected delayed[] = {
    {"cmdShutdown20",     "Shutdown in 20 seconds", "send shutdown 20"},
    {"cmdShutdown40",     "Shutdown in 40 seconds", "send shutdown 40"},
    {"cmdShutdown1Min",   "Shutdown in 1 minute",   "send shutdown 60"},
    {"cmdShutdown5Min",   "Shutdown in 5 minutes",  "send shutdown 300"},
    {"cmdShutdown10Min",  "Shutdown in 10 minutes", "send shutdown 600"},
    {"cmdShutdown15Min",  "Shutdown in 15 minutes", "send shutdown 900"},
    {"cmdShutdown20Min",  "Shutdown in 20 minutes", "send shutdown 1200"},
    {"cmdShutdown30Min",  "Shutdown in 30 minutes", "send shutdown 1800"},
    {"cmdShutdown60Min",  "Shutdown in 1 hour",     "send shutdown 3600"},
    {"cmdShutdown120Min", "Shutdown in 2 hours",    "send shutdown 7200"},
};

constexpr Expected immediate[] = {
    {"cmdShutdownImmediate", "Shutdown Immediately", "send shutdown 0"},
    {"cmdShutdownStop",      "Stop Shutdown",        "send shutdown 0"},
};
// clang-format on

void Compare(std::span<const ShutdownButton> buttons, std::span<const Expected> expected)
{
    ASSERT_EQ(buttons.size(), expected.size());
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        EXPECT_EQ(buttons[i].name, expected[i].name);
        EXPECT_EQ(buttons[i].caption, expected[i].caption);
        test::RecordingOutlet outlet;
        SendShutdown(buttons[i], outlet);
        EXPECT_EQ(outlet.Lines(), Lines{expected[i].line}) << expected[i].name;
    }
}

TEST(Shutdown, EveryDelayIsSentInSeconds)
{
    Compare(DelayedShutdowns(), delayed);
}

TEST(Shutdown, ImmediatelyAndStopSendTheSameText)
{
    Compare(ImmediateShutdowns(), immediate);
}

} // namespace
} // namespace qf::console
