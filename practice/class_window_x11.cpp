#include <unistd.h>
#include <xcb/xcb.h>

#include <array>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string_view>
#include <vector>

#include "practice/class_window.h"
#include "practice/font.h"

namespace qf::practice {

namespace {

constexpr std::uint16_t WindowWidth = 372;
constexpr std::uint16_t WindowHeight = 42;
constexpr int           TextScale = 2;
constexpr std::uint32_t BackColour = 0x202830;
constexpr std::uint32_t TextColour = 0xE8ECF0;

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); } // NOLINT: the library allocates it
};

template <typename Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeReply>;

} // namespace

struct ClassWindow::Native {
    xcb_connection_t* connection = nullptr;
    xcb_window_t      window = 0;
    xcb_gcontext_t    context = 0;
    xcb_atom_t        protocols = 0;
    xcb_atom_t        deleteWindow = 0;
    std::string       title;

    Native() = default;
    Native(const Native&) = delete;
    Native& operator=(const Native&) = delete;
    ~Native() { xcb_disconnect(connection); }

    xcb_atom_t Atom(std::string_view name) const
    {
        const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
        const ReplyPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
        return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }

    void SetText(xcb_atom_t property, xcb_atom_t type, std::string_view text) const
    {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    }

    void SetNumber(xcb_atom_t property, xcb_atom_t type, std::uint32_t number) const
    {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, property, type, 32, 1, &number);
    }

    void SetProperties()
    {
        using namespace std::string_view_literals;
        SetText(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, "Ultima Online\0Ultima Online\0"sv);
        SetNumber(Atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, static_cast<std::uint32_t>(getpid()));
        std::array<char, 256> host{};
        if (gethostname(host.data(), host.size() - 1) == 0) {
            SetText(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, host.data());
        }
        protocols = Atom("WM_PROTOCOLS");
        deleteWindow = Atom("WM_DELETE_WINDOW");
        SetNumber(protocols, XCB_ATOM_ATOM, deleteWindow);
        // What is typed is meant for the other window: this one asks for no keyboard focus.
        constexpr std::array<std::uint32_t, 9> Hints{1U /* the input field counts */, 0U /* no input */};
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, 32,
                            static_cast<std::uint32_t>(Hints.size()), Hints.data());
        SetNumber(Atom("_NET_WM_USER_TIME"), XCB_ATOM_CARDINAL, 0);
    }

    void Paint() const
    {
        std::vector<xcb_rectangle_t> points;
        std::string_view             rest = title;
        for (int i = 0; !rest.empty(); ++i) {
            const char32_t character = NextCharacter(rest);
            for (int row = 0; row < GlyphHeight; ++row) {
                for (int column = 0; column < GlyphWidth; ++column) {
                    if (GlyphPoint(character, column, row)) {
                        points.push_back({static_cast<std::int16_t>(12 + (i * GlyphAdvance + column) * TextScale),
                                          static_cast<std::int16_t>(13 + row * TextScale), TextScale, TextScale});
                    }
                }
            }
        }
        xcb_clear_area(connection, 0, window, 0, 0, 0, 0);
        xcb_poly_fill_rectangle(connection, window, context, static_cast<std::uint32_t>(points.size()), points.data());
        xcb_flush(connection);
    }
};

ClassWindow::ClassWindow() : native_(std::make_unique<Native>())
{
    int screenNumber = 0;
    native_->connection = xcb_connect(nullptr, &screenNumber);
    if (xcb_connection_has_error(native_->connection) != 0) {
        throw std::runtime_error("there is no X display for the position window");
    }
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(native_->connection));
    for (; screenNumber > 0 && screens.rem > 1; --screenNumber) {
        xcb_screen_next(&screens);
    }
    const xcb_screen_t* screen = screens.data;

    native_->window = xcb_generate_id(native_->connection);
    const std::uint32_t windowValues[] = {BackColour, XCB_EVENT_MASK_EXPOSURE};
    xcb_create_window(native_->connection, XCB_COPY_FROM_PARENT, native_->window, screen->root, 0, 0, WindowWidth,
                      WindowHeight, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, windowValues);
    native_->context = xcb_generate_id(native_->connection);
    xcb_create_gc(native_->connection, native_->context, native_->window, XCB_GC_FOREGROUND, &TextColour);
    native_->SetProperties();
    xcb_map_window(native_->connection, native_->window);
    xcb_flush(native_->connection);
}

ClassWindow::~ClassWindow() = default;

void ClassWindow::Show(const Position& position)
{
    native_->title = PositionTitle(position);
    native_->SetText(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, native_->title);
    native_->SetText(native_->Atom("_NET_WM_NAME"), native_->Atom("UTF8_STRING"), native_->title);
    native_->Paint();
}

bool ClassWindow::HandleEvents()
{
    while (const auto event = ReplyPointer<xcb_generic_event_t>(xcb_poll_for_event(native_->connection))) {
        const unsigned type = event->response_type & 0x7FU;
        if (type == XCB_EXPOSE) {
            native_->Paint();
        } else if (type == XCB_CLIENT_MESSAGE) {
            const auto* message = reinterpret_cast<const xcb_client_message_event_t*>(event.get()); // NOLINT
            if (message->type == native_->protocols && message->data.data32[0] == native_->deleteWindow) {
                return false;
            }
        }
    }
    return xcb_connection_has_error(native_->connection) == 0;
}

} // namespace qf::practice
