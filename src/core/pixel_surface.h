#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace qf::core {

/// A colour as 0xRRGGBB.
using Rgb = std::uint32_t;

inline constexpr Rgb White = 0xFFFFFF;

/// A picture in memory that tiles are plotted on, without scaling. A new one is 121 by 173 pixels, white.
class PixelSurface {
  public:
    static constexpr int DefaultWidth = 121;
    static constexpr int DefaultHeight = 173;

    explicit PixelSurface(int width = DefaultWidth, int height = DefaultHeight, Rgb backColour = White);
    virtual ~PixelSurface() = default;

    int Width() const { return width_; }
    int Height() const { return height_; }

    /// Sets the background colour, which erases what the surface shows.
    void SetBackColour(Rgb colour);
    Rgb  BackColour() const { return backColour_; }

    /// Makes the surface this large, in pixels; what it shows stays at the upper left and new room has the
    /// background colour. A negative size counts as 0.
    void SetSize(int width, int height);

    /// Plots one pixel; one that lies outside is left out.
    void Plot(std::int64_t x, std::int64_t y, Rgb colour)
    {
        if (x >= 0 && x < width_ && y >= 0 && y < height_) {
            pixels_[static_cast<std::size_t>(y * width_ + x)] = Opaque | colour;
        }
    }

    /// Plots `count` pixels along a line from (x, y) on; those that lie outside are left out. `colourOf(i)` gives
    /// the colour of the i-th, counted from 0.
    template <typename ColourOf>
    void PlotLine(std::int64_t x, std::int64_t y, std::int64_t count, ColourOf colourOf)
    {
        if (y < 0 || y >= height_) {
            return;
        }
        const auto  first = std::max<std::int64_t>(0, -x);
        const auto  last = std::min(count, width_ - x);
        auto* const line = pixels_.data() + y * width_;
        for (auto i = first; i < last; ++i) {
            line[x + i] = Opaque | colourOf(i);
        }
    }

    /// Copies another picture with its upper left corner at (x, y), in pixels rounded to the nearest whole
    /// ones (halves away from 0); what lies outside is cut off.
    void Paint(const PixelSurface& picture, double x, double y);

    /// The pixel at a place within the surface.
    Rgb At(int x, int y) const { return pixels_[static_cast<std::size_t>(std::int64_t{y} * width_ + x)] & ~Opaque; }

    /// All pixels, row by row, as 0xFFRRGGBB.
    std::span<const std::uint32_t> Pixels() const { return pixels_; }

    /// Repaints at once what is shown on a screen; nothing happens where the surface is memory alone.
    virtual void Refresh() {}

  protected:
    /// Called behind each change of the size.
    virtual void Resized() {}

  private:
    static constexpr std::uint32_t Opaque = 0xFF000000U;

    int                        width_;
    int                        height_;
    Rgb                        backColour_;
    std::vector<std::uint32_t> pixels_;
};

} // namespace qf::core
