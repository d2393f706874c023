#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "construction/commands.h"
#include "construction/forests_tables.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/uniform.h"

namespace qf::construction {

/// The choices of the forests panel, by index of their options.
enum ForestSource { FromList = 0, FromItemId = 1 };
enum ForestForm { ForestSingle = 0, ForestBox = 1, ForestLine = 2 };
enum ForestDensity { ForestFew = 0, ForestSparse = 1, ForestDense = 2, ForestHeavy = 3, ForestSolid = 4 };
enum ForestDirection { ForestNorthSouth = 0, ForestEastWest = 1 };

/// The fields of the forests panel. Selections are indices, -1 where nothing is selected; boxes are texts. The
/// base height of the area is the build height.
struct ForestsState {
    int         source = -1;
    int         tab = 0;
    int         item = -1; ///< in the options of the tab now shown
    int         form = -1;
    int         density = -1;
    int         direction = -1;
    std::string itemId;
    AreaTexts   area;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The two tiles of a tree as ID texts; either may be empty.
struct TreeIds {
    std::string trunk;
    std::string canopy;
};

/// The tiles of an item of a tab. Both are empty where there is no such row, and under 0.70.x for a row that only
/// 0.9x.x has.
TreeIds ForestTree(int tab, int item, core::ServerGeneration tableForm);

/// How many trees a density adds to a box whose sides are `dx` and `dy`, less one.
/// Throws RuntimeError 6 where a number leaves 32 bits.
std::int32_t TreeCount(int density, std::int32_t dx, std::int32_t dy);

/// The "Add" button: one message, or the commands of the trees. `showCount` gets the number of a box before
/// anything is sent. A line whose density has no step never comes to its end.
void AddForest(const ForestsState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
               core::Outlet& outlet, const std::function<void(std::int32_t)>& showCount);

/// A direct-add button: "add <id>" in both generations.
void AddForestPiece(const std::string& id, core::Outlet& outlet);

} // namespace qf::construction
