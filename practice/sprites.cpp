#include "practice/sprites.h"

#include <utility>

#include "practice/look_painter.h"
#include "practice/sprite_painter.h"

namespace qf::practice {

namespace {

constexpr std::size_t MostSprites = 4096;

constexpr Argb GroundTint = 0x76A055;

/// The numbers beyond the 16-bit tile numbers stand for what is no tile.
constexpr std::uint32_t PlayerKey = 0x10000;
constexpr std::uint32_t GroundKey = 0x10001;
constexpr int           Grounds = 8;

Sprite PaintPlayer(const Scale& scale)
{
    SpritePainter painter(scale);
    painter.Shadow(0.5);
    painter.Stroke({0.6, 0.44, 0.4}, {0.56, 0.46, 4}, 0.2, 0.22, 0x3A3230);
    painter.Stroke({0.42, 0.58, 0.4}, {0.46, 0.54, 4}, 0.2, 0.22, 0x3A3230);
    painter.Stroke({0.5, 0.5, 4}, {0.5, 0.5, 9.5}, 0.72, 0.44, 0x2F5FA8);
    painter.Stroke({0.36, 0.64, 9}, {0.28, 0.72, 5}, 0.18, 0.16, 0x2A5596);
    painter.Stroke({0.64, 0.36, 9}, {0.72, 0.28, 5}, 0.18, 0.16, 0x2A5596);
    painter.Stroke({0.38, 0.62, 5.6}, {0.62, 0.38, 5.6}, 0.1, 0.1, 0xC8A040);
    painter.Lump({0.5, 0.5, 12.4}, 0.3, 1.9, 0xF0C8A0);
    painter.Lump({0.46, 0.46, 13.4}, 0.3, 1.4, 0x7A4A24);
    return painter.Finish(true);
}

Sprite PaintGround(int variant, const Scale& scale)
{
    SpritePainter painter(scale);
    const bool    bright = variant % 2 == 0;
    const int     shade = variant / 2;
    const double  light = (bright ? 1.0 : 0.955) + 0.012 * shade;
    painter.Paint({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, Lit(GroundTint, light), Pattern::Plain);
    constexpr int Tufts = 5;
    for (int i = 0; i < Tufts; ++i) {
        const double u = 0.12 + 0.76 * ((i * 3 + variant * 5) % 11) / 10.0;
        const double v = 0.12 + 0.76 * ((i * 7 + variant * 3) % 11) / 10.0;
        painter.Stroke({u, v, 0}, {u - 0.02, v - 0.02, 0.5}, 0.05, 0.03, Lit(GroundTint, i % 2 == 0 ? 0.86 : 1.12));
    }
    return painter.Finish(false);
}

std::uint32_t KeyOf(std::uint32_t what, int zoomStep)
{
    return what * static_cast<std::uint32_t>(Scale::Steps) + static_cast<std::uint32_t>(zoomStep);
}

constexpr int LayerOf(TileKind kind)
{
    return static_cast<int>(kind) * 2;
}

} // namespace

Sprites::Sprites(std::unique_ptr<TileArt> art) : art_(std::move(art)) {}

const TileSprite& Sprites::OfTile(std::uint16_t id, int zoomStep)
{
    const auto [found, isNew] = made_.try_emplace(KeyOf(id, zoomStep));
    if (isNew) {
        const Scale    scale = Scale::OfStep(zoomStep, Shape());
        const TileLook look = LookOf(id);
        const auto     image = art_ ? art_->Read(id) : std::nullopt;
        found->second.sprite = image ? PlacePicture(*image, scale) : PaintTile(look, scale);
        found->second.layer = LayerOf(look.kind);
    }
    return found->second;
}

const TileSprite& Sprites::OfPlayer(int zoomStep)
{
    const auto [found, isNew] = made_.try_emplace(KeyOf(PlayerKey, zoomStep));
    if (isNew) {
        found->second.sprite = PaintPlayer(Scale::OfStep(zoomStep, Shape()));
        found->second.layer = LayerOf(TileKind::Furniture) - 1;
    }
    return found->second;
}

const TileSprite& Sprites::OfGround(int x, int y, int zoomStep)
{
    const int variant = (x + y) % 2 + 2 * ((x * 7 + y * 13 + x * y % 5) % (Grounds / 2));
    const auto [found, isNew] = made_.try_emplace(KeyOf(GroundKey + static_cast<std::uint32_t>(variant), zoomStep));
    if (isNew) {
        found->second.sprite = PaintGround(variant, Scale::OfStep(zoomStep, Shape()));
    }
    return found->second;
}

void Sprites::Trim()
{
    if (made_.size() > MostSprites) {
        made_.clear();
    }
}

} // namespace qf::practice
