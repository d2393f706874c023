#include "gamedata/art.h"

#include "gamedata/art_drawing.h"
#include "gamedata/art_model.h"

namespace qf::test {
namespace {

using Size = Canvas::Size;
using Picture = std::vector<std::string>;

constexpr Size NewSurface{121, 173};

const std::string Cross = RunTile(3, 4,
                                  {
                                      {1, 1, Red, 0, 0},
                                      {0, 3, Green, Black, Green, 0, 0},
                                      {0, 1, Blue, 1, 1, Blue, 0, 0},
                                      {0, 3, Red, Red, Red, 0, 0},
                                  });
const Picture     CrossDrawn{
    ".r......", "g#g.....", "b.b.....", "........", "........", "........", "........", "........", "........",
};

TEST(TileColours, TruncatingOfEveryPixel)
{
    for (int pixel = -32768; pixel <= 32767; ++pixel) {
        ASSERT_EQ(gamedata::TruncatingColour(static_cast<std::int16_t>(pixel)), ModelTruncating(pixel)) << pixel;
    }
}

TEST(TileColours, RoundingOfEveryPixel)
{
    for (int pixel = -32768; pixel <= 32767; ++pixel) {
        ASSERT_EQ(gamedata::RoundingColour(static_cast<std::int16_t>(pixel)), ModelRounding(pixel)) << pixel;
    }
}

TEST(TileColours, SingleValues)
{
    EXPECT_EQ(gamedata::TruncatingColour(0x7FFF), 0xF8F8F8U);
    EXPECT_EQ(gamedata::TruncatingColour(-1), 0xF8F8F8U);
    EXPECT_EQ(gamedata::TruncatingColour(0x0421), 0x080808U);
    EXPECT_EQ(gamedata::RoundingColour(0x7FFF), 0x0000F8U);
    EXPECT_EQ(gamedata::RoundingColour(-1), 0x0000F8U);
    EXPECT_EQ(gamedata::RoundingColour(0x0010), 0x000080U); // half of green: down to the even 0
    EXPECT_EQ(gamedata::RoundingColour(0x0011), 0x000888U); // past the half
    EXPECT_EQ(gamedata::RoundingColour(0x0030), 0x001080U); // half again: up to the even 2
    EXPECT_EQ(gamedata::RoundingColour(0x0200), 0x008000U); // half of red: down to the even 0
    EXPECT_EQ(gamedata::RoundingColour(0x0600), 0x108000U); // half again: up to the even 2
}

TEST_F(StaticTile, RunLayoutPixelByPixel)
{
    EXPECT_EQ(Draw(Cross), 0);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
    EXPECT_EQ(canvas.refreshes, (std::vector<Size>{NewSurface, {8, 9}}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, RunLayoutTruncates)
{
    Draw(RunTile(2, 2, {{0, 2, 0x7FFF, 0x001F, 0, 0}, {0, 0}}));
    EXPECT_EQ(canvas.At(0, 0), 0xF8F8F8U);
    EXPECT_EQ(canvas.At(1, 0), 0x0000F8U);
}

TEST_F(StaticTile, DiamondPixelByPixel)
{
    std::string art = Long(0);
    for (int pixel = 0; pixel < 1012; ++pixel) {
        art += Words({pixel * 37});
    }
    EXPECT_EQ(Draw(art), 0);
    EXPECT_EQ(canvas.refreshes, (std::vector<Size>{NewSurface}));
    EXPECT_EQ(canvas.Now(), NewSurface);
    EXPECT_EQ(numbers.InUse(), 0);

    ArtModel   expected(NewSurface.width, NewSurface.height);
    int        pixels = 0;
    const auto line = [&](int y, int from, int to) {
        for (int x = from; x <= to; ++x, ++pixels) {
            const int word = pixels * 37;
            expected.pixels[static_cast<std::size_t>(y * 121 + x)] = ModelRounding(word >= 32768 ? word - 65536 : word);
        }
    };
    for (int y = 3; y <= 24; ++y) {
        line(y, 27 - y, y + 22);
    }
    for (int y = 25; y <= 46; ++y) {
        line(y, y - 22, 71 - y);
    }
    EXPECT_EQ(pixels, 1012);
    EXPECT_TRUE(expected.Equals(canvas));
}

TEST_F(StaticTile, DiamondCorners)
{
    Draw(Long(0));
    const auto rows = Rows(canvas);
    EXPECT_EQ(rows[2], std::string(121, '.'));
    EXPECT_EQ(rows[3], std::string(24, '.') + "##" + std::string(95, '.'));
    EXPECT_EQ(rows[24], "..." + std::string(44, '#') + std::string(74, '.'));
    EXPECT_EQ(rows[25], rows[24]);
    EXPECT_EQ(rows[46], rows[3]);
    EXPECT_EQ(rows[47], rows[2]);
}

TEST_F(StaticTile, DiamondOnASurfaceThatIsTooSmallIsCutOff)
{
    canvas.SetSize(25, 4);
    EXPECT_EQ(Draw(Long(0)), 0);
    EXPECT_EQ(Rows(canvas),
              (Picture{std::string(25, '.'), std::string(25, '.'), std::string(25, '.'), std::string(24, '.') + "#"}));
}

TEST_F(StaticTile, FlagAtBothBorders)
{
    struct Case {
        std::int64_t flag;
        bool         isDiamond;
    };
    for (const auto& [flag, isDiamond] : {Case{0, true},
                                          {1, false},
                                          {0xFFFF, false},
                                          {0x10000, true},
                                          {0x7FFFFFFF, true},
                                          {0x80000000, false},
                                          {0xFFFFFFFF, false}}) {
        canvas.SetSize(121, 173);
        EXPECT_EQ(Draw(RunTile(3, 2, {{0, 1, Red, 0, 0}, {0, 0}}, flag)), 0);
        EXPECT_EQ(canvas.refreshes.size(), isDiamond ? 1U : 2U) << flag;
        EXPECT_EQ(Drawn(canvas) > 1, isDiamond) << flag;
    }
}

TEST_F(StaticTile, ItemIdNamesTheRecord16384PlacesFurtherOn)
{
    Files(IndexOf(3, IndexRecord(4)), "xxxx" + Cross);
    EXPECT_EQ(DrawFiles(3), 0);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
    EXPECT_EQ(lastId, 0x4003);
    EXPECT_EQ(DrawFiles(2), 0);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(canvas.refreshes, (std::vector<Size>{{8, 9}}));
}

TEST_F(StaticTile, SizeOfTheRecordCountsForNothing)
{
    for (const int size : {-1, 0, 5, 0x7FFFFFFF}) {
        Files(IndexRecord(0, size), Cross);
        DrawFiles();
        EXPECT_EQ(Rows(canvas), CrossDrawn) << size;
    }
}

TEST_F(StaticTile, AbsentTileLeavesABlankPicture)
{
    canvas.Plot(5, 5, 0);
    Files(IndexRecord(-1), Cross);
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(canvas.refreshes, (std::vector<Size>{NewSurface}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, SettingOffLeavesPictureAndId)
{
    Draw(Cross);
    drawing.seeItemPics = false;
    EXPECT_EQ(DrawFiles(7), 0);
    EXPECT_EQ(lastId, 7);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
    EXPECT_TRUE(canvas.refreshes.empty());
}

TEST_F(StaticTile, MissingFilesLeaveThePictureButNotTheId)
{
    canvas.Plot(5, 5, 0);
    EXPECT_EQ(DrawFiles(7), 0);
    EXPECT_EQ(lastId, 0x4007);
    folder.Write("uo/Artidx.mul", IndexRecord(0));
    EXPECT_EQ(DrawFiles(), 0);
    std::filesystem::remove(folder.Path() / "uo" / "Artidx.mul");
    folder.Write("uo/Art.mul", Cross);
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_EQ(Drawn(canvas), 1);
    EXPECT_TRUE(canvas.refreshes.empty());
    EXPECT_FALSE(folder.Has("uo/Artidx.mul"));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, FoldersInTheFilesPlaceAreNoFiles)
{
    folder.MakeFolder("uo/Artidx.mul");
    folder.Write("uo/Art.mul", Cross);
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_TRUE(canvas.refreshes.empty());
}

TEST_F(StaticTile, FilesInOtherLetterCase)
{
    folder.Write("uo/ARTIDX.MUL", IndexRecord(0));
    folder.Write("uo/art.Mul", Cross);
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
}

TEST_F(StaticTile, FolderWithoutItsSeparatorMakesTwoEmptyFilesAndDrawsABlackDiamond)
{
    Files(IndexRecord(0), Cross);
    drawing.uoPath = folder.ProgramPath() + "\\uo";
    EXPECT_EQ(DrawFiles(123), 0);
    EXPECT_EQ(Drawn(canvas), 1012);
    for (const auto pixel : canvas.Pixels()) {
        ASSERT_TRUE(pixel == 0xFF000000U || pixel == 0xFFFFFFFFU);
    }
    EXPECT_EQ(canvas.At(24, 3), 0U);
    EXPECT_EQ(folder.Read("uoArtidx.mul"), "");
    EXPECT_EQ(folder.Read("uoArt.mul"), "");
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, FilesOfTheClientStayAsTheyAre)
{
    Draw(Cross);
    EXPECT_EQ(folder.Read("uo/Artidx.mul"), IndexRecord(0));
    EXPECT_EQ(folder.Read("uo/Art.mul"), Cross);
}

TEST_F(StaticTile, BackgroundIsTheSharedColour)
{
    drawing.background = 0x102030;
    Draw(Cross);
    EXPECT_EQ(canvas.At(0, 0), 0x102030U);
    EXPECT_EQ(canvas.At(7, 8), 0x102030U);
    EXPECT_EQ(canvas.At(1, 0), 0xF80000U);

    std::int32_t id = FirstOfIndex;
    gamedata::DrawStaticTile2(id, canvas, drawing, numbers);
    EXPECT_EQ(id, 0);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
}

TEST_F(StaticTile, NextTileErasesTheOneBefore)
{
    Draw(Long(0));
    Draw(Cross);
    EXPECT_EQ(Rows(canvas), CrossDrawn);
}

// From files that the caller has open.

TEST(StaticTileFromFiles, TakesTheBareSizeOfTheTileAndIsNotRefreshed)
{
    Canvas canvas;
    DrawOpen(canvas, Cross);
    EXPECT_EQ(Rows(canvas), (Picture{".r.", "g#g", "b.b", "..."}));
    EXPECT_TRUE(canvas.refreshes.empty());
}

TEST(StaticTileFromFiles, SettingOffLeavesTheSurface)
{
    Canvas canvas;
    canvas.Plot(0, 0, 0);
    gamedata::MemoryBytes nothing({});
    gamedata::DrawStaticTileFromFiles(0, canvas, nothing, nothing, false, 0x123456);
    EXPECT_EQ(Drawn(canvas), 1);
    EXPECT_EQ(canvas.BackColour(), core::White);
}

TEST(StaticTileFromFiles, AbsentTileLeavesTheBackground)
{
    Canvas canvas;
    canvas.Plot(0, 0, 0);
    const auto            index = IndexRecord(-1);
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes nothing({});
    gamedata::DrawStaticTileFromFiles(FirstOfIndex, canvas, indexBytes, nothing, true, 0x0000F8);
    EXPECT_EQ(canvas.Now(), NewSurface);
    EXPECT_EQ(canvas.BackColour(), 0x0000F8U);
    EXPECT_EQ(canvas.At(0, 0), 0x0000F8U);
    EXPECT_TRUE(canvas.refreshes.empty());
}

TEST(StaticTileFromFiles, ItemIdNamesTheRecord16384PlacesFurtherOn)
{
    const auto            index = IndexOf(3, IndexRecord(0));
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes art(std::as_bytes(std::span(Cross)));
    Canvas                canvas;
    gamedata::DrawStaticTileFromFiles(3, canvas, indexBytes, art, true, core::White);
    EXPECT_EQ(canvas.Now(), (Size{3, 4}));
}

TEST(StaticTileFromFiles, HasNoLimitOfItsSize)
{
    Canvas            canvas;
    std::vector<Line> lines(200, Line{0, 0});
    lines.front() = {1022, 2, Red, Green, 0, 0};
    DrawOpen(canvas, RunTile(1024, 200, lines));
    EXPECT_EQ(canvas.Now(), (Size{1024, 200}));
    EXPECT_EQ(canvas.At(1022, 0), 0xF80000U);
    EXPECT_EQ(canvas.At(1023, 0), 0x00F800U);
}

TEST(StaticTileFromFiles, DiamondKeepsTheSurfacesSize)
{
    Canvas canvas(50, 50);
    DrawOpen(canvas, Long(0));
    EXPECT_EQ(canvas.Now(), (Size{50, 50}));
    EXPECT_EQ(Drawn(canvas), 1012);
}

TEST(StaticTileFromFiles, OnlySidesAboveZeroResize)
{
    struct Case {
        int  width, height;
        Size size;
    };
    for (const auto& [width, height, size] : {Case{3, 0, {3, 7}},
                                              {3, -4, {3, 7}},
                                              {-3, 2, {9, 2}},
                                              {-3, -3, {9, 7}},
                                              {0, 5, {9, 7}},
                                              {1025, 5, {9, 7}},
                                              {3, 1025, {3, 1025}},
                                              {1, 32767, {1, 32767}},
                                              {-32768, 3, {9, 3}}}) {
        Canvas canvas(9, 7);
        DrawOpen(canvas, RunTileAt(width, height, {}, {}));
        EXPECT_EQ(canvas.Now(), size) << width << ' ' << height;
        EXPECT_EQ(Drawn(canvas), 0);
    }
}

TEST(StaticTileFromFiles, IdOutOfRangeFailsBeforeTheSurfaceIsTouched)
{
    Canvas                canvas;
    gamedata::MemoryBytes nothing({});
    EXPECT_RUNTIME_ERROR(6, gamedata::DrawStaticTileFromFiles(0x7FFFFFFF, canvas, nothing, nothing, true, 0));
    EXPECT_EQ(canvas.BackColour(), core::White);
    EXPECT_RUNTIME_ERROR(6, gamedata::DrawStaticTileFromFiles(0x10000000, canvas, nothing, nothing, true, 0));
    EXPECT_EQ(canvas.BackColour(), 0U);
}

} // namespace
} // namespace qf::test
