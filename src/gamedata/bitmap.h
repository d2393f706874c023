#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "core/pixel_surface.h"

namespace qf::gamedata {

/// The picture as a bitmap file of 24 bits a pixel, in place of what the buffer holds.
void WriteBitmap(const core::PixelSurface& picture, std::vector<std::byte>& file);

/// Reads an uncompressed bitmap file of 24 or 32 bits a pixel onto the surface, which takes its size. False,
/// with the surface untouched, where the bytes are anything else or not whole.
bool ReadBitmap(std::span<const std::byte> file, core::PixelSurface& picture);

} // namespace qf::gamedata
