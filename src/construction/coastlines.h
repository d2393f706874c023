#pragma once

#include <array>
#include <span>
#include <string_view>

#include "construction/commands.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/uniform.h"

namespace qf::construction {

/// The two frames of the coastlines panel, of which one is seen at a time.
enum class CoastKind { Water, Plants };

/// A water tile: its caption and its like tiles as hex digits, of which a press picks one.
struct WaterRow {
    std::string_view                caption;
    std::array<std::string_view, 6> tiles;
};

/// A water plant: its caption and its tiles by the draw that it asks for, as hex digits. `draws` is the number
/// up to which it draws afresh, 1 for a plant of one tile.
struct PlantRow {
    std::string_view                caption;
    int                             draws;
    std::array<std::string_view, 9> tiles;
};

std::span<const WaterRow> WaterRows();
std::span<const PlantRow> PlantRows();

/// The fields of the coastlines panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct CoastlinesState {
    CoastKind kind = CoastKind::Water;
    int       type = -1; ///< in the options of the frame that is seen
    int       method = -1;
    AreaTexts area;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The "Add" button: one message or one command. Seeds the generator from the clock, draws up to 2 and up to 6
/// whatever is selected, then what the row asks for. Under 0.70.x the plants are the first water tiles.
void AddCoast(const CoastlinesState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
              core::Outlet& outlet);

/// A direct-add button: "add <id>" in both generations, with the same draws. Plants have the form of 0.9x.x.
void AddCoastPiece(CoastKind kind, int type, core::ServerGeneration tableForm, core::UniformGenerator& uniform,
                   core::Outlet& outlet);

/// The digits of the tile that is shown for a row, its first.
std::string_view ShownCoastTile(CoastKind kind, int type);

} // namespace qf::construction
