#include "world/template_build.h"

#include <gtest/gtest.h>
#include <sstream>

#include "core/product.h"
#include "core/runtime_error.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "world/text_lines.h"

namespace qf::world {
namespace {

using core::Generation070;
using core::Generation09;
using test::RecordingOutlet;
using Lines = std::vector<std::string>;

const std::string Critical = "box 16 [" + core::ProductTitle() + "] ";

constexpr auto PleaseFill = "box 0 Please fill in the location fields before attempting to build";

bool Present()
{
    return true;
}

/// What a build of this text at 1000, 2000, 5 sends and shows.
Lines Built(const std::string& text, core::ServerGeneration generation = Generation09)
{
    std::stringbuf  bytes(text);
    TextLines       lines(bytes);
    RecordingOutlet outlet;
    BuildTemplateLines(lines, {1000, 2000, 5}, generation, outlet);
    return outlet.Lines();
}

class TemplateBuild : public testing::Test {
  protected:
    Lines Build(const std::string& text, const BuildBoxes& boxes = {"1000", "2000", "5"})
    {
        folder_.Write("Templates/a.tmp", text);
        return BuildFile("a.tmp", boxes);
    }

    Lines BuildFile(const std::string& name, const BuildBoxes& boxes = {"1000", "2000", "5"})
    {
        RecordingOutlet outlet;
        BuildTemplate(
            folder_.ProgramPath() + "\\Templates\\" + name, boxes, Generation09,
            [this] {
                ++asked_;
                return present_;
            },
            outlet);
        return outlet.Lines();
    }

    test::TempFolder folder_;
    bool             present_ = true;
    int              asked_ = 0;
};

TEST_F(TemplateBuild, SendsEachLineInFileOrder)
{
    EXPECT_EQ(Build(":Hut\r\nDESC small and dry\r\n\r\nTILEW 04 a9 0 4 0 3 0\r\nXLINE 00 1c 0 4 0 0\r\n"
                    "YLINE 00 1b 0 1 3 0\r\n06 e5 2 3 0\r\nTILEW 0x04a9 0 4 0 3 20\r\n"),
              (Lines{"plain Good lord, I'm building a Hut", "plain Wow, I could describe this as small and dry",
                     "send tile 0x04a9 1000 1004 2000 2003 5", "send tile 0x001c 1000 1004 2000 2000 5",
                     "send tile 0x001b 1000 1000 2001 2003 5", "send tile 0x06e5 1002 1002 2003 2003 5",
                     "send tile 0x04a9  1000 1004 2000 2003 25"}));
}

TEST_F(TemplateBuild, DoesNothingForAnEmptyTemplate)
{
    EXPECT_EQ(Build(""), Lines{});
    EXPECT_EQ(Build("\r\n\n\r\n"), Lines{});
}

TEST_F(TemplateBuild, ConvertsTheBoxesBeforeAnythingElse)
{
    present_ = false;
    for (const auto& boxes :
         {BuildBoxes{"", "2000", "5"}, BuildBoxes{"1000", "north", "5"}, BuildBoxes{"1000", "2000", "N/A"}}) {
        EXPECT_EQ(BuildFile("missing.tmp", boxes), Lines{PleaseFill});
    }
    EXPECT_EQ(BuildFile("missing.tmp", {"2147483648", "2000", "5"}), Lines{"box 0 Overflow"});
    EXPECT_EQ(asked_, 0);
}

TEST_F(TemplateBuild, ConvertsTheBoxesByTheRuleOfAllBoxes)
{
    EXPECT_EQ(Build("1b 4d 0 0 0", {" 1000 ", "1999.5", "&HA"}), Lines{"send tile 0x1b4d 1000 1000 2000 2000 10"});
}

TEST_F(TemplateBuild, StopsWithoutTheClientBeforeItOpensTheFile)
{
    present_ = false;
    EXPECT_EQ(BuildFile("missing.tmp"),
              Lines{Critical + "Error: Could not find UO client window. Can't build house template."});
    EXPECT_EQ(asked_, 1);
}

TEST_F(TemplateBuild, ShowsWhatIsWrongWithTheFile)
{
    EXPECT_EQ(BuildFile("missing.tmp"), Lines{"box 0 Path not found"});
    folder_.MakeFolder("Templates/folder.tmp");
    EXPECT_EQ(BuildFile("missing.tmp"), Lines{"box 0 File not found"});
    EXPECT_EQ(BuildFile("folder.tmp"), Lines{"box 0 File not found"});
}

TEST_F(TemplateBuild, EndsAtAnErrorAndKeepsWhatWasSent)
{
    EXPECT_EQ(Build(":Hut\n1b 4d 0 0 0\nYLINE 0x1b4d 3 0 5 0\n1b 4d 1 0 0\n"),
              (Lines{"plain Good lord, I'm building a Hut", "send tile 0x1b4d 1000 1000 2000 2000 5", PleaseFill}));
    EXPECT_EQ(Build("1b 4d 0 0 0\n1b 4d 0 x 0\n1b 4d 1 0 0\n"),
              (Lines{"send tile 0x1b4d 1000 1000 2000 2000 5", PleaseFill}));
    EXPECT_EQ(Build("1b 4d 0 0 2147483647\n1b 4d 1 0 0\n"), Lines{"box 0 Overflow"});
}

TEST_F(TemplateBuild, ShowsTheErrorOfACommand)
{
    class Failing final : public RecordingOutlet {
      public:
        void Send(std::string_view, bool) override { throw core::RuntimeError(core::error::Overflow); }
    };
    folder_.Write("a.tmp", ":Hut");
    Failing outlet;
    BuildTemplate(folder_.ProgramPath() + "\\a.tmp", {"1", "2", "3"}, Generation09, Present, outlet);
    EXPECT_EQ(outlet.Lines(), Lines{"box 0 Overflow"});
}

TEST(TemplateBuildLines, TellKeywordsByTheirBeginningInAnyCase)
{
    EXPECT_EQ(Built("tilew 1b 4d 0 1 0 1 0"), Lines{"send tile 0x1b4d 1000 1001 2000 2001 5"});
    EXPECT_EQ(Built("tIlEwide 1b 4d 0 1 0 1 0"), Lines{"send tile 0x1b4d 1000 1001 2000 2001 5"});
    EXPECT_EQ(Built("xlines 1b 4d 0 1 0 0"), Lines{"send tile 0x1b4d 1000 1001 2000 2000 5"});
    EXPECT_EQ(Built("Yline 1b 4d 0 1 2 0"), Lines{"send tile 0x1b4d 1000 1000 2001 2002 5"});
    EXPECT_EQ(Built("Desc x"), Lines{"plain Wow, I could describe this as x"});
    EXPECT_EQ(Built("description"), Lines{"plain Wow, I could describe this as iption"});
    EXPECT_EQ(Built(" TILEW 1b 4d 0 1 0 1 0"), Lines{Critical + "You have a bad format on line1"});
}

TEST(TemplateBuildLines, SayNamesAndDescriptionsAsTheyStand)
{
    EXPECT_EQ(Built(":"), Lines{"plain Good lord, I'm building a "});
    EXPECT_EQ(Built(": two  words "), Lines{"plain Good lord, I'm building a  two  words "});
    EXPECT_EQ(Built("DESC"), Lines{"plain Wow, I could describe this as "});
    EXPECT_EQ(Built("DESC "), Lines{"plain Wow, I could describe this as "});
    EXPECT_EQ(Built("DESC  x"), Lines{"plain Wow, I could describe this as  x"});
}

TEST(TemplateBuildLines, AreOfTheAnsiCodePage)
{
    EXPECT_EQ(Built(":Caf\xE9 \x80"), Lines{"plain Good lord, I'm building a Caf\u00e9 \u20ac"});
    EXPECT_EQ(Built("DESC\xE9 b"), Lines{"plain Wow, I could describe this as  b"});
}

TEST(TemplateBuildLines, EndWithOrWithoutACarriageReturn)
{
    const Lines both{"plain Good lord, I'm building a A", "plain Good lord, I'm building a B"};
    EXPECT_EQ(Built(":A\r\n:B\r\n"), both);
    EXPECT_EQ(Built(":A\n:B"), both);
}

TEST(TemplateBuildLines, CountEmptyLinesAndGoOnBehindABadOne)
{
    EXPECT_EQ(Built(":A\n\n\r\nTILEW 1b 4d 0 1\n1b 4d 0 0 0"),
              (Lines{"plain Good lord, I'm building a A", Critical + "You have a bad tile format on line4",
                     "send tile 0x1b4d 1000 1000 2000 2000 5"}));
}

TEST(TemplateBuildLines, TakeATwoWordIdForOneWordWhereAFieldIsMissing)
{
    EXPECT_EQ(Built("TILEW 10 20 0 1 0 1"), Lines{"send tile 10  1020 1000 2001 2000 6"});
    EXPECT_RUNTIME_ERROR(13, Built("TILEW 1b 4d 0 1 0 1"));
}

TEST(TemplateBuildLines, ComplainByKind)
{
    // clang-format off
    const std::pair<std::string, std::string> complaints[] = {
        {"TILEW 0 0 0 0 0",         "You have a bad tile format on line2"},
        {"TILEW 1b 4d 0 1 0 1 0 0", "You have a bad tile format on line2"},
        {"XLINE 1b 4d 0 1",         "You have a bad XLINE format on line2"},
        {"XLINE 1b 4d 0 1 0 0 ",    "You have a bad XLINE format on line2"},
        {"YLINE 1b 4d 0 1",         "You have a bad YLINK format on line2"},
        {"YLINE 1b 4d 0 1 0 0 0",   "You have a bad YLINK format on line2"},
        {"1b 4d 0",                 "You have a bad format on line2"},
        {"1b 4d 0 0 0 0",           "You have a bad format on line2"},
        {"1b 4d 0 0 0 ",            "You have a bad format on line2"},
        {"# no comment",            "You have a bad format on line2"},
    };
    // clang-format on
    for (const auto& [line, complaint] : complaints) {
        EXPECT_EQ(Built("\r\n" + line + "\r\n:B"), (Lines{Critical + complaint, "plain Good lord, I'm building a B"}));
    }
}

TEST(TemplateBuildLines, FollowTheGeneration)
{
    const std::string text = "TILEW 1b 4d 0 2 0 1 0\n0x1b4d 0 0 0\n";
    EXPECT_EQ(Built(text, Generation070),
              (Lines{"send tilew 1b 4d  1000 1002 2000 2001 5", "send tilew 0x1b4d  1000 1000 2000 2000 5"}));
    EXPECT_EQ(Built(text, core::ServerGeneration{7}), (Lines{"send  2001 5", "send  2000 5"}));
}

} // namespace
} // namespace qf::world
