#include "gamedata/bitmap.h"

#include <gtest/gtest.h>

namespace qf::gamedata {
namespace {

using Bytes = std::vector<std::byte>;

core::PixelSurface Coloured(int width, int height)
{
    core::PixelSurface picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.Plot(x, y, static_cast<core::Rgb>(x << 16 | y << 8 | (x + y)));
        }
    }
    return picture;
}

Bytes FileOf(const core::PixelSurface& picture)
{
    Bytes file;
    WriteBitmap(picture, file);
    return file;
}

bool SamePixels(const core::PixelSurface& a, const core::PixelSurface& b)
{
    return a.Width() == b.Width() && a.Height() == b.Height() && std::ranges::equal(a.Pixels(), b.Pixels());
}

/// Whether the file is refused, with the surface left alone.
bool IsRefused(const Bytes& file)
{
    core::PixelSurface picture(2, 3);
    return !ReadBitmap(file, picture) && SamePixels(picture, core::PixelSurface(2, 3));
}

TEST(Bitmap, ComesBackAsItWas)
{
    for (int width = 1; width <= 5; ++width) {
        const auto         picture = Coloured(width, 4);
        core::PixelSurface read;
        EXPECT_TRUE(ReadBitmap(FileOf(picture), read));
        EXPECT_TRUE(SamePixels(picture, read)) << width;
    }
}

TEST(Bitmap, HasTheDocumentedHeader)
{
    const auto file = FileOf(core::PixelSurface(5, 4));
    ASSERT_EQ(file.size(), 54U + 4 * 16);
    const auto byteAt = [&](std::size_t at) { return std::to_integer<int>(file[at]); };
    EXPECT_EQ(byteAt(0), 'B');
    EXPECT_EQ(byteAt(1), 'M');
    EXPECT_EQ(byteAt(2), 118);
    EXPECT_EQ(byteAt(10), 54);
    EXPECT_EQ(byteAt(14), 40);
    EXPECT_EQ(byteAt(18), 5);
    EXPECT_EQ(byteAt(22), 4);
    EXPECT_EQ(byteAt(28), 24);
}

TEST(Bitmap, ReadsLinesFromTheTopWhereTheHeightIsNegative)
{
    auto file = FileOf(Coloured(3, 2));
    file[22] = std::byte{0xFE};
    file[23] = file[24] = file[25] = std::byte{0xFF};
    core::PixelSurface read;
    ASSERT_TRUE(ReadBitmap(file, read));
    EXPECT_EQ(read.At(1, 0), Coloured(3, 2).At(1, 1));
    EXPECT_EQ(read.At(1, 1), Coloured(3, 2).At(1, 0));
}

TEST(Bitmap, ReadsPixelsOfFourBytes)
{
    Bytes file = FileOf(core::PixelSurface(1, 1));
    file[28] = std::byte{32};
    file[54] = std::byte{0x33};
    file[55] = std::byte{0x22};
    file[56] = std::byte{0x11};
    file[57] = std::byte{0x80};
    core::PixelSurface read;
    ASSERT_TRUE(ReadBitmap(file, read));
    EXPECT_EQ(read.At(0, 0), 0x112233U);
}

TEST(Bitmap, IsRefusedWhereItIsCutOff)
{
    auto file = FileOf(Coloured(3, 2));
    while (!file.empty()) {
        file.pop_back();
        EXPECT_TRUE(IsRefused(file)) << file.size();
    }
}

struct Damage {
    const char*           what;
    std::size_t           at;
    std::vector<unsigned> bytes;
    friend void           PrintTo(const Damage& damage, std::ostream* out) { *out << damage.what; }
};

class DamagedBitmap : public testing::TestWithParam<Damage> {};

TEST_P(DamagedBitmap, IsRefused)
{
    auto file = FileOf(Coloured(3, 2));
    for (std::size_t i = 0; i < GetParam().bytes.size(); ++i) {
        file[GetParam().at + i] = static_cast<std::byte>(GetParam().bytes[i]);
    }
    EXPECT_TRUE(IsRefused(file));
}

INSTANTIATE_TEST_SUITE_P(
    All, DamagedBitmap,
    testing::Values(Damage{"another mark", 0, {'P'}}, Damage{"half the mark", 1, {'P'}},
                    Damage{"pixels within the header", 10, {20}},
                    Damage{"pixels behind the end", 10, {0xFF, 0xFF, 0xFF, 0xFF}}, Damage{"an older header", 14, {12}},
                    Damage{"no width", 18, {0}}, Damage{"a negative width", 18, {0xFF, 0xFF, 0xFF, 0xFF}},
                    Damage{"a width beyond the bytes", 18, {0xFF, 0x7F}}, Damage{"no height", 22, {0}},
                    Damage{"the least height", 22, {0, 0, 0, 0x80}}, Damage{"a height beyond the bytes", 22, {3}},
                    Damage{"a height above the limit", 22, {0, 0x80}},
                    Damage{"a negative height above the limit", 22, {0xFF, 0x7F, 0xFF, 0xFF}},
                    Damage{"two planes", 26, {2}}, Damage{"a palette", 28, {8}}, Damage{"compression", 30, {1}}));

} // namespace
} // namespace qf::gamedata
