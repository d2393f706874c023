#include <windows.h>

#include "practice/position_memory.h"

namespace qf::practice {

PositionMemory::PositionMemory()
    : memory_(static_cast<std::byte*>(
          VirtualAlloc(reinterpret_cast<void*>(Address), Size, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE)))
{}

PositionMemory::~PositionMemory()
{
    if (memory_ != nullptr) {
        VirtualFree(memory_, 0, MEM_RELEASE);
    }
}

void PositionMemory::Write(const Position& position)
{
    if (memory_ != nullptr) {
        StorePosition(memory_, position);
    }
}

} // namespace qf::practice
