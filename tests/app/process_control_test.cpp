#include <gtest/gtest.h>

#include "support/quiet_services.h"

namespace qf::ui {
namespace {

using Texts = std::vector<std::string>;

TEST(ProcessControl, ReportsAnErrorOnceAndRunsNoHandlerAfterIt)
{
    test::QuietServices process;
    bool                kept = false;
    process.beforeFailure = [&] { kept = process.boxes.empty(); };
    process.Run([] { throw core::RuntimeError(core::error::TypeMismatch); });
    EXPECT_EQ(process.boxes, Texts{"Type mismatch"});
    EXPECT_TRUE(kept);
    EXPECT_TRUE(process.HasEnded());
    process.Run([] { FAIL(); });
}

TEST(ProcessControl, KeepsTheErrorOfAnInnerHandlerForTheOutermost)
{
    test::QuietServices process;
    bool                effectFollowed = false;
    process.Run([&] {
        process.Run([] { throw core::RuntimeError(core::error::Overflow); });
        EXPECT_TRUE(process.boxes.empty());
        process.Run([] { FAIL(); });
        process.ThrowIfStopped();
        effectFollowed = true;
    });
    EXPECT_FALSE(effectFollowed);
    EXPECT_EQ(process.boxes, Texts{"Overflow"});
}

TEST(ProcessControl, GivesAnErrorToWhoTrapsItAlsoFromAnInnerHandler)
{
    test::QuietServices process;
    int                 trapped = 0;
    process.Run([&] {
        process.Run([&] { process.Run([] { throw core::RuntimeError(core::error::Overflow); }); },
                    [&](const core::RuntimeError& error) { trapped = error.Number(); });
        process.ThrowIfStopped();
    });
    EXPECT_EQ(trapped, core::error::Overflow);
    EXPECT_TRUE(process.boxes.empty());
    EXPECT_FALSE(process.HasEnded());
}

TEST(ProcessControl, LetsNoEffectFollowTheEnd)
{
    test::QuietServices process;
    bool                effectFollowed = false;
    process.Run([&] {
        process.End();
        process.ThrowIfStopped();
        effectFollowed = true;
    });
    EXPECT_FALSE(effectFollowed);
    EXPECT_TRUE(process.boxes.empty());
}

} // namespace
} // namespace qf::ui
