#pragma once

#include <cstdint>
#include <memory>
#include <unordered_map>

#include "practice/canvas.h"
#include "practice/projection.h"
#include "practice/tile_art.h"
#include "practice/tile_kinds.h"

namespace qf::practice {

/// A tile's picture and its place in the order of drawing among the tiles of one cell and height.
struct TileSprite {
    Sprite sprite;
    int    layer = 0;
};

/// The pictures of tiles, of the ground and of the player, made when they are first asked for.
class Sprites {
  public:
    /// Tiles have the pictures of the art, where it is given and has them, and are painted otherwise.
    explicit Sprites(std::unique_ptr<TileArt> art = nullptr);

    /// The shape of cells for which the pictures are made.
    CellShape Shape() const { return art_ ? CellShape::Square : CellShape::Flat; }

    /// References stay good until the next call of `Trim`.
    const TileSprite& OfTile(std::uint16_t id, int zoomStep);
    const TileSprite& OfPlayer(int zoomStep);

    /// The ground of a cell; it varies a little from cell to cell.
    const TileSprite& OfGround(int x, int y, int zoomStep);

    /// Forgets the pictures where there are very many. Not while any of them is in use.
    void Trim();

  private:
    std::unique_ptr<TileArt>                      art_;
    std::unordered_map<std::uint32_t, TileSprite> made_;
};

} // namespace qf::practice
