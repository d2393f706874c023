#pragma once

#include <cstddef>
#include <cstdint>
#include <set>
#include <span>

#include "client/platform.h"

namespace qf::client {

/// Reads the memory of other processes through the process file system.
///
/// The system lets a user read processes of its own; where it restricts tracing further, opening is refused.
class ProcessMemory {
  public:
    ProcessMemory() = default;
    ~ProcessMemory();
    ProcessMemory(const ProcessMemory&) = delete;
    ProcessMemory& operator=(const ProcessMemory&) = delete;

    /// A handle greater than 1, or 0 where the process is not there or the system refuses.
    ProcessHandle Open(ProcessId process);

    /// Fills the whole buffer; false where any byte cannot be read or the handle is not open.
    bool Read(ProcessHandle process, std::uint64_t address, std::span<std::byte> buffer) const;

    void Close(ProcessHandle process);

  private:
    std::set<ProcessHandle> open_;
};

} // namespace qf::client
