#include "app/about_motion.h"

#include <gtest/gtest.h>

namespace qf::app {
namespace {

TEST(AboutMotion, StartsWithStepsOfAHundredTwips)
{
    AboutMotion motion;
    motion.Advance(300, 300, 3000, 3000);
    EXPECT_EQ(motion.left, 100);
    EXPECT_EQ(motion.top, 100);
}

TEST(AboutMotion, BouncesInwardWithAShorterStepOnTheAxisOfTheEdgeAlone)
{
    AboutMotion motion;
    motion.left = 2650;
    motion.Advance(300, 300, 3000, 3000);
    EXPECT_EQ(motion.stepX, -75);
    EXPECT_EQ(motion.stepY, 100);
    motion.Advance(300, 300, 3000, 3000);
    EXPECT_EQ(motion.left, 2675);
}

TEST(AboutMotion, AnEdgeThatIsJustTouchedIsReached)
{
    AboutMotion motion;
    motion.left = 2600;
    motion.Advance(300, 300, 3000, 3000);
    EXPECT_EQ(motion.stepX, -75);
    motion.top = 75;
    motion.stepY = -75;
    motion.Advance(300, 300, 3000, 3000);
    EXPECT_EQ(motion.top, 0);
    EXPECT_EQ(motion.stepY, 75);
}

TEST(AboutMotion, NeverLeavesTheOuterPictureByMoreThanAStep)
{
    AboutMotion motion;
    for (int tick = 0; tick < 10000; ++tick) {
        motion.Advance(720, 720, 2850, 2850);
        ASSERT_GE(motion.left, -100);
        ASSERT_LE(motion.left + 720, 2850 + 100);
        ASSERT_GE(motion.top, -100);
        ASSERT_LE(motion.top + 720, 2850 + 100);
    }
}

} // namespace
} // namespace qf::app
