#pragma once

#include <array>
#include <span>
#include <string_view>

#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// A button that sends its words alone. `group` is the frame on which it stands, empty for none.
struct WanderCommand {
    std::string_view   group;
    std::string_view   name;
    std::string_view   caption;
    core::CommandWords words;
    std::string_view   toolTip;
};

/// The buttons that set how an NPC moves about and what it follows.
std::span<const WanderCommand> WanderCommands();

/// The press of one of these buttons; a generation that is neither sends nothing, unless one text serves both.
void SendWander(const WanderCommand& command, core::ServerGeneration generation, core::Outlet& outlet);

/// The rectangle in which an NPC wanders, as it is typed: X and Y of one corner and of the other. Sent to the two
/// known generations alone.
void SendWanderBox(const std::array<std::string_view, 4>& corners, core::ServerGeneration generation,
                   core::Outlet& outlet);

/// The circle in which an NPC wanders, as it is typed: X and Y of its centre and the radius. Sent to the two known
/// generations alone.
void SendWanderCircle(const std::array<std::string_view, 3>& circle, core::ServerGeneration generation,
                      core::Outlet& outlet);

} // namespace qf::console
