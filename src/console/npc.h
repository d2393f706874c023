#pragma once

#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "console/npc_tables.h"
#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// A step on the way to a spawner: a button that sends its words, with the text of its box behind them where it
/// has one.
struct NpcStep {
    /// What stands beside the button, empty for what belongs to no step.
    std::string_view number;

    std::string_view   name;
    std::string_view   caption;
    std::string_view   box;
    core::CommandWords words;
    std::string_view   toolTip;
};

/// The buttons of the numbered steps in their order. The fifth step is a choice and has no button here.
std::span<const NpcStep> NpcSteps();

/// The button that makes one NPC at once.
const NpcStep& SingleNpc();

/// The fifth step's number, which stands beside the choice of an NPC.
inline constexpr std::string_view NpcChoiceNumber = "5";

/// One command with the box's text as it stands; a button without a box has no text.
void SendNpcStep(const NpcStep& step, std::string_view text, core::ServerGeneration generation, core::Outlet& outlet);

/// One command with both offsets as they stand, one blank between them.
void SendSpawnArea(std::string_view offsetX, std::string_view offsetY, core::ServerGeneration generation,
                   core::Outlet& outlet);

/// The kinds of spawners by the index of their option.
enum SpawnType { NormalSpawner = 0, AreaSpawner = 1, EscortableNpc = 2 };

/// The selected kind as the panel finds it, -1 where it finds none: it looks at the first two options alone, and so
/// never at the escortable NPC. `selected` is the index of the selected option, -1 where none is.
int ScannedSpawnType(int selected);

/// One command for the selected option, or none where it is not found.
void SendSpawnType(int selected, core::ServerGeneration generation, core::Outlet& outlet);

/// Whether the frame of the spawn area is shown once an option is chosen; `shown` is how it was before.
bool ShowsSpawnArea(int selected, bool shown);

/// The listed names of a category, which may be any number.
std::vector<std::string_view> NpcNames(int category);

/// The section of an entry of a category's list; none where there is no such row or the row has no section.
std::optional<std::string_view> NpcSection(int category, int entry);

} // namespace qf::console
