#pragma once

#include <map>
#include <utility>
#include <vector>

#include <xcb/xcb.h>

#include "client/platform.h"
#include "client/platform/x11/x11_connection.h"

namespace qf::client {

/// The windows of an X11 desktop, with a window manager and without.
class X11Desktop {
  public:
    explicit X11Desktop(X11Connection& connection) : connection_(connection) {}

    /// The top-level windows, the topmost first.
    std::vector<WindowInfo> Windows();

    /// The top-level window that the keyboard goes to, or 0.
    xcb_window_t Foreground();

    /// Brings a window to the front with the keyboard, and waits for that half a second at most.
    void BringToForeground(xcb_window_t window);

    bool      Exists(xcb_window_t window) const;
    ProcessId ProcessOf(xcb_window_t window) const;

  private:
    struct ManagerRequest {
        xcb_get_property_cookie_t named;
        xcb_get_property_cookie_t confirmed;
        xcb_window_t              window;
    };

    struct WindowRequest {
        xcb_window_t              window;
        xcb_get_property_cookie_t wmClass;
        xcb_get_property_cookie_t netName;
        xcb_get_property_cookie_t name;
        xcb_get_property_cookie_t process;
    };

    ManagerRequest             AskForManager() const;
    std::vector<WindowRequest> AskFor(const std::vector<xcb_window_t>& windows) const;
    bool                       ManagerRuns(const ManagerRequest& request);
    bool                       ManagerSupports(xcb_atom_t feature) const;
    std::vector<xcb_window_t>  Handles();
    std::vector<xcb_window_t>  ClientsAmong(const Reply<xcb_query_tree_reply_t>& tree, int depth) const;
    xcb_window_t               ClientInside(xcb_window_t window, int depth) const;
    xcb_window_t               TopLevelOf(xcb_window_t window) const;
    bool                       IsSdl(xcb_window_t window, ProcessId process);

    X11Connection& connection_;
    xcb_window_t   manager_ = XCB_WINDOW_NONE;

    // The windows of the last enumeration.
    std::vector<xcb_window_t> last_;

    // A window is made by the library that its process had loaded, so what was found holds as long as
    // the window is there.
    std::map<std::pair<xcb_window_t, ProcessId>, bool> sdl_;
};

} // namespace qf::client
