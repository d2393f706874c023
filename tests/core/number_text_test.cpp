#include <gtest/gtest.h>

#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "core/number_rules.h"

namespace qf::core {
namespace {

TEST(ToText, DoublesAreShortestDecimals)
{
    struct Row {
        double      number;
        const char* text;
    };
    const Row rows[] = {
        {0, "0"},
        {-0.0, "0"},
        {3, "3"},
        {-3, "-3"},
        {0.5, "0.5"},
        {-0.5, "-0.5"},
        {0.1, "0.1"},
        {0.1 + 0.2, "0.30000000000000004"},
        {1.0 / 3, "0.3333333333333333"},
        {20250, "20250"},
        {100000, "100000"},
        {1234.5, "1234.5"},
        {4294967296.0, "4294967296"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToText(row.number), row.text);
    }
}

TEST(ToText, DoublesBeyondTheLimitsHaveAnExponent)
{
    struct Row {
        double      number;
        const char* text;
    };
    const Row rows[] = {
        {999999999999999, "999999999999999"},
        {-999999999999999, "-999999999999999"},
        {1e15, "1E+15"},
        {-1e15, "-1E+15"},
        {1234567890123456, "1.234567890123456E+15"},
        {1e22, "1E+22"},
        {1.5e100, "1.5E+100"},
        {DBL_MAX, "1.7976931348623157E+308"},
        {1e-5, "0.00001"},
        {0.000012345, "0.000012345"},
        {9.9e-6, "9.9E-06"},
        {-1e-6, "-1E-06"},
        {1.5e-10, "1.5E-10"},
        {5e-324, "5E-324"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToText(row.number), row.text);
    }
}

TEST(ToText, FloatsHaveLimitsOfTheirOwn)
{
    struct Row {
        float       number;
        const char* text;
    };
    const Row rows[] = {
        {0.0F, "0"},
        {-0.0F, "0"},
        {0.1F, "0.1"},
        {2.5F, "2.5"},
        {-7.0F, "-7"},
        {0.333333343F, "0.33333334"},
        {9999999.0F, "9999999"},
        {1e7F, "1E+07"},
        {1.5e7F, "1.5E+07"},
        {-1e7F, "-1E+07"},
        {1e-5F, "0.00001"},
        {9e-6F, "9E-06"},
        {FLT_MAX, "3.4028235E+38"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToText(row.number), row.text);
    }
}

TEST(ToText, WholeNumbersArePlainDecimals)
{
    EXPECT_EQ(ToText(std::int32_t{0}), "0");
    EXPECT_EQ(ToText(std::int32_t{-5}), "-5");
    EXPECT_EQ(ToText(std::numeric_limits<std::int32_t>::max()), "2147483647");
    EXPECT_EQ(ToText(std::numeric_limits<std::int32_t>::min()), "-2147483648");
}

TEST(ToText, RandomDoublesComeBackUnchanged)
{
    std::mt19937_64 random(20250);
    for (int i = 0; i < 100'000; ++i) {
        const auto number = std::bit_cast<double>(random());
        if (!std::isfinite(number) || number == 0) {
            continue;
        }
        ASSERT_EQ(std::bit_cast<std::uint64_t>(ToDouble(ToText(number))), std::bit_cast<std::uint64_t>(number))
            << ToText(number);
    }
}

TEST(ToText, RandomDoublesOfOrdinarySizeComeBackUnchanged)
{
    std::mt19937_64                        random(20251);
    std::uniform_real_distribution<double> exponent(-7, 17);
    for (int i = 0; i < 100'000; ++i) {
        const double size = std::pow(10.0, exponent(random));
        const double number = i % 2 == 0 ? size : -size;
        ASSERT_EQ(ToDouble(ToText(number)), number) << ToText(number);
    }
}

TEST(ToText, RandomFloatsComeBackUnchanged)
{
    std::mt19937 random(20252);
    for (int i = 0; i < 100'000; ++i) {
        const auto number = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
        if (!std::isfinite(number)) {
            continue;
        }
        ASSERT_EQ(std::strtof(ToText(number).c_str(), nullptr), number) << ToText(number);
    }
}

} // namespace
} // namespace qf::core
