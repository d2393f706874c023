#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qf::practice {

inline constexpr int GlyphWidth = 5;
inline constexpr int GlyphHeight = 9; ///< seven rows above the base line and two below
inline constexpr int GlyphAdvance = 6;

/// Whether a point of the glyph is set. A character without a glyph of its own is an empty box.
bool GlyphPoint(char32_t character, int column, int row);

/// Takes the next character off UTF-8 text. A byte that starts no valid sequence is U+FFFD.
char32_t NextCharacter(std::string_view& text);

/// The number of characters of UTF-8 text.
std::size_t CharacterCount(std::string_view text);

} // namespace qf::practice
