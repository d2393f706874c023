#include "client/platform/x11/x11_platform.h"

#include <limits>
#include <thread>

namespace qf::client {

namespace {

/// The window's number on the server, or none for a handle that cannot be one.
xcb_window_t NumberOf(WindowHandle window)
{
    return window <= std::numeric_limits<xcb_window_t>::max() ? static_cast<xcb_window_t>(window)
                                                              : xcb_window_t{XCB_WINDOW_NONE};
}

} // namespace

X11Platform::X11Platform(const std::string& display) : connection_(display), desktop_(connection_), typist_(connection_)
{
    connection_.onEvent = [this](const xcb_generic_event_t& event) { typist_.Hear(event); };
}

void X11Platform::EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit)
{
    for (const WindowInfo& window : desktop_.Windows()) {
        if (!visit(window)) {
            return;
        }
    }
}

WindowHandle X11Platform::ForegroundWindow()
{
    return desktop_.Foreground();
}

void X11Platform::ActivateWindow(WindowHandle /*window*/) {}

void X11Platform::BringToForeground(WindowHandle window)
{
    desktop_.BringToForeground(NumberOf(window));
}

void X11Platform::Pause(std::chrono::milliseconds time)
{
    connection_.Flush();
    std::this_thread::sleep_for(time);
}

bool X11Platform::Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t /*lParam*/)
{
    const xcb_window_t target = NumberOf(window);
    if (target == XCB_WINDOW_NONE) {
        return false;
    }
    switch (message) {
    case message::Char: return typist_.TypeCharacter(target, static_cast<unsigned char>(wParam));
    case message::KeyDown:
    case message::KeyUp: return wParam == message::ReturnKey && typist_.TypeReturn(target, message == message::KeyDown);
    default: return false;
    }
}

WindowHandle X11Platform::FindWindowByClass(std::string_view className)
{
    for (const WindowInfo& window : desktop_.Windows()) {
        if (window.className == className) {
            return window.handle;
        }
    }
    return 0;
}

bool X11Platform::IsWindow(WindowHandle window)
{
    const xcb_window_t number = NumberOf(window);
    return number != XCB_WINDOW_NONE && desktop_.Exists(number);
}

std::int32_t X11Platform::Send(WindowHandle /*window*/, std::uint32_t /*message*/)
{
    return 0;
}

ProcessId X11Platform::ProcessOf(WindowHandle window)
{
    return desktop_.ProcessOf(NumberOf(window));
}

ProcessHandle X11Platform::OpenProcess(ProcessId process)
{
    return memory_.Open(process);
}

bool X11Platform::ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer)
{
    return memory_.Read(process, address, buffer);
}

void X11Platform::CloseProcess(ProcessHandle process)
{
    memory_.Close(process);
}

} // namespace qf::client
