#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <span>

#include "core/file_numbers.h"
#include "data/item_lists.h"
#include "gamedata/art.h"
#include "gamedata/hues.h"
#include "practice/tile_kinds.h"
#include "support/temp_folder.h"
#include "tools/art_files.h"
#include "tools/hue_file.h"

namespace qf::tools {

namespace {

constexpr std::size_t FirstStaticTile = 0x4000;
constexpr std::size_t RecordBytes = 12;
constexpr std::size_t TileNumbers = 0x10000;

std::int64_t Number(const std::string& bytes, std::size_t place, std::size_t size)
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < size; ++i) {
        number |= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes.at(place + i))) << (8U * i);
    }
    return size == 4 ? static_cast<std::int32_t>(number) : static_cast<std::int16_t>(number);
}

std::int64_t Lookup(const ArtFiles& files, std::size_t id)
{
    return Number(files.index, (FirstStaticTile + id) * RecordBytes, 4);
}

gamedata::MemoryBytes Source(const std::string& bytes)
{
    return gamedata::MemoryBytes(std::as_bytes(std::span(bytes)));
}

/// The art is made once; every test reads it.
class MadeArt : public testing::Test {
  protected:
    static void SetUpTestSuite() { files = new ArtFiles(MakeArt()); }
    static void TearDownTestSuite() { delete files; }

    static inline const ArtFiles* files = nullptr;
};

TEST_F(MadeArt, IsTheSameEachTime)
{
    const ArtFiles again = MakeArt();
    EXPECT_TRUE(again.art == files->art);
    EXPECT_TRUE(again.index == files->index);
    EXPECT_LT(files->art.size() + files->index.size(), 4'000'000U);
}

TEST_F(MadeArt, HasATileForEachKnownNumberAndNoOther)
{
    ASSERT_EQ(files->index.size(), (FirstStaticTile + TileNumbers) * RecordBytes);
    for (std::size_t land = 0; land < FirstStaticTile; ++land) {
        ASSERT_EQ(Number(files->index, land * RecordBytes, 4), -1) << land;
    }
    auto        index = Source(files->index);
    auto        art = Source(files->art);
    std::size_t tiles = 0;
    for (std::size_t id = 0; id < TileNumbers; ++id) {
        const bool isKnown = practice::KnownLook(static_cast<std::uint16_t>(id)).has_value();
        const auto image = gamedata::ReadTileImage(static_cast<std::int32_t>(id), index, art);
        ASSERT_EQ(Lookup(*files, id) >= 0, isKnown) << std::hex << id;
        ASSERT_EQ(image.has_value(), isKnown) << std::hex << id;
        tiles += isKnown ? 1U : 0U;
    }
    EXPECT_GT(tiles, 2000U);
}

TEST_F(MadeArt, IsDrawnByThePanelsToItsEnd)
{
    auto               index = Source(files->index);
    auto               art = Source(files->art);
    core::PixelSurface surface;
    for (std::size_t id = 0; id < TileNumbers; ++id) {
        if (Lookup(*files, id) >= 0) {
            ASSERT_TRUE(gamedata::DrawIndexRecord(static_cast<std::int32_t>(FirstStaticTile + id), surface, index, art))
                << std::hex << id;
        }
    }
}

TEST_F(MadeArt, EndsEachLineWithinTheTile)
{
    for (std::size_t id = 0; id < TileNumbers; ++id) {
        const std::int64_t lookup = Lookup(*files, id);
        if (lookup < 0) {
            continue;
        }
        const auto start = static_cast<std::size_t>(lookup);
        const auto end =
            start + static_cast<std::size_t>(Number(files->index, (FirstStaticTile + id) * RecordBytes + 4, 4));
        ASSERT_LE(end, files->art.size()) << std::hex << id;
        const std::int64_t flag = Number(files->art, start, 4);
        ASSERT_TRUE(flag > 0 && flag <= 0xFFFF) << std::hex << id;
        const std::int64_t width = Number(files->art, start + 4, 2);
        const std::int64_t height = Number(files->art, start + 6, 2);
        ASSERT_TRUE(width > 0 && width <= 1024 && height > 0 && height <= 1024) << std::hex << id;
        const std::size_t data = start + 8 + 2 * static_cast<std::size_t>(height);
        for (std::int64_t line = 0; line < height; ++line) {
            const std::int64_t first = Number(files->art, start + 8 + 2 * static_cast<std::size_t>(line), 2);
            ASSERT_GE(first, 0) << std::hex << id;
            std::size_t  at = data + 2 * static_cast<std::size_t>(first);
            std::int64_t x = 0;
            for (;;) {
                ASSERT_LE(at + 4, end) << std::hex << id;
                const std::int64_t offset = Number(files->art, at, 2);
                const std::int64_t run = Number(files->art, at + 2, 2);
                at += 4 + 2 * static_cast<std::size_t>(run);
                if (offset + run == 0) {
                    break;
                }
                x += offset + run;
                ASSERT_TRUE(offset >= 0 && run > 0 && x <= width) << std::hex << id;
            }
        }
    }
}

TEST_F(MadeArt, SharesThePicturesOfLikeTiles)
{
    // All rows of signs look alike, north and south walls do not.
    EXPECT_EQ(Lookup(*files, 0x0BA4), Lookup(*files, 0x0BA6));
    EXPECT_NE(Lookup(*files, 0x001B), Lookup(*files, 0x001C));
    EXPECT_NE(Lookup(*files, 0x1F03), Lookup(*files, 0x1515));
}

TEST_F(MadeArt, StandsOnTheBottomOfItsCell)
{
    auto       index = Source(files->index);
    auto       art = Source(files->art);
    const auto isSolid = [](const gamedata::TileImage& image, int x, int y) {
        return image.pixels[static_cast<std::size_t>(y * image.width + x)] != 0;
    };
    // A wall along the south side reaches from the cell's left corner to its bottom one, in the middle.
    const auto wall = gamedata::ReadTileImage(0x001C, index, art);
    ASSERT_TRUE(wall);
    EXPECT_EQ(wall->width, 44);
    EXPECT_TRUE(isSolid(*wall, 21, wall->height - 1));
    EXPECT_FALSE(isSolid(*wall, 40, wall->height - 30));
    const auto floor = gamedata::ReadTileImage(0x04A9, index, art);
    ASSERT_TRUE(floor);
    EXPECT_EQ(floor->width, 44);
    EXPECT_EQ(floor->height, 47);
    EXPECT_TRUE(isSolid(*floor, 0, 22));
    EXPECT_TRUE(isSolid(*floor, 43, 22));
    EXPECT_FALSE(isSolid(*floor, 0, 0));
}

TEST_F(MadeArt, HasTheTilesOfAllItemLists)
{
    for (const auto& file : test::ItemListFiles()) {
        for (const std::string& item : test::ItemsOf(file)) {
            EXPECT_GE(Lookup(*files, static_cast<std::size_t>(std::stoi(item))), 0) << file << item;
        }
    }
}

TEST_F(MadeArt, HasTilesBeyondTheListsNumbers)
{
    constexpr std::array<std::size_t, 12> Ids{0x4023, 0x4C80, 0x9E8E, 0x9EA2, 0xA4EB, 0x409F,
                                              0x410C, 0x4378, 0x46E1, 0x4D1A, 0x5148, 0x9B4A};
    for (const std::size_t id : Ids) {
        EXPECT_GE(Lookup(*files, id), 0) << std::hex << id;
    }
}

TEST(MadeTile, HoldsTheRunsOfItsLines)
{
    // Two lines: one pixel left of the corner and one to the right of a gap, then a clear line.
    const practice::Sprite sprite{-1, 42, 3, 1, {0xFFFF0000U, 0x40FFFFFFU, 0xFF0000FFU}};
    const std::string      tile = EncodeRunTile(sprite);
    const std::string      expected("\x01\0\0\0\x04\0\x02\0\0\0\x08\0"
                                         "\x01\0\x01\0\0\x7C\x01\0\x01\0\x1F\0\0\0\0\0"
                                         "\0\0\0\0",
                                    32);
    EXPECT_EQ(tile, expected);
}

TEST(MadeTile, IsRefusedWhereTheLayoutHasNoRoom)
{
    EXPECT_THROW(EncodeRunTile({}), std::length_error);
    EXPECT_THROW(EncodeRunTile({-600, 0, 600, 1, std::vector<practice::Argb>(600, practice::Opaque)}),
                 std::length_error);
    EXPECT_THROW(EncodeRunTile({-100, -400, 200, 444, std::vector<practice::Argb>(200 * 444, practice::Opaque)}),
                 std::length_error);
}

TEST(MadeHues, RunFromDarkToLightAndHaveNames)
{
    const std::string bytes = MakeHues();
    ASSERT_EQ(bytes.size(), 374U * 708U);
    EXPECT_TRUE(bytes == MakeHues());

    const test::TempFolder folder;
    folder.Write("hues.mul", bytes);
    gamedata::HueTable table;
    core::FileNumbers  numbers;
    gamedata::LoadHueData(folder.ProgramPath() + "\\", table, numbers, {[] {}, [](int) {}});
    ASSERT_TRUE(table.loaded);
    std::set<std::string> names;
    for (const gamedata::HueGroup& group : table.groups) {
        for (const gamedata::HueEntry& entry : group.entries) {
            const auto light = [&](std::size_t i) {
                const auto rgb = gamedata::ToRgb(entry.colours[i]);
                return (rgb >> 16 & 0xFF) + (rgb >> 8 & 0xFF) + (rgb & 0xFF);
            };
            for (std::size_t i = 4; i < entry.colours.size(); i += 4) {
                EXPECT_GE(light(i), light(i - 4)) << entry.name.data() << " " << i;
            }
            EXPECT_LT(light(0), 120U) << entry.name.data();
            EXPECT_GT(light(31), 240U) << entry.name.data();
            names.insert(entry.name.data());
        }
    }
    EXPECT_EQ(names.size(), 374U * 8U);
    EXPECT_STREQ(table.groups[0].entries[0].name.data(), "scarlet 1a");
    EXPECT_STREQ(table.groups[373].entries[7].name.data(), "grey 14h");
}

} // namespace

} // namespace qf::tools
