#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"
#include "items/special_tables.h"

namespace qf::items {

/// A page of the special objects panel: its caption, the array of its options, and an object for each of them.
struct SpecialMenu {
    std::string_view               caption;
    std::string_view               options;
    std::span<const SpecialObject> objects;
};

/// The pages in the order of their tabs.
std::span<const SpecialMenu> SpecialMenus();

/// The fields of the special objects panel.
struct SpecialState {
    int tab = 0;
    int option = -1; ///< the selected one of the tab in front, -1 for none

    // The base point as typed.
    std::string x;
    std::string y;
    std::string z;
};

/// The ID text of a component: its bytes as they are spelled under 0.70.x, "0x" and four digits under 0.9x.x; empty
/// for a generation that is neither.
std::string ComponentId(std::string_view bytes, core::ServerGeneration generation);

/// The "Add" button: one message where the base point is no place, otherwise one command for each component of the
/// chosen object; nothing where none is chosen.
void AddSpecial(const SpecialState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// What the "?" button tells.
void ShowSpecialHelp(core::Outlet& outlet);

} // namespace qf::items
