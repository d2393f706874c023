#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::gamedata {

/// The checks of the item explorer's menu that decide what a chosen item sends.
struct AddModes {
    bool repeatAdd = false;
    bool tile = false;
};

/// The command that adds an item: its word by the modes, "0x" and the number in upper-case hexadecimal, the
/// same in both generations. Nothing under a generation that is neither.
std::string AddCommand(std::int32_t id, AddModes modes, core::ServerGeneration generation);

/// Sends that command for the item that a cell's text names. Throws RuntimeError 13 or 6 where the text is no
/// number.
void AddItem(std::string_view tag, AddModes modes, core::ServerGeneration generation, core::Outlet& outlet);

/// The "Remove Item" button.
void RemoveItem(core::ServerGeneration generation, core::Outlet& outlet);

/// How the chosen item is shown: "0x170B (5899)".
std::string ModelIdText(std::int32_t id);

/// The part of that text that is copied: what stands before its first blank.
std::string CopiedPart(std::string_view modelId);

} // namespace qf::gamedata
