#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include <xcb/xcb.h>

namespace qf::client {

/// The key and the modifier state (layout group included) that together give one character.
struct KeyStroke {
    xcb_keycode_t code = 0;
    std::uint16_t state = 0;
};

/// What a key is labelled with: one of the 256 characters of the ANSI code page, or Enter.
inline constexpr std::uint16_t ReturnLabel = 256;
inline constexpr std::size_t   LabelCount = 257;

/// The symbol that a key of this label carries, XCB_NO_SYMBOL for a control character.
xcb_keysym_t SymbolOf(std::uint16_t label);

/// Where each character lies on the keyboard as the server maps it at one moment. Among the keys of a
/// character the layout group in force comes first, then the fewest modifiers. No stroke depends on Caps
/// Lock or Num Lock.
struct X11Keymap {
    std::array<std::optional<KeyStroke>, LabelCount> strokes;

    /// The keycodes that carry no symbol, the least usual ones last.
    std::vector<xcb_keycode_t> spare;
};

/// Reads the server's map; an empty one where the server does not answer.
X11Keymap LoadKeymap(xcb_connection_t* connection);

} // namespace qf::client
