#include "core/uniform.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstddef>
#include <random>

#include "support/scripted_uniform.h"

namespace qf::core {
namespace {

TEST(DrawUpTo, PartsTheIntervalIntoEqualParts)
{
    test::ScriptedUniform uniform({0.0, 0.1999, 0.2, 0.5, 0.8, 0.9999});
    for (const int drawn : {1, 1, 2, 3, 5, 5}) {
        EXPECT_EQ(DrawUpTo(uniform, 5), drawn);
    }
}

TEST(PseudoUniformGenerator, DrawsLieInTheHalfOpenInterval)
{
    PseudoUniformGenerator generator(1);
    for (int i = 0; i < 100'000; ++i) {
        const double draw = generator.Next();
        ASSERT_GE(draw, 0.0);
        ASSERT_LT(draw, 1.0);
    }
}

TEST(PseudoUniformGenerator, DrawsAreTheTop53BitsOfTheEngine)
{
    PseudoUniformGenerator generator(5);
    std::mt19937_64        engine(5);
    for (int i = 0; i < 1000; ++i) {
        ASSERT_EQ(generator.Next(), std::ldexp(static_cast<double>(engine() / 2048), -53));
    }
}

TEST(PseudoUniformGenerator, OneSeedGivesOneSequence)
{
    PseudoUniformGenerator first(42);
    PseudoUniformGenerator second(42);
    PseudoUniformGenerator other(43);
    int                    differences = 0;
    for (int i = 0; i < 1000; ++i) {
        const double draw = first.Next();
        ASSERT_EQ(draw, second.Next());
        differences += draw != other.Next() ? 1 : 0;
    }
    EXPECT_GT(differences, 990);
}

TEST(PseudoUniformGenerator, EveryTenthIsDrawnEquallyOften)
{
    constexpr int          draws = 100'000;
    PseudoUniformGenerator generator(7);
    std::array<int, 10>    counts{};
    for (int i = 0; i < draws; ++i) {
        ++counts.at(static_cast<std::size_t>(generator.Next() * 10));
    }
    for (const int count : counts) {
        EXPECT_NEAR(count, draws / 10, 500); // more than five standard deviations
    }
}

TEST(PseudoUniformGenerator, TheClockStartsAnotherSequence)
{
    PseudoUniformGenerator fixed(0);
    PseudoUniformGenerator clocked(0);
    clocked.SeedFromClock();
    int differences = 0;
    for (int i = 0; i < 100; ++i) {
        differences += fixed.Next() != clocked.Next() ? 1 : 0;
    }
    EXPECT_GT(differences, 90);
}

} // namespace
} // namespace qf::core
