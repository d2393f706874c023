#pragma once

#include <string>
#include <string_view>

#include "core/settings.h"

namespace qf::app {

/// What the user chooses before the first start. The folder has the system's own form, as it is typed.
struct SetupChoice {
    int         generation = 1;
    std::string clientFolder;

    friend bool operator==(const SetupChoice&, const SetupChoice&) = default;
};

/// The texts that the store gets for a choice.
struct SetupTexts {
    std::string zarnVer;
    std::string uoPath;

    friend bool operator==(const SetupTexts&, const SetupTexts&) = default;
};

/// What the dialog knows of the system. Both have the system's own form and are empty where there is none.
struct SetupPlaces {
    std::string practiceArt; ///< a client folder with art of our own
    std::string settings;    ///< where the store is
};

/// The folder gets the program's form and a "\" at its end, so that an empty one becomes "\" as in the
/// configuration panel.
SetupTexts TextsOf(const SetupChoice& choice);

/// Where a client is usually installed, in the program's form; empty where the system has no such place.
std::string UsualFolder();

/// What the dialog shows at first: what the store holds, and 0.9x.x where it holds no generation. A store without
/// a folder gives the usual one; `practiceArt` (in the system's form, empty where there is none) stands in for a client
/// that is not there.
SetupChoice InitialChoice(core::SettingsStore& store, std::string_view practiceArt = {},
                          const std::string& usualFolder = UsualFolder());

/// Whether the chosen folder lacks the files that pictures of tiles are drawn from. An empty one is chosen by who wants
/// none, and lacks nothing.
bool LacksTileArt(const SetupChoice& choice);

/// Whether the store lacks a generation with which the program can start.
bool IsSetupNeeded(core::SettingsStore& store);

/// Writes the choice, the generation last, so that setup stays needed where a write fails.
/// Throws RuntimeError 75 where the store cannot be written.
void SaveChoice(core::SettingsStore& store, const SetupChoice& choice);

} // namespace qf::app
