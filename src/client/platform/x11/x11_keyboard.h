#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "client/platform/x11/x11_connection.h"
#include "client/platform/x11/x11_keymap.h"

namespace qf::client {

/// Finds the stroke of each character on the keyboard in force, and lends spare keycodes to the
/// characters that it lacks.
class X11Keyboard {
  public:
    explicit X11Keyboard(X11Connection& connection) : connection_(connection) {}
    ~X11Keyboard() { GiveBack(); }
    X11Keyboard(const X11Keyboard&) = delete;
    X11Keyboard& operator=(const X11Keyboard&) = delete;

    /// The stroke of a label as the keyboard stands, nothing where no key carries it.
    std::optional<KeyStroke> Find(std::uint16_t label);

    /// Puts the label's symbol on a spare keycode; nothing where none is left. Every program of the
    /// desktop sees the keycode until it is given back.
    std::optional<KeyStroke> Borrow(std::uint16_t label);

    bool HasBorrowed() const { return !borrowed_.empty(); }

    /// Takes the symbols off the borrowed keycodes again. Whoever was typed at must have read its keys.
    void GiveBack();

    /// The server's map has changed, or the layout group in force has.
    void MarkStale() { stale_ = true; }

  private:
    struct Borrowed {
        xcb_keycode_t code;
        xcb_keysym_t  symbol;
    };

    X11Connection&        connection_;
    X11Keymap             keymap_;
    bool                  stale_ = true;
    std::vector<Borrowed> borrowed_;
};

} // namespace qf::client
