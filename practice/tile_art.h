#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>

#include "gamedata/art.h"
#include "gamedata/byte_source.h"
#include "practice/canvas.h"
#include "practice/projection.h"

namespace qf::practice {

/// The tiles of a client folder's `art.mul` and `artidx.mul`.
class TileArt {
  public:
    /// The art of a folder, whose files are found whatever the case of their names; null where one of the two is
    /// not there.
    static std::unique_ptr<TileArt> Open(const std::filesystem::path& folder);

    /// Art out of other bytes. The index ends after `indexBytes`; numbers beyond have no tile.
    TileArt(std::unique_ptr<gamedata::ByteSource> index, std::unique_ptr<gamedata::ByteSource> art,
            std::int64_t indexBytes);

    /// The picture of a tile; nothing where the art has none.
    std::optional<gamedata::TileImage> Read(std::uint16_t id);

  private:
    std::unique_ptr<gamedata::ByteSource> index_;
    std::unique_ptr<gamedata::ByteSource> art_;
    std::int64_t                          indexBytes_;
};

/// A tile's picture at a scale of square cells: centred on its cell, its bottom at the cell's bottom corner.
/// Every pixel that the picture touches is filled, so that floors that meet in the art meet at every scale.
Sprite PlacePicture(const gamedata::TileImage& image, const Scale& scale);

} // namespace qf::practice
