#pragma once

#include <array>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace qf::client {

/// A window of the desktop; 0 is no window.
using WindowHandle = std::uint64_t;

/// An opened process; 0 is none.
using ProcessHandle = std::uint64_t;
using ProcessId = std::uint32_t;

/// A top-level window as an enumeration reports it. Both texts are in the ANSI code page.
struct WindowInfo {
    WindowHandle handle = 0;
    std::string  className;
    std::string  title;
};

namespace message {
inline constexpr std::uint32_t KeyDown = 256;
inline constexpr std::uint32_t KeyUp = 257;
inline constexpr std::uint32_t Char = 258;
inline constexpr std::uint32_t AssistPosition = 1226;

/// What Enter gives as the key of KeyDown and KeyUp.
inline constexpr std::uint32_t ReturnKey = 13;
} // namespace message

/// The classes by which windows are known.
namespace window_class {
/// Of every program that uses SDL.
inline constexpr std::string_view Sdl = "SDL_app";

/// Of the classic clients, in the order in which they are looked for.
inline constexpr std::array<std::string_view, 3> Classic{
    "Ultima Online",
    "Ultima Online Third Dawn",
    "Ultima Online 3D",
};

/// Of the assist window.
inline constexpr std::string_view Assist = "UOASSIST-TP-MSG-WND";
} // namespace window_class

/// The operations of a desktop that the client link stands on, and nothing more: no rule of the program
/// lives behind it, so that everything above runs alike on Windows, on X11 and on the simulated desktop.
class ClientPlatform {
  public:
    virtual ~ClientPlatform() = default;

    /// Visits the top-level windows in stacking order, the topmost first, until `visit` gives false.
    virtual void EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit) = 0;

    /// The window that has the foreground, 0 where none has.
    virtual WindowHandle ForegroundWindow() = 0;

    virtual void ActivateWindow(WindowHandle window) = 0;
    virtual void BringToForeground(WindowHandle window) = 0;
    virtual void Pause(std::chrono::milliseconds time) = 0;

    /// Puts one message at the end of the window's queue. A queue that is full is waited for; false
    /// means that the window is gone.
    virtual bool Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam) = 0;

    /// The topmost window of exactly this class (case counts as it does on the system), or 0.
    virtual WindowHandle FindWindowByClass(std::string_view className) = 0;

    virtual bool IsWindow(WindowHandle window) = 0;

    /// Sends a message whose two parameters are the addresses of 32-bit variables holding 0, and waits
    /// for the window's 32-bit answer. 0 where the window is gone.
    virtual std::int32_t Send(WindowHandle window, std::uint32_t message) = 0;

    /// The process that owns a window, 0 where it cannot be told.
    virtual ProcessId ProcessOf(WindowHandle window) = 0;

    /// Opens a process for reading; 0 where the system refuses.
    virtual ProcessHandle OpenProcess(ProcessId process) = 0;

    /// Fills the whole buffer from the process's memory at the address; false where any byte of it
    /// cannot be read.
    virtual bool ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer) = 0;

    virtual void CloseProcess(ProcessHandle process) = 0;
};

} // namespace qf::client
