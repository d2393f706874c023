#pragma once

#include <cstdint>

#include <xcb/xcb.h>

#include "client/platform/x11/x11_connection.h"
#include "client/platform/x11/x11_keyboard.h"

namespace qf::client {

/// Types at windows by key events sent to them, no faster than they read.
///
/// A client's event queue is bounded, and what does not fit is lost without a word. So keys go out in
/// bursts, and behind each burst the window is pinged and its answer waited for. The events carry a
/// modifier state of their own, so that neither the locks nor what the user holds down changes the text.
class X11Typist {
  public:
    explicit X11Typist(X11Connection& connection) : connection_(connection), keyboard_(connection) {}
    ~X11Typist();
    X11Typist(const X11Typist&) = delete;
    X11Typist& operator=(const X11Typist&) = delete;

    /// Presses and releases the key of an ANSI character. Control characters are no text, and nothing is
    /// typed for them. False where the window is gone.
    bool TypeCharacter(xcb_window_t window, unsigned char character);

    /// Presses or releases Enter; the release ends a line and hands it over. False where the window is gone.
    bool TypeReturn(xcb_window_t window, bool press);

    /// Hears what the server reports.
    void Hear(const xcb_generic_event_t& event);

  private:
    bool                     Reaches(xcb_window_t window);
    std::optional<KeyStroke> StrokeOf(std::uint16_t label);
    void                     SendKey(std::uint8_t type, const KeyStroke& stroke);
    void                     AwaitReader();
    bool                     AnswersPings() const;

    X11Connection& connection_;
    X11Keyboard    keyboard_;
    xcb_window_t   window_ = XCB_WINDOW_NONE;
    bool           gone_ = false;
    int            lines_ = 0;
    int            keys_ = 0;

    // Window managers number their pings too, from 1 or by the server's clock; the answers to these
    // are no numbers of theirs.
    std::uint32_t ping_ = 0xF1A00000;
    bool          answered_ = false;
};

} // namespace qf::client
