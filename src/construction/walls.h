#pragma once

#include <string>

#include "construction/commands.h"
#include "construction/walls_tables.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// The ways of adding a wall, by index of their option.
enum WallMethod { WallPointAndClick = 0, WallBox = 1, WallLine = 2 };

/// The directions in which a wall runs.
enum WallDirection { WallNorthSouth = 0, WallEastWest = 1 };

/// The fields of the walls panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct WallsState {
    int         method = -1;
    int         form = -1;
    int         height = -1;
    int         direction = -1;
    int         type = -1;
    AreaTexts   area;
    std::string custom;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The ID text of a wall's tile; empty where the table has none or a selection is missing.
std::string WallTileId(int form, int height, int direction, int type, core::ServerGeneration tableForm);

/// The ID text of the tile that is shown for what is selected: by form, that of the plain wall with a box.
std::string ShownWallTileId(const WallsState& state);

/// The "Add" button: messages, or the commands of the chosen wall.
void AddWall(const WallsState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// A direct-add button: the plain wall of a type in the selected direction and height.
void AddWallPiece(const WallsState& state, int type, core::ServerGeneration generation, core::Outlet& outlet);

/// Asks, then puts a sample of every wall into the world: the short ones along a line from the first corner,
/// the long ones five tiles beyond.
void ShowWallSelection(const WallsState& state, core::Outlet& outlet);

/// Whether a wall type can be had in a form.
bool WallTypeHasForm(int type, int form);

/// The first and last of the wall types that depend on the form.
inline constexpr int FirstPartialWall = 13;
inline constexpr int LastPartialWall = 16;

} // namespace qf::construction
