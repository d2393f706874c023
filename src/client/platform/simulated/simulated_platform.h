#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "client/platform.h"

namespace qf::client {

/// One call that a simulated desktop received; `numbers` holds the call's arguments behind the window.
struct PlatformCall {
    enum class Kind {
        Enumerate,
        Foreground,
        Activate,
        BringToForeground,
        Pause,
        Post,
        FindByClass,
        IsWindow,
        Send,
        ProcessOf,
        OpenProcess,
        ReadMemory,
        CloseProcess
    };

    Kind                      kind;
    WindowHandle              window = 0;
    std::vector<std::int64_t> numbers;

    friend bool operator==(const PlatformCall&, const PlatformCall&) = default;
};

/// A desktop in memory: windows in stacking order, processes with memory, a foreground window, and a log
/// of every call. Nothing ever waits.
class SimulatedPlatform : public ClientPlatform {
  public:
    /// Adds a top-level window below those that are there and gives its handle. Texts are ANSI.
    WindowHandle AddWindow(std::string className, std::string title, ProcessId process = 0);
    void         RemoveWindow(WindowHandle window);
    void         RemoveAllWindows();

    /// Gives a window the foreground; 0 takes it from all.
    void SetForeground(WindowHandle window) { foreground_ = window; }

    /// Adds a process with an empty memory. One that refuses cannot be opened.
    ProcessId AddProcess(bool refuses = false);

    /// Makes a range of a process's memory readable, zero-filled, also where it was readable before.
    void MapMemory(ProcessId process, std::uint64_t address, std::uint64_t length);

    /// Writes a little-endian 32-bit number into memory that was made readable; bytes elsewhere are lost.
    void Poke(ProcessId process, std::uint64_t address, std::int32_t number);

    /// What a window answers to a sent message.
    void SetAnswer(WindowHandle window, std::uint32_t message, std::int32_t answer);

    const std::vector<PlatformCall>& Log() const { return log_; }
    void                             ClearLog() { log_.clear(); }
    void                             KeepLog(bool keep) { keepLog_ = keep; }

    /// Hears each call before it takes effect; what it throws passes through to the caller.
    std::function<void(const PlatformCall&)> observer;

    /// The lines typed at the windows since the last call, in order: the characters (ANSI) between two Enters.
    std::vector<std::string> TakeLines();

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

    /// How many process handles are open now.
    int OpenHandles() const { return static_cast<int>(handles_.size()); }

  private:
    struct Window {
        WindowInfo                            info;
        ProcessId                             process = 0;
        std::map<std::uint32_t, std::int32_t> answers;
        std::string                           line;
    };
    struct Process {
        bool                                            refuses = false;
        std::map<std::uint64_t, std::vector<std::byte>> memory;
    };

    void       Record(PlatformCall call);
    Window*    WindowOf(WindowHandle window);
    std::byte* ByteAt(ProcessId process, std::uint64_t address);

    std::vector<Window>          windows_;
    std::map<ProcessId, Process> processes_;
    WindowHandle                 foreground_ = 0;
    WindowHandle                 nextWindow_ = 1;
    ProcessId                    nextProcess_ = 1;
    ProcessHandle                nextHandle_ = 100;
    bool                         keepLog_ = true;

    std::map<ProcessHandle, ProcessId> handles_;

    std::vector<PlatformCall> log_;
    std::vector<std::string>  lines_;
};

} // namespace qf::client
