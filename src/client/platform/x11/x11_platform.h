#pragma once

#include <string>

#include "client/platform.h"
#include "client/platform/x11/process_memory.h"
#include "client/platform/x11/x11_connection.h"
#include "client/platform/x11/x11_desktop.h"
#include "client/platform/x11/x11_typist.h"

namespace qf::client {

/// The client link's operations on an X11 desktop.
///
/// What is posted is sent at the end of each line at the latest, and with every other operation. A burst
/// of lines is waited for inside Post until the window has read it.
class X11Platform final : public ClientPlatform {
  public:
    /// Connects to a display; an empty name means the one of the environment.
    /// Throws RuntimeError 68 where there is none.
    explicit X11Platform(const std::string& display = {});

    void         EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit) override;
    WindowHandle ForegroundWindow() override;

    /// Does nothing: what makes a window active here is what brings it to the front.
    void ActivateWindow(WindowHandle window) override;
    void BringToForeground(WindowHandle window) override;
    void Pause(std::chrono::milliseconds time) override;

    /// Characters and Enter become key events; every other message gives false.
    bool         Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam) override;
    WindowHandle FindWindowByClass(std::string_view className) override;
    bool         IsWindow(WindowHandle window) override;

    /// Always 0: no window of this system answers such a message.
    std::int32_t  Send(WindowHandle window, std::uint32_t message) override;
    ProcessId     ProcessOf(WindowHandle window) override;
    ProcessHandle OpenProcess(ProcessId process) override;
    bool          ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer) override;
    void          CloseProcess(ProcessHandle process) override;

  private:
    X11Connection connection_;
    X11Desktop    desktop_;
    X11Typist     typist_;
    ProcessMemory memory_;
};

} // namespace qf::client
