#include "client/platform/x11/process_memory.h"

#include <cerrno>
#include <limits>
#include <string>

#include <fcntl.h>
#include <unistd.h>

namespace qf::client {

namespace {

// File descriptors begin at 0; handles of 0 and 1 mean none.
constexpr ProcessHandle FirstHandle = 2;

int DescriptorOf(ProcessHandle handle)
{
    return static_cast<int>(handle - FirstHandle);
}

} // namespace

ProcessMemory::~ProcessMemory()
{
    for (const ProcessHandle handle : open_) {
        ::close(DescriptorOf(handle));
    }
}

ProcessHandle ProcessMemory::Open(ProcessId process)
{
    if (process == 0) {
        return 0;
    }
    const std::string path = "/proc/" + std::to_string(process) + "/mem";
    const int         descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return 0;
    }
    const ProcessHandle handle = static_cast<ProcessHandle>(descriptor) + FirstHandle;
    open_.insert(handle);
    return handle;
}

bool ProcessMemory::Read(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer) const
{
    constexpr auto Last = static_cast<std::uint64_t>(std::numeric_limits<off_t>::max());
    if (open_.count(process) == 0 || address > Last || buffer.size() > Last - address) {
        return false;
    }
    while (!buffer.empty()) {
        const ssize_t got = ::pread(DescriptorOf(process), buffer.data(), buffer.size(), static_cast<off_t>(address));
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got <= 0) {
            return false;
        }
        buffer = buffer.subspan(static_cast<std::size_t>(got));
        address += static_cast<std::uint64_t>(got);
    }
    return true;
}

void ProcessMemory::Close(ProcessHandle process)
{
    if (open_.erase(process) != 0) {
        ::close(DescriptorOf(process));
    }
}

} // namespace qf::client
