#include "client/client_process.h"

#include <array>
#include <string_view>

namespace qf::client {

namespace {

constexpr std::string_view AssistClass = "UOASSIST-TP-MSG-WND";

constexpr std::array<std::string_view, 3> ClassicClasses{
    "Ultima Online",
    "Ultima Online Third Dawn",
    "Ultima Online 3D",
};

} // namespace

WindowHandle FindClassicClient(ClientPlatform& platform)
{
    for (const std::string_view className : ClassicClasses) {
        const WindowHandle window = platform.FindWindowByClass(className);
        if (window != 0 && platform.IsWindow(window)) {
            return window;
        }
    }
    return 0;
}

std::optional<std::int32_t> AskAssist(ClientPlatform& platform)
{
    const WindowHandle assist = platform.FindWindowByClass(AssistClass);
    if (assist <= 1) {
        return std::nullopt;
    }
    return platform.Send(assist, message::AssistPosition);
}

} // namespace qf::client
