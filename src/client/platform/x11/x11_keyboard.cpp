#include "client/platform/x11/x11_keyboard.h"

#include <algorithm>
#include <array>

namespace qf::client {

std::optional<KeyStroke> X11Keyboard::Find(std::uint16_t label)
{
    if (stale_) {
        keymap_ = LoadKeymap(connection_.Raw());
        stale_ = false;
    }
    return keymap_.strokes[label];
}

std::optional<KeyStroke> X11Keyboard::Borrow(std::uint16_t label)
{
    const xcb_keysym_t symbol = SymbolOf(label);
    auto&              spare = keymap_.spare;
    // A map read anew may not show yet what was lent a moment ago.
    while (!spare.empty() && std::any_of(borrowed_.begin(), borrowed_.end(),
                                         [&spare](const Borrowed& one) { return one.code == spare.back(); })) {
        spare.pop_back();
    }
    if (symbol == XCB_NO_SYMBOL || spare.empty()) {
        return std::nullopt;
    }
    const xcb_keycode_t code = spare.back();
    spare.pop_back();

    // The symbol stands on both levels, since one alone would be shifted between lower and upper case.
    const std::array<xcb_keysym_t, 2> row{symbol, symbol};
    xcb_change_keyboard_mapping(connection_.Raw(), 1, code, row.size(), row.data());
    borrowed_.push_back({code, symbol});
    return keymap_.strokes[label] = KeyStroke{code, 0};
}

void X11Keyboard::GiveBack()
{
    for (const Borrowed& one : borrowed_) {
        // Another layout may have been loaded meanwhile, and a key of it is not ours to clear.
        const auto request = xcb_get_keyboard_mapping(connection_.Raw(), one.code, 1);
        const Reply<xcb_get_keyboard_mapping_reply_t> row(
            xcb_get_keyboard_mapping_reply(connection_.Raw(), request, nullptr));
        if (!row || xcb_get_keyboard_mapping_keysyms_length(row.get()) == 0 ||
            xcb_get_keyboard_mapping_keysyms(row.get())[0] != one.symbol) {
            continue;
        }
        const xcb_keysym_t nothing = XCB_NO_SYMBOL;
        xcb_change_keyboard_mapping(connection_.Raw(), 1, one.code, 1, &nothing);
        stale_ = true;
    }
    if (!borrowed_.empty()) {
        borrowed_.clear();
        connection_.Settle();
    }
}

} // namespace qf::client
