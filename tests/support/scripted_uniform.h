#pragma once

#include <deque>
#include <initializer_list>

#include "core/uniform.h"

namespace qf::test {

/// Gives the draws that it was given, in order, and 0.5 when none is left.
class ScriptedUniform : public core::UniformGenerator {
  public:
    ScriptedUniform() = default;
    ScriptedUniform(std::initializer_list<double> draws) : draws_(draws) {}

    double Next() override
    {
        ++drawn_;
        if (draws_.empty()) {
            return 0.5;
        }
        const double draw = draws_.front();
        draws_.pop_front();
        return draw;
    }

    void SeedFromClock() override { ++seedings_; }

    void Add(double draw) { draws_.push_back(draw); }

    /// How often Next and SeedFromClock were called.
    int Drawn() const { return drawn_; }
    int Seedings() const { return seedings_; }

  private:
    std::deque<double> draws_;
    int                drawn_ = 0;
    int                seedings_ = 0;
};

} // namespace qf::test
