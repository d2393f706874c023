#include "client/platform/win32/win32_platform.h"

#include <array>
#include <exception>
#include <string>
#include <utility>

#include <windows.h>

namespace qf::client {

namespace {

constexpr DWORD FullAccess = 0x1F0FFF;
constexpr int   ClassNameLimit = 255;

HWND ToWindow(WindowHandle window)
{
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));
}

WindowHandle FromWindow(HWND window)
{
    return static_cast<WindowHandle>(reinterpret_cast<std::uintptr_t>(window));
}

HANDLE ToProcess(ProcessHandle process)
{
    return reinterpret_cast<HANDLE>(static_cast<std::uintptr_t>(process));
}

std::string ClassNameOf(HWND window)
{
    std::array<char, ClassNameLimit + 1> buffer{};
    GetClassNameA(window, buffer.data(), ClassNameLimit);
    return buffer.data();
}

std::string TitleOf(HWND window)
{
    const int   size = GetWindowTextLengthA(window) + 1;
    std::string title(static_cast<std::size_t>(size), '\0');
    const int   length = GetWindowTextA(window, title.data(), size);
    title.resize(static_cast<std::size_t>(length > 0 ? length : 0));
    return title;
}

struct Enumeration {
    const std::function<bool(const WindowInfo&)>& visit;
    std::exception_ptr                            failure;
};

// An exception must not cross the system's frames, so it is carried around them.
BOOL CALLBACK VisitWindow(HWND window, LPARAM parameter)
{
    auto& enumeration = *reinterpret_cast<Enumeration*>(parameter);
    try {
        return enumeration.visit({FromWindow(window), ClassNameOf(window), TitleOf(window)}) ? TRUE : FALSE;
    } catch (...) {
        enumeration.failure = std::current_exception();
        return FALSE;
    }
}

} // namespace

Win32Platform::Win32Platform() : Win32Platform(PostOnce) {}

Win32Platform::Win32Platform(PostCall post) : post_(std::move(post)) {}

Win32Platform::PostResult Win32Platform::PostOnce(WindowHandle window, std::uint32_t message, std::uint32_t wParam,
                                                  std::uint32_t lParam)
{
    // A null window would post to this program's own thread.
    if (window == 0) {
        return PostResult::Failed;
    }
    if (PostMessageA(ToWindow(window), message, WPARAM{wParam}, static_cast<LPARAM>(lParam)) != FALSE) {
        return PostResult::Taken;
    }
    return GetLastError() == ERROR_NOT_ENOUGH_QUOTA ? PostResult::QueueFull : PostResult::Failed;
}

void Win32Platform::EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit)
{
    Enumeration enumeration{visit, nullptr};
    EnumWindows(VisitWindow, reinterpret_cast<LPARAM>(&enumeration));
    if (enumeration.failure) {
        std::rethrow_exception(enumeration.failure);
    }
}

WindowHandle Win32Platform::ForegroundWindow()
{
    return FromWindow(GetForegroundWindow());
}

void Win32Platform::ActivateWindow(WindowHandle window)
{
    SetActiveWindow(ToWindow(window));
}

void Win32Platform::BringToForeground(WindowHandle window)
{
    SetForegroundWindow(ToWindow(window));
}

void Win32Platform::Pause(std::chrono::milliseconds time)
{
    Sleep(static_cast<DWORD>(time.count()));
}

bool Win32Platform::Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam)
{
    // A thread's queue is bounded, and a long build types faster than a client reads: what the queue refuses
    // is offered again, so that nothing is lost.
    for (;;) {
        const PostResult result = post_(window, message, wParam, lParam);
        if (result != PostResult::QueueFull) {
            return result == PostResult::Taken;
        }
        if (!IsWindow(window)) {
            return false;
        }
        Sleep(1);
    }
}

WindowHandle Win32Platform::FindWindowByClass(std::string_view className)
{
    return FromWindow(FindWindowA(std::string(className).c_str(), nullptr));
}

bool Win32Platform::IsWindow(WindowHandle window)
{
    return ::IsWindow(ToWindow(window)) != FALSE;
}

std::int32_t Win32Platform::Send(WindowHandle window, std::uint32_t message)
{
    std::int32_t  first = 0;
    std::int32_t  second = 0;
    const LRESULT answer =
        SendMessageA(ToWindow(window), message, reinterpret_cast<WPARAM>(&first), reinterpret_cast<LPARAM>(&second));
    return static_cast<std::int32_t>(answer);
}

ProcessId Win32Platform::ProcessOf(WindowHandle window)
{
    DWORD process = 0;
    GetWindowThreadProcessId(ToWindow(window), &process);
    return process;
}

ProcessHandle Win32Platform::OpenProcess(ProcessId process)
{
    auto* opened = ::OpenProcess(FullAccess, FALSE, process);
    return static_cast<ProcessHandle>(reinterpret_cast<std::uintptr_t>(opened));
}

bool Win32Platform::ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer)
{
    if (buffer.empty()) {
        return true;
    }
    SIZE_T     count = 0;
    const BOOL read =
        ReadProcessMemory(ToProcess(process), reinterpret_cast<const void*>(static_cast<std::uintptr_t>(address)),
                          buffer.data(), buffer.size(), &count);
    return read != FALSE && count == buffer.size();
}

void Win32Platform::CloseProcess(ProcessHandle process)
{
    if (process != 0) {
        CloseHandle(ToProcess(process));
    }
}

} // namespace qf::client
