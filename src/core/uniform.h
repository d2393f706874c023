#pragma once

#include <cstdint>
#include <random>

namespace qf::core {

/// Draws from the uniform distribution over [0, 1). Shared by all panels that plant at random; tests
/// put their own draws in its place.
class UniformGenerator {
  public:
    virtual ~UniformGenerator() = default;

    /// The next draw, at least 0 and less than 1.
    virtual double Next() = 0;

    /// Starts the sequence anew from the clock.
    virtual void SeedFromClock() = 0;
};

/// A whole number from 1 up to `most` out of one draw.
int DrawUpTo(UniformGenerator& uniform, int most);

/// The program's own generator. Two instances with one seed give one sequence on every system.
class PseudoUniformGenerator final : public UniformGenerator {
  public:
    explicit PseudoUniformGenerator(std::uint64_t seed = 0) : engine_(seed) {}

    double Next() override;
    void   SeedFromClock() override;

  private:
    std::mt19937_64 engine_;
};

} // namespace qf::core
