#include "client/platform/simulated/simulated_platform.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <limits>
#include <utility>

#include "core/little_endian.h"
#include "core/text.h"

namespace qf::client {

WindowHandle SimulatedPlatform::AddWindow(std::string className, std::string title, ProcessId process)
{
    // A handle of 1 is no window to those who ask for "greater than 1", so the first is 2.
    const WindowHandle handle = ++nextWindow_;
    windows_.push_back({{handle, std::move(className), std::move(title)}, process, {}, {}});
    return handle;
}

void SimulatedPlatform::RemoveWindow(WindowHandle window)
{
    std::erase_if(windows_, [window](const Window& one) { return one.info.handle == window; });
    if (foreground_ == window) {
        foreground_ = 0;
    }
}

void SimulatedPlatform::RemoveAllWindows()
{
    windows_.clear();
    foreground_ = 0;
}

ProcessId SimulatedPlatform::AddProcess(bool refuses)
{
    const ProcessId process = nextProcess_++;
    processes_[process].refuses = refuses;
    return process;
}

void SimulatedPlatform::MapMemory(ProcessId process, std::uint64_t address, std::uint64_t length)
{
    auto& memory = processes_[process].memory;
    length = std::min(length, std::numeric_limits<std::uint64_t>::max() - address);
    if (length == 0) {
        return;
    }

    // Ranges never overlap: what lies in the new one is cut off, and the rest stays a range of its own.
    const std::uint64_t end = address + length;
    auto                range = memory.lower_bound(address);
    if (range != memory.begin()) {
        --range;
    }
    while (range != memory.end() && range->first < end) {
        const std::uint64_t start = range->first;
        auto&               bytes = range->second;
        const std::uint64_t stop = start + bytes.size();
        if (stop <= address) {
            ++range;
            continue;
        }
        if (stop > end) {
            memory.emplace(end,
                           std::vector<std::byte>(bytes.end() - static_cast<std::ptrdiff_t>(stop - end), bytes.end()));
        }
        if (start < address) {
            bytes.resize(address - start);
            ++range;
        } else {
            range = memory.erase(range);
        }
    }
    memory.emplace(address, std::vector<std::byte>(length));
}

std::byte* SimulatedPlatform::ByteAt(ProcessId process, std::uint64_t address)
{
    const auto owner = processes_.find(process);
    if (owner == processes_.end()) {
        return nullptr;
    }
    auto& memory = owner->second.memory;
    auto  range = memory.upper_bound(address);
    if (range == memory.begin()) {
        return nullptr;
    }
    --range;
    const std::uint64_t offset = address - range->first;
    return offset < range->second.size() ? &range->second[offset] : nullptr;
}

void SimulatedPlatform::Poke(ProcessId process, std::uint64_t address, std::int32_t number)
{
    std::array<std::byte, sizeof number> bytes{};
    core::StoreLittle(bytes, static_cast<std::uint32_t>(number));
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        if (std::byte* byte = ByteAt(process, address + i)) {
            *byte = bytes[i];
        }
    }
}

void SimulatedPlatform::SetAnswer(WindowHandle window, std::uint32_t message, std::int32_t answer)
{
    if (Window* found = WindowOf(window)) {
        found->answers[message] = answer;
    }
}

std::vector<std::string> SimulatedPlatform::TakeLines()
{
    return std::exchange(lines_, {});
}

void SimulatedPlatform::Record(PlatformCall call)
{
    if (observer) {
        observer(call);
    }
    if (keepLog_) {
        log_.push_back(std::move(call));
    }
}

SimulatedPlatform::Window* SimulatedPlatform::WindowOf(WindowHandle window)
{
    const auto found = std::find_if(windows_.begin(), windows_.end(),
                                    [window](const Window& one) { return one.info.handle == window; });
    return found == windows_.end() ? nullptr : &*found;
}

void SimulatedPlatform::EnumerateWindows(const std::function<bool(const WindowInfo&)>& visit)
{
    Record({PlatformCall::Kind::Enumerate, 0, {}});

    // The visitor may add and remove windows: it sees those that were there at the start and are there still.
    std::vector<WindowInfo> infos;
    infos.reserve(windows_.size());
    std::transform(windows_.begin(), windows_.end(), std::back_inserter(infos),
                   [](const Window& window) { return window.info; });
    for (const WindowInfo& info : infos) {
        if (WindowOf(info.handle) != nullptr && !visit(info)) {
            return;
        }
    }
}

WindowHandle SimulatedPlatform::ForegroundWindow()
{
    Record({PlatformCall::Kind::Foreground, 0, {}});
    return foreground_;
}

void SimulatedPlatform::ActivateWindow(WindowHandle window)
{
    Record({PlatformCall::Kind::Activate, window, {}});
}

void SimulatedPlatform::BringToForeground(WindowHandle window)
{
    Record({PlatformCall::Kind::BringToForeground, window, {}});
    if (WindowOf(window) != nullptr) {
        foreground_ = window;
    }
}

void SimulatedPlatform::Pause(std::chrono::milliseconds time)
{
    Record({PlatformCall::Kind::Pause, 0, {time.count()}});
}

bool SimulatedPlatform::Post(WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam)
{
    Record({PlatformCall::Kind::Post, window, {message, wParam, lParam}});
    Window* target = WindowOf(window);
    if (target == nullptr) {
        return false;
    }
    if (message == message::Char) {
        target->line.push_back(static_cast<char>(static_cast<unsigned char>(wParam)));
    } else if (message == message::KeyDown && wParam == message::ReturnKey) {
        lines_.push_back(std::exchange(target->line, {}));
    }
    return true;
}

WindowHandle SimulatedPlatform::FindWindowByClass(std::string_view className)
{
    Record({PlatformCall::Kind::FindByClass, 0, {}});
    const auto found = std::find_if(windows_.begin(), windows_.end(), [className](const Window& window) {
        return core::EqualIgnoringCase(window.info.className, className);
    });
    return found == windows_.end() ? 0 : found->info.handle;
}

bool SimulatedPlatform::IsWindow(WindowHandle window)
{
    Record({PlatformCall::Kind::IsWindow, window, {}});
    return WindowOf(window) != nullptr;
}

std::int32_t SimulatedPlatform::Send(WindowHandle window, std::uint32_t message)
{
    Record({PlatformCall::Kind::Send, window, {message}});
    const Window* target = WindowOf(window);
    if (target == nullptr) {
        return 0;
    }
    const auto answer = target->answers.find(message);
    return answer == target->answers.end() ? 0 : answer->second;
}

ProcessId SimulatedPlatform::ProcessOf(WindowHandle window)
{
    Record({PlatformCall::Kind::ProcessOf, window, {}});
    const Window* target = WindowOf(window);
    return target == nullptr ? 0 : target->process;
}

ProcessHandle SimulatedPlatform::OpenProcess(ProcessId process)
{
    Record({PlatformCall::Kind::OpenProcess, 0, {process}});
    const auto found = processes_.find(process);
    if (found == processes_.end() || found->second.refuses) {
        return 0;
    }
    const ProcessHandle handle = nextHandle_++;
    handles_[handle] = process;
    return handle;
}

bool SimulatedPlatform::ReadMemory(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer)
{
    Record({PlatformCall::Kind::ReadMemory,
            0,
            {static_cast<std::int64_t>(process), static_cast<std::int64_t>(address),
             static_cast<std::int64_t>(buffer.size())}});
    const auto opened = handles_.find(process);
    if (opened == handles_.end()) {
        return false;
    }
    const auto owner = processes_.find(opened->second);
    if (owner == processes_.end()) {
        return false;
    }

    const auto& memory = owner->second.memory;
    while (!buffer.empty()) {
        auto range = memory.upper_bound(address);
        if (range == memory.begin()) {
            return false;
        }
        --range;
        const std::uint64_t offset = address - range->first;
        const auto&         bytes = range->second;
        if (offset >= bytes.size()) {
            return false;
        }
        const std::size_t part = std::min<std::size_t>(buffer.size(), bytes.size() - offset);
        std::copy_n(bytes.begin() + static_cast<std::ptrdiff_t>(offset), part, buffer.begin());
        buffer = buffer.subspan(part);
        address += part;
    }
    return true;
}

void SimulatedPlatform::CloseProcess(ProcessHandle process)
{
    Record({PlatformCall::Kind::CloseProcess, 0, {static_cast<std::int64_t>(process)}});
    handles_.erase(process);
}

} // namespace qf::client
