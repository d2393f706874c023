#include "client/platform/x11/x11_connection.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>
#include <utility>

#include <poll.h>

#include "client/platform/x11/xkb_protocol.h"
#include "core/runtime_error.h"

namespace qf::client {

namespace {

// Texts longer than this (in units of four bytes) are cut; titles and lists of windows are far shorter.
constexpr std::uint32_t LongestProperty = 1U << 16;

// A reply may bring along the event that is waited for, so the server is never slept on for longer.
constexpr std::chrono::milliseconds LongestSleep{10};

} // namespace

X11Connection::X11Connection(const std::string& display)
{
    int screenNumber = 0;
    connection_.reset(xcb_connect(display.empty() ? nullptr : display.c_str(), &screenNumber));
    if (!Alive()) {
        throw core::RuntimeError(core::error::DeviceUnavailable);
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(Raw()));
    for (; screens.rem > 0 && screenNumber > 0; --screenNumber) {
        xcb_screen_next(&screens);
    }
    if (screens.rem == 0) {
        throw core::RuntimeError(core::error::DeviceUnavailable);
    }
    root_ = screens.data->root;
    InternAtoms();
    StartKeyboardExtension();
}

void X11Connection::InternAtoms()
{
    const std::array<std::pair<std::string_view, xcb_atom_t*>, 10> wanted{{
        {"_NET_ACTIVE_WINDOW", &atoms_.netActiveWindow},
        {"_NET_CLIENT_LIST_STACKING", &atoms_.netClientListStacking},
        {"_NET_SUPPORTED", &atoms_.netSupported},
        {"_NET_SUPPORTING_WM_CHECK", &atoms_.netSupportingWmCheck},
        {"_NET_WM_NAME", &atoms_.netWmName},
        {"_NET_WM_PID", &atoms_.netWmPid},
        {"_NET_WM_PING", &atoms_.netWmPing},
        {"UTF8_STRING", &atoms_.utf8String},
        {"WM_PROTOCOLS", &atoms_.wmProtocols},
        {"WM_STATE", &atoms_.wmState},
    }};

    std::array<xcb_intern_atom_cookie_t, wanted.size()> requests{};
    std::transform(wanted.begin(), wanted.end(), requests.begin(), [this](const auto& atom) {
        return xcb_intern_atom(Raw(), 0, static_cast<std::uint16_t>(atom.first.size()), atom.first.data());
    });
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(Raw(), requests[i], nullptr));
        if (!reply) {
            throw core::RuntimeError(core::error::DeviceUnavailable);
        }
        *wanted[i].second = reply->atom;
    }
}

void X11Connection::StartKeyboardExtension()
{
    const auto request = xcb_xkb_use_extension(Raw(), XCB_XKB_MAJOR_VERSION, XCB_XKB_MINOR_VERSION);
    const Reply<xcb_xkb_use_extension_reply_t> reply(xcb_xkb_use_extension_reply(Raw(), request, nullptr));
    const xcb_query_extension_reply_t*         extension = xcb_get_extension_data(Raw(), &xcb_xkb_id);
    if (!reply || reply->supported == 0 || extension == nullptr || extension->present == 0) {
        throw core::RuntimeError(core::error::DeviceUnavailable);
    }
    keyboardEvent_ = extension->first_event;

    constexpr std::uint16_t Kinds =
        XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY | XCB_XKB_EVENT_TYPE_STATE_NOTIFY;
    constexpr std::uint16_t MapParts = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                       XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_VIRTUAL_MODS |
                                       XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;

    xcb_xkb_select_events_details_t details{};
    details.affectNewKeyboard = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.newKeyboardDetails = XCB_XKB_NKN_DETAIL_KEYCODES;
    details.affectState = XCB_XKB_STATE_PART_GROUP_STATE;
    details.stateDetails = XCB_XKB_STATE_PART_GROUP_STATE;
    xcb_xkb_select_events_aux(Raw(), XCB_XKB_ID_USE_CORE_KBD, Kinds, 0, 0, MapParts, MapParts, &details);
}

void X11Connection::Settle() const
{
    const auto request = xcb_get_input_focus(Raw());
    Reply<xcb_get_input_focus_reply_t>(xcb_get_input_focus_reply(Raw(), request, nullptr));
}

xcb_get_property_cookie_t X11Connection::Ask(xcb_window_t window, xcb_atom_t property, xcb_atom_t type) const
{
    return xcb_get_property(Raw(), 0, window, property, type, 0, LongestProperty);
}

std::optional<X11Property> X11Connection::Take(xcb_get_property_cookie_t request) const
{
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(Raw(), request, nullptr));
    if (!reply || reply->type == XCB_ATOM_NONE) {
        return std::nullopt;
    }
    const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
    const auto bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));

    X11Property property;
    property.type = reply->type;
    if (reply->format == 8) {
        property.text.assign(bytes, length);
    } else if (reply->format == 32 && length >= sizeof(std::uint32_t)) {
        property.numbers.resize(length / sizeof(std::uint32_t));
        std::memcpy(property.numbers.data(), bytes, property.numbers.size() * sizeof(std::uint32_t));
    }
    return property;
}

void X11Connection::SelectEvents(xcb_window_t window, std::uint32_t mask) const
{
    xcb_change_window_attributes(Raw(), window, XCB_CW_EVENT_MASK, &mask);
}

void X11Connection::SendClientMessage(xcb_window_t destination, std::uint32_t mask, xcb_window_t window,
                                      xcb_atom_t type, std::uint32_t first, std::uint32_t second,
                                      std::uint32_t third) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = type;
    event.data.data32[0] = first;
    event.data.data32[1] = second;
    event.data.data32[2] = third;
    xcb_send_event(Raw(), 0, destination, mask, reinterpret_cast<const char*>(&event));
}

void X11Connection::Pump() const
{
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(Raw())}) {
        if (onEvent) {
            onEvent(*event);
        }
    }
}

bool X11Connection::WaitUntil(std::chrono::milliseconds limit, const std::function<bool()>& done) const
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    Flush();
    for (;;) {
        Pump();
        if (done()) {
            return true;
        }
        const auto now = std::chrono::steady_clock::now();
        if (now >= deadline || !Alive()) {
            return false;
        }
        const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - now);
        const auto sleep = std::clamp(left, std::chrono::milliseconds{1}, LongestSleep);
        pollfd     waited{xcb_get_file_descriptor(Raw()), POLLIN, 0};
        poll(&waited, 1, static_cast<int>(sleep.count()));
    }
}

} // namespace qf::client
