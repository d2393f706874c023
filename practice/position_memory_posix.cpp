#include <sys/mman.h>

#include "practice/position_memory.h"

namespace qf::practice {

PositionMemory::PositionMemory()
{
    void* const wanted = reinterpret_cast<void*>(Address); // NOLINT: the address is the point
    void* const mapped =
        mmap(wanted, Size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_FIXED_NOREPLACE, -1, 0);
    if (mapped == MAP_FAILED) {
        return;
    }
    if (mapped != wanted) {
        // A kernel that does not know the flag takes the address for a mere wish.
        munmap(mapped, Size);
        return;
    }
    memory_ = static_cast<std::byte*>(mapped);
}

PositionMemory::~PositionMemory()
{
    if (memory_ != nullptr) {
        munmap(memory_, Size);
    }
}

void PositionMemory::Write(const Position& position)
{
    if (memory_ != nullptr) {
        StorePosition(memory_, position);
    }
}

} // namespace qf::practice
