#include "gamedata/hues.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gamedata/art_model.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace qf::test {
namespace {

using gamedata::HueGroup;
using gamedata::HueTable;
using gamedata::LoadHueData;

constexpr std::size_t BlockBytes = 708;
constexpr std::size_t FileBytesInAll = BlockBytes * 374;

/// Every byte tells of its own place in the file.
std::string CountedFile()
{
    std::string bytes(FileBytesInAll, '\0');
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 2654435761U >> 16 & 0xFF);
    }
    return bytes;
}

unsigned ByteAt(const std::string& bytes, std::size_t at)
{
    return at < bytes.size() ? static_cast<unsigned char>(bytes[at]) : 0U;
}

/// Looks at every value of a table as a file of these bytes gives it.
void ExpectTable(const HueTable& table, const std::string& bytes)
{
    for (std::size_t g = 0; g < 374; ++g) {
        const auto& group = table.groups[g];
        for (std::size_t i = 0; i < 4; ++i) {
            ASSERT_EQ(static_cast<unsigned>(group.header[i]), ByteAt(bytes, 708 * g + i)) << g;
        }
        for (std::size_t e = 0; e < 8; ++e) {
            const auto  at = 708 * g + 4 + 88 * e;
            const auto& entry = group.entries[e];
            for (std::size_t c = 0; c < 32; ++c) {
                const auto word = ByteAt(bytes, at + 2 * c) + 256 * ByteAt(bytes, at + 2 * c + 1);
                const auto pixel = static_cast<int>(word) - (word >= 32768 ? 65536 : 0);
                ASSERT_EQ(gamedata::ToRgb(entry.colours[c]), ModelRounding(pixel)) << g << ' ' << e << ' ' << c;
            }
            ASSERT_EQ(static_cast<unsigned>(entry.tableStart), ByteAt(bytes, at + 64) * 256 + ByteAt(bytes, at + 65));
            ASSERT_EQ(static_cast<unsigned>(entry.tableEnd), ByteAt(bytes, at + 66) * 256 + ByteAt(bytes, at + 67));
            ASSERT_EQ(entry.NameBytes().size(), 20U);
            for (std::size_t i = 0; i < 20; ++i) {
                ASSERT_EQ(static_cast<unsigned char>(entry.NameBytes()[i]), ByteAt(bytes, at + 68 + i));
            }
            ASSERT_EQ(entry.name[20], '\0');
        }
    }
}

class Hues : public ::testing::Test {
  protected:
    void Load()
    {
        LoadHueData(folder.ProgramPath() + "\\", table, numbers,
                    {[this] { told.push_back(-1); }, [this](int group) { told.push_back(group); }});
    }

    TempFolder        folder;
    HueTable          table;
    core::FileNumbers numbers;
    std::vector<int>  told;
};

TEST_F(Hues, EveryValueOfAWholeFile)
{
    const auto bytes = CountedFile();
    folder.Write("hues.mul", bytes);
    Load();
    EXPECT_TRUE(table.loaded);
    EXPECT_EQ(numbers.InUse(), 0);
    ExpectTable(table, bytes);
}

TEST_F(Hues, FieldsOfAnEntry)
{
    std::string bytes(FileBytesInAll, '\0');
    const auto  at = 708 * 373 + 4 + 88 * 7;
    bytes.replace(at, 4, "\xFF\x7F\x00\x7C", 4);
    bytes.replace(at + 62, 2, "\x1F\x80", 2);
    bytes.replace(at + 64, 4, "\x12\x34\xFE\xDC");
    bytes.replace(at + 68, 20, std::string("Dark\0Blue 6789abcdef", 20));
    folder.Write("hues.mul", bytes);
    Load();
    const auto& entry = table.groups[373].entries[7];
    EXPECT_EQ(entry.colours[0], 0xF80000); // red 0, green 0, blue 248, with red lowest
    EXPECT_EQ(gamedata::ToRgb(entry.colours[0]), 0x0000F8U);
    EXPECT_EQ(entry.colours[1], 0x0000F8);
    EXPECT_EQ(gamedata::ToRgb(entry.colours[1]), 0xF80000U);
    EXPECT_EQ(gamedata::ToRgb(entry.colours[31]), ModelRounding(0x801F - 0x10000));
    EXPECT_EQ(entry.tableStart, 0x1234);
    EXPECT_EQ(entry.tableEnd, 0xFEDC);
    EXPECT_EQ(entry.NameBytes(), std::string_view("Dark\0Blue 6789abcdef", 20));
}

TEST_F(Hues, ProgressIsToldBeforeTheFirstAndBeforeEachGroup)
{
    folder.Write("hues.mul", "");
    Load();
    ASSERT_EQ(told.size(), 375U);
    for (int i = 0; i < 375; ++i) {
        EXPECT_EQ(told[static_cast<std::size_t>(i)], i - 1);
    }
}

TEST_F(Hues, AGroupIsReadBehindItsTelling)
{
    folder.Write("hues.mul", CountedFile());
    bool seen = false;
    LoadHueData(folder.ProgramPath() + "\\", table, numbers,
                {[] {},
                 [&](int group) {
                     if (group == 200) {
                         seen = true;
                         EXPECT_NE(table.groups[199].entries[0].tableStart, 0);
                         EXPECT_EQ(table.groups[200].entries[0].tableStart, 0);
                         EXPECT_FALSE(table.loaded);
                         EXPECT_EQ(numbers.InUse(), 1);
                     }
                 }});
    EXPECT_TRUE(seen);
}

TEST_F(Hues, ShortFileReadsAsZerosPastItsEnd)
{
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{3}, std::size_t{5}, BlockBytes - 1,
                                     BlockBytes, BlockBytes + 4 + 64 + 1, FileBytesInAll - 1}) {
        const auto bytes = CountedFile().substr(0, length);
        folder.Write("hues.mul", bytes);
        Load();
        EXPECT_TRUE(table.loaded);
        ExpectTable(table, bytes);
    }
}

TEST_F(Hues, BytesBehindTheLastGroupCountForNothing)
{
    const auto bytes = CountedFile();
    folder.Write("hues.mul", bytes + std::string(1000, 'x'));
    Load();
    ExpectTable(table, bytes);
}

TEST_F(Hues, MissingFileChangesTheFlagAlone)
{
    table.loaded = true;
    table.groups[3].entries[2].colours[1] = 77;
    Load();
    EXPECT_FALSE(table.loaded);
    EXPECT_EQ(table.groups[3].entries[2].colours[1], 77);
    EXPECT_TRUE(told.empty());
    EXPECT_EQ(numbers.InUse(), 0);
    EXPECT_FALSE(folder.Has("hues.mul"));
}

TEST_F(Hues, FileIsFoundInOtherLetterCase)
{
    folder.Write("HUES.Mul", CountedFile());
    Load();
    EXPECT_TRUE(table.loaded);
}

TEST_F(Hues, FolderWithoutItsSeparatorNamesAnotherFile)
{
    folder.Write("uo/hues.mul", CountedFile());
    LoadHueData(folder.ProgramPath() + "\\uo", table, numbers, {[] {}, [](int) {}});
    EXPECT_FALSE(table.loaded);
    folder.Write("uohues.mul", CountedFile());
    LoadHueData(folder.ProgramPath() + "\\uo", table, numbers, {[] {}, [](int) {}});
    EXPECT_TRUE(table.loaded);
}

TEST_F(Hues, NoFileNumberLeft)
{
    folder.Write("hues.mul", CountedFile());
    for (int i = 0; i < 255; ++i) {
        numbers.Take();
    }
    EXPECT_RUNTIME_ERROR(67, Load());
    EXPECT_FALSE(table.loaded);
    EXPECT_TRUE(told.empty());
}

TEST(HueTableTest, StartsAtZero)
{
    const HueTable table;
    EXPECT_FALSE(table.loaded);
    EXPECT_EQ(table.groups.size(), 374U);
    ExpectTable(table, "");
}

} // namespace
} // namespace qf::test
