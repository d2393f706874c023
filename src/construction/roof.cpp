#include "construction/roof.h"

#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

/// Height units between neighbouring rows of a gable.
constexpr std::int32_t RoofStep = 3;

constexpr std::string_view MaterialText = "You need to select a roof type!";
constexpr std::string_view DirectionText = "You need to select a direction!";

void Tell(core::Outlet& outlet, std::string_view text)
{
    outlet.Show(core::InformationBox(std::string(text)));
}

const RoofTriple& TripleOf(const RoofState& state)
{
    const auto& row = TileRoofRows()[static_cast<std::size_t>(state.tileRoof)];
    return state.direction == RoofEastWest ? row.eastWest : row.northSouth;
}

std::string_view FlatTileOf(const RoofState& state)
{
    const auto& row = FlatRoofRows()[static_cast<std::size_t>(state.flatRoof)];
    return state.direction == RoofEastWest ? row.eastWest : row.northSouth;
}

/// False, with a message, where the material or the direction is missing.
bool IsChosen(const RoofState& state, core::Outlet& outlet)
{
    if (state.Material() < 0) {
        Tell(outlet, MaterialText);
        return false;
    }
    if (state.direction < 0) {
        Tell(outlet, DirectionText);
        return false;
    }
    return true;
}

/// Where the ridge of a slope lies that begins at `first` and whose far side is `last`.
std::int32_t RidgeOf(std::int32_t first, std::int32_t last)
{
    const auto end = core::Add32(last, 1);
    const auto width = core::Subtract32(end, first);
    const auto half = (width % 2 == 0 ? width : core::Subtract32(width, 1)) / 2;
    return core::Subtract32(end, half);
}

void AddGable(const RoofState& state, const Area& area, std::int32_t z, core::ServerGeneration generation,
              core::Outlet& outlet)
{
    const bool  eastWest = state.direction == RoofEastWest;
    const auto  rowEnd = core::Add32(eastWest ? area.y2 : area.x2, 1);
    const auto  last = eastWest ? area.x2 : area.y2;
    auto        place = eastWest ? area.x1 : area.y1;
    const auto  ridge = RidgeOf(place, last);
    const auto& tiles = TripleOf(state);
    const auto  id = [&](std::string_view digits) { return core::TileIdText(digits, state.tableForm); };
    const auto  send = [&](const std::string& tile) {
        const Area row = eastWest ? Area{place, place, area.y1, rowEnd} : Area{area.x1, rowEnd, place, place};
        SendArea(outlet, generation, tile, row, z);
    };

    // The rising rows end where the ridge is met exactly; a slope that begins beyond it never meets it.
    const auto first = id(tiles.first);
    do {
        send(first);
        place = core::Add32(place, 1);
        z = core::Add32(z, RoofStep);
    } while (place != ridge);
    send(id(tiles.ridge));
    const auto falling = id(tiles.last);
    do {
        place = core::Add32(place, 1);
        z = core::Subtract32(z, RoofStep);
        send(falling);
    } while (place <= last);
}

} // namespace

void AddRoof(const RoofState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (!IsChosen(state, outlet)) {
        return;
    }
    RunTrapped(outlet, "Please select valid coordinates!", [&] {
        const auto area = ToArea(state.area);
        const auto z = core::ToInteger32(state.custom);
        if (state.tab == FlatRoofs) {
            SendArea(outlet, generation, core::TileIdText(FlatTileOf(state), state.tableForm), area, z);
        } else {
            AddGable(state, area, z, generation, outlet);
        }
    });
}

void AddRoofTile(const RoofState& state, int piece, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (state.tab == FlatRoofs) {
        outlet.Show(core::PlainBox("This only works with the Tile-roofs"));
        return;
    }
    if (!IsChosen(state, outlet)) {
        return;
    }
    const auto& tiles = TripleOf(state);
    const auto  digits = piece == 0 ? tiles.first : piece == 1 ? tiles.ridge : tiles.last;
    SendDirectAdd(outlet, generation, core::TileIdText(digits, state.tableForm));
}

std::optional<std::int32_t> ShownRoofTile(const RoofState& state)
{
    if (state.Material() < 0) {
        return std::nullopt;
    }
    if (state.tab == FlatRoofs) {
        return FlatRoofRows()[static_cast<std::size_t>(state.flatRoof)].shown;
    }
    if (state.direction < 0) {
        return std::nullopt;
    }
    return core::TileNumberOf(TripleOf(state).ridge);
}

} // namespace qf::construction
