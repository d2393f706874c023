#include "practice/window_icon.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>

namespace qf::practice {

namespace {

constexpr int         Side = 64;
constexpr std::size_t BytesOfRow = Side * 4;
constexpr std::size_t BytesOfHeader = 40;

/// The emblem as a file of icons holds it: a header, the rows from the lowest one up, and a mask of one bit a pixel.
constexpr std::uint8_t emblem[] = {
#include "emblem.inc"
};
static_assert(sizeof emblem >= BytesOfHeader + Side * BytesOfRow);

} // namespace

void SetIcon(SDL_Window& window)
{
    std::array<std::uint8_t, Side * BytesOfRow> pixels{};
    for (std::size_t row = 0; row < Side; ++row) {
        std::copy_n(emblem + BytesOfHeader + (Side - 1 - row) * BytesOfRow, BytesOfRow,
                    pixels.data() + row * BytesOfRow);
    }
    const std::unique_ptr<SDL_Surface, decltype(&SDL_FreeSurface)> icon(
        SDL_CreateRGBSurfaceWithFormatFrom(pixels.data(), Side, Side, 32, static_cast<int>(BytesOfRow),
                                           SDL_PIXELFORMAT_BGRA32),
        &SDL_FreeSurface);
    if (icon) {
        SDL_SetWindowIcon(&window, icon.get());
    }
}

} // namespace qf::practice
