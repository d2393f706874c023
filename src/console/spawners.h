#pragma once

#include <span>
#include <string_view>

#include "core/command_words.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// A step of a wizard: one button, which sends one command or opens the items panel.
struct SpawnStep {
    std::string_view control;
    std::string_view caption;

    /// The box whose text follows the command's words; empty where none does.
    std::string_view box;

    /// No words where the step opens the items panel on its containers.
    core::CommandWords words;

    /// Whether the text of its box tells what is spawned.
    bool namesTheSpawned = false;

    bool OpensContainers() const { return words.in09.empty(); }
};

/// A wizard that makes a thing which the server refills by itself.
struct Spawner {
    std::string_view           option;
    std::string_view           frame;
    std::string_view           caption;
    std::string_view           returnButton;
    std::string_view           helpButton;
    std::span<const SpawnStep> steps;
};

/// The four wizards in the order of their options.
std::span<const Spawner> Spawners();

/// Sends a step's command with the text of its box behind it. A generation that is neither sends nothing,
/// unless one text serves both; a step that opens the items panel has no command.
void SendSpawnStep(const SpawnStep& step, std::string_view value, core::ServerGeneration generation,
                   core::Outlet& outlet);

/// Tells where the name or number of what is to be spawned is found; a generation that is neither tells nothing.
void ShowSpawnHelp(core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::console
