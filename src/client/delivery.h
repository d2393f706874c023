#pragma once

#include <string_view>

#include "client/platform.h"
#include "core/outlet.h"

namespace qf::client {

/// The topmost window of class "SDL_app" whose title holds "ClassicUO" in any case, or 0.
WindowHandle FindClientWindow(ClientPlatform& platform);

/// Types one command into the game client: finds its window anew, brings it to the front where it is
/// not (with a pause of 50 ms), posts one character message a character and a key pair for Enter.
///
/// `prefix` goes in front of the command unless `usePrefix` is false. `command` is UTF-8 and is typed in
/// the ANSI code page. Without a client window it shows one message on `boxes` and returns.
/// Throws RuntimeError 6 before anything is typed where the text is longer than 32,767 characters.
void SendCommand(ClientPlatform& platform, core::Outlet& boxes, std::string_view prefix, std::string_view command,
                 bool usePrefix = true);

} // namespace qf::client
