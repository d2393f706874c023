#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "client/platform.h"

namespace qf::test {

/// Time within which whatever is waited for happens even on a loaded machine.
inline constexpr std::chrono::seconds Patience{60};

/// Waits until the condition holds, and meanwhile serves the messages of this thread's windows. False
/// where the time ran out.
bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeOut = Patience);

/// A target window in a process of its own, which ends with this object.
class TargetProcess {
  public:
    /// Starts the target with more arguments than its log and waits for its window. Throws
    /// std::runtime_error where it does not come up.
    explicit TargetProcess(const std::string& arguments = {}, bool trace = false);
    ~TargetProcess();

    TargetProcess(const TargetProcess&) = delete;
    TargetProcess& operator=(const TargetProcess&) = delete;

    client::WindowHandle Window() const { return window_; }
    client::ProcessId    Id() const { return id_; }

    /// Where the target keeps its position.
    std::uint64_t PositionAddress() const;

    /// Makes so many bytes of the target's memory readable, with memory that is not behind them, and gives
    /// their address. Throws std::runtime_error where that cannot be done.
    std::uint64_t MapMemoryWithAnEnd(std::size_t size) const;

    /// Asks the window to close, as its close button does.
    void Close() const;

    bool WaitForExit(std::chrono::milliseconds timeOut = Patience) const;

    /// Waits until the target has logged so many lines since it started.
    bool WaitForLines(std::size_t count);

    /// The lines that the target has logged so far, UTF-8.
    const std::vector<std::string>& Lines();

    /// The keyboard messages that the target has noted so far: number, wParam, lParam.
    std::vector<std::string> TracedMessages() const;

  private:
    void*                    process_ = nullptr;
    client::ProcessId        id_ = 0;
    client::WindowHandle     window_ = 0;
    std::filesystem::path    log_;
    std::filesystem::path    trace_;
    std::streamoff           readUpTo_ = 0;
    std::string              rest_;
    std::vector<std::string> lines_;
};

} // namespace qf::test
