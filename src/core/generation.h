#pragma once

#include <cstdint>

namespace qf::core {

/// The server generation, which selects the dialect of every command: 0 is "0.70.x", 1 is "0.9x.x".
///
/// Any other 16-bit number is a legal value too; what branches on the generation then does nothing.
class ServerGeneration {
  public:
    constexpr ServerGeneration() = default;
    constexpr explicit ServerGeneration(std::int16_t number) : number_(number) {}

    constexpr bool         Is070() const { return number_ == 0; }
    constexpr bool         Is09() const { return number_ == 1; }
    constexpr std::int16_t Number() const { return number_; }

    friend constexpr bool operator==(ServerGeneration, ServerGeneration) = default;

  private:
    std::int16_t number_ = 0;
};

inline constexpr ServerGeneration Generation070{0};
inline constexpr ServerGeneration Generation09{1};

} // namespace qf::core
