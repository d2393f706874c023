#pragma once

#include <span>
#include <string_view>

#include "core/outlet.h"

namespace qf::console {

/// A button that sends one command with the text of its box behind it. Two buttons may share a box.
struct AreaCommand {
    int              index;
    std::string_view group;
    std::string_view caption;
    std::string_view box;
    std::string_view command;
    std::string_view toolTip;
};

/// All buttons in the order of their indices, which are the even numbers.
std::span<const AreaCommand> AreaCommands();

/// A "?" beside the button of an index.
struct AreaSyntax {
    std::string_view name;
    int              index;

    /// What the button tells; empty where it opens the panel of item types.
    std::string_view message;
};

/// All "?" buttons in the order of their rows.
std::span<const AreaSyntax> AreaSyntaxes();

/// One command with the box's text as it stands; a message in its place where a colour lacks its prefix.
void SendAreaCommand(const AreaCommand& command, std::string_view text, core::Outlet& outlet);

/// The message of a "?" that has one.
void TellSyntax(const AreaSyntax& syntax, core::Outlet& outlet);

} // namespace qf::console
