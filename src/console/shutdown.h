#pragma once

#include <span>
#include <string_view>

#include "core/outlet.h"

namespace qf::console {

/// A button of the shutdown panel and the command that it sends. The number in a command is the delay in seconds.
struct ShutdownButton {
    std::string_view name;
    std::string_view caption;
    std::string_view command;
};

/// The buttons that let the server go down after a delay, from the shortest to the longest.
std::span<const ShutdownButton> DelayedShutdowns();

/// "Shutdown Immediately" and "Stop Shutdown", which send the same text.
std::span<const ShutdownButton> ImmediateShutdowns();

/// Sends the command of a button, which is the same in both generations.
void SendShutdown(const ShutdownButton& button, core::Outlet& outlet);

} // namespace qf::console
