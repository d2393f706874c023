#include "client/platform/x11/x11_typist.h"

#include <algorithm>
#include <chrono>

namespace qf::client {

namespace {

// At each release of a key SDL looks through all events that wait behind it, so what a client needs for a
// burst grows with the square of its length; and what a client of another make holds is not known.
constexpr int LinesPerBurst = 20;
constexpr int KeysPerBurst = 600;

constexpr std::chrono::milliseconds AnswerWait{5000};

// For a window that answers no pings: the time in which a client draws a frame or two.
constexpr std::chrono::milliseconds SilentWait{20};

constexpr std::uint8_t EventKind = 0x7F;

} // namespace

X11Typist::~X11Typist()
{
    if (keyboard_.HasBorrowed()) {
        AwaitReader();
    }
    connection_.Settle();
}

void X11Typist::Hear(const xcb_generic_event_t& event)
{
    if (event.response_type == 0) {
        const auto& error = reinterpret_cast<const xcb_generic_error_t&>(event);
        if (error.error_code == XCB_WINDOW && error.resource_id == window_) {
            gone_ = true;
        }
        return;
    }
    const std::uint8_t kind = event.response_type & EventKind;
    if (kind == connection_.KeyboardEvent() || kind == XCB_MAPPING_NOTIFY) {
        keyboard_.MarkStale();
    } else if (kind == XCB_DESTROY_NOTIFY) {
        gone_ = gone_ || reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == window_;
    } else if (kind == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == connection_.Atoms().wmProtocols && message.format == 32 &&
            message.data.data32[0] == connection_.Atoms().netWmPing && message.data.data32[1] == ping_ &&
            message.data.data32[2] == window_) {
            answered_ = true;
        }
    }
}

bool X11Typist::Reaches(xcb_window_t window)
{
    connection_.Pump();
    // A window's number may be given out anew, so one that was gone is looked at again.
    if (window == window_ && !gone_) {
        return connection_.Alive();
    }
    if (keyboard_.HasBorrowed()) {
        AwaitReader();
        keyboard_.GiveBack();
    }
    window_ = window;
    lines_ = 0;
    keys_ = 0;

    const auto request = xcb_get_window_attributes(connection_.Raw(), window);
    gone_ = Reply<xcb_get_window_attributes_reply_t>(
                xcb_get_window_attributes_reply(connection_.Raw(), request, nullptr)) == nullptr;
    return !gone_;
}

std::optional<KeyStroke> X11Typist::StrokeOf(std::uint16_t label)
{
    auto stroke = keyboard_.Find(label);
    if (!stroke) {
        stroke = keyboard_.Borrow(label);
    }
    if (!stroke && keyboard_.HasBorrowed()) {
        AwaitReader();
        keyboard_.GiveBack();
        stroke = keyboard_.Find(label);
        if (!stroke) {
            stroke = keyboard_.Borrow(label);
        }
    }
    return stroke;
}

void X11Typist::SendKey(std::uint8_t type, const KeyStroke& stroke)
{
    xcb_key_press_event_t event{};
    event.response_type = type;
    event.detail = stroke.code;
    event.time = XCB_CURRENT_TIME;
    event.root = connection_.Root();
    event.event = window_;
    event.state = stroke.state;
    event.same_screen = 1;
    const std::uint32_t mask = type == XCB_KEY_PRESS ? XCB_EVENT_MASK_KEY_PRESS : XCB_EVENT_MASK_KEY_RELEASE;
    xcb_send_event(connection_.Raw(), 0, window_, mask, reinterpret_cast<const char*>(&event));
}

bool X11Typist::TypeCharacter(xcb_window_t window, unsigned char character)
{
    if (!Reaches(window)) {
        return false;
    }
    if (SymbolOf(character) == XCB_NO_SYMBOL) {
        return true;
    }
    if (const auto stroke = StrokeOf(character)) {
        SendKey(XCB_KEY_PRESS, *stroke);
        SendKey(XCB_KEY_RELEASE, *stroke);
    }
    if (++keys_ >= KeysPerBurst) {
        AwaitReader();
    }
    return !gone_;
}

bool X11Typist::TypeReturn(xcb_window_t window, bool press)
{
    if (!Reaches(window)) {
        return false;
    }
    if (const auto stroke = StrokeOf(ReturnLabel)) {
        SendKey(press ? XCB_KEY_PRESS : XCB_KEY_RELEASE, *stroke);
    }
    if (press) {
        return true;
    }
    ++keys_;
    ++lines_;
    connection_.Flush();
    if (keyboard_.HasBorrowed()) {
        AwaitReader();
        keyboard_.GiveBack();
    } else if (lines_ >= LinesPerBurst) {
        AwaitReader();
    }
    return !gone_;
}

bool X11Typist::AnswersPings() const
{
    const auto request = connection_.Ask(window_, connection_.Atoms().wmProtocols, XCB_ATOM_ATOM);
    const auto protocols = connection_.Take(request);
    return protocols &&
           std::count(protocols->numbers.begin(), protocols->numbers.end(), connection_.Atoms().netWmPing) != 0;
}

void X11Typist::AwaitReader()
{
    lines_ = 0;
    keys_ = 0;
    if (!AnswersPings()) {
        connection_.WaitUntil(SilentWait, [this] { return gone_; });
        return;
    }
    ++ping_;
    answered_ = false;
    connection_.SelectEvents(window_, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    connection_.SelectEvents(connection_.Root(), XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY);
    connection_.SendClientMessage(window_, XCB_EVENT_MASK_NO_EVENT, window_, connection_.Atoms().wmProtocols,
                                  connection_.Atoms().netWmPing, ping_, window_);
    connection_.WaitUntil(AnswerWait, [this] { return answered_ || gone_; });
    connection_.SelectEvents(connection_.Root(), XCB_EVENT_MASK_NO_EVENT);
    if (!gone_) {
        connection_.SelectEvents(window_, XCB_EVENT_MASK_NO_EVENT);
    }
    connection_.Flush();
}

} // namespace qf::client
