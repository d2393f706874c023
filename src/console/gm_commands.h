#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

#include "console/gm_commands_tables.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/settings.h"

namespace qf::console {

/// What the user has typed and chosen on the console, by the names of the controls. A box that is not named is
/// empty; a list that is not named has nothing chosen.
struct GMFields {
    std::map<std::string, std::string, std::less<>> texts;
    std::map<std::string, int, std::less<>>         indices;

    /// The folder of the game client as it is saved.
    std::string uoPath;
};

/// What is left to the window after a press: an act that it carries out on its target, and a frame that it hides.
struct GMWindowStep {
    GMAct            act = GMAct::None;
    std::string_view target;
    std::string_view hides;

    friend bool operator==(const GMWindowStep&, const GMWindowStep&) = default;
};

/// The button of this name; null where the console has none.
const GMCommand* FindGMCommand(std::string_view name);

/// The effect of a button in a generation; one without an act where the generation is neither and the two differ.
const GMEffect& EffectIn(const GMCommand& command, core::ServerGeneration generation);

/// A press of a button: its box and its command go to the outlet, the rest is told to the window.
GMWindowStep PressGMCommand(const GMCommand& command, const GMFields& fields, core::ServerGeneration generation,
                            core::Outlet& outlet);

/// The captions that the load gives to the first members of `cmdReload`; none for a generation that is neither.
std::span<const std::string_view> ReloadCaptions(core::ServerGeneration generation);

inline constexpr std::size_t CustomCommandCount = 12;
using CustomCommands = std::array<std::string, CustomCommandCount>;

/// The stored custom commands; absent ones are empty.
CustomCommands ReadCustomCommands(core::SettingsStore& store);

/// Stores the custom commands and tells so. Throws RuntimeError 75 where the store cannot be written.
void SaveCustomCommands(const CustomCommands& commands, core::SettingsStore& store, core::Outlet& outlet);

/// Whether there is anything to send in a custom command: more than blanks.
bool IsCustomCommandUsable(std::string_view text);

/// The place of the console's window in twips.
struct GMPosition {
    std::int16_t left = 0;
    std::int16_t top = 0;
};

/// The stored place. Throws RuntimeError 13 where none was stored, 6 where it does not fit 16 bits.
GMPosition ReadGMPosition(core::SettingsStore& store);

/// Stores a place in twips. Throws RuntimeError 75 where the store cannot be written.
void SaveGMPosition(int left, int top, core::SettingsStore& store);

} // namespace qf::console
