#include "core/pixel_surface.h"

#include <algorithm>
#include <cmath>

namespace qf::core {

namespace {

std::size_t Area(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

} // namespace

PixelSurface::PixelSurface(int width, int height, Rgb backColour)
    : width_(std::max(width, 0)),
      height_(std::max(height, 0)),
      backColour_(backColour),
      pixels_(Area(width_, height_), Opaque | backColour)
{}

void PixelSurface::SetBackColour(Rgb colour)
{
    backColour_ = colour;
    std::fill(pixels_.begin(), pixels_.end(), Opaque | colour);
}

void PixelSurface::SetSize(int width, int height)
{
    width = std::max(width, 0);
    height = std::max(height, 0);
    if (width == width_ && height == height_) {
        return;
    }
    std::vector<std::uint32_t> resized(Area(width, height), Opaque | backColour_);
    const auto                 kept = static_cast<std::size_t>(std::min(width, width_));
    for (int y = 0; y < std::min(height, height_); ++y) {
        std::copy_n(pixels_.begin() + static_cast<std::ptrdiff_t>(Area(width_, y)), kept,
                    resized.begin() + static_cast<std::ptrdiff_t>(Area(width, y)));
    }
    pixels_ = std::move(resized);
    width_ = width;
    height_ = height;
    Resized();
}

void PixelSurface::Paint(const PixelSurface& picture, double x, double y)
{
    const auto left = std::lround(x);
    const auto top = std::lround(y);
    for (int row = 0; row < picture.height_; ++row) {
        const auto* line = picture.pixels_.data() + Area(picture.width_, row);
        PlotLine(left, top + row, picture.width_, [line](std::int64_t column) { return line[column]; });
    }
}

} // namespace qf::core
