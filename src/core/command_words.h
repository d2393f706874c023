#pragma once

#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::core {

/// The words of one command in either generation.
struct CommandWords {
    std::string_view in070;
    std::string_view in09;
};

/// Makes the server wait for the item to remove.
inline constexpr CommandWords RemoveItemWords{"remove", "rremove"};

/// Sends the words of the generation with `argument` behind them. A generation that is neither sends nothing,
/// unless one text serves both.
void SendWords(const CommandWords& words, std::string_view argument, ServerGeneration generation, Outlet& outlet);

} // namespace qf::core
