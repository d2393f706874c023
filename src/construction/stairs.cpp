#include "construction/stairs.h"

#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

/// Height units between neighbouring layers of blocks, and between neighbouring rows.
constexpr std::int32_t StairStep = 5;
constexpr int          LeastRise = 10;

const StairRow& RowOf(int material)
{
    return StairRows()[static_cast<std::size_t>(material)];
}

std::string StepId(const StairsState& state)
{
    return core::TileIdText(RowOf(state.material).steps[static_cast<std::size_t>(state.direction)], state.tableForm);
}

/// The checks of the two heights; false where the run stops.
bool HasHeights(const StairsState& state, core::Outlet& outlet)
{
    if (state.customStart.empty()) {
        outlet.Show(core::PlainBox("You need to select a starting floor."));
        return false;
    }
    if (state.customEnd.empty()) {
        outlet.Show(core::PlainBox("You need to select an ending floor."));
        return false;
    }
    const int start = core::ToInteger16(state.customStart);
    const int end = core::ToInteger16(state.customEnd);
    if (end - start < LeastRise) {
        outlet.Show(core::PlainBox("The starting height of the stairs must be at least 10 Z below the End Height."));
        return false;
    }
    if ((end - start % StairStep) % StairStep != 0) {
        outlet.Show(core::PlainBox("This annoying error was brought to you by Dobrin"));
    }
    return true;
}

void AddFlight(const StairsState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    Flight flight{.direction = state.direction, .block = {}, .step = StepId(state)};
    flight.block = core::TileIdText(RowOf(state.material).block, state.tableForm);
    flight.x1 = core::ToInteger32(state.area.x1);
    flight.y1 = core::ToInteger32(state.area.y1);
    const bool alongX = flight.RunsAlongX();
    flight.farEnd = core::ToInteger32(alongX ? state.area.x2 : state.area.y2);
    if (flight.farEnd < (alongX ? flight.x1 : flight.y1)) {
        outlet.Show(core::InformationBox(alongX ? "X2 is smaller than X1" : "Y2 is smaller than Y1"));
        return;
    }
    flight.start = core::ToInteger32(state.customStart);
    flight.end = core::ToInteger32(state.customEnd);
    LayFlight(flight, generation, outlet);
}

} // namespace

void AddStairs(const StairsState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (!state.singleItem && !HasHeights(state, outlet)) {
        return;
    }
    if (state.direction < 0) {
        outlet.Show(core::InformationBox("You must select a direction!"));
        return;
    }
    if (state.material < 0) {
        outlet.Show(core::InformationBox(std::string(NoMaterialText)));
        return;
    }
    if (state.singleItem) {
        outlet.Send((state.repeat ? "radd " : "add ") + StepId(state));
        return;
    }
    RunTrapped(outlet, "You must fill in a valid set of coordinates!", [&] { AddFlight(state, generation, outlet); });
}

void LayFlight(const Flight& flight, core::ServerGeneration generation, core::Outlet& outlet)
{
    const bool alongX = flight.RunsAlongX();
    auto       x = flight.x1;
    auto       y = flight.y1;
    auto       limit = core::Subtract32(flight.end, StairStep);
    const auto send = [&](const std::string& tile, std::int32_t z) {
        SendArea(outlet, generation, tile, alongX ? Area{x, flight.farEnd, y, y} : Area{x, x, y, flight.farEnd}, z);
    };
    do {
        // The stack ends where the limit is met exactly.
        auto z = flight.start;
        do {
            send(flight.block, z);
            z = core::Add32(z, StairStep);
        } while (z != limit);
        send(flight.step, z);
        limit = core::Subtract32(limit, StairStep);
        if (alongX) {
            y = core::Add32(y, flight.direction - StairsWest);
        } else {
            x = core::Add32(x, flight.direction - StairsSouth);
        }
    } while (limit != flight.start);
    send(flight.step, flight.start);
}

std::string StairPieceId(int material, core::ServerGeneration tableForm)
{
    const auto digits = std::string(RowOf(material).single);
    if (tableForm.Is070()) {
        return digits.substr(0, 1) + " " + digits.substr(1);
    }
    return tableForm.Is09() ? "0x" + digits : std::string();
}

void AddStairPiece(const StairsState& state, int material, core::ServerGeneration generation, core::Outlet& outlet)
{
    const auto id = StairPieceId(material, state.tableForm);
    if (generation.Is070()) {
        outlet.Send("add " + id);
    } else if (generation.Is09()) {
        outlet.Send((state.repeat ? "radd " : "add ") + id);
    }
}

std::optional<std::int32_t> ShownStep(const StairsState& state)
{
    if (state.material < 0 || state.direction < 0) {
        return std::nullopt;
    }
    return core::TileNumberOf(RowOf(state.material).steps[static_cast<std::size_t>(state.direction)]);
}

} // namespace qf::construction
