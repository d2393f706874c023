#pragma once

#include <string>
#include <string_view>

#include "construction/commands.h"
#include "construction/floors_tables.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// The ways of adding a floor, by index of their option.
enum FloorAddMethod { FloorPointAndClick = 0, FloorCoordinates = 1 };

/// What is shown where a rug or a carpet is chosen, or one piece added, before a direction.
inline constexpr std::string_view FloorDirectionFirstText = "Please select a direction first";

/// The fields of the floors panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct FloorsState {
    int         tab = FloorsOne;
    int         floorType = -1;
    int         rug = -1;
    int         carpet = -1;
    int         direction = -1;
    int         addMethod = -1;
    bool        useZ = false;
    std::string itemId;
    AreaTexts   area;
    std::string custom;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;

    /// What is selected in the options of the tab now shown.
    int SelectedType() const;
};

/// The ID text of the main table for a tab, a direction and an index; empty where the tab has no such
/// type of its own or no direction is given.
std::string FloorTileId(int tab, int direction, int index, core::ServerGeneration form);

/// The "Add" button: one message, or the commands of the chosen floor.
void AddFloor(const FloorsState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// A direct-add button of a tab: one piece of the tab's type with this index.
void AddFloorPiece(const FloorsState& state, int tab, int index, core::ServerGeneration generation,
                   core::Outlet& outlet);

} // namespace qf::construction
