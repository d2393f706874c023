#include "gamedata/picture_cache.h"

#include <QImage>
#include <gtest/gtest.h>

#include "gamedata/art_bytes.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace qf::gamedata {
namespace {

using test::Green;

class Pictures : public testing::Test {
  protected:
    Pictures()
    {
        folder_.MakeFolder("ItemExplorer");
        folder_.MakeFolder("client");
        UseGems();
    }

    void UseGems()
    {
        cache_.Use({.programFolder = folder_.ProgramPath(),
                    .category = "Gems",
                    .uoPath = folder_.ProgramPath() + "\\client\\",
                    .background = core::White,
                    .seeItemPics = [this] { return seeItemPics_; },
                    .status = [this](std::string_view status) { statuses_.emplace_back(status); }});
    }

    /// Art whose item 1 is 3 by 2 pixels with a green line, and whose item 2 is a diamond of zeros.
    void WriteArt()
    {
        const auto tile = test::RunTile(3, 2, {{0, 3, Green, Green, Green, 0, 0}, {0, 0}});
        folder_.Write("client/artidx.mul", test::IndexOf(1, test::IndexRecord(0)) +
                                               test::IndexRecord(static_cast<std::int64_t>(tile.size())) +
                                               test::IndexRecord(-1));
        folder_.Write("client/art.mul", tile + test::Long(0));
        UseGems();
    }

    core::PixelSurface Get(std::int32_t id)
    {
        core::PixelSurface picture(7, 7);
        cache_.GetCachedPicture(id, picture);
        return picture;
    }

    QImage Saved(std::string_view name)
    {
        cache_.SaveAll();
        const auto bytes = folder_.Read("ItemExplorer/Gems/" + std::string(name));
        return QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    }

    bool HasFile(std::string_view name) const { return folder_.Has("ItemExplorer/Gems/" + std::string(name)); }

    test::TempFolder         folder_;
    core::FileNumbers        numbers_;
    PictureCache             cache_{numbers_};
    bool                     seeItemPics_ = true;
    std::vector<std::string> statuses_;
};

using Statuses = std::vector<std::string>;

TEST_F(Pictures, AreDrawnOnceAndThenLoaded)
{
    WriteArt();
    const auto drawn = Get(1);
    EXPECT_EQ(statuses_, Statuses{"Generating cache..."});
    EXPECT_EQ(test::Rows(drawn), (std::vector<std::string>{"ggg", "..."}));
    cache_.SaveAll();

    folder_.Write("client/art.mul", "");
    const auto loaded = Get(1);
    EXPECT_EQ(statuses_, (Statuses{"Generating cache...", "Loading cache..."}));
    EXPECT_EQ(test::Rows(loaded), test::Rows(drawn));
}

TEST_F(Pictures, AreThereBeforeTheyAreSaved)
{
    WriteArt();
    Get(1);
    EXPECT_FALSE(cache_.AllSaved());
    EXPECT_FALSE(HasFile("item_1.bmp"));
    EXPECT_EQ(test::Rows(Get(1)), (std::vector<std::string>{"ggg", "..."}));
    EXPECT_EQ(statuses_, (Statuses{"Generating cache...", "Loading cache..."}));
    cache_.SaveAll();
    EXPECT_TRUE(cache_.AllSaved());
    EXPECT_TRUE(HasFile("item_1.bmp"));
}

TEST_F(Pictures, AreSavedByAndBy)
{
    WriteArt();
    for (const int id : {1, 2, 3}) {
        Get(id);
    }
    for (int turn = 0; turn < 3; ++turn) {
        cache_.SaveSome();
    }
    EXPECT_TRUE(cache_.AllSaved());
    EXPECT_TRUE(HasFile("item_3.bmp"));
}

TEST_F(Pictures, AreFilesThatOthersRead)
{
    WriteArt();
    Get(1);
    const auto image = Saved("item_1.bmp");
    EXPECT_EQ(image.size(), QSize(3, 2));
    EXPECT_EQ(image.pixelColor(2, 0), QColor(0, 248, 0));
    EXPECT_EQ(image.pixelColor(0, 1), QColor(Qt::white));
}

TEST_F(Pictures, ReleaseTheirFileNumbers)
{
    WriteArt();
    Get(1);
    EXPECT_EQ(numbers_.InUse(), 0);
}

TEST_F(Pictures, NeedTwoFileNumbers)
{
    WriteArt();
    for (int number = 0; number < core::FileNumbers::Most - 1; ++number) {
        numbers_.Take();
    }
    EXPECT_RUNTIME_ERROR(67, Get(1));
}

TEST_F(Pictures, ShareOneSurfaceThatKeepsItsSize)
{
    WriteArt();
    EXPECT_EQ(Get(2).Width(), 121);
    EXPECT_EQ(Get(1).Width(), 3);
    folder_.Write("ItemExplorer/Gems/item_2.bmp", "");
    const auto diamond = Get(3);
    EXPECT_EQ(diamond.Width(), 3);
    EXPECT_EQ(diamond.Height(), 2);
}

TEST_F(Pictures, OfAnAbsentTileAreBlank)
{
    WriteArt();
    Get(1);
    const auto picture = Get(0);
    EXPECT_EQ(picture.Width(), 3);
    EXPECT_EQ(test::Drawn(picture), 0);
    EXPECT_TRUE(Saved("item_0.bmp").size() == QSize(3, 2));
}

TEST_F(Pictures, AreBlankWhereTheSettingIsOffAndStaySo)
{
    WriteArt();
    seeItemPics_ = false;
    EXPECT_EQ(test::Drawn(Get(1)), 0);
    EXPECT_EQ(Saved("item_1.bmp").size(), QSize(121, 173));
    seeItemPics_ = true;
    EXPECT_EQ(test::Drawn(Get(1)), 0);
}

TEST_F(Pictures, AreMadeOfEmptyFilesWhereTheClientHasNone)
{
    const auto picture = Get(9);
    EXPECT_EQ(picture.Width(), 121);
    EXPECT_EQ(test::Drawn(picture), 2 * 22 * 23);
    EXPECT_TRUE(folder_.Has("client/Artidx.mul"));
    EXPECT_TRUE(folder_.Has("client/Art.mul"));
}

TEST_F(Pictures, AreMadeAnewWhereTheFileIsNoPicture)
{
    WriteArt();
    for (const auto* bytes : {"", "BM", "no picture at all, though it is long enough to hold a header of a bitmap"}) {
        folder_.Write("ItemExplorer/Gems/item_1.bmp", bytes);
        statuses_.clear();
        EXPECT_EQ(test::Rows(Get(1)), (std::vector<std::string>{"ggg", "..."}));
        EXPECT_EQ(statuses_, (Statuses{"Loading cache...", "Generating cache..."}));
        EXPECT_EQ(Saved("item_1.bmp").size(), QSize(3, 2));
    }
}

TEST_F(Pictures, MayBeOfAnyKind)
{
    QImage image(2, 2, QImage::Format_Indexed8);
    image.setColorTable({qRgb(1, 2, 3), qRgb(4, 5, 6)});
    image.fill(1);
    image.setPixel(0, 1, 0);
    folder_.MakeFolder("ItemExplorer/Gems");
    ASSERT_TRUE(image.save(QString::fromStdString((folder_.Path() / "ItemExplorer/Gems/item_5.bmp").string())));
    const auto picture = Get(5);
    EXPECT_EQ(picture.Width(), 2);
    EXPECT_EQ(picture.At(0, 0), 0x040506U);
    EXPECT_EQ(picture.At(0, 1), 0x010203U);
}

#ifndef _WIN32
TEST_F(Pictures, AreFoundWithoutRegardToCase)
{
    WriteArt();
    Get(1);
    cache_.SaveAll();
    std::filesystem::rename(folder_.Path() / "ItemExplorer/Gems/item_1.bmp",
                            folder_.Path() / "ItemExplorer/Gems/ITEM_1.BMP");
    statuses_.clear();
    UseGems();
    Get(1);
    EXPECT_EQ(statuses_, Statuses{"Loading cache..."});
    EXPECT_FALSE(HasFile("item_1.bmp"));
}
#endif

TEST_F(Pictures, MakeTheirFolderAgainWhereItWent)
{
    WriteArt();
    Get(1);
    std::filesystem::remove_all(folder_.Path() / "ItemExplorer");
    EXPECT_EQ(Saved("item_1.bmp").size(), QSize(3, 2));
}

TEST_F(Pictures, FailWhereTheirFolderCannotBeMade)
{
    folder_.Write("ItemExplorer/Gems", "");
    EXPECT_RUNTIME_ERROR(75, Get(1));
}

TEST_F(Pictures, FailWhereAFileCannotBeMade)
{
    WriteArt();
    folder_.MakeFolder("ItemExplorer/Gems/item_1.bmp");
    Get(1);
    EXPECT_RUNTIME_ERROR(75, cache_.SaveAll());
    EXPECT_TRUE(cache_.AllSaved());
}

TEST_F(Pictures, RefuseANumberOutOfRange)
{
    WriteArt();
    EXPECT_RUNTIME_ERROR(6, Get(0x7FFFFFFF));
}

} // namespace
} // namespace qf::gamedata
