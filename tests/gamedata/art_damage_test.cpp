#include "gamedata/art.h"

#include "gamedata/art_drawing.h"

// One case for each kind of damage that a tile can have.

namespace qf::test {
namespace {

using Size = Canvas::Size;
using Picture = std::vector<std::string>;

/// The first lines of a surface, for tiles whose other lines are blank.
Picture Top(const core::PixelSurface& surface, std::size_t lines)
{
    auto rows = Rows(surface);
    for (auto row = lines; row < rows.size(); ++row) {
        EXPECT_EQ(rows[row], std::string(rows[row].size(), '.')) << "line " << row;
    }
    rows.resize(lines);
    return rows;
}

TEST_F(StaticTile, RecordBehindTheEndOfTheIndexReadsTheStartOfTheArt)
{
    Files(IndexRecord(-1), RunTile(2, 2, {{0, 1, Red, 0, 0}, {0, 0}}));
    EXPECT_EQ(DrawFiles(5), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"r......"});
}

TEST_F(StaticTile, RecordBeforeTheStartOfTheIndexIsAnErrorThatLeavesTheFilesOpen)
{
    Files(IndexRecord(-1), RunTile(2, 2, {{0, 1, Red, 0, 0}, {0, 0}}));
    EXPECT_EQ(DrawFiles(FirstOfIndex - 1), 63);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(numbers.InUse(), 2);
    EXPECT_EQ(DrawFiles(FirstOfIndex), 0);
}

TEST_F(StaticTile, RecordThatIsCutOffReadsZerosForTheRest)
{
    Files(IndexRecord(0x0102).substr(0, 1), "xx" + RunTile(2, 2, {{0, 1, Red, 0, 0}, {0, 0}}));
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"r......"});
}

TEST_F(StaticTile, LookupBehindTheEndOfTheArtDrawsABlackDiamond)
{
    for (const std::int64_t lookup : {100LL, 0x7FFFFFFFLL}) {
        Files(IndexRecord(lookup), "art");
        EXPECT_EQ(DrawFiles(), 0);
        EXPECT_EQ(Drawn(canvas), 1012);
        EXPECT_EQ(numbers.InUse(), 0);
    }
}

TEST_F(StaticTile, NegativeLookupReadsZerosBeforeTheStart)
{
    for (const std::int64_t lookup : {-4000LL, -0x80000000LL}) {
        Files(IndexRecord(lookup), RunTile(2, 2, {{0, 1, Red, 0, 0}, {0, 0}}));
        EXPECT_EQ(DrawFiles(), 0);
        EXPECT_EQ(Drawn(canvas), 1012) << lookup;
    }
    // Two bytes before the start: the flag's high word is the file's first.
    Files(IndexRecord(-2), Words({1, 9, 9}));
    EXPECT_EQ(DrawFiles(), 0);
    EXPECT_EQ(canvas.refreshes.size(), 1U);
    EXPECT_EQ(canvas.At(24, 3), 0x000048U);
}

TEST_F(StaticTile, WidthZeroOrAbove1024IsLeftBeforeTheResize)
{
    int inUse = 0;
    for (const int width : {0, 1025, 32767}) {
        EXPECT_EQ(Draw(RunTileAt(width, 5, {0, 0}, {})), 0);
        EXPECT_EQ(canvas.Now(), (Size{121, 173})) << width;
        EXPECT_EQ(canvas.refreshes.size(), 1U);
        EXPECT_EQ(numbers.InUse(), inUse += 2);
    }
}

TEST_F(StaticTile, HeightZeroOrAbove1024IsLeftBehindTheResize)
{
    struct Case {
        int height, shown;
    };
    int inUse = 0;
    for (const auto& [height, shown] : {Case{0, 5}, {1025, 173}, {32762, 173}}) {
        EXPECT_EQ(Draw(RunTileAt(3, height, {}, {})), 0);
        EXPECT_EQ(canvas.refreshes.size(), 2U) << height;
        EXPECT_EQ(canvas.refreshes.back(), (Size{8, shown})) << height;
        EXPECT_EQ(Drawn(canvas), 0);
        EXPECT_EQ(numbers.InUse(), inUse += 2);
    }
}

TEST_F(StaticTile, HeightWhoseMarginLeaves16BitsIsAnErrorBeforeTheResize)
{
    for (const int height : {32763, 32767}) {
        EXPECT_EQ(Draw(RunTileAt(3, height, {}, {})), 6) << height;
        EXPECT_EQ(canvas.Now(), (Size{121, 173}));
        EXPECT_EQ(canvas.refreshes.size(), 1U);
    }
    EXPECT_EQ(numbers.InUse(), 4);
}

TEST_F(StaticTile, NegativeHeightPassesAndDrawsNothing)
{
    struct Case {
        int height, shown;
    };
    for (const auto& [height, shown] : {Case{-1, 4}, {-4, 1}, {-5, 0}, {-100, 0}, {-32768, 0}}) {
        EXPECT_EQ(Draw(RunTileAt(3, height, {0, 0}, {0, 1, Red})), 0);
        EXPECT_EQ(canvas.Now(), (Size{8, shown})) << height;
        EXPECT_EQ(canvas.refreshes.size(), 2U);
        EXPECT_EQ(Drawn(canvas), 0);
        EXPECT_EQ(numbers.InUse(), 0);
    }
}

TEST_F(StaticTile, NegativeWidthPassesAndItsFirstRunIsTheEnd)
{
    EXPECT_EQ(Draw(RunTileAt(-2, 2, {0, 0}, {0, 1, Red, 0, 0})), 0);
    EXPECT_EQ(canvas.Now(), (Size{3, 7}));
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(numbers.InUse(), 2);

    EXPECT_EQ(Draw(RunTileAt(-32768, 2, {0, 0}, {0, 0})), 0);
    EXPECT_EQ(canvas.Now(), (Size{0, 7}));
    EXPECT_EQ(numbers.InUse(), 2);
}

TEST_F(StaticTile, RunLeftOfANegativeWidthIsReadAndNotSeen)
{
    EXPECT_EQ(Draw(RunTileAt(-2, 2, {0, 0}, {-3, 1, Red, 0, 0})), 0);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, LimitsOfTheSurface)
{
    struct Case {
        int  width, height;
        Size size;
    };
    for (const auto& [width, height, size] : {Case{115, 167, {120, 172}},
                                              {116, 168, {121, 173}},
                                              {117, 169, {121, 173}},
                                              {1024, 1024, {121, 173}},
                                              {1, 1, {6, 6}}}) {
        EXPECT_EQ(Draw(RunTile(width, height, std::vector<Line>(static_cast<std::size_t>(height), Line{0, 0}))), 0);
        EXPECT_EQ(canvas.Now(), size) << width << ' ' << height;
        EXPECT_EQ(numbers.InUse(), 0);
    }
}

TEST_F(StaticTile, Height1PlotsNothing)
{
    EXPECT_EQ(Draw(RunTile(2, 1, {{0, 2, Red, Red, 0, 0}})), 0);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, Height1024PassesAndIsCutOffAtTheSurfacesEdge)
{
    EXPECT_EQ(Draw(RunTile(2, 1024, std::vector<Line>(1024, Line{0, 1, Red, 0, 0}))), 0);
    EXPECT_EQ(canvas.Now(), (Size{7, 173}));
    EXPECT_EQ(Rows(canvas), Picture(173, "r......"));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, Width1024IsCutOffAtTheSurfacesEdge)
{
    Line line{0, 1024};
    line.insert(line.end(), 1024, Blue);
    line.insert(line.end(), {0, 0});
    EXPECT_EQ(Draw(RunTile(1024, 2, {line, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{std::string(121, 'b')});
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, RunUpToOneColumnPastTheWidth)
{
    EXPECT_EQ(Draw(RunTile(3, 2, {{0, 4, Red, Red, Red, Green, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"rrrg...."});
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, RunThatBeginsAtTheWidth)
{
    EXPECT_EQ(Draw(RunTile(3, 2, {{3, 1, Red, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"...r...."});
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, RunThatBeginsPastTheWidthIsTheEnd)
{
    EXPECT_EQ(Draw(RunTile(3, 3, {{0, 1, Red, 3, 1, Green, 0, 0}, {0, 1, Blue, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"r......."});
    EXPECT_EQ(numbers.InUse(), 2);
}

TEST_F(StaticTile, RestOfALongRunIsReadAsTheNextRun)
{
    // The two pixels left are 0, so they end the line.
    EXPECT_EQ(Draw(RunTile(2, 3, {{0, 5, Red, Red, Red, 0, 0}, {0, 1, Blue, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{"rrr....", "b......"}));
    EXPECT_EQ(numbers.InUse(), 0);

    // Read as a run they begin past the width.
    EXPECT_EQ(Draw(RunTile(2, 3, {{0, 5, Red, Red, Red, 1, 1}, {0, 1, Blue, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"rrr...."});
    EXPECT_EQ(numbers.InUse(), 2);

    // An offset of theirs leads back.
    EXPECT_EQ(Draw(RunTile(2, 3, {{0, 5, Red, Red, Red, -2, 1, Green, 0, 0}, {0, 1, Blue, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{"rgr....", "b......"}));
    EXPECT_EQ(numbers.InUse(), 2);
}

TEST_F(StaticTile, NegativeRunMovesOnWithoutPixels)
{
    EXPECT_EQ(Draw(RunTile(4, 3, {{3, -1, 0, 1, Red, 0, 0}, {-5, 2, 0, 0, 4, 1, Blue, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{"...r.....", ".b......."}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, OnlyTheSumEndsALine)
{
    EXPECT_EQ(Draw(RunTile(4, 4, {{3, -3}, {-1, 1}, {1, 1, Red, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 3), (Picture{".........", ".........", ".r......."}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, SumOf2047GoesOn)
{
    EXPECT_EQ(Draw(RunTile(4, 3, {{2047, 0, 0, 0}, {0, 1, Red, 0, 0}, {0, 0}})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{".........", "r........"}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, SumOf2048IsTheEndBeforeItsPixels)
{
    int inUse = 0;
    for (const auto& line : {Line{2048, 0}, Line{0, 2048}, Line{1024, 1024}, Line{-1, 2049}, Line{32767, 32767}}) {
        Line whole{0, 1, Green};
        whole.insert(whole.end(), line.begin(), line.end());
        whole.insert(whole.end(), 40, Red);
        EXPECT_EQ(Draw(RunTile(30, 3, {whole, {0, 1, Red, 0, 0}, {0, 0}})), 0);
        EXPECT_EQ(Top(canvas, 1), Picture{"g" + std::string(34, '.')});
        EXPECT_EQ(numbers.InUse(), inUse += 2);
    }
}

TEST_F(StaticTile, LongRunThatBeginsFarToTheLeft)
{
    Line line{-32768, 32767};
    line.insert(line.end(), 32767, Green);
    line.insert(line.end(), {1, 1, Red, 0, 0});
    EXPECT_EQ(Draw(RunTileAt(4, 2, {0, 0}, line)), 0);
    EXPECT_EQ(Top(canvas, 1), Picture{"r........"});
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, LineTableThatLeadsOutOfTheFile)
{
    for (const int start : {-32768, -100, 200, 32767}) {
        EXPECT_EQ(Draw(RunTileAt(4, 4, {0, start, 2, 0}, {0, 0, 0, 1, Red, 0, 0})), 0);
        EXPECT_EQ(Top(canvas, 3), (Picture{".........", ".........", "r........"})) << start;
        EXPECT_EQ(numbers.InUse(), 0);
    }
}

TEST_F(StaticTile, LineTableThatLeadsIntoTheTable)
{
    // The line begins with the last two line starts, 1 and 1, and with the first run's offset as its pixel.
    EXPECT_EQ(Draw(RunTileAt(4, 5, {0, -2, 4, 1, 1}, {Red, -Red, 0, 0, 0, 0})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{".........", ".r......."}));
}

TEST_F(StaticTile, LineTablesFirstAndLastEntryCountForNothing)
{
    EXPECT_EQ(Draw(RunTileAt(4, 3, {999, 5, -999}, {0, 1, Red, 0, 0, 0, 1, Green, 0, 0})), 0);
    EXPECT_EQ(Top(canvas, 2), (Picture{"r........", "g........"}));
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, LinesThatShareTheirRuns)
{
    EXPECT_EQ(Draw(RunTileAt(1, 4, {0, 0, 0, 0}, {0, 1, Blue, 0, 0})), 0);
    EXPECT_EQ(Top(canvas, 3), Picture(3, "b....."));
}

TEST_F(StaticTile, EachDamagedTileKeepsTwoFileNumbersUntilNoneIsLeft)
{
    const auto damaged = RunTileAt(0, 5, {}, {});
    for (int draws = 1; draws <= 127; ++draws) {
        ASSERT_EQ(Draw(damaged), 0);
        ASSERT_EQ(numbers.InUse(), 2 * draws);
    }
    // The last number goes to the index, which is opened (and here made); the art finds none.
    drawing.uoPath = folder.ProgramPath() + "\\uo";
    canvas.Plot(7, 7, 0);
    EXPECT_EQ(DrawFiles(), 67);
    EXPECT_EQ(lastId, 0);
    EXPECT_EQ(Drawn(canvas), 0);
    EXPECT_EQ(canvas.refreshes.size(), 1U);
    EXPECT_TRUE(folder.Has("uoArtidx.mul"));
    EXPECT_FALSE(folder.Has("uoArt.mul"));
    EXPECT_EQ(numbers.InUse(), 255);
}

TEST_F(StaticTile, NoFileNumberAtAll)
{
    for (int number = 1; number <= 255; ++number) {
        numbers.Take();
    }
    Files(IndexRecord(0), "");
    drawing.uoPath = folder.ProgramPath() + "\\uo";
    EXPECT_EQ(DrawFiles(), 67);
    EXPECT_EQ(canvas.refreshes.size(), 1U);
    EXPECT_FALSE(folder.Has("uoArtidx.mul"));
}

TEST_F(StaticTile, WholeTilesGiveTheirFileNumbersBack)
{
    for (int draws = 1; draws <= 300; ++draws) {
        ASSERT_EQ(Draw(RunTile(2, 2, {{0, 0}, {0, 0}})), 0);
    }
    EXPECT_EQ(numbers.InUse(), 0);
}

TEST_F(StaticTile, IdThatLeavesItsRange)
{
    Files(IndexRecord(0), "");
    EXPECT_EQ(DrawFiles(0x7FFFFFFF), 6);
    EXPECT_EQ(lastId, 0x7FFFFFFF);
    EXPECT_TRUE(canvas.refreshes.empty());
    EXPECT_EQ(numbers.InUse(), 0);

    EXPECT_EQ(DrawFiles(0x10000000), 6); // its place in the index leaves 32 bits
    EXPECT_EQ(lastId, 0x10004000);
    EXPECT_EQ(canvas.refreshes.size(), 1U);
    EXPECT_EQ(numbers.InUse(), 2);
}

} // namespace
} // namespace qf::test
