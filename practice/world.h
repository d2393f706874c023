#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <vector>

namespace qf::practice {

inline constexpr int MapWidth = 7168;
inline constexpr int MapHeight = 4096;
inline constexpr int LowestZ = -128;
inline constexpr int HighestZ = 127;

/// A place of the world: tiles for X and Y, height units for Z.
struct Position {
    int x = 0;
    int y = 0;
    int z = 0;

    friend bool operator==(const Position&, const Position&) = default;
};

/// Whether the place lies on the map and in the range of heights.
bool IsOnMap(const Position& position);

/// A placed tile.
struct Tile {
    Position      at;
    std::uint16_t id = 0;

    friend bool operator==(const Tile&, const Tile&) = default;
};

/// A rectangle of cells, its corners included.
struct Box {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;

    friend bool operator==(const Box&, const Box&) = default;
};

/// The box with its corners in order, cut to the map; nothing where no cell of it is on the map.
std::optional<Box> ClippedToMap(const Box& box);

/// The placed tiles. A cell holds any number of them, but the same tile at the same height only once.
class World {
  public:
    static constexpr std::size_t MostTilesPerArea = 250'000;
    static constexpr std::size_t MostTiles = 4'000'000;

    struct AreaResult {
        std::size_t placed = 0;       ///< tiles that were not there before
        bool        cutShort = false; ///< the area, or the world, would have held too many
    };

    /// Places one tile. Gives false where it is there already, off the map, or the world is full.
    bool Place(const Tile& tile);

    /// Fills the box at one height, row by row; corners in any order, cells off the map are left out.
    AreaResult PlaceArea(std::uint16_t id, const Box& box, int z);

    /// Removes one tile; false where it is not there.
    bool Remove(const Tile& tile);

    /// Removes the tiles of the cells inside or outside the box, and gives their number.
    std::size_t RemoveInside(const Box& box);
    std::size_t RemoveOutside(const Box& box);

    /// Removes everything, and gives the number of tiles that went.
    std::size_t Clear();

    std::size_t Count() const { return count_; }

    /// Calls `visit(const Tile&)` for each tile in the box, in no order that can be relied on.
    template <typename Visit>
    void ForEachIn(const Box& box, Visit visit) const
    {
        const std::optional<Box> area = ClippedToMap(box);
        if (!area) {
            return;
        }
        for (int chunkY = area->y1 / ChunkSide; chunkY <= area->y2 / ChunkSide; ++chunkY) {
            for (int chunkX = area->x1 / ChunkSide; chunkX <= area->x2 / ChunkSide; ++chunkX) {
                const auto found = chunks_.find(ChunkKey(chunkX, chunkY));
                if (found == chunks_.end()) {
                    continue;
                }
                for (const std::uint32_t entry : found->second) {
                    const Tile tile = Unpack(found->first, entry);
                    if (Holds(*area, tile.at)) {
                        visit(tile);
                    }
                }
            }
        }
    }

  private:
    // A chunk is a sorted list of its tiles, each packed into one number: cell, height, tile number.
    // Filling a box appends to it.
    using Chunk = std::vector<std::uint32_t>;

    static constexpr int ChunkSide = 8;
    static constexpr int ChunksPerLine = MapWidth / ChunkSide;

    static std::uint32_t ChunkKey(int chunkX, int chunkY)
    {
        return static_cast<std::uint32_t>(chunkY * ChunksPerLine + chunkX);
    }
    static bool Holds(const Box& box, const Position& at)
    {
        return at.x >= box.x1 && at.x <= box.x2 && at.y >= box.y1 && at.y <= box.y2;
    }
    static std::uint32_t Pack(const Tile& tile);
    static Tile          Unpack(std::uint32_t chunkKey, std::uint32_t entry);

    template <typename Predicate>
    std::size_t RemoveWhere(Predicate goes);

    std::unordered_map<std::uint32_t, Chunk> chunks_;
    std::size_t                              count_ = 0;
};

} // namespace qf::practice
