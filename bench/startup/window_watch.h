#pragma once

#include <chrono>
#include <memory>
#include <string>

#include <xcb/xcb.h>

namespace qf::bench {

using Clock = std::chrono::steady_clock;

/// Sees windows come up on the display, through the server's events.
class WindowWatch {
  public:
    /// Watches the display that the environment names. Throws where there is none.
    WindowWatch();

    struct Shown {
        xcb_window_t      window;
        Clock::time_point when;
    };

    /// The next window of this title that is mapped, and the moment at which the server told it. Throws where none
    /// comes within the patience.
    Shown WaitFor(const std::string& title, Clock::duration patience);

    /// Asks a window's program to close it, as the window manager does.
    void Close(xcb_window_t window) const;

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    xcb_atom_t  Atom(const std::string& name) const;
    std::string TitleOf(xcb_window_t window) const;
    bool        Follow(xcb_window_t window) const;

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_atom_t                                    name_{};
    xcb_atom_t                                    utf8_{};
    xcb_atom_t                                    protocols_{};
    xcb_atom_t                                    deleteWindow_{};
};

} // namespace qf::bench
