#pragma once

namespace qf::core {

/// A pixel in twips, the unit in which places and sizes are told.
inline constexpr int TwipsPerPixel = 15;

} // namespace qf::core
