#include "core/file_numbers.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"

namespace qf::core {
namespace {

TEST(FileNumbers, GivesTheLowestFreeNumber)
{
    FileNumbers numbers;
    EXPECT_EQ(numbers.InUse(), 0);
    EXPECT_EQ(numbers.Take(), 1);
    EXPECT_EQ(numbers.Take(), 2);
    EXPECT_EQ(numbers.Take(), 3);
    numbers.Release(2);
    EXPECT_EQ(numbers.InUse(), 2);
    EXPECT_EQ(numbers.Take(), 2);
    EXPECT_EQ(numbers.Take(), 4);
}

TEST(FileNumbers, TwoHundredAndFiftyFiveAndNoMore)
{
    FileNumbers numbers;
    for (int number = 1; number <= 255; ++number) {
        ASSERT_EQ(numbers.Take(), number);
    }
    EXPECT_RUNTIME_ERROR(67, numbers.Take());
    EXPECT_EQ(numbers.InUse(), 255);
    numbers.Release(255);
    EXPECT_EQ(numbers.Take(), 255);
}

} // namespace
} // namespace qf::core
