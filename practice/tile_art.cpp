#include "practice/tile_art.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "core/host_path.h"

namespace qf::practice {

namespace {

constexpr std::int64_t FirstStaticTile = 0x4000;
constexpr std::int64_t IndexRecordBytes = 12;
constexpr int          ArtHalf = 22; // half a cell in the art's own pixels

/// What pixels of the art, counted from the cell's north corner, fall on one line of pixels of the view.
struct Span {
    int    first = 0;
    int    last = 0; ///< included
    double start = 0.0;
    double end = 0.0;

    static Span Of(int pixel, double perPixel)
    {
        constexpr double Grain = 1e-6;
        const double     start = pixel * perPixel;
        const double     end = (pixel + 1) * perPixel;
        return {static_cast<int>(std::floor(start + Grain)), static_cast<int>(std::ceil(end - Grain)) - 1, start, end};
    }
    double Share(int pixel) const { return std::min(end, pixel + 1.0) - std::max(start, double(pixel)); }
};

Argb Average(const gamedata::TileImage& image, const Span& across, const Span& down, int left, int top)
{
    double weight = 0.0;
    double sum[3]{};
    for (int y = std::max(down.first, top); y <= std::min(down.last, top + image.height - 1); ++y) {
        for (int x = std::max(across.first, left); x <= std::min(across.last, left + image.width - 1); ++x) {
            const Argb pixel = image.pixels[static_cast<std::size_t>(y - top) * static_cast<std::size_t>(image.width) +
                                            static_cast<std::size_t>(x - left)];
            if (pixel >> 24U == 0) {
                continue;
            }
            const double share = across.Share(x) * down.Share(y);
            weight += share;
            sum[0] += share * (pixel >> 16U & 0xFFU);
            sum[1] += share * (pixel >> 8U & 0xFFU);
            sum[2] += share * (pixel & 0xFFU);
        }
    }
    if (weight <= 0.0) {
        return 0;
    }
    const auto part = [&](double value) { return static_cast<Argb>(std::lround(value / weight)); };
    return Opaque | part(sum[0]) << 16U | part(sum[1]) << 8U | part(sum[2]);
}

} // namespace

std::unique_ptr<TileArt> TileArt::Open(const std::filesystem::path& folder)
{
    const auto path = core::ProgramPath(folder);
    const auto index = path + "\\artidx.mul";
    const auto art = path + "\\art.mul";
    if (!core::IsFile(index) || !core::IsFile(art)) {
        return nullptr;
    }
    std::error_code error;
    const auto      size = std::filesystem::file_size(core::HostPath(index), error);
    using gamedata::FileBytes;
    return std::make_unique<TileArt>(std::make_unique<FileBytes>(index, FileBytes::Access::ReadOnly),
                                     std::make_unique<FileBytes>(art, FileBytes::Access::ReadOnly),
                                     error ? 0 : static_cast<std::int64_t>(size));
}

TileArt::TileArt(std::unique_ptr<gamedata::ByteSource> index, std::unique_ptr<gamedata::ByteSource> art,
                 std::int64_t indexBytes)
    : index_(std::move(index)), art_(std::move(art)), indexBytes_(indexBytes)
{}

std::optional<gamedata::TileImage> TileArt::Read(std::uint16_t id)
{
    // A record that is not there would read as zeros, which is the place of the first tile.
    if ((FirstStaticTile + id + 1) * IndexRecordBytes > indexBytes_) {
        return std::nullopt;
    }
    return gamedata::ReadTileImage(id, *index_, *art_);
}

Sprite PlacePicture(const gamedata::TileImage& image, const Scale& scale)
{
    const int    left = -(image.width / 2);
    const int    top = 2 * ArtHalf - image.height;
    const double perPixel = static_cast<double>(ArtHalf) / scale.halfWidth;
    const auto   low = [&](int place) { return static_cast<int>(std::floor(place / perPixel)); };
    const auto   high = [&](int place) { return static_cast<int>(std::ceil(place / perPixel)); };

    Sprite sprite;
    sprite.left = low(left);
    sprite.top = low(top);
    sprite.width = high(left + image.width) - sprite.left;
    sprite.height = high(top + image.height) - sprite.top;
    sprite.pixels.reserve(static_cast<std::size_t>(sprite.width) * static_cast<std::size_t>(sprite.height));
    for (int y = 0; y < sprite.height; ++y) {
        const Span down = Span::Of(sprite.top + y, perPixel);
        for (int x = 0; x < sprite.width; ++x) {
            sprite.pixels.push_back(Average(image, Span::Of(sprite.left + x, perPixel), down, left, top));
        }
    }
    return sprite;
}

} // namespace qf::practice
