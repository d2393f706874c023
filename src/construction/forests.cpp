#include "construction/forests.h"

#include <cmath>

#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

constexpr int BlackRockTab = 3;
constexpr int BlackRock = 2;

/// Sends what stands on one spot, or over a box.
class Planter {
  public:
    Planter(TreeIds tree, core::ServerGeneration generation, core::Outlet& outlet, std::int32_t z)
        : tree_(std::move(tree)), generation_(generation), outlet_(outlet), z_(z)
    {}

    void Plant(std::int32_t x, std::int32_t y) { Fill({x, x, y, y}); }

    void Fill(const Area& area)
    {
        SendArea(outlet_, generation_, tree_.trunk, area, z_);
        if (!tree_.canopy.empty()) {
            SendArea(outlet_, generation_, tree_.canopy, area, z_);
        }
    }

  private:
    TreeIds                tree_;
    core::ServerGeneration generation_;
    core::Outlet&          outlet_;
    std::int32_t           z_;
};

/// False, with a message, where a choice is missing.
bool IsChosen(const ForestsState& state, core::Outlet& outlet)
{
    const char* missing = nullptr;
    if (state.source < 0) {
        missing = "You must select whether to add item from the List or from ItemID!";
    } else if (state.source == FromList && state.item < 0) {
        missing = "You must select a tree type";
    } else if (state.form < 0) {
        missing = "You must select an Add-Method!";
    } else if (state.form == ForestLine && state.direction < 0) {
        missing = "You must select a direction with this tree form";
    } else if (state.form == ForestBox && state.density < 0) {
        missing = "You must select a tree density";
    }
    if (missing != nullptr) {
        outlet.Show(core::InformationBox(missing));
    }
    return missing == nullptr;
}

/// The entry of the list that all tabs share. Without a choice it is the one before the tab's first, which is empty;
/// before the first tab there is none.
TreeIds ListedTree(const ForestsState& state)
{
    constexpr int EntriesOfTab = 19;
    const int     entry = state.tab * EntriesOfTab + state.item;
    if (entry < 0) {
        throw core::RuntimeError(core::error::SubscriptRange);
    }
    return ForestTree(entry / EntriesOfTab, entry % EntriesOfTab, state.tableForm);
}

TreeIds ChosenTree(const ForestsState& state)
{
    return state.source == FromItemId ? TreeIds{state.itemId, {}} : ListedTree(state);
}

/// A place of a box: its low corner moved by a draw over its side and the tile behind it.
std::int32_t DrawPlace(core::UniformGenerator& uniform, std::int32_t low, std::int32_t side)
{
    return core::RoundToInteger32(std::floor(uniform.Next() * (static_cast<double>(side) + 1) + low));
}

/// Whether the draws over a side all lead to 0. From 1 down to -1 only a draw of exactly 0 leads elsewhere.
bool IsStill(std::int32_t low, std::int32_t side)
{
    return (low == 0 && (side == 0 || side == -1)) || (low == 1 && side == -2);
}

void ScatterTrees(Planter& planter, const Area& area, std::int32_t count, core::UniformGenerator& uniform)
{
    const auto dx = core::Subtract32(area.x2, area.x1);
    const auto dy = core::Subtract32(area.y2, area.y1);
    const auto isOrigin = [](std::int32_t x, std::int32_t y) { return x == 0 && y == 0; };
    const bool still = IsStill(area.x1, dx) && IsStill(area.y1, dy);
    for (std::int32_t i = 0; i <= count; ++i) {
        std::int32_t x = 0;
        std::int32_t y = 0;
        // The places taken so far are kept as zeros, so the one tile that counts as taken is the map's first.
        do {
            x = DrawPlace(uniform, area.x1, dx);
            y = DrawPlace(uniform, area.y1, dy);
            if (still && isOrigin(x, y)) {
                // Every further draw would lead here again, so no tree can be planted.
                return;
            }
        } while (isOrigin(x, y));
        planter.Plant(x, y);
    }
}

void AddBox(const ForestsState& state, std::int32_t x1, std::int32_t y1, std::int32_t z,
            core::ServerGeneration generation, core::UniformGenerator& uniform, core::Outlet& outlet,
            const std::function<void(std::int32_t)>& showCount)
{
    const Area area{x1, core::ToInteger32(state.area.x2), y1, core::ToInteger32(state.area.y2)};
    const auto count = TreeCount(state.density, core::Subtract32(area.x2, area.x1), core::Subtract32(area.y2, area.y1));
    showCount(count);
    if (state.density == ForestSolid) {
        // A solid box takes the entry of the list wherever the item is to come from.
        Planter(ListedTree(state), generation, outlet, z).Fill(area);
        return;
    }
    Planter planter(ChosenTree(state), generation, outlet, z);
    ScatterTrees(planter, area, count, uniform);
}

std::int32_t LineStep(int density)
{
    switch (density) {
    case ForestFew: return 7;
    case ForestSparse: return 5;
    case ForestDense: return 3;
    case ForestHeavy: return 1;
    default: return 0;
    }
}

void AddLine(const ForestsState& state, std::int32_t x, std::int32_t y, std::int32_t z,
             core::ServerGeneration generation, core::Outlet& outlet)
{
    const bool northSouth = state.direction == ForestNorthSouth;
    auto       tree = ChosenTree(state);
    if (state.source == FromList && state.tab == BlackRockTab && state.item == BlackRock) {
        tree = {northSouth ? "0c 90" : "0c 8f", {}};
    }
    Planter    planter(tree, generation, outlet, z);
    const auto end = core::ToInteger32(northSouth ? state.area.y2 : state.area.x2);
    auto&      place = northSouth ? y : x;
    const auto step = LineStep(state.density);
    do {
        planter.Plant(x, y);
        place = core::Add32(place, step);
    } while (place < end);
}

} // namespace

TreeIds ForestTree(int tab, int item, core::ServerGeneration tableForm)
{
    const auto* row = FindForestRow(tab, item);
    if (row == nullptr || (row->only09 && tableForm.Is070())) {
        return {};
    }
    return {core::TileIdText(row->trunk, tableForm), core::TileIdText(row->canopy, tableForm)};
}

std::int32_t TreeCount(int density, std::int32_t dx, std::int32_t dy)
{
    if (density == ForestSolid) {
        return core::Multiply32(dx, dy);
    }
    const auto   sides = core::Add32(dx, dy);
    const double divisor = density == ForestFew ? 15 : density == ForestSparse ? 5 : density == ForestDense ? 2 : 1;
    return core::RoundToInteger32(sides / divisor);
}

void AddForest(const ForestsState& state, core::ServerGeneration generation, core::UniformGenerator& uniform,
               core::Outlet& outlet, const std::function<void(std::int32_t)>& showCount)
{
    if (!IsChosen(state, outlet)) {
        return;
    }
    RunTrapped(outlet, "Please select a valid set of coordinates", [&] {
        const auto x = core::ToInteger32(state.area.x1);
        const auto y = core::ToInteger32(state.area.y1);
        const auto z = core::ToInteger32(state.area.currentHeight);
        switch (state.form) {
        case ForestBox: AddBox(state, x, y, z, generation, uniform, outlet, showCount); break;
        case ForestLine: AddLine(state, x, y, z, generation, outlet); break;
        default: Planter(ChosenTree(state), generation, outlet, z).Plant(x, y); break;
        }
    });
}

void AddForestPiece(const std::string& id, core::Outlet& outlet)
{
    outlet.Send("add " + id);
}

} // namespace qf::construction
