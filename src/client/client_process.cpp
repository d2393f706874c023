#include "client/client_process.h"

#include <string_view>

namespace qf::client {

WindowHandle FindClassicClient(ClientPlatform& platform)
{
    for (const std::string_view className : window_class::Classic) {
        const WindowHandle window = platform.FindWindowByClass(className);
        if (window != 0 && platform.IsWindow(window)) {
            return window;
        }
    }
    return 0;
}

std::optional<std::int32_t> AskAssist(ClientPlatform& platform)
{
    const WindowHandle assist = platform.FindWindowByClass(window_class::Assist);
    if (assist <= 1) {
        return std::nullopt;
    }
    return platform.Send(assist, message::AssistPosition);
}

} // namespace qf::client
