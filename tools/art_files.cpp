#include "tools/art_files.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <stdexcept>
#include <tuple>

#include "practice/look_painter.h"

namespace qf::tools {

namespace {

constexpr practice::Scale ArtScale{22, 22, 4.0};

constexpr int          CellHeight = 2 * ArtScale.halfHeight;
constexpr int          MostSide = 1024;
constexpr std::int32_t RunLayout = 1;
constexpr std::int32_t FirstStaticTile = 0x4000;
constexpr std::int32_t TileNumbers = 0x10000;
constexpr std::int32_t Absent = -1;

/// Fine leaves and blades cover only parts of their pixels; the soft shadow on the ground stays below this.
constexpr practice::Argb LeastAlpha = 0x60;

void Append16(std::string& bytes, int value)
{
    const auto number = static_cast<unsigned>(value);
    bytes.push_back(static_cast<char>(number & 0xFFU));
    bytes.push_back(static_cast<char>(number >> 8U & 0xFFU));
}

void Append32(std::string& bytes, std::int32_t value)
{
    const auto number = static_cast<std::uint32_t>(value);
    for (unsigned shift = 0; shift < 32U; shift += 8U) {
        bytes.push_back(static_cast<char>(number >> shift & 0xFFU));
    }
}

bool IsSolid(practice::Argb pixel)
{
    return pixel >> 24U >= LeastAlpha;
}

int ToPixel16(practice::Argb pixel)
{
    return static_cast<int>((pixel >> 19U & 31U) << 10U | (pixel >> 11U & 31U) << 5U | (pixel >> 3U & 31U));
}

/// What of a look its picture depends on.
using Looks = std::tuple<practice::TileKind, practice::Form, practice::Pattern, int, std::uint32_t>;

Looks LooksOf(const practice::TileLook& look)
{
    return {look.kind, look.form, look.pattern, look.height, look.colour};
}

/// The runs of one line, and the pair of zeros at its end.
std::string EncodeLine(const practice::Sprite& sprite, int y, int half)
{
    std::string line;
    int         drawn = -half;
    for (int x = -half; x < half;) {
        if (!IsSolid(sprite.At(x, y))) {
            ++x;
            continue;
        }
        int end = x;
        while (end < half && IsSolid(sprite.At(end, y))) {
            ++end;
        }
        Append16(line, x - drawn);
        Append16(line, end - x);
        for (; x < end; ++x) {
            Append16(line, ToPixel16(sprite.At(x, y)));
        }
        drawn = end;
    }
    Append16(line, 0);
    Append16(line, 0);
    return line;
}

} // namespace

std::string EncodeRunTile(const practice::Sprite& sprite)
{
    constexpr std::size_t MostWords = 0x7FFF;
    const int             half = std::max(-sprite.left, sprite.left + sprite.width);
    const int             height = CellHeight - sprite.top;
    if (half < 1 || 2 * half > MostSide || height < 1 || height > MostSide) {
        throw std::length_error("a picture does not fit into a tile");
    }
    std::string tile;
    std::string lines;
    Append32(tile, RunLayout);
    Append16(tile, 2 * half);
    Append16(tile, height);
    for (int y = sprite.top; y < CellHeight; ++y) {
        if (lines.size() / 2 > MostWords) {
            throw std::length_error("a tile has too many pixels");
        }
        Append16(tile, static_cast<int>(lines.size() / 2));
        lines += EncodeLine(sprite, y, half);
    }
    return tile + lines;
}

ArtFiles MakeArt()
{
    struct Place {
        std::int32_t lookup = Absent;
        std::int32_t size = 0;
    };
    ArtFiles               files;
    std::map<Looks, Place> places;
    const auto             append = [&](const Place& place) {
        Append32(files.index, place.lookup);
        Append32(files.index, place.size);
        Append32(files.index, 0);
    };
    for (std::int32_t land = 0; land < FirstStaticTile; ++land) {
        append({});
    }
    for (std::int32_t id = 0; id < TileNumbers; ++id) {
        const auto look = practice::KnownLook(static_cast<std::uint16_t>(id));
        if (!look) {
            append({});
            continue;
        }
        const auto [place, isNew] = places.try_emplace(LooksOf(*look));
        if (isNew) {
            const std::string tile = EncodeRunTile(practice::PaintTile(*look, ArtScale));
            place->second = {static_cast<std::int32_t>(files.art.size()), static_cast<std::int32_t>(tile.size())};
            files.art += tile;
        }
        append(place->second);
    }
    return files;
}

} // namespace qf::tools
