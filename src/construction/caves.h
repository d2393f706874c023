#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "construction/commands.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/uniform.h"

namespace qf::construction {

/// The tabs of the caves panel.
enum CaveTab { CaveFloors = 0, CaveDirt = 1, CaveWalls = 2, CaveMisc = 3 };

/// A kind of cave tile: its caption and its like tiles as hex digits, of which a press picks one.
struct CaveRow {
    std::string_view                caption;
    std::array<std::string_view, 6> tiles;

    /// Under 0.9x.x the text has a blank between the digits.
    bool blankIn09 = false;

    int Count() const;
};

/// The rows of a tab.
std::span<const CaveRow> CaveRows(int tab);

/// The draws of one press, each from 1 up to the number in its name.
struct CaveDraws {
    int of3 = 1;
    int of5 = 1;
    int of6 = 1;
    int of4 = 1;

    /// Draws all four, in this order.
    static CaveDraws Draw(core::UniformGenerator& uniform);

    /// The draw that picks among so many tiles.
    int Of(int count) const;
};

/// The fields of the caves panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct CavesState {
    int         tab = CaveFloors;
    int         type = -1; ///< in the options of the tab now shown
    int         method = -1;
    bool        repeat = false;
    AreaTexts   area;
    std::string custom;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The ID text of a cave tile; nothing selected counts as the first. Empty under 0.70.x on the last tab.
std::string CaveTileId(int tab, int type, const CaveDraws& draws, core::ServerGeneration tableForm);

/// The number of the tile that is shown for a row, its first.
std::int32_t ShownCaveTile(int tab, int type);

/// The "Add" button: one message or one command. Seeds the generator from the clock and draws all four numbers,
/// whatever is selected.
void AddCave(const CavesState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
             core::Outlet& outlet);

} // namespace qf::construction
