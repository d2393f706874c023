#include "gamedata/catalogue.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"

namespace qf::gamedata {
namespace {

using Texts = std::vector<std::string>;

TEST(CataloguePaths, LieBelowTheProgramsFolder)
{
    EXPECT_EQ(ExplorerFolder("C:\\QF"), "C:\\QF\\ItemExplorer");
    EXPECT_EQ(ItemListPath("C:\\QF", "Gems"), "C:\\QF\\ItemExplorer\\Gems.txt");
    EXPECT_EQ(PictureFolder("C:\\QF", "Gems"), "C:\\QF\\ItemExplorer\\Gems\\");
    EXPECT_EQ(PictureName(5899), "item_5899.bmp");
    EXPECT_EQ(PictureName(-1), "item_-1.bmp");
}

TEST(CategoryName, LosesEveryEnding)
{
    EXPECT_EQ(CategoryName("Gems.txt"), "Gems");
    EXPECT_EQ(CategoryName("a.txt.txt"), "a");
    EXPECT_EQ(CategoryName("a.txt b.txt"), "a b");
    EXPECT_EQ(CategoryName(".t.txtxt"), ".txt");
    EXPECT_EQ(CategoryName("GEMS.TXT"), "GEMS.TXT");
}

TEST(ListCategories, GoesByNameWithoutRegardToCase)
{
    const test::TempFolder folder;
    for (const auto* name : {"beta.txt", "Alpha.txt", "Gamma.txt", "notes.doc"}) {
        folder.Write(std::string("ItemExplorer/") + name, "1");
    }
    folder.MakeFolder("ItemExplorer/Beta");
    folder.MakeFolder("ItemExplorer/folder.txt");
    EXPECT_EQ(ListCategories(folder.ProgramPath()), (Texts{"Alpha", "beta", "Gamma"}));
}

TEST(ListCategories, IsEmptyWithoutTheFolder)
{
    const test::TempFolder folder;
    EXPECT_TRUE(ListCategories(folder.ProgramPath()).empty());
}

TEST(MakeExplorerFolder, MakesItOnce)
{
    const test::TempFolder folder;
    MakeExplorerFolder(folder.ProgramPath());
    EXPECT_TRUE(folder.Has("ItemExplorer"));
    MakeExplorerFolder(folder.ProgramPath());
}

TEST(MakeExplorerFolder, FailsWhereAFileStandsThere)
{
    const test::TempFolder folder;
    folder.Write("ItemExplorer", "");
    EXPECT_RUNTIME_ERROR(75, MakeExplorerFolder(folder.ProgramPath()));
}

TEST(ParseItemList, PartsTheFirstLineAtCommas)
{
    EXPECT_EQ(ParseItemList("1, 2,5899"), (Texts{"1", " 2", "5899"}));
    EXPECT_EQ(ParseItemList("7"), Texts{"7"});
    EXPECT_EQ(ParseItemList("1,,2,"), (Texts{"1", "", "2", ""}));
}

TEST(ParseItemList, KeepsDuplicatesAndWhatIsNoNumber)
{
    EXPECT_EQ(ParseItemList("1,x,1"), (Texts{"1", "x", "1"}));
}

TEST(ParseItemList, EndsAtEveryLineEnd)
{
    EXPECT_EQ(ParseItemList("1,2\r\n3"), (Texts{"1", "2"}));
    EXPECT_EQ(ParseItemList("1,2\n3"), (Texts{"1", "2"}));
    EXPECT_EQ(ParseItemList("1,2\r3"), (Texts{"1", "2"}));
}

TEST(ParseItemList, TellsNoListFromOneWithoutItems)
{
    EXPECT_EQ(ParseItemList(""), std::nullopt);
    EXPECT_EQ(ParseItemList("\r\n1,2"), Texts{});
}

class ItemListFile : public testing::Test {
  protected:
    std::optional<ItemList> Get(std::string_view category)
    {
        return GetItemList(folder_.ProgramPath(), category, numbers_, outlet_);
    }

    test::TempFolder      folder_;
    core::FileNumbers     numbers_;
    test::RecordingOutlet outlet_;
};

TEST_F(ItemListFile, IsReadUpToItsFirstLineEnd)
{
    folder_.Write("ItemExplorer/Gems.txt", "1,2\r\nremarks, too\r\n");
    EXPECT_EQ(Get("Gems"), (Texts{"1", "2"}));
    EXPECT_TRUE(outlet_.Messages().empty());
    EXPECT_EQ(numbers_.InUse(), 0);
}

TEST_F(ItemListFile, MayBeLong)
{
    std::string line = "0";
    for (int i = 1; i < 20000; ++i) {
        line += "," + std::to_string(i);
    }
    folder_.Write("ItemExplorer/All.txt", line + "\nend");
    const auto list = Get("All");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->size(), 20000U);
    EXPECT_EQ(list->back(), "19999");
}

TEST_F(ItemListFile, GivesNothingWhereItIsEmpty)
{
    folder_.Write("ItemExplorer/None.txt", "");
    EXPECT_EQ(Get("None"), std::nullopt);
    EXPECT_TRUE(outlet_.Messages().empty());
}

TEST_F(ItemListFile, IsReportedWhereItIsMissing)
{
    EXPECT_EQ(Get("Gems"), std::nullopt);
    EXPECT_EQ(outlet_.Messages(), (std::vector<core::Message>{{"Could not find the item list for 'Gems'.",
                                                               core::MessageStyle::Warning, std::nullopt}}));
}

#ifndef _WIN32
TEST_F(ItemListFile, ThatFailsInItsCourseIsAnError)
{
    // A file that opens, and of whose first bytes none can be read.
    std::filesystem::create_symlink("/proc/self/mem", folder_.MakeFolder("ItemExplorer") / "Gems.txt");
    EXPECT_RUNTIME_ERROR(75, Get("Gems"));
}
#endif

TEST_F(ItemListFile, NeedsAFileNumber)
{
    folder_.Write("ItemExplorer/Gems.txt", "1");
    for (int number = 0; number < core::FileNumbers::Most; ++number) {
        numbers_.Take();
    }
    EXPECT_RUNTIME_ERROR(67, Get("Gems"));
}

TEST(DeleteCachedPictures, CountsThoseThatWent)
{
    const test::TempFolder folder;
    for (const auto* name : {"item_1.bmp", "item_2.bmp", "item_3.bmp"}) {
        folder.Write(std::string("ItemExplorer/Gems/") + name, "x");
    }
    folder.MakeFolder("ItemExplorer/Gems/item_4.bmp");
    EXPECT_EQ(DeleteCachedPictures({"1", " 2", "2", "4", "9"}, folder.ProgramPath(), "Gems"), 2);
    EXPECT_FALSE(folder.Has("ItemExplorer/Gems/item_1.bmp"));
    EXPECT_FALSE(folder.Has("ItemExplorer/Gems/item_2.bmp"));
    EXPECT_TRUE(folder.Has("ItemExplorer/Gems/item_3.bmp"));
    EXPECT_TRUE(folder.Has("ItemExplorer/Gems/item_4.bmp"));
}

TEST(DeleteCachedPictures, StopsAtATextThatIsNoNumber)
{
    const test::TempFolder folder;
    folder.Write("ItemExplorer/Gems/item_1.bmp", "x");
    folder.Write("ItemExplorer/Gems/item_2.bmp", "x");
    EXPECT_RUNTIME_ERROR(13, DeleteCachedPictures({"1", "x", "2"}, folder.ProgramPath(), "Gems"));
    EXPECT_FALSE(folder.Has("ItemExplorer/Gems/item_1.bmp"));
    EXPECT_TRUE(folder.Has("ItemExplorer/Gems/item_2.bmp"));
}

} // namespace
} // namespace qf::gamedata
