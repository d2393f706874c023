#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "client/platform.h"

namespace qf::client {

/// The desktop of Windows, through the system calls of the same names.
class Win32Platform : public ClientPlatform {
  public:
    /// What became of one attempt to post a message.
    enum class PostResult { Taken, QueueFull, Failed };

    /// Makes one attempt to post a message.
    using PostCall =
        std::function<PostResult(WindowHandle, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam)>;

    Win32Platform();

    /// A desktop whose messages go through a call other than the system's.
    explicit Win32Platform(PostCall post);

    /// One attempt by the system's own call.
    static PostResult PostOnce(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam);

    void          EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit) override;
    WindowHandle  ForegroundWindow() override;
    void          ActivateWindow(WindowHandle window) override;
    void          BringToForeground(WindowHandle window) override;
    void          Pause(std::chrono::milliseconds time) override;
    bool          Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam) override;
    WindowHandle  FindWindowByClass(std::string_view className) override;
    bool          IsWindow(WindowHandle window) override;
    std::int32_t  Send(WindowHandle window, std::uint32_t message) override;
    ProcessId     ProcessOf(WindowHandle window) override;
    ProcessHandle OpenProcess(ProcessId process) override;
    bool          ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer) override;
    void          CloseProcess(ProcessHandle process) override;

  private:
    PostCall post_;
};

} // namespace qf::client
