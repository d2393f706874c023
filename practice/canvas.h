#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace qf::practice {

/// A colour as 0xAARRGGBB, alpha 255 being opaque.
using Argb = std::uint32_t;

inline constexpr Argb Opaque = 0xFF000000U;

/// The colour with each part multiplied by `light` and kept in its range; alpha stays.
Argb Lit(Argb colour, double light);

/// A small picture with its place relative to the pixel that it is drawn at.
struct Sprite {
    int               left = 0;
    int               top = 0;
    int               width = 0;
    int               height = 0;
    std::vector<Argb> pixels;

    /// The pixel at a place relative to the one that the sprite is drawn at; 0 outside.
    Argb At(int x, int y) const;
};

/// The picture of the window in memory. Everything drawn outside its edges is cut off.
class Canvas {
  public:
    Canvas(int width, int height);

    int         Width() const { return width_; }
    int         Height() const { return height_; }
    Argb        At(int x, int y) const { return pixels_[Index(x, y)]; }
    const Argb* Pixels() const { return pixels_.data(); }

    /// Fills the canvas with a vertical run from one colour to another.
    void FillGradient(Argb top, Argb bottom);

    void FillRectangle(int x, int y, int width, int height, Argb colour);

    void Line(int x1, int y1, int x2, int y2, Argb colour);

    void Draw(const Sprite& sprite, int x, int y);

    /// Draws a sprite so that what is below shines through; `alpha` is 0 to 255.
    void DrawFaint(const Sprite& sprite, int x, int y, Argb alpha);

    /// Draws one line of text with a dark edge; (x, y) is its upper left corner. Scale is 1 or 2.
    void Text(int x, int y, std::string_view text, Argb colour, int scale);

  private:
    std::size_t Index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    void Blend(int x, int y, Argb colour);
    void Glyph(int x, int y, char32_t character, Argb colour, int scale);

    int               width_;
    int               height_;
    std::vector<Argb> pixels_;
};

/// The width in pixels that a text takes.
int TextWidth(std::string_view text, int scale);

} // namespace qf::practice
