#pragma once

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <xcb/xcb.h>

namespace qf::client {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

/// A reply, an event or an error as the server sent it.
template <typename T>
using Reply = std::unique_ptr<T, FreeReply>;

/// The atoms that the platform asks for and sends.
struct X11Atoms {
    xcb_atom_t netActiveWindow = XCB_ATOM_NONE;
    xcb_atom_t netClientListStacking = XCB_ATOM_NONE;
    xcb_atom_t netSupported = XCB_ATOM_NONE;
    xcb_atom_t netSupportingWmCheck = XCB_ATOM_NONE;
    xcb_atom_t netWmName = XCB_ATOM_NONE;
    xcb_atom_t netWmPid = XCB_ATOM_NONE;
    xcb_atom_t netWmPing = XCB_ATOM_NONE;
    xcb_atom_t utf8String = XCB_ATOM_NONE;
    xcb_atom_t wmProtocols = XCB_ATOM_NONE;
    xcb_atom_t wmState = XCB_ATOM_NONE;
};

/// A property's value: bytes of format 8, or numbers of format 32.
struct X11Property {
    xcb_atom_t                 type = XCB_ATOM_NONE;
    std::string                text;
    std::vector<std::uint32_t> numbers;
};

/// A connection to an X server with what every part of the platform needs of it. Errors of the server
/// are events like any other; none ends the program.
class X11Connection {
  public:
    /// Connects to a display; an empty name means the one of the environment.
    /// Throws RuntimeError 68 where there is none, or one without the keyboard extension.
    explicit X11Connection(const std::string& display);

    xcb_connection_t* Raw() const { return connection_.get(); }
    xcb_window_t      Root() const { return root_; }
    const X11Atoms&   Atoms() const { return atoms_; }

    /// The number of every event of the keyboard extension.
    std::uint8_t KeyboardEvent() const { return keyboardEvent_; }

    /// False once the server has gone away.
    bool Alive() const { return xcb_connection_has_error(connection_.get()) == 0; }

    void Flush() const { xcb_flush(connection_.get()); }

    /// Waits until the server has done all that was asked of it. A connection that ends earlier may take
    /// requests with it that were sent already.
    void Settle() const;

    xcb_get_property_cookie_t  Ask(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) const;
    std::optional<X11Property> Take(xcb_get_property_cookie_t request) const;

    /// Selects the events that a window reports to this connection. The idle program selects none, because
    /// the server would keep them for it without bound.
    void SelectEvents(xcb_window_t window, std::uint32_t mask) const;

    /// Sends a client message of format 32.
    void SendClientMessage(xcb_window_t destination, std::uint32_t mask, xcb_window_t window, xcb_atom_t type,
                           std::uint32_t first, std::uint32_t second, std::uint32_t third) const;

    /// Hears every event and every error that answers no request.
    std::function<void(const xcb_generic_event_t&)> onEvent;

    /// Hands over the events that have arrived.
    void Pump() const;

    /// Handles events until `done` gives true; false where the time or the server ran out first.
    bool WaitUntil(std::chrono::milliseconds limit, const std::function<bool()>& done) const;

  private:
    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    void InternAtoms();
    void StartKeyboardExtension();

    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    xcb_window_t                                  root_ = XCB_WINDOW_NONE;
    X11Atoms                                      atoms_;
    std::uint8_t                                  keyboardEvent_ = 0;
};

} // namespace qf::client
