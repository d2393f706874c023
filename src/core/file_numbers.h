#pragma once

#include <bitset>

namespace qf::core {

/// The numbers under which the program's handlers have files open, 255 of them. A handler that leaves a file
/// open keeps its number in use until the program ends.
class FileNumbers {
  public:
    static constexpr int Most = 255;

    /// The lowest free number, in use from now on. Throws RuntimeError 67 where none is free.
    int Take();

    void Release(int number);

    int InUse() const { return static_cast<int>(used_.count()); }

  private:
    std::bitset<Most + 1> used_;
};

} // namespace qf::core
