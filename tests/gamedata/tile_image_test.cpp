#include "gamedata/art.h"

#include <gtest/gtest.h>

#include "gamedata/art_bytes.h"

namespace qf::test {
namespace {

using gamedata::TileImage;
using Pixels = std::vector<std::uint32_t>;

constexpr std::uint32_t R = 0xFFF80000;
constexpr std::uint32_t G = 0xFF00F800;
constexpr std::uint32_t B = 0xFF0000F8;

std::optional<TileImage> Read(const std::string& art, const std::string& record = IndexRecord(0))
{
    static const auto     before = IndexOf(0, "");
    const auto            index = before + record;
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes artBytes(std::as_bytes(std::span(art)));
    return gamedata::ReadTileImage(0, indexBytes, artBytes);
}

const std::string Tile = RunTile(3, 3,
                                 {
                                     {1, 1, Red, 0, 0},
                                     {0, 1, Green, 1, 1, Black, 0, 0},
                                     {0, 3, Blue, Blue, Red, 0, 0},
                                 });

TEST(TileImage, AllLinesAndClearWhereRunsSkip)
{
    const auto image = Read("xx" + Tile, IndexRecord(2));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width, 3);
    EXPECT_EQ(image->height, 3);
    EXPECT_EQ(image->pixels, (Pixels{0, R, 0, G, 0, 0xFF000000, B, B, R}));
}

TEST(TileImage, LinesStandWhereTheTableSays)
{
    const auto image = Read(RunTileAt(1, 3, {5, 0, 5}, {0, 1, Blue, 0, 0, 0, 1, Green, 0, 0}));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixels, (Pixels{G, B, G}));
}

TEST(TileImage, LineFarBehindTheTable)
{
    const std::string far(2 * 40000, '\0');
    const auto        image = Read(RunTileAt(1, 1, {40000}, {}) + far + Words({0, 1, Red, 0, 0}));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->pixels, Pixels{R});
}

TEST(TileImage, DiamondIsCroppedToItsPixels)
{
    std::string art = Long(0);
    for (int pixel = 0; pixel < 1012; ++pixel) {
        art += Words({pixel == 0 ? Red : pixel == 1011 ? Blue : 0x7FFF});
    }
    const auto image = Read(art);
    ASSERT_TRUE(image);
    EXPECT_EQ(image->width, 44);
    EXPECT_EQ(image->height, 44);
    const auto at = [&](int x, int y) { return image->pixels[static_cast<std::size_t>(y * 44 + x)]; };
    EXPECT_EQ(at(20, 0), 0U);
    EXPECT_EQ(at(21, 0), R);
    EXPECT_EQ(at(22, 0), 0xFFF8F8F8U);
    EXPECT_EQ(at(23, 0), 0U);
    EXPECT_EQ(at(0, 21), 0xFFF8F8F8U);
    EXPECT_EQ(at(43, 22), 0xFFF8F8F8U);
    EXPECT_EQ(at(0, 20), 0U);
    EXPECT_EQ(at(0, 23), 0U);
    EXPECT_EQ(at(22, 43), B);
    EXPECT_EQ(std::ranges::count(image->pixels, 0U), 44 * 44 - 1012);
}

TEST(TileImage, AbsentTile)
{
    EXPECT_FALSE(Read(Tile, IndexRecord(-1, -1)));
    EXPECT_FALSE(Read(Tile, IndexRecord(-1, 100)));
    EXPECT_FALSE(Read(Tile, IndexRecord(-7, 100)));
    EXPECT_FALSE(Read(Tile, IndexRecord(0, 0)));
    EXPECT_FALSE(Read(Tile, ""));
}

TEST(TileImage, IdsThatAreNone)
{
    const auto            index = IndexRecord(0);
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes artBytes(std::as_bytes(std::span(Tile)));
    for (const std::int32_t id : {-1, FirstOfIndex, -2147483647 - 1, 5, 2147483647}) {
        EXPECT_FALSE(gamedata::ReadTileImage(id, indexBytes, artBytes)) << id;
    }
}

TEST(TileImage, EmptyOrOversizedTile)
{
    for (const auto& [width, height] :
         {std::pair{0, 3}, {3, 0}, {-1, 3}, {3, -1}, {1025, 3}, {3, 1025}, {32767, 32767}, {-32768, -32768}}) {
        EXPECT_FALSE(Read(RunTileAt(width, height, {0, 0, 0}, {0, 0}))) << width << ' ' << height;
    }
    EXPECT_TRUE(Read(RunTileAt(1024, 1024, {}, {})));
}

TEST(TileImage, DamagedRuns)
{
    for (const Line& line : {Line{0, 4, Red, Red, Red, Red, 0, 0}, Line{3, 1, Red, 0, 0}, Line{-1, 2, Red, Red, 0, 0},
                             Line{2, -1, 0, 0}, Line{1, -1}, Line{0, 2048}, Line{2, 1, Red, 1, 0, 0, 0}}) {
        EXPECT_FALSE(Read(RunTile(3, 2, {{0, 0}, line}))) << line[0] << ' ' << line[1];
    }
}

TEST(TileImage, CutOffAnywhereIsAnImageOrNone)
{
    for (std::size_t length = 0; length <= Tile.size(); ++length) {
        const auto image = Read(Tile.substr(0, length));
        if (image) {
            EXPECT_EQ(image->pixels.size(), static_cast<std::size_t>(image->width * image->height)) << length;
        }
    }
    const auto whole = Read(Tile.substr(0, Tile.size() - 4));
    ASSERT_TRUE(whole);
    EXPECT_EQ(whole->pixels.back(), R);
}

} // namespace
} // namespace qf::test
