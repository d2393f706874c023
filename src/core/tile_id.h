#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/generation.h"

namespace qf::core {

/// Four hex digits of a table in the written form of the generation: "04b5" gives "04 b5" under 0.70.x
/// and "0x04b5" under 0.9x.x. Case stays as written, an empty entry stays empty, and a generation that
/// is neither gives an empty text.
std::string TileIdText(std::string_view digits, ServerGeneration generation);

/// The tile number of a table's hex digits: 0x04B5 of "04b5". Throws RuntimeError 13 for what is no hex number of 32
/// bits.
std::int32_t TileNumberOf(std::string_view digits);

/// The tile number that an ID text names in the form of the generation: what follows "0x" under 0.9x.x,
/// the two pairs joined under 0.70.x, always positive for four digits. Throws RuntimeError 13 for a text
/// that is no such ID.
std::int32_t TileNumber(std::string_view idText, ServerGeneration generation);

/// "0x" with the number in upper-case hexadecimal without leading zeros: "0x5CE". Negative numbers are their
/// 32-bit pattern.
std::string HexNumberText(std::int32_t number);

} // namespace qf::core
