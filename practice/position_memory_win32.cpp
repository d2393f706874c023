#include <windows.h>

#include <array>

#include "practice/position_memory.h"

namespace qf::practice {

namespace {

std::array<std::byte, 12> place{};

} // namespace

PositionMemory::PositionMemory()
{
    // A system that is told to move every program elsewhere moves this one too.
    if (GetModuleHandleW(nullptr) == reinterpret_cast<HMODULE>(Address)) {
        memory_ = place.data();
    }
}

PositionMemory::~PositionMemory() = default;

void PositionMemory::Write(const Position& position)
{
    if (memory_ != nullptr) {
        StorePosition(memory_, position);
    }
}

} // namespace qf::practice
