#pragma once

#include <span>
#include <string>
#include <string_view>

#include "construction/commands.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// The ways of adding ground, by index of their option.
enum LandscapeMethod { LandscapePointAndClick = 0, LandscapeCoordinates = 1 };

/// A kind of ground: its caption and the four hex digits of its tile.
struct LandscapeRow {
    std::string_view caption;
    std::string_view tile;
};

std::span<const LandscapeRow> LandscapeRows();

/// The fields of the landscapes panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct LandscapesState {
    int       type = -1;
    int       method = -1;
    AreaTexts area;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The ID text of a kind of ground; the first where none is selected.
std::string LandscapeTileId(int type, core::ServerGeneration tableForm);

/// The "Add" button: one message or one command.
void AddLandscape(const LandscapesState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// A direct-add button: one piece of a kind of ground.
void AddLandscapePiece(const LandscapesState& state, int type, core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::construction
