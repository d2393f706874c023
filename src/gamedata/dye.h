#pragma once

#include <cstdint>
#include <string>

#include "core/outlet.h"
#include "gamedata/hues.h"

namespace qf::gamedata {

/// The server's number of a hue: its group (0 to 373) and its row in that group (0 to 7).
std::int32_t HueNumber(int group, int row);

/// The command that dyes what the user then clicks in the game; one text for every generation.
std::string DyeCommand(std::int32_t hue);

/// The name of a group, which is that of its first hue: 20 characters, those of code 0 included.
std::string GroupName(const HueGroup& group);

/// How much of the hues is loaded, in hundredths, when a group's turn has come: 100 at the last one.
int HuePercent(int group);

/// The "Help!" button.
void ShowDyeHelp(core::Outlet& outlet);

} // namespace qf::gamedata
