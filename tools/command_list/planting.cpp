#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "construction/caves.h"
#include "construction/coastlines.h"
#include "construction/forests.h"
#include "core/uniform.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

/// A generator whose draws are given.
class GivenDraw final : public core::UniformGenerator {
  public:
    explicit GivenDraw(double draw) : draw_(draw) {}

    double Next() override { return draw_; }
    void   SeedFromClock() override {}

  private:
    double draw_;
};

/// What a press may do, by all its draws: as many even parts as any number of like tiles divides.
template <typename Press>
std::string Alternatives(const Press& press)
{
    constexpr int            Parts = 180;
    std::vector<std::string> found;
    for (int part = 0; part < Parts; ++part) {
        GivenDraw  draw((part + 0.5) / Parts);
        const auto effect = Effects([&](core::Outlet& outlet) { press(draw, outlet); });
        if (std::ranges::find(found, effect) == found.end()) {
            found.push_back(effect);
        }
    }
    std::string text;
    for (const auto& effect : found) {
        text += (text.empty() ? "" : " or ") + effect;
    }
    return text;
}

template <typename PressIn>
void AlternativesRow(std::ostream& out, std::vector<std::string> cells, const PressIn& press)
{
    for (const auto generation : {Generation09, Generation070}) {
        cells.push_back(Alternatives(
            [&](core::UniformGenerator& uniform, core::Outlet& outlet) { press(generation, uniform, outlet); }));
    }
    Row(out, cells);
}

void WriteForests(std::ostream& out)
{
    out << "## Forests: `frmForests`\n\nThe buttons beside the options; a tree has one for its trunk and one for its "
           "leaves. \"Add\" lays the trunk, then the leaves, at each place.\n\n";
    for (int tab = 0; tab < construction::ForestTabs; ++tab) {
        out << "Tab " << tab + 1 << ":\n\n";
        Columns(out, {"Index", "Caption", "0.9x.x", "Leaves", "0.70.x", "Leaves"});
        for (const auto& row : construction::ForestRows()) {
            if (row.tab != tab) {
                continue;
            }
            std::vector<std::string> cells{std::to_string(row.index), Shown(row.caption)};
            for (const auto generation : {Generation09, Generation070}) {
                const auto tree = construction::ForestTree(tab, row.index, generation);
                cells.push_back(
                    Effects([&](core::Outlet& outlet) { construction::AddForestPiece(tree.trunk, outlet); }));
                cells.push_back(row.canopy.empty() ? std::string() : Effects([&](core::Outlet& outlet) {
                    construction::AddForestPiece(tree.canopy, outlet);
                }));
            }
            Row(out, cells);
        }
        out << '\n';
    }
}

void WriteCaves(std::ostream& out)
{
    const auto press = [](int tab, int type, bool repeat, core::ServerGeneration generation,
                          core::UniformGenerator& uniform, core::Outlet& outlet) {
        construction::CavesState state;
        state.tab = tab;
        state.type = type;
        state.method = construction::RandomSingleItem;
        state.repeat = repeat;
        state.tableForm = generation;
        construction::AddCave(state, generation, uniform, outlet);
    };
    GivenDraw lowest(0);
    out << "## Caves: `frmCaves`\n\nA single item, drawn among like tiles. With \"Use Repeat CMD\" the first is "
        << Effects(
               [&](core::Outlet& outlet) { press(construction::CaveFloors, 0, true, Generation09, lowest, outlet); })
        << " / " << Effects([&](core::Outlet& outlet) {
               press(construction::CaveFloors, 0, true, Generation070, lowest, outlet);
           })
        << ", and the others follow it.\n\n";
    constexpr std::array<std::pair<int, std::string_view>, 4> Tabs{{{construction::CaveFloors, "Cavefloor"},
                                                                    {construction::CaveDirt, "Dirt"},
                                                                    {construction::CaveWalls, "Walls"},
                                                                    {construction::CaveMisc, "Misc"}}};
    for (const auto& [tab, caption] : Tabs) {
        Heading(out, caption, false);
        const auto rows = construction::CaveRows(tab);
        for (std::size_t index = 0; index < rows.size(); ++index) {
            AlternativesRow(out, {Shown(rows[index].caption)},
                            [&, tab = tab](core::ServerGeneration generation, core::UniformGenerator& uniform,
                                           core::Outlet& outlet) {
                                press(tab, static_cast<int>(index), false, generation, uniform, outlet);
                            });
        }
        out << '\n';
    }
}

template <typename Rows>
void WriteCoast(std::ostream& out, construction::CoastKind kind, const Rows& rows)
{
    Columns(out, {kind == construction::CoastKind::Water ? "Water-tiles" : "Plants and Misc.", "0.9x.x", "0.70.x",
                  "Its button, 0.9x.x", "0.70.x"});
    for (std::size_t index = 0; index < rows.size(); ++index) {
        std::vector<std::string> cells{Shown(rows[index].caption)};
        for (const auto generation : {Generation09, Generation070}) {
            cells.push_back(Alternatives([&](core::UniformGenerator& uniform, core::Outlet& outlet) {
                construction::CoastlinesState state;
                state.kind = kind;
                state.type = static_cast<int>(index);
                state.method = construction::RandomSingleItem;
                state.tableForm = generation;
                construction::AddCoast(state, generation, uniform, outlet);
            }));
        }
        for (const auto generation : {Generation09, Generation070}) {
            cells.push_back(Alternatives([&](core::UniformGenerator& uniform, core::Outlet& outlet) {
                construction::AddCoastPiece(kind, static_cast<int>(index), generation, uniform, outlet);
            }));
        }
        Row(out, cells);
    }
    out << '\n';
}

void WriteCoastlines(std::ostream& out)
{
    out << "## Coastlines: `frmCoastlines`\n\nA single item, drawn among like tiles, by \"Add\" and by the button "
           "beside the option.\n\n";
    WriteCoast(out, construction::CoastKind::Water, construction::WaterRows());
    WriteCoast(out, construction::CoastKind::Plants, construction::PlantRows());
}

} // namespace

void WritePlanting(std::ostream& out)
{
    WriteForests(out);
    WriteCaves(out);
    WriteCoastlines(out);
}

} // namespace qf::commands
