#include "construction/landscapes.h"

#include <algorithm>

#include "core/tile_id.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr LandscapeRow landscapeRows[] = {
    {"Water",           "1799"}, // 0
    {"Grass",           "177f"}, // 1
    {"Snow",            "17be"}, // 2
    {"Lava",            "12f7"}, // 3
    {"Stars",           "2141"}, // 4
    {"Dirt",            "31f7"}, // 5
    {"Swamp",           "322a"}, // 6
    {"Total Blackness", "3d84"}, // 7
    {"Cave Floor",      "053c"}, // 8
    {"Cobblestones",    "0516"}, // 9
};
// clang-format on

} // namespace

std::span<const LandscapeRow> LandscapeRows()
{
    return landscapeRows;
}

std::string LandscapeTileId(int type, core::ServerGeneration tableForm)
{
    return core::TileIdText(landscapeRows[std::max(type, 0)].tile, tableForm);
}

void AddLandscape(const LandscapesState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (state.method < 0) {
        outlet.Show(core::InformationBox(std::string(NoMethodText)));
        return;
    }
    const auto id = LandscapeTileId(state.type, state.tableForm);
    if (state.method == LandscapePointAndClick) {
        SendPointAndClick(outlet, id);
    } else {
        SendTypedArea(outlet, generation, id, state.area, state.area.currentHeight);
    }
}

void AddLandscapePiece(const LandscapesState& state, int type, core::ServerGeneration generation, core::Outlet& outlet)
{
    SendDirectAdd(outlet, generation, LandscapeTileId(type, state.tableForm));
}

} // namespace qf::construction
