#include "client/delivery.h"

#include <chrono>
#include <limits>
#include <string>

#include "core/ansi.h"
#include "core/message.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::client {

namespace {

constexpr std::string_view ClientTitle = "ClassicUO";

constexpr std::chrono::milliseconds ForegroundPause{50};

// Repeat count 1, scan code 0x1C; on the way up also the previous state and the transition bit.
constexpr std::uint32_t ReturnDown = 0x001C0001;
constexpr std::uint32_t ReturnUp = 0xC01C0001;

void TypeLine(ClientPlatform& platform, WindowHandle client, std::string_view ansi)
{
    if (ansi.size() > static_cast<std::size_t>(std::numeric_limits<std::int16_t>::max())) {
        throw core::RuntimeError(core::error::Overflow);
    }
    for (const char character : ansi) {
        platform.Post(client, message::Char, static_cast<unsigned char>(character), 0);
    }
    platform.Post(client, message::KeyDown, message::ReturnKey, ReturnDown);
    platform.Post(client, message::KeyUp, message::ReturnKey, ReturnUp);
}

} // namespace

WindowHandle FindClientWindow(ClientPlatform& platform)
{
    WindowHandle found = 0;
    platform.EnumerateWindows([&found](const WindowInfo& window) {
        const std::string_view className = window.className;
        if (className.substr(0, className.find('\0')) != window_class::Sdl) {
            return true;
        }
        if (!core::ContainsIgnoringCase(window.title, ClientTitle)) {
            return true;
        }
        found = window.handle;
        return false;
    });
    return found;
}

void SendCommand(ClientPlatform& platform, core::Outlet& boxes, std::string_view prefix, std::string_view command,
                 bool usePrefix)
{
    const WindowHandle client = FindClientWindow(platform);
    if (client == 0) {
        boxes.Show(core::CriticalBox("Error: Could not find UO client window. Command not sent."));
        return;
    }

    std::string text;
    if (usePrefix) {
        text = prefix;
    }
    text += command;

    if (platform.ForegroundWindow() != client) {
        platform.ActivateWindow(client);
        platform.BringToForeground(client);
        platform.Pause(ForegroundPause);
    }
    TypeLine(platform, client, core::ToAnsi(text));
}

} // namespace qf::client
