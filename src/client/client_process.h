#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "client/platform.h"

namespace qf::client {

/// The bytes of a position in the client's memory: three little-endian 32-bit numbers, Z, Y and X.
inline constexpr std::size_t TripleSize = 12;

/// The window of a classic client: the classes in their order, whatever the stacking; 0 where none is there.
WindowHandle FindClassicClient(ClientPlatform& platform);

/// The assist window's answer, X in the low and Y in the high word; nothing where no such window is there.
std::optional<std::int32_t> AskAssist(ClientPlatform& platform);

/// The process of a window opened for reading, closed on every path.
class OpenedProcess {
  public:
    OpenedProcess(ClientPlatform& platform, WindowHandle window)
        : platform_(platform), handle_(platform.OpenProcess(platform.ProcessOf(window)))
    {}
    ~OpenedProcess()
    {
        if (handle_ != 0) {
            platform_.CloseProcess(handle_);
        }
    }
    OpenedProcess(const OpenedProcess&) = delete;
    OpenedProcess& operator=(const OpenedProcess&) = delete;

    /// Fills the whole buffer; false where the process is not open or any byte cannot be read.
    bool Read(std::uint64_t address, std::span<std::byte> buffer)
    {
        return handle_ != 0 && platform_.ReadMemory(handle_, address, buffer);
    }

  private:
    ClientPlatform& platform_;
    ProcessHandle   handle_;
};

} // namespace qf::client
