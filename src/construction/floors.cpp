#include "construction/floors.h"

#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

/// One command of a bordered floor. No border tile means the centre of the main table.
struct BorderStep {
    std::string_view FloorBorder::*tile;
    BoxEnd                         x1;
    BoxEnd                         x2;
    BoxEnd                         y1;
    BoxEnd                         y2;
};

// clang-format off
constexpr BorderStep borderSteps[] = {
    {nullptr,                  {1, +1}, {2, -1}, {1, +1}, {2, -1}},
    {&FloorBorder::cornerX1Y1, {1,  0}, {1,  0}, {1,  0}, {1,  0}},
    {&FloorBorder::cornerX2Y1, {2,  0}, {2,  0}, {1,  0}, {1,  0}},
    {&FloorBorder::cornerX2Y2, {2,  0}, {2,  0}, {2,  0}, {2,  0}},
    {&FloorBorder::cornerX1Y2, {1,  0}, {1,  0}, {2,  0}, {2,  0}},
    {&FloorBorder::edgeY1,     {1, +1}, {2, -1}, {1,  0}, {1,  0}},
    {&FloorBorder::edgeY2,     {1, +1}, {2, -1}, {2,  0}, {2,  0}},
    {&FloorBorder::edgeX1,     {1,  0}, {1,  0}, {1, +1}, {2, -1}},
    {&FloorBorder::edgeX2,     {2,  0}, {2,  0}, {1, +1}, {2, -1}},
};
// clang-format on

std::span<const FloorRow> RowsOf(int tab)
{
    switch (tab) {
    case Rugs: return RugRows();
    case Carpets: return CarpetRows();
    default: return FloorRows();
    }
}

/// The border of what is chosen on the tab now shown, or null for a plain floor.
const FloorBorder* BorderOf(const FloorsState& state)
{
    switch (state.tab) {
    case Rugs: return nullptr;
    case Carpets: return &BorderOfCarpet(state.carpet, state.direction);
    default: return BorderOfFloor(state.floorType, state.direction);
    }
}

/// Every carpet but the goza mat has the centre that it has North/South, whatever direction is chosen.
int CentreDirection(const FloorsState& state)
{
    return state.tab == Carpets && state.carpet != GozaMat ? NorthSouth : state.direction;
}

void AddByCoordinates(const FloorsState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    const auto area = ToArea(state.area);
    const auto z = core::ToInteger32(state.custom);
    const auto centre = FloorTileId(state.tab, CentreDirection(state), state.SelectedType(), state.tableForm);

    const auto* border = BorderOf(state);
    if (border == nullptr) {
        SendArea(outlet, generation, centre, area, z);
        return;
    }
    for (const auto& step : borderSteps) {
        const auto strip = StripOf(area, step.x1, step.x2, step.y1, step.y2);
        const auto id = step.tile == nullptr ? centre : core::TileIdText(border->*step.tile, state.tableForm);
        SendArea(outlet, generation, id, strip, z);
    }
}

} // namespace

int FloorsState::SelectedType() const
{
    switch (tab) {
    case Rugs: return rug;
    case Carpets: return carpet;
    default: return floorType;
    }
}

std::string FloorTileId(int tab, int direction, int index, core::ServerGeneration form)
{
    const auto rows = RowsOf(tab);
    if (direction < 0 || index < 0 || static_cast<std::size_t>(index) >= rows.size()) {
        return {};
    }
    const auto& row = rows[static_cast<std::size_t>(index)];
    if (row.tab != tab) {
        return {};
    }
    return core::TileIdText(direction == EastWest ? row.eastWest : row.northSouth, form);
}

void AddFloor(const FloorsState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (state.direction < 0) {
        outlet.Show(core::InformationBox("Please select a direction!"));
        return;
    }
    if (state.SelectedType() < 0) {
        outlet.Show(core::InformationBox("Please select a floor type!"));
        return;
    }
    if (state.addMethod < 0) {
        outlet.Show(core::InformationBox(std::string(NoMethodText)));
        return;
    }
    if (state.addMethod == FloorPointAndClick) {
        if (state.useZ) {
            outlet.Send("rndtile " + state.itemId);
        } else {
            SendPointAndClick(outlet, state.itemId);
        }
        return;
    }
    RunTrapped(outlet, "Please fill in a valid set of coordinates",
               [&] { AddByCoordinates(state, generation, outlet); });
}

void AddFloorPiece(const FloorsState& state, int tab, int index, core::ServerGeneration generation,
                   core::Outlet& outlet)
{
    if (state.direction < 0) {
        outlet.Show(core::InformationBox(std::string(FloorDirectionFirstText)));
        return;
    }
    SendDirectAdd(outlet, generation, FloorTileId(tab, state.direction, index, state.tableForm));
}

} // namespace qf::construction
