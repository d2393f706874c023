#include "gamedata/byte_source.h"

#include <array>
#include <limits>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace qf::test {
namespace {

using gamedata::ByteSource;
using gamedata::FileBytes;
using gamedata::MemoryBytes;

/// Reads into a buffer that is full of other bytes, so that every byte must be written.
std::string ReadAt(ByteSource& source, std::int64_t offset, std::size_t length)
{
    std::string text(length, '~');
    source.Read(offset, std::as_writable_bytes(std::span(text)));
    return text;
}

std::string WithZeros(std::string text)
{
    for (char& character : text) {
        character = character == '0' ? '\0' : character;
    }
    return text;
}

constexpr std::string_view Content = "abcdef";

class ByteSourceTest : public ::testing::TestWithParam<bool> {
  protected:
    ByteSource& Source()
    {
        if (GetParam()) {
            source_ = std::make_unique<MemoryBytes>(std::as_bytes(std::span(Content)));
        } else {
            folder_.Write("file.mul", Content);
            source_ = std::make_unique<FileBytes>(folder_.ProgramPath() + "\\File.MUL", FileBytes::Access::ReadOnly);
        }
        return *source_;
    }

  private:
    TempFolder                  folder_;
    std::unique_ptr<ByteSource> source_;
};

TEST_P(ByteSourceTest, WhatLiesOutsideReadsAsZeros)
{
    auto& source = Source();
    EXPECT_EQ(ReadAt(source, 0, 6), "abcdef");
    EXPECT_EQ(ReadAt(source, 2, 3), "cde");
    EXPECT_EQ(ReadAt(source, 4, 5), WithZeros("ef000"));
    EXPECT_EQ(ReadAt(source, 6, 2), WithZeros("00"));
    EXPECT_EQ(ReadAt(source, -2, 4), WithZeros("00ab"));
    EXPECT_EQ(ReadAt(source, -2, 2), WithZeros("00"));
    EXPECT_EQ(ReadAt(source, -1, 8), WithZeros("0abcdef0"));
    EXPECT_EQ(ReadAt(source, 1, 0), "");
    EXPECT_EQ(ReadAt(source, 5, 1), "f");
}

TEST_P(ByteSourceTest, FarOffsetsReadAsZeros)
{
    auto&          source = Source();
    constexpr auto most = std::numeric_limits<std::int64_t>::max();
    constexpr auto least = std::numeric_limits<std::int64_t>::min();
    for (const auto offset :
         {most, most - 3, least, least + 1, std::int64_t{-2147483648LL}, std::int64_t{2147483647}}) {
        EXPECT_EQ(ReadAt(source, offset, 4), WithZeros("0000")) << offset;
    }
    EXPECT_EQ(ReadAt(source, 0, 3), "abc");
}

INSTANTIATE_TEST_SUITE_P(Kinds, ByteSourceTest, ::testing::Bool(),
                         [](const auto& kind) { return kind.param ? "Memory" : "File"; });

TEST(MemoryBytes, NoneAtAll)
{
    MemoryBytes nothing({});
    EXPECT_EQ(ReadAt(nothing, 0, 3), WithZeros("000"));
}

TEST(FileBytes, LargeReadPastABufferedOne)
{
    TempFolder  folder;
    std::string content;
    for (int i = 0; i < 40000; ++i) {
        content += static_cast<char>(i % 251);
    }
    folder.Write("large.mul", content);
    FileBytes file(folder.ProgramPath() + "\\large.mul", FileBytes::Access::ReadOnly);
    EXPECT_EQ(ReadAt(file, 10, 4), content.substr(10, 4));
    EXPECT_EQ(ReadAt(file, 12, 30000), content.substr(12, 30000));
    EXPECT_EQ(ReadAt(file, 39000, 2000), content.substr(39000) + std::string(1000, '\0'));
    EXPECT_EQ(ReadAt(file, 0, 20), content.substr(0, 20));
}

TEST(FileBytes, MissingFileReadsAsZerosAndIsNotMade)
{
    TempFolder folder;
    FileBytes  file(folder.ProgramPath() + "\\missing.mul", FileBytes::Access::ReadOnly);
    EXPECT_EQ(ReadAt(file, 0, 2), WithZeros("00"));
    EXPECT_FALSE(folder.Has("missing.mul"));
}

TEST(FileBytes, MissingFileIsMadeForReadingAndWriting)
{
    TempFolder folder;
    {
        FileBytes file(folder.ProgramPath() + "\\new.mul", FileBytes::Access::ReadWrite);
        EXPECT_EQ(ReadAt(file, 0, 2), WithZeros("00"));
    }
    ASSERT_TRUE(folder.Has("new.mul"));
    EXPECT_EQ(folder.Read("new.mul"), "");
}

TEST(FileBytes, FileThatIsThereStaysAsItIs)
{
    TempFolder folder;
    folder.Write("old.mul", Content);
    {
        FileBytes file(folder.ProgramPath() + "\\old.mul", FileBytes::Access::ReadWrite);
        EXPECT_EQ(ReadAt(file, 0, 6), Content);
    }
    EXPECT_EQ(folder.Read("old.mul"), Content);
}

TEST(FileBytes, FolderInTheFilesPlaceReadsAsZeros)
{
    TempFolder folder;
    folder.MakeFolder("art.mul");
    for (const auto access : {FileBytes::Access::ReadOnly, FileBytes::Access::ReadWrite}) {
        FileBytes file(folder.ProgramPath() + "\\art.mul", access);
        EXPECT_EQ(ReadAt(file, 0, 2), WithZeros("00"));
    }
}

TEST(FileBytes, FileInAFolderThatIsMissing)
{
    TempFolder folder;
    FileBytes  file(folder.ProgramPath() + "\\nowhere\\art.mul", FileBytes::Access::ReadWrite);
    EXPECT_EQ(ReadAt(file, 0, 2), WithZeros("00"));
    EXPECT_FALSE(folder.Has("nowhere"));
}

} // namespace
} // namespace qf::test
