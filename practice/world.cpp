#include "practice/world.h"

#include <algorithm>

namespace qf::practice {

bool IsOnMap(const Position& position)
{
    return position.x >= 0 && position.x < MapWidth && position.y >= 0 && position.y < MapHeight &&
           position.z >= LowestZ && position.z <= HighestZ;
}

std::optional<Box> ClippedToMap(const Box& box)
{
    const Box area{std::max(std::min(box.x1, box.x2), 0), std::max(std::min(box.y1, box.y2), 0),
                   std::min(std::max(box.x1, box.x2), MapWidth - 1), std::min(std::max(box.y1, box.y2), MapHeight - 1)};
    if (area.x1 > area.x2 || area.y1 > area.y2) {
        return std::nullopt;
    }
    return area;
}

std::uint32_t World::Pack(const Tile& tile)
{
    const int cell = (tile.at.y % ChunkSide) * ChunkSide + tile.at.x % ChunkSide;
    return static_cast<std::uint32_t>(cell) << 24U | static_cast<std::uint32_t>(tile.at.z - LowestZ) << 16U | tile.id;
}

Tile World::Unpack(std::uint32_t chunkKey, std::uint32_t entry)
{
    const int chunk = static_cast<int>(chunkKey);
    const int cell = static_cast<int>(entry >> 24U);
    return Tile{Position{chunk % ChunksPerLine * ChunkSide + cell % ChunkSide,
                         chunk / ChunksPerLine * ChunkSide + cell / ChunkSide,
                         static_cast<int>(entry >> 16U & 0xFFU) + LowestZ},
                static_cast<std::uint16_t>(entry & 0xFFFFU)};
}

bool World::Place(const Tile& tile)
{
    if (!IsOnMap(tile.at) || count_ >= MostTiles) {
        return false;
    }
    Chunk&              chunk = chunks_[ChunkKey(tile.at.x / ChunkSide, tile.at.y / ChunkSide)];
    const std::uint32_t entry = Pack(tile);
    const auto          where = std::ranges::lower_bound(chunk, entry);
    if (where != chunk.end() && *where == entry) {
        return false;
    }
    chunk.insert(where, entry);
    ++count_;
    return true;
}

World::AreaResult World::PlaceArea(std::uint16_t id, const Box& box, int z)
{
    AreaResult               result;
    const std::optional<Box> area = ClippedToMap(box);
    if (!area || z < LowestZ || z > HighestZ) {
        return result;
    }
    std::size_t visited = 0;
    for (int y = area->y1; y <= area->y2; ++y) {
        for (int x = area->x1; x <= area->x2; ++x) {
            if (visited == MostTilesPerArea || count_ >= MostTiles) {
                result.cutShort = true;
                return result;
            }
            ++visited;
            if (Place(Tile{Position{x, y, z}, id})) {
                ++result.placed;
            }
        }
    }
    return result;
}

bool World::Remove(const Tile& tile)
{
    if (!IsOnMap(tile.at)) {
        return false;
    }
    const auto found = chunks_.find(ChunkKey(tile.at.x / ChunkSide, tile.at.y / ChunkSide));
    if (found == chunks_.end()) {
        return false;
    }
    Chunk&              chunk = found->second;
    const std::uint32_t entry = Pack(tile);
    const auto          where = std::ranges::lower_bound(chunk, entry);
    if (where == chunk.end() || *where != entry) {
        return false;
    }
    chunk.erase(where);
    if (chunk.empty()) {
        chunks_.erase(found);
    }
    --count_;
    return true;
}

template <typename Predicate>
std::size_t World::RemoveWhere(Predicate goes)
{
    std::size_t removed = 0;
    for (auto chunk = chunks_.begin(); chunk != chunks_.end();) {
        const std::uint32_t key = chunk->first;
        removed += std::erase_if(chunk->second, [&](std::uint32_t entry) { return goes(Unpack(key, entry).at); });
        chunk = chunk->second.empty() ? chunks_.erase(chunk) : std::next(chunk);
    }
    count_ -= removed;
    return removed;
}

std::size_t World::RemoveInside(const Box& box)
{
    const std::optional<Box> area = ClippedToMap(box);
    return area ? RemoveWhere([&](const Position& at) { return Holds(*area, at); }) : 0;
}

std::size_t World::RemoveOutside(const Box& box)
{
    const std::optional<Box> area = ClippedToMap(box);
    return area ? RemoveWhere([&](const Position& at) { return !Holds(*area, at); }) : Clear();
}

std::size_t World::Clear()
{
    const std::size_t removed = count_;
    chunks_.clear();
    count_ = 0;
    return removed;
}

} // namespace qf::practice
