#include "target_process.h"

#include <array>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>

#include <windows.h>

#include "client/platform/win32/win32_platform.h"

namespace qf::test {

namespace {

std::filesystem::path TargetProgram()
{
    if (const char* named = std::getenv("QF_TARGET")) {
        return named;
    }
    std::array<char, MAX_PATH> path{};
    GetModuleFileNameA(nullptr, path.data(), MAX_PATH);
    return std::filesystem::path(path.data()).replace_filename("qf_target_window.exe");
}

std::filesystem::path FreshFile(const char* extension)
{
    static int  count = 0;
    std::string name = "qf-target-";
    name.append(std::to_string(GetCurrentProcessId())).append("-").append(std::to_string(++count)).append(extension);
    return std::filesystem::temp_directory_path() / name;
}

HWND ToWindow(client::WindowHandle window)
{
    return reinterpret_cast<HWND>(static_cast<std::uintptr_t>(window));
}

client::WindowHandle ClientWindowOf(client::ProcessId process)
{
    client::Win32Platform platform;
    client::WindowHandle  found = 0;
    platform.EnumerateWindows([&](const client::WindowInfo& window) {
        if (window.className == "SDL_app" && platform.ProcessOf(window.handle) == process) {
            found = window.handle;
        }
        return found == 0;
    });
    return found;
}

} // namespace

bool WaitFor(const std::function<bool()>& condition, std::chrono::milliseconds timeOut)
{
    const auto deadline = std::chrono::steady_clock::now() + timeOut;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            DispatchMessageW(&message);
        }
        Sleep(1);
    }
    return true;
}

TargetProcess::TargetProcess(const std::string& arguments, bool trace) : log_(FreshFile(".log"))
{
    std::string command;
    command.append("\"").append(TargetProgram().string()).append("\" --log \"").append(log_.string()).append("\" ");
    command += arguments;
    if (trace) {
        trace_ = FreshFile(".trace");
        command.append(" --trace \"").append(trace_.string()).append("\"");
    }
    STARTUPINFOA startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION information{};
    if (CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &information) ==
        FALSE) {
        throw std::runtime_error("cannot start " + command + ": error " + std::to_string(GetLastError()));
    }
    CloseHandle(information.hThread);
    process_ = information.hProcess;
    id_ = information.dwProcessId;
    WaitFor([this] {
        window_ = ClientWindowOf(id_);
        // The property is set when the target is ready.
        return (window_ != 0 && PositionAddress() != 0) || WaitForExit(std::chrono::milliseconds(0));
    });
    if (window_ == 0) {
        TerminateProcess(process_, EXIT_FAILURE);
        CloseHandle(process_);
        throw std::runtime_error("the target shows no window: " + command);
    }
}

TargetProcess::~TargetProcess()
{
    Close();
    if (!WaitForExit(std::chrono::seconds(5))) {
        TerminateProcess(process_, EXIT_FAILURE);
        WaitForExit();
    }
    CloseHandle(process_);
    std::error_code ignored;
    std::filesystem::remove(log_, ignored);
    if (!trace_.empty()) {
        std::filesystem::remove(trace_, ignored);
    }
}

std::uint64_t TargetProcess::PositionAddress() const
{
    return reinterpret_cast<std::uintptr_t>(GetPropA(ToWindow(window_), "Position"));
}

std::uint64_t TargetProcess::MapMemoryWithAnEnd(std::size_t size) const
{
    // Far from everything that a process is given by itself.
    auto* place = reinterpret_cast<void*>(std::uintptr_t{0x100'0000'0000});
    if (VirtualAllocEx(process_, place, size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE) != place) {
        throw std::runtime_error("no memory in the target");
    }
    return reinterpret_cast<std::uintptr_t>(place);
}

void TargetProcess::Close() const
{
    PostMessageA(ToWindow(window_), WM_CLOSE, 0, 0);
}

bool TargetProcess::WaitForExit(std::chrono::milliseconds timeOut) const
{
    return WaitForSingleObject(process_, static_cast<DWORD>(timeOut.count())) == WAIT_OBJECT_0;
}

bool TargetProcess::WaitForLines(std::size_t count)
{
    return WaitFor([&] { return Lines().size() >= count; });
}

const std::vector<std::string>& TargetProcess::Lines()
{
    std::ifstream log(log_, std::ios::binary);
    log.seekg(readUpTo_);
    const std::string more{std::istreambuf_iterator<char>(log), std::istreambuf_iterator<char>()};
    readUpTo_ += static_cast<std::streamoff>(more.size());
    rest_ += more;
    std::size_t begin = 0;
    for (std::size_t end = rest_.find('\n'); end != std::string::npos; end = rest_.find('\n', begin)) {
        lines_.push_back(rest_.substr(begin, end - begin));
        begin = end + 1;
    }
    rest_.erase(0, begin);
    return lines_;
}

std::vector<std::string> TargetProcess::TracedMessages() const
{
    std::ifstream            trace(trace_, std::ios::binary);
    std::vector<std::string> messages;
    for (std::string message; std::getline(trace, message);) {
        messages.push_back(message);
    }
    return messages;
}

} // namespace qf::test
