#include "practice/canvas.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "practice/font.h"

namespace qf::practice {

namespace {

constexpr Argb AlphaOf(Argb colour)
{
    return colour >> 24U;
}

Argb Mixed(Argb below, Argb above, Argb alpha)
{
    const auto part = [&](unsigned shift) {
        const Argb from = below >> shift & 0xFFU;
        const Argb to = above >> shift & 0xFFU;
        return (from * (255U - alpha) + to * alpha + 127U) / 255U << shift;
    };
    return Opaque | part(16) | part(8) | part(0);
}

} // namespace

Argb Lit(Argb colour, double light)
{
    const auto part = [&](unsigned shift) {
        const double value = static_cast<double>(colour >> shift & 0xFFU) * light;
        return static_cast<Argb>(std::clamp(std::lround(value), 0L, 255L)) << shift;
    };
    return (colour & Opaque) | part(16) | part(8) | part(0);
}

Argb Sprite::At(int x, int y) const
{
    const int column = x - left;
    const int row = y - top;
    if (column < 0 || column >= width || row < 0 || row >= height) {
        return 0;
    }
    return pixels[static_cast<std::size_t>(row) * static_cast<std::size_t>(width) + static_cast<std::size_t>(column)];
}

Canvas::Canvas(int width, int height)
    : width_(std::max(width, 1)),
      height_(std::max(height, 1)),
      pixels_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), Opaque)
{}

void Canvas::FillGradient(Argb top, Argb bottom)
{
    for (int y = 0; y < height_; ++y) {
        const auto alpha = static_cast<Argb>(y * 255 / height_);
        std::fill_n(pixels_.begin() + static_cast<std::ptrdiff_t>(Index(0, y)), width_, Mixed(top, bottom, alpha));
    }
}

void Canvas::FillRectangle(int x, int y, int width, int height, Argb colour)
{
    const int right = std::min(x + width, width_);
    const int bottom = std::min(y + height, height_);
    for (int row = std::max(y, 0); row < bottom; ++row) {
        for (int column = std::max(x, 0); column < right; ++column) {
            Argb& pixel = pixels_[Index(column, row)];
            pixel = Mixed(pixel, colour, AlphaOf(colour));
        }
    }
}

void Canvas::Blend(int x, int y, Argb colour)
{
    if (x >= 0 && x < width_ && y >= 0 && y < height_) {
        Argb& pixel = pixels_[Index(x, y)];
        pixel = Mixed(pixel, colour, AlphaOf(colour));
    }
}

void Canvas::Line(int x1, int y1, int x2, int y2, Argb colour)
{
    const int  steps = std::max(std::abs(x2 - x1), std::abs(y2 - y1));
    // A line of the map can be far longer than the window: only the steps inside are walked.
    double     first = 0.0;
    double     last = 1.0;
    const auto cut = [&](int from, int to, int limit) {
        const double run = to - from;
        if (run == 0.0) {
            if (from < 0 || from >= limit) {
                last = -1.0;
            }
            return;
        }
        const double enter = (0.0 - from) / run;
        const double leave = (limit - 1.0 - from) / run;
        first = std::max(first, std::min(enter, leave));
        last = std::min(last, std::max(enter, leave));
    };
    cut(x1, x2, width_);
    cut(y1, y2, height_);
    if (first > last) {
        return;
    }
    const int end = std::min(steps, static_cast<int>(std::ceil(last * steps)));
    for (int i = static_cast<int>(std::floor(first * steps)); i <= end; ++i) {
        const double share = steps == 0 ? 0.0 : static_cast<double>(i) / steps;
        Blend(x1 + static_cast<int>(std::lround(share * (x2 - x1))),
              y1 + static_cast<int>(std::lround(share * (y2 - y1))), colour);
    }
}

void Canvas::Draw(const Sprite& sprite, int x, int y)
{
    const int left = x + sprite.left;
    const int top = y + sprite.top;
    const int right = std::min(left + sprite.width, width_);
    const int bottom = std::min(top + sprite.height, height_);
    const int start = std::max(left, 0);
    for (int row = std::max(top, 0); row < bottom; ++row) {
        const Argb* from = sprite.pixels.data() + static_cast<std::ptrdiff_t>(row - top) * sprite.width - left;
        Argb*       to = pixels_.data() + Index(0, row);
        for (int column = start; column < right; ++column) {
            const Argb alpha = AlphaOf(from[column]);
            if (alpha == 255) {
                to[column] = from[column];
            } else if (alpha != 0) {
                to[column] = Mixed(to[column], from[column], alpha);
            }
        }
    }
}

void Canvas::DrawFaint(const Sprite& sprite, int x, int y, Argb alpha)
{
    for (int row = sprite.top; row < sprite.top + sprite.height; ++row) {
        for (int column = sprite.left; column < sprite.left + sprite.width; ++column) {
            const Argb colour = sprite.At(column, row);
            Blend(x + column, y + row, AlphaOf(colour) * alpha / 255U << 24U | (colour & ~Opaque));
        }
    }
}

void Canvas::Glyph(int x, int y, char32_t character, Argb colour, int scale)
{
    const auto point = [&](int column, int row) { return GlyphPoint(character, column, row); };
    for (int row = 0; row < GlyphHeight; ++row) {
        for (int column = 0; column < GlyphWidth; ++column) {
            const bool self = point(column, row);
            if (scale == 1) {
                if (self) {
                    Blend(x + column, y + row, colour);
                }
                continue;
            }
            // Doubled, a corner takes the value of the two neighbours that agree on it: slanting strokes
            // come out smooth instead of as stairs.
            const bool up = point(column, row - 1);
            const bool down = point(column, row + 1);
            const bool before = point(column - 1, row);
            const bool behind = point(column + 1, row);
            const auto corner = [&](bool vertical, bool sideways, bool otherVertical, bool otherSideways) {
                return vertical == sideways && vertical != otherVertical && sideways != otherSideways ? vertical : self;
            };
            const bool quarters[2][2] = {{corner(up, before, down, behind), corner(up, behind, down, before)},
                                         {corner(down, before, up, behind), corner(down, behind, up, before)}};
            for (int part = 0; part < 4; ++part) {
                if (quarters[part / 2][part % 2]) {
                    Blend(x + column * 2 + part % 2, y + row * 2 + part / 2, colour);
                }
            }
        }
    }
}

void Canvas::Text(int x, int y, std::string_view text, Argb colour, int scale)
{
    for (int i = 0; !text.empty(); ++i) {
        const char32_t character = NextCharacter(text);
        const int      at = x + i * GlyphAdvance * scale;
        if (at > width_) {
            return;
        }
        Glyph(at + 1, y + 1, character, 0xB0000000U, scale);
        Glyph(at, y, character, colour, scale);
    }
}

int TextWidth(std::string_view text, int scale)
{
    return static_cast<int>(CharacterCount(text)) * GlyphAdvance * scale;
}

} // namespace qf::practice
