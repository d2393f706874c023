#pragma once

#include <span>
#include <string_view>

#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// A button that sends its words, with the text of its box behind them where it has one.
struct ShopCommand {
    std::string_view   group;
    std::string_view   name;
    std::string_view   caption;
    std::string_view   box;
    core::CommandWords words;
};

/// All buttons, group by group.
std::span<const ShopCommand> ShopCommands();

/// One command with the box's text as it stands; a button without a box has no text.
void SendShopCommand(const ShopCommand& command, std::string_view text, core::ServerGeneration generation,
                     core::Outlet& outlet);

} // namespace qf::console
