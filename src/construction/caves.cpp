#include "construction/caves.h"

#include <algorithm>

#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr CaveRow floorRows[] = {
    {"Standard, Random",   {"053b", "053c", "053d", "053e", "053f"}}, // 0
    {"SE Corner",          {"0540"}, true},                           // 1
    {"South, Random",      {"0541", "0542", "0543"}},                 // 2
    {"East, Random",       {"0544", "0545", "0546"}},                 // 3
    {"SW Corner",          {"0547"}},                                 // 4
    {"NE Corner",          {"0548"}},                                 // 5
    {"NW Corner",          {"0549"}},                                 // 6
    {"West, Random",       {"054a", "054b", "054c"}},                 // 7
    {"North, Random",      {"054d", "054e", "054f"}},                 // 8
    {"SE Corner Inverted", {"0551"}},                                 // 9
    {"SW Corner Inverted", {"0552"}},                                 // 10
    {"NE Corner Inverted", {"0553"}},                                 // 11
    {"NW Corner Inverted", {"056a"}},                                 // 12
};

constexpr CaveRow dirtRows[] = {
    {"North",              {"040b"}}, // 0
    {"East",               {"040c"}}, // 1
    {"West",               {"040d"}}, // 2
    {"South",              {"040e"}}, // 3
    {"SE Corner Inverted", {"040f"}}, // 4
    {"NW Corner Inverted", {"0410"}}, // 5
    {"NE Corner Inverted", {"0411"}}, // 6
    {"SW Corner Inverted", {"0412"}}, // 7
    {"SE Corner",          {"0413"}}, // 8
    {"NW Corner",          {"0414"}}, // 9
    {"NE Corner",          {"0415"}}, // 10
    {"SW Corner",          {"0416"}}, // 11
    {"Diagonal 1",         {"041b"}}, // 12
    {"Diagonal 2",         {"041c"}}, // 13
    {"Diagonal 3",         {"041d"}}, // 14
    {"Diagonal 4",         {"041e"}}, // 15
};

constexpr CaveRow wallRows[] = {
    {"Western Wall (Random)",     {"025c", "025e", "0260", "0266", "0267", "026a"}}, // 0
    {"Northern Wall (Random)",    {"025d", "025f", "0261", "0265", "0269"}},         // 1
    {"NW Corner (Random)",        {"0262", "0263", "0268"}},                         // 2
    {"SE Corner",                 {"0264"}},                                         // 3
    {"Short Western Wall (RND)",  {"026e", "026f", "027d", "027f"}},                 // 4
    {"Short Northern Wall (RND)", {"026d", "027e", "0280"}},                         // 5
    {"Short NW Corner",           {"026b"}},                                         // 6
    {"V.Short South Wall (RND)",  {"0270", "0272", "0273"}},                         // 7
    {"V.Short East Wall (RND)",   {"0274", "0275", "0276"}},                         // 8
    {"V.Short SE Corner (RND)",   {"0271"}},                                         // 9
};

constexpr CaveRow miscRows[] = {
    {"Stalgamites 1", {"08e0"}}, // 0
    {"Stalgamites 2", {"08e1"}}, // 1
    {"Stalgamites 3", {"08e4"}}, // 2
    {"Stalgamites 4", {"08e5"}}, // 3
    {"Stalgamites 5", {"08e7"}}, // 4
    {"Stalgamites 6", {"08e9"}}, // 5
    {"Stalgamites 7", {"08ea"}}, // 6
    {"Flowstone 1",   {"08e2"}}, // 7
    {"Flowstone 2",   {"08e3"}}, // 8
    {"Flowstone 3",   {"08e6"}}, // 9
    {"Flowstone 4",   {"08e8"}}, // 10
};
// clang-format on

const CaveRow& RowOf(int tab, int type)
{
    return CaveRows(tab)[static_cast<std::size_t>(std::max(type, 0))];
}

} // namespace

int CaveRow::Count() const
{
    return static_cast<int>(std::count_if(tiles.begin(), tiles.end(), [](auto tile) { return !tile.empty(); }));
}

std::span<const CaveRow> CaveRows(int tab)
{
    switch (tab) {
    case CaveDirt: return dirtRows;
    case CaveWalls: return wallRows;
    case CaveMisc: return miscRows;
    default: return floorRows;
    }
}

CaveDraws CaveDraws::Draw(core::UniformGenerator& uniform)
{
    CaveDraws draws;
    draws.of3 = core::DrawUpTo(uniform, 3);
    draws.of5 = core::DrawUpTo(uniform, 5);
    draws.of6 = core::DrawUpTo(uniform, 6);
    draws.of4 = core::DrawUpTo(uniform, 4);
    return draws;
}

int CaveDraws::Of(int count) const
{
    switch (count) {
    case 3: return of3;
    case 4: return of4;
    case 5: return of5;
    case 6: return of6;
    default: return 1;
    }
}

std::string CaveTileId(int tab, int type, const CaveDraws& draws, core::ServerGeneration tableForm)
{
    if (tab == CaveMisc && tableForm.Is070()) {
        return {};
    }
    const auto& row = RowOf(tab, type);
    if (row.blankIn09 && tableForm.Is09()) {
        return "0x" + core::TileIdText(row.tiles.front(), core::Generation070);
    }
    return core::TileIdText(row.tiles[static_cast<std::size_t>(draws.Of(row.Count()) - 1)], tableForm);
}

std::int32_t ShownCaveTile(int tab, int type)
{
    return core::TileNumberOf(RowOf(tab, type).tiles.front());
}

void AddCave(const CavesState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
             core::Outlet& outlet)
{
    if (state.method < 0) {
        outlet.Show(core::InformationBox(std::string(NoMethodText)));
        return;
    }
    uniform.SeedFromClock();
    const auto draws = CaveDraws::Draw(uniform);
    const auto id = CaveTileId(state.tab, state.type, draws, state.tableForm);
    switch (state.method) {
    case RandomPointAndClick: SendPointAndClick(outlet, id); break;
    case RandomSingleItem: outlet.Send((state.repeat ? "radd " : "add ") + id); break;
    default: SendTypedArea(outlet, generation, id, state.area, state.custom); break;
    }
}

} // namespace qf::construction
