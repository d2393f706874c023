#include "construction/height.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

constexpr int NoStorey = -1;

TEST(BuildHeight, AddsTwentyAStorey)
{
    EXPECT_EQ(BuildHeight(0, "7"), "7");
    EXPECT_EQ(BuildHeight(1, "7"), "27");
    EXPECT_EQ(BuildHeight(2, "7"), "47");
    EXPECT_EQ(BuildHeight(1, "0"), "20");
    EXPECT_EQ(BuildHeight(1, "-5"), "15");
    EXPECT_EQ(BuildHeight(1, " 7.5 "), "27.5");
    EXPECT_RUNTIME_ERROR(13, BuildHeight(0, "high"));
    EXPECT_RUNTIME_ERROR(13, BuildHeight(0, ""));
}

struct ChangeCase {
    std::string                text;
    int                        storey;
    LoneMinus                  loneMinus;
    std::optional<std::string> custom;
    std::vector<std::string>   lines;
};

class BuildHeightAfterChangeTest : public testing::TestWithParam<ChangeCase> {};

TEST_P(BuildHeightAfterChangeTest, GivesTheDocumentedHeight)
{
    const auto&           change = GetParam();
    test::RecordingOutlet outlet;
    EXPECT_EQ(BuildHeightAfterChange(change.text, change.storey, change.loneMinus, outlet), change.custom);
    EXPECT_EQ(outlet.Lines(), change.lines);
}

const std::vector<std::string> refused{"box 64 [Dobrin's Quernfield 20250 ] Not a valid height!"};

// clang-format off
INSTANTIATE_TEST_SUITE_P(All, BuildHeightAfterChangeTest, testing::Values(
    ChangeCase{"",      1,        LoneMinus::StillTyping, "",           {}},
    ChangeCase{"   ",   NoStorey, LoneMinus::NoNumber,    "",           {}},
    ChangeCase{"-",     1,        LoneMinus::StillTyping, std::nullopt, {}},
    ChangeCase{"-",     1,        LoneMinus::NoNumber,    std::nullopt, refused},
    ChangeCase{"-",     NoStorey, LoneMinus::NoNumber,    std::nullopt, refused},
    ChangeCase{"abc",   0,        LoneMinus::StillTyping, std::nullopt, refused},
    ChangeCase{"5",     NoStorey, LoneMinus::StillTyping, std::nullopt, {}},
    ChangeCase{"5",     0,        LoneMinus::StillTyping, "5",          {}},
    ChangeCase{"-5",    1,        LoneMinus::StillTyping, "15",         {}},
    ChangeCase{"5",     2,        LoneMinus::NoNumber,    "45",         {}}));
// clang-format on

} // namespace
} // namespace qf::construction
