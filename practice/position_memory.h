#pragma once

#include <cstddef>

#include "practice/world.h"

namespace qf::practice {

/// The player's position in this process's memory, where a reader from outside looks for it: three 32-bit
/// little-endian numbers, Z, Y and X, in readable memory that begins at 0x400000. On Windows that is the program's
/// image, which is linked to stand there; elsewhere the position lies at the address itself.
class PositionMemory {
  public:
    static constexpr std::size_t Address = 0x400000;
    static constexpr std::size_t Size = 0x10000;

    /// Maps the memory. Where the address is taken, `IsMapped` is false and `Write` does nothing.
    PositionMemory();
    ~PositionMemory();
    PositionMemory(const PositionMemory&) = delete;
    PositionMemory& operator=(const PositionMemory&) = delete;

    bool IsMapped() const { return memory_ != nullptr; }
    void Write(const Position& position);

  private:
    std::byte* memory_ = nullptr;
};

/// The twelve bytes of a position.
inline void StorePosition(std::byte* memory, const Position& position)
{
    const int parts[] = {position.z, position.y, position.x};
    for (const int part : parts) {
        for (unsigned shift = 0; shift < 32; shift += 8) {
            *memory++ = static_cast<std::byte>(static_cast<std::uint32_t>(part) >> shift & 0xFFU);
        }
    }
}

} // namespace qf::practice
