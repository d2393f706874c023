#include "window_watch.h"

#include <cstdlib>
#include <stdexcept>

#include <poll.h>

namespace qf::bench {

namespace {

constexpr std::uint8_t  EventMask = 0x7F;
constexpr std::uint32_t LongestTitle = 256;

struct Free {
    void operator()(void* memory) const { std::free(memory); }
};

template <typename Reply>
using Held = std::unique_ptr<Reply, Free>;

template <typename Reply>
Held<Reply> Hold(Reply* reply)
{
    return Held<Reply>(reply);
}

} // namespace

WindowWatch::WindowWatch() : connection_(xcb_connect(nullptr, nullptr))
{
    auto* connection = connection_.get();
    if (xcb_connection_has_error(connection) != 0) {
        throw std::runtime_error("no display");
    }
    name_ = Atom("_NET_WM_NAME");
    utf8_ = Atom("UTF8_STRING");
    protocols_ = Atom("WM_PROTOCOLS");
    deleteWindow_ = Atom("WM_DELETE_WINDOW");
    const auto          root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const std::uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
    xcb_flush(connection);
}

WindowWatch::Shown WindowWatch::WaitFor(const std::string& title, Clock::duration patience)
{
    auto*      connection = connection_.get();
    const auto end = Clock::now() + patience;
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        const auto event = Hold(xcb_poll_for_event(connection));
        if (!event) {
            pollfd     ready{xcb_get_file_descriptor(connection), POLLIN, 0};
            const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - now);
            poll(&ready, 1, static_cast<int>(left.count()) + 1);
            if (xcb_connection_has_error(connection) != 0) {
                throw std::runtime_error("the display is gone");
            }
            continue;
        }
        const auto type = event->response_type & EventMask;
        if (type == XCB_CREATE_NOTIFY) {
            const auto window = reinterpret_cast<const xcb_create_notify_event_t*>(event.get())->window;
            if (Follow(window) && TitleOf(window) == title) {
                return {window, now};
            }
        } else if (type == XCB_MAP_NOTIFY) {
            const auto& mapped = *reinterpret_cast<const xcb_map_notify_event_t*>(event.get());
            // A window that is a child of the root tells it twice, to the root's watchers too.
            if (mapped.event == mapped.window && TitleOf(mapped.window) == title) {
                return {mapped.window, now};
            }
        }
    }
    throw std::runtime_error("no window \"" + title + "\" is shown");
}

void WindowWatch::Close(xcb_window_t window) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = protocols_;
    event.data.data32[0] = deleteWindow_;
    xcb_send_event(connection_.get(), 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(connection_.get());
}

xcb_atom_t WindowWatch::Atom(const std::string& name) const
{
    const auto request = xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str());
    const auto reply = Hold(xcb_intern_atom_reply(connection_.get(), request, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string WindowWatch::TitleOf(xcb_window_t window) const
{
    const auto request = xcb_get_property(connection_.get(), 0, window, name_, utf8_, 0, LongestTitle);
    const auto reply = Hold(xcb_get_property_reply(connection_.get(), request, nullptr));
    if (!reply) {
        return {};
    }
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

/// A window manager takes a window into its frame before it maps it, so the root's watchers do not hear of that; the
/// window's own do.
bool WindowWatch::Follow(xcb_window_t window) const
{
    const std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection_.get(), window, XCB_CW_EVENT_MASK, &mask);
    const auto request = xcb_get_window_attributes(connection_.get(), window);
    const auto reply = Hold(xcb_get_window_attributes_reply(connection_.get(), request, nullptr));
    return reply && reply->map_state == XCB_MAP_STATE_VIEWABLE;
}

} // namespace qf::bench
