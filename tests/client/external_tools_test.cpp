#include "client/external_tools.h"

#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "core/runtime_error.h"
#include "support/recording_outlet.h"

namespace qf::client {
namespace {

using Starts = std::vector<std::pair<std::string, std::string>>;
using Lines = std::vector<std::string>;

constexpr auto LauncherBox =
    "box 16 [ERROR] ERROR: The path to UO Gateway/NoCrypt-client was wrong. Please re-enter it.";
constexpr auto ServerBox = "box 16 [ERROR] ERROR: The path to Zarn/Brakewater Exe was wrong. Please re-enter it.";
constexpr auto ToolBox = "box 16 [ERROR] ERROR: The path to InsideUO Directory was wrong. Please re-enter it.";

class ExternalToolsTest : public testing::Test {
  protected:
    ProgramStart Starter()
    {
        return [this](std::string_view program, std::string_view folder) {
            if (failure_ != 0) {
                throw core::RuntimeError(failure_);
            }
            starts_.emplace_back(program, folder);
        };
    }

    int                   failure_ = 0;
    Starts                starts_;
    test::RecordingOutlet outlet_;
};

TEST_F(ExternalToolsTest, ServerStartsInItsOwnFolder)
{
    StartZarn(R"(C:\Zarn Server\bin\zarn.exe)", Starter(), outlet_);
    EXPECT_EQ(starts_, (Starts{{R"(C:\Zarn Server\bin\zarn.exe)", R"(C:\Zarn Server\bin\)"}}));
    EXPECT_EQ(outlet_.Lines(), Lines{});
}

TEST_F(ExternalToolsTest, ServerPathThatIsEmptyStartsNothing)
{
    StartZarn("", Starter(), outlet_);
    EXPECT_EQ(starts_, Starts{});
    EXPECT_EQ(outlet_.Lines(), Lines{ServerBox});
}

TEST_F(ExternalToolsTest, ServerPathWithoutABackslashStartsNothing)
{
    StartZarn("zarn.exe", Starter(), outlet_);
    EXPECT_EQ(starts_, Starts{});
    EXPECT_EQ(outlet_.Lines(), Lines{ServerBox});
}

TEST_F(ExternalToolsTest, ItemToolStartsInTheFolderAsItStands)
{
    StartInsideUO(R"(C:\Tools\InsideUO\)", Starter(), outlet_);
    StartInsideUO(R"(C:\Tools)", Starter(), outlet_);
    EXPECT_EQ(starts_, (Starts{{"InsideUO.exe", R"(C:\Tools\InsideUO\)"}, {"InsideUO.exe", R"(C:\Tools)"}}));
    EXPECT_EQ(outlet_.Lines(), Lines{});
}

TEST_F(ExternalToolsTest, ItemToolFolderThatIsEmptyStartsNothing)
{
    StartInsideUO("", Starter(), outlet_);
    EXPECT_EQ(starts_, Starts{});
    EXPECT_EQ(outlet_.Lines(), Lines{ToolBox});
}

TEST_F(ExternalToolsTest, EveryFailureOfAStartHasItsOneBox)
{
    for (const int number : {core::error::PathNotFound, core::error::FileNotFound, core::error::InvalidCall}) {
        failure_ = number;
        outlet_.Clear();
        StartZarn(R"(\srv\zarn.exe)", Starter(), outlet_);
        StartInsideUO(R"(\srv\)", Starter(), outlet_);
        EXPECT_EQ(outlet_.Lines(), (Lines{ServerBox, ToolBox})) << number;
    }
}

TEST_F(ExternalToolsTest, GameClientCannotBeStarted)
{
    StartUO(outlet_);
    EXPECT_EQ(outlet_.Lines(), Lines{LauncherBox});
}

} // namespace
} // namespace qf::client
