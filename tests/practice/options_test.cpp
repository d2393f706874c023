#include <gtest/gtest.h>

#include <vector>

#include "practice/options.h"

namespace qf::practice {

namespace {

Options Parse(const std::vector<const char*>& arguments)
{
    return ParseOptions(arguments);
}

TEST(PracticeOptions, HaveDefaults)
{
    const Options options = Parse({});
    EXPECT_EQ(options.prefix, "'");
    EXPECT_EQ(options.logFile, "");
    EXPECT_EQ(options.screenshotFile, "");
    EXPECT_EQ(options.width, 1024);
    EXPECT_EQ(options.height, 768);
    EXPECT_FALSE(options.help);
}

TEST(PracticeOptions, AreRead)
{
    const Options options =
        Parse({"--log", "a.log", "--prefix", "", "--screenshot", "b.bmp", "--size", "1920x1080", "--help"});
    EXPECT_EQ(options.logFile, "a.log");
    EXPECT_EQ(options.prefix, "");
    EXPECT_EQ(options.screenshotFile, "b.bmp");
    EXPECT_EQ(options.width, 1920);
    EXPECT_EQ(options.height, 1080);
    EXPECT_TRUE(options.help);
}

TEST(PracticeOptions, ChooseTheArt)
{
    EXPECT_EQ(Parse({}).clientFolder, "");
    EXPECT_FALSE(Parse({}).noArt);
    EXPECT_EQ(Parse({"--client-folder", "/games/client"}).clientFolder, "/games/client");
    EXPECT_TRUE(Parse({"--no-art"}).noArt);
    EXPECT_THROW(Parse({"--no-art", "--client-folder", "x"}), UsageError);
    EXPECT_NE(UsageText().find("--client-folder DIR"), std::string::npos);
    EXPECT_NE(UsageText().find("--no-art"), std::string::npos);
}

TEST(PracticeOptions, RefuseWhatTheyDoNotKnow)
{
    const std::vector<std::vector<const char*>> faults{
        {"--fast"},
        {"file"},
        {"--log"},
        {"--log", ""},
        {"--client-folder"},
        {"--client-folder", ""},
        {"--size", "1024"},
        {"--size", "x768"},
        {"--size", "1x1"},
        {"--size", "1024x768x3"},
        {"--size", "9000x9000"},
        {"--screenshot"},
        {"--prefix"},
        {"--size", "-500x500"},
    };
    for (const auto& arguments : faults) {
        EXPECT_THROW(Parse(arguments), UsageError) << arguments.front() << " " << arguments.back();
    }
}

} // namespace

} // namespace qf::practice
