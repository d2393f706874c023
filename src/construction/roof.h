#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "construction/commands.h"
#include "construction/roof_tables.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// The tabs of the roofs panel and its directions, by index.
enum RoofTab { TileRoofs = 0, FlatRoofs = 1 };
enum RoofDirection { RoofNorthSouth = 0, RoofEastWest = 1 };

/// The fields of the roofs panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct RoofState {
    int         tab = TileRoofs;
    int         tileRoof = -1;
    int         flatRoof = -1;
    int         direction = -1;
    AreaTexts   area;
    std::string custom;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;

    /// The material selected on the tab now shown.
    int Material() const { return tab == FlatRoofs ? flatRoof : tileRoof; }
};

/// The "Add Roof" button: one message, or the commands of the roof. A gable over a box that is narrower than
/// its ridge needs rises row by row until its numbers leave 32 bits.
void AddRoof(const RoofState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// A button of the single tiles: 0 the first, 1 the ridge, 2 the last tile of the material.
void AddRoofTile(const RoofState& state, int piece, core::ServerGeneration generation, core::Outlet& outlet);

/// The number of the tile that is shown for what is selected on the tab now shown; nothing where a material,
/// or the direction of a tile roof, is missing.
std::optional<std::int32_t> ShownRoofTile(const RoofState& state);

} // namespace qf::construction
