#include "console/shutdown.h"

#include <array>

namespace qf::console {

namespace {

// clang-format off
constexpr std::array delayedShutdowns{
    ShutdownButton{"cmdShutdown20",     "Shutdown in 20 seconds", "shutdown 20"},
    ShutdownButton{"cmdShutdown40",     "Shutdown in 40 seconds", "shutdown 40"},
    ShutdownButton{"cmdShutdown1Min",   "Shutdown in 1 minute",   "shutdown 60"},
    ShutdownButton{"cmdShutdown5Min",   "Shutdown in 5 minutes",  "shutdown 300"},
    ShutdownButton{"cmdShutdown10Min",  "Shutdown in 10 minutes", "shutdown 600"},
    ShutdownButton{"cmdShutdown15Min",  "Shutdown in 15 minutes", "shutdown 900"},
    ShutdownButton{"cmdShutdown20Min",  "Shutdown in 20 minutes", "shutdown 1200"},
    ShutdownButton{"cmdShutdown30Min",  "Shutdown in 30 minutes", "shutdown 1800"},
    ShutdownButton{"cmdShutdown60Min",  "Shutdown in 1 hour",     "shutdown 3600"},
    ShutdownButton{"cmdShutdown120Min", "Shutdown in 2 hours",    "shutdown 7200"},
};

// Both send the very same text, on purpose.
constexpr std::array immediateShutdowns{
    ShutdownButton{"cmdShutdownImmediate", "Shutdown Immediately", "shutdown 0"},
    ShutdownButton{"cmdShutdownStop",      "Stop Shutdown",        "shutdown 0"},
};
// clang-format on

} // namespace

std::span<const ShutdownButton> DelayedShutdowns()
{
    return delayedShutdowns;
}

std::span<const ShutdownButton> ImmediateShutdowns()
{
    return immediateShutdowns;
}

void SendShutdown(const ShutdownButton& button, core::Outlet& outlet)
{
    outlet.Send(button.command);
}

} // namespace qf::console
