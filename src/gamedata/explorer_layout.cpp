#include "gamedata/explorer_layout.h"

#include <algorithm>
#include <cstdlib>

namespace qf::gamedata {

namespace {

constexpr int Gap = 8;
constexpr int GapOfNewCell = 5;
constexpr int RoomBelowGrid = 20;
constexpr int RoomAroundViewport = 100;
constexpr int GapOfButtons = 5;

CellPlace Beside(CellPlace previous)
{
    return {previous.left + CellSide + Gap, previous.top};
}

CellPlace NewRow(CellPlace previous)
{
    return {Gap, previous.top + CellSide + Gap};
}

/// How far right a cell beside this one reaches.
int ReachBeside(CellPlace previous)
{
    return previous.left + CellSide + Gap + CellSide;
}

/// The place of each cell from the one before it.
template <typename StartsRow>
std::vector<CellPlace> Flow(int count, StartsRow startsRow)
{
    std::vector<CellPlace> places{{Gap, Gap}};
    while (static_cast<int>(places.size()) < count) {
        const auto previous = places.back();
        places.push_back(startsRow(previous) ? NewRow(previous) : Beside(previous));
    }
    return places;
}

} // namespace

std::vector<CellPlace> InitialPlaces(int viewportWidth)
{
    return Flow(InitialCells, [=](CellPlace previous) { return ReachBeside(previous) >= viewportWidth; });
}

CellPlace PlaceOfNewCell(CellPlace previous, int firstLeft, int panelWidth)
{
    constexpr int RoomForNext = 40;
    if (panelWidth - RoomBesideViewport < previous.left + RoomForNext + CellSide) {
        return {firstLeft, previous.top + CellSide + GapOfNewCell};
    }
    return {previous.left + CellSide + GapOfNewCell, previous.top};
}

std::vector<CellPlace> PlacesAfterResize(int count, int viewportWidth)
{
    constexpr int RoomAtEdge = 5;
    return Flow(count, [=](CellPlace previous) { return ReachBeside(previous) > viewportWidth - RoomAtEdge; });
}

int InitialGridHeight(CellPlace last)
{
    return last.top + RoomBelowGrid + CellSide;
}

int GridHeight(CellPlace last, int viewportHeight)
{
    return std::max(InitialGridHeight(last), viewportHeight);
}

int ScrollMaximum(int gridHeight, int viewportHeight)
{
    return std::max(gridHeight - viewportHeight, 0);
}

int ScrolledByNotch(int value, bool up, int pageStep, int maximum)
{
    return std::clamp(up ? value - pageStep : value + pageStep, 0, maximum);
}

int ScrolledToCell(int value, CellPlace cell, int viewportHeight)
{
    const int lowest = cell.top - Gap;
    const int highest = std::min(cell.top + CellSide + Gap - viewportHeight, lowest);
    return std::clamp(value, highest, lowest);
}

std::optional<int> Neighbour(std::span<const CellPlace> places, int cell, Step step)
{
    const int count = static_cast<int>(places.size());
    if (step == Step::Left || step == Step::Right) {
        const int next = step == Step::Left ? cell - 1 : cell + 1;
        return next >= 0 && next < count ? std::optional(next) : std::nullopt;
    }
    const auto from = places[static_cast<std::size_t>(cell)];
    const auto distance = [&](int other) {
        const auto place = places[static_cast<std::size_t>(other)];
        return std::pair(std::abs(place.top - from.top), std::abs(place.left - from.left));
    };
    std::optional<int> best;
    for (int other = 0; other < count; ++other) {
        const int  top = places[static_cast<std::size_t>(other)].top;
        const bool lies = step == Step::Up ? top < from.top : top > from.top;
        if (lies && (!best || distance(other) < distance(*best))) {
            best = other;
        }
    }
    return best;
}

ControlPlaces PlaceControls(int panelWidth, int panelHeight, const ControlWidths& widths)
{
    ControlPlaces places;
    places.viewportWidth = panelWidth - RoomBesideViewport;
    places.viewportHeight = panelHeight - RoomAroundViewport;
    places.scrollBarLeft = panelWidth - widths.scrollBar - 5;
    places.exitLeft = panelWidth - 60;
    places.wipeLeft = places.exitLeft - GapOfButtons - widths.wipe;
    places.removeLeft = places.wipeLeft - GapOfButtons - widths.remove;
    places.modelRowTop = panelHeight - 31;
    places.statusTextTop = panelHeight - 37;
    places.progressTop = panelHeight - 22;
    return places;
}

} // namespace qf::gamedata
