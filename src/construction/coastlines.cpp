#include "construction/coastlines.h"

#include <algorithm>

#include "core/tile_id.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr WaterRow waterRows[] = {
    {"Watertiles",      {"1797", "1798", "1799", "179a", "179b", "179c"}}, // 0
    {"Coastline East",  {"179d", "179e"}},                                 // 1
    {"Coastline West",  {"17a3", "17a4"}},                                 // 2
    {"Coastline North", {"179f", "17a0"}},                                 // 3
    {"Coastline South", {"17a1", "17a2"}},                                 // 4
    {"Small Corner NE", {"17a5"}},                                         // 5
    {"Small Corner NW", {"17a6"}},                                         // 6
    {"Small Corner SE", {"17a7"}},                                         // 7
    {"Small Corner SW", {"17a8"}},                                         // 8
    {"Big Corner NE",   {"17a9"}},                                         // 9
    {"Big Corner NW",   {"17ac"}},                                         // 10
    {"Big Corner SE",   {"17aa"}},                                         // 11
    {"Big Corner SW",   {"17ab"}},                                         // 12
};

constexpr PlantRow plantRows[] = {
    {"Water Plants", 1, {"0d04"}},                                                                 // 0
    {"Reeds",        1, {"0d05"}},                                                                 // 1
    {"Lilypads N/S", 9, {"0dbc", "0dbc", "0dbd", "0dbd", "0dbe", "0dbe", "0dc1", "0dc1", "0dc1"}}, // 2
    {"Lilypads E/W", 9, {"0d09", "0d09", "0d0a", "0d0a", "0d0b", "0d0b", "0d06", "0d07", "0d08"}}, // 3
    {"Seaweed",      2, {"0dba", "0dbb"}},                                                         // 4
};
// clang-format on

/// The draws that every press makes, whatever is selected.
struct CoastDraws {
    int of2 = 1;
    int of6 = 1;
};

CoastDraws Draw(core::UniformGenerator& uniform)
{
    uniform.SeedFromClock();
    CoastDraws draws;
    draws.of2 = core::DrawUpTo(uniform, 2);
    draws.of6 = core::DrawUpTo(uniform, 6);
    return draws;
}

std::string_view PickWater(int type, const CoastDraws& draws)
{
    const auto& tiles = waterRows[static_cast<std::size_t>(std::max(type, 0))].tiles;
    if (!tiles[2].empty()) {
        return tiles[static_cast<std::size_t>(draws.of6 - 1)];
    }
    return tiles[1].empty() ? tiles[0] : tiles[static_cast<std::size_t>(draws.of2 - 1)];
}

std::string_view PickPlant(int type, core::UniformGenerator& uniform)
{
    const auto& row = plantRows[static_cast<std::size_t>(std::max(type, 0))];
    const int   draw = row.draws > 1 ? core::DrawUpTo(uniform, row.draws) : 1;
    return row.tiles[static_cast<std::size_t>(draw - 1)];
}

} // namespace

std::span<const WaterRow> WaterRows()
{
    return waterRows;
}

std::span<const PlantRow> PlantRows()
{
    return plantRows;
}

void AddCoast(const CoastlinesState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
              core::Outlet& outlet)
{
    if (state.method < 0) {
        outlet.Show(core::InformationBox(std::string(NoMethodText)));
        return;
    }
    const auto draws = Draw(uniform);
    const bool ownPlant = state.kind == CoastKind::Plants && !state.tableForm.Is070();
    const auto digits = ownPlant ? PickPlant(state.type, uniform) : PickWater(state.type, draws);
    const auto id = core::TileIdText(digits, state.tableForm);
    switch (state.method) {
    case RandomPointAndClick: SendPointAndClick(outlet, id); break;
    case RandomSingleItem: outlet.Send("add " + id); break;
    default: SendTypedArea(outlet, generation, id, state.area, state.area.currentHeight); break;
    }
}

void AddCoastPiece(CoastKind kind, int type, core::ServerGeneration tableForm, core::UniformGenerator& uniform,
                   core::Outlet& outlet)
{
    const auto draws = Draw(uniform);
    const auto id = kind == CoastKind::Plants ? core::TileIdText(PickPlant(type, uniform), core::Generation09)
                                              : core::TileIdText(PickWater(type, draws), tableForm);
    outlet.Send("add " + id);
}

std::string_view ShownCoastTile(CoastKind kind, int type)
{
    const auto row = static_cast<std::size_t>(std::max(type, 0));
    return kind == CoastKind::Plants ? plantRows[row].tiles[0] : waterRows[row].tiles[0];
}

} // namespace qf::construction
