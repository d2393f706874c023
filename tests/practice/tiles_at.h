#pragma once

#include <vector>

#include "practice/world.h"

namespace qf::practice {

/// The tiles of a cell.
inline std::vector<Tile> TilesAt(const World& world, int x, int y)
{
    std::vector<Tile> tiles;
    world.ForEachIn({x, y, x, y}, [&](const Tile& tile) { tiles.push_back(tile); });
    return tiles;
}

} // namespace qf::practice
