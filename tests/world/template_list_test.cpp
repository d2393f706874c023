#include "world/template_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"

namespace qf::world {
namespace {

using Entries = std::vector<TemplateEntry>;

class TemplateList : public testing::Test {
  protected:
    Entries     List() const { return ListTemplates(folder.ProgramPath() + "\\Templates\\"); }
    std::string PathOf(const std::string& name) const { return folder.ProgramPath() + "\\Templates\\" + name; }

    test::TempFolder folder;
};

TEST_F(TemplateList, FailsWithoutItsFolder)
{
    EXPECT_RUNTIME_ERROR(76, List());
    folder.Write("Templates", "a file");
    EXPECT_RUNTIME_ERROR(76, List());
}

TEST_F(TemplateList, IsEmptyForAnEmptyFolder)
{
    folder.MakeFolder("Templates");
    EXPECT_EQ(List(), Entries{});
}

TEST_F(TemplateList, TakesFilesThatEndInTmpInAnyCase)
{
    for (const auto* name : {"a.tmp", "B.TMP", "c.Tmp", "dtmp", "e.tmp.txt", "f.tm", "mp", "g.tmpx"}) {
        folder.Write(std::string("Templates/") + name, ":" + std::string(name));
    }
    folder.MakeFolder("Templates/folder.tmp");
    EXPECT_EQ(List(), (Entries{{"a.tmp", "a.tmp"}, {"B.TMP", "B.TMP"}, {"c.Tmp", "c.Tmp"}, {"dtmp", "dtmp"}}));
}

TEST_F(TemplateList, IsOrderedByNameWithoutRegardToCase)
{
    for (const auto* name : {"Zoo.tmp", "apple.tmp", "BARN.tmp", "aB.tmp", "10.tmp", "9.tmp"}) {
        folder.Write(std::string("Templates/") + name, ":x");
    }
    std::vector<std::string> names;
    for (const auto& entry : List()) {
        names.push_back(entry.fileName);
    }
    EXPECT_THAT(names, testing::ElementsAre("10.tmp", "9.tmp", "aB.tmp", "apple.tmp", "BARN.tmp", "Zoo.tmp"));
}

TEST_F(TemplateList, ShowsTheFirstLineFromItsSecondCharacterOn)
{
    folder.Write("Templates/1.tmp", ":Hut\r\nDESC x\r\n");
    folder.Write("Templates/2.tmp", ":Hut\n");
    folder.Write("Templates/3.tmp", "no name\r\n:Hut");
    folder.Write("Templates/4.tmp", "");
    folder.Write("Templates/5.tmp", "\r\n:Hut");
    folder.Write("Templates/6.tmp", "\xE9t\xE9\r\n");
    folder.Write("Templates/7.tmp", ":");
    folder.Write("Templates/8.tmp", ": Hut & \t");
    EXPECT_EQ(List(), (Entries{{"Hut", "1.tmp"},
                               {"Hut", "2.tmp"},
                               {"o name", "3.tmp"},
                               {"", "4.tmp"},
                               {"", "5.tmp"},
                               {"t\u00e9", "6.tmp"},
                               {"", "7.tmp"},
                               {" Hut & \t", "8.tmp"}}));
}

TEST_F(TemplateList, ReadsTheFirstDescription)
{
    folder.Write("Templates/a.tmp", ":Hut\r\n1b 4d 0 0 0\r\ndesc one\r\nDESC two\r\n");
    EXPECT_EQ(TemplateDescription(PathOf("a.tmp")), "one");
    folder.Write("Templates/a.tmp", "DESCRIBES");
    EXPECT_EQ(TemplateDescription(PathOf("a.tmp")), "IBES");
    folder.Write("Templates/a.tmp", ":Hut\nDESC");
    EXPECT_EQ(TemplateDescription(PathOf("a.tmp")), "");
    folder.Write("Templates/a.tmp", ":Hut\n DESC x\nDES x");
    EXPECT_EQ(TemplateDescription(PathOf("a.tmp")), " ");
    folder.Write("Templates/a.tmp", "");
    EXPECT_EQ(TemplateDescription(PathOf("a.tmp")), " ");
}

TEST_F(TemplateList, FailsToDescribeAFileThatIsGone)
{
    EXPECT_RUNTIME_ERROR(76, TemplateDescription(PathOf("a.tmp")));
    folder.MakeFolder("Templates");
    EXPECT_RUNTIME_ERROR(53, TemplateDescription(PathOf("a.tmp")));
}

TEST_F(TemplateList, ShowsADescriptionUnderTheNameOrThatThereIsNone)
{
    const auto shown = [&](const std::string& text) {
        folder.Write("Templates/a.tmp", text);
        test::RecordingOutlet outlet;
        ShowTemplateInfo(PathOf("a.tmp"), "Hut", outlet);
        return outlet.Lines();
    };
    using Lines = std::vector<std::string>;
    EXPECT_EQ(shown(":Hut\nDESC small  and dry\n"), Lines{"box 0 [: Hut] small  and dry"});
    EXPECT_EQ(shown(":Hut\nDESC\n"), Lines{"box 0 [: Hut] "});
    EXPECT_EQ(shown(":Hut\n"), Lines{"box 0 The house you selected does not have a description"});
    EXPECT_EQ(shown(":Hut\nDESC  \n"), Lines{"box 0 The house you selected does not have a description"});
}

} // namespace
} // namespace qf::world
