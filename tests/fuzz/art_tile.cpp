#include "gamedata/art.h"

#include <algorithm>
#include <cstdlib>

#include "core/runtime_error.h"

namespace {

using namespace qf;

constexpr std::size_t  IndexBytes = 12;
constexpr std::int32_t FirstStaticTile = 0x4000;
constexpr int          MostTileSide = 1024;

/// An index that begins with the record of the first static tile.
class StaticIndex final : public gamedata::ByteSource {
  public:
    explicit StaticIndex(std::span<const std::byte> records) : records_(records) {}

    void Read(std::int64_t offset, std::span<std::byte> out) override
    {
        records_.Read(offset - std::int64_t{FirstStaticTile} * 12, out);
    }

  private:
    gamedata::MemoryBytes records_;
};

/// A number that leaves its range is the only error.
template <typename Draw>
void Attempt(Draw draw)
{
    try {
        draw();
    } catch (const core::RuntimeError& error) {
        if (error.Number() != core::error::Overflow) {
            std::abort();
        }
    }
}

/// Whether the tile is so large that it would cost much time and show nothing else than a smaller one.
bool IsLarge(gamedata::ByteSource& index, gamedata::ByteSource& art)
{
    std::array<std::byte, 8> bytes{};
    index.Read(std::int64_t{FirstStaticTile} * 12, bytes);
    const auto number = [&](std::size_t place) { return static_cast<unsigned>(bytes[place]); };
    const auto lookup = static_cast<std::int32_t>(number(0) | number(1) << 8 | number(2) << 16 | number(3) << 24);
    art.Read(lookup, bytes);
    return (number(4) | number(5) << 8) * (number(6) | number(7) << 8) > 0x8000;
}

} // namespace

// The first bytes are an index of one record, the others the art: drawn in every form, and read as an image.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const auto            bytes = std::as_bytes(std::span(data, size));
    const auto            split = std::min(size, IndexBytes);
    StaticIndex           index(bytes.first(split));
    gamedata::MemoryBytes art(bytes.subspan(split));

    core::PixelSurface picture(48, 48);
    Attempt([&] { gamedata::DrawIndexRecord(FirstStaticTile, picture, index, art); });
    if (picture.Width() > core::PixelSurface::DefaultWidth || picture.Height() > core::PixelSurface::DefaultHeight) {
        std::abort();
    }
    if (IsLarge(index, art)) {
        return 0;
    }

    core::PixelSurface bare(3, 2);
    Attempt([&] { gamedata::DrawStaticTileFromFiles(0, bare, index, art, true, core::White); });
    if (bare.Width() < 1 || bare.Width() > MostTileSide || bare.Height() < 1) {
        std::abort();
    }

    const auto image = gamedata::ReadTileImage(0, index, art);
    if (image &&
        (image->width < 1 || image->width > MostTileSide || image->height < 1 || image->height > MostTileSide ||
         image->pixels.size() != static_cast<std::size_t>(image->width * image->height))) {
        std::abort();
    }
    return 0;
}
