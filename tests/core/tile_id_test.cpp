#include "core/tile_id.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"

namespace qf::core {
namespace {

constexpr ServerGeneration Neither{7};

TEST(TileIdText, TheOlderGenerationWritesTwoPairs)
{
    EXPECT_EQ(TileIdText("04a9", Generation070), "04 a9");
    EXPECT_EQ(TileIdText("04b5", Generation070), "04 b5");
}

TEST(TileIdText, TheNewerGenerationWritesOneNumber)
{
    EXPECT_EQ(TileIdText("04a9", Generation09), "0x04a9");
    EXPECT_EQ(TileIdText("04b5", Generation09), "0x04b5");
}

TEST(TileIdText, CaseStaysAsTheTableHasIt)
{
    EXPECT_EQ(TileIdText("109D", Generation070), "10 9D");
    EXPECT_EQ(TileIdText("00DE", Generation09), "0x00DE");
    EXPECT_EQ(TileIdText("0bA4", Generation070), "0b A4");
}

TEST(TileIdText, AnEmptyEntryStaysEmpty)
{
    EXPECT_EQ(TileIdText("", Generation070), "");
    EXPECT_EQ(TileIdText("", Generation09), "");
    EXPECT_EQ(TileIdText("", Neither), "");
}

TEST(TileIdText, AGenerationThatIsNeitherGivesNoText)
{
    EXPECT_EQ(TileIdText("04a9", Neither), "");
    EXPECT_EQ(TileIdText("04a9", ServerGeneration(-1)), "");
}

TEST(TileIdText, ABlankInTheEntryStays)
{
    EXPECT_EQ(TileIdText("0c 30", Generation09), "0x0c 30");
}

TEST(TileIdText, ShortEntriesHoldNoSecondPair)
{
    EXPECT_EQ(TileIdText("4", Generation070), "4");
    EXPECT_EQ(TileIdText("4a", Generation070), "4a");
    EXPECT_EQ(TileIdText("4a9", Generation070), "4a 9");
}

TEST(TileNumber, ReadsTheFormOfItsGeneration)
{
    EXPECT_EQ(TileNumber("04 a9", Generation070), 0x04A9);
    EXPECT_EQ(TileNumber("0x04a9", Generation09), 0x04A9);
    EXPECT_EQ(TileNumber("10 9D", Generation070), 0x109D);
    EXPECT_EQ(TileNumber("0x0", Generation09), 0);
}

TEST(TileNumber, FourDigitsArePositive)
{
    EXPECT_EQ(TileNumber("ff ff", Generation070), 65535);
    EXPECT_EQ(TileNumber("0xFFFF", Generation09), 65535);
    EXPECT_EQ(TileNumber("80 00", Generation070), 32768);
}

TEST(TileNumber, EveryTileSurvivesBothWays)
{
    constexpr char digits[] = "0123456789abcdef";
    for (int number = 0; number < 0x10000; ++number) {
        const std::string entry{digits[number >> 12], digits[(number >> 8) & 15], digits[(number >> 4) & 15],
                                digits[number & 15]};
        ASSERT_EQ(TileNumber(TileIdText(entry, Generation070), Generation070), number);
        ASSERT_EQ(TileNumber(TileIdText(entry, Generation09), Generation09), number);
    }
}

TEST(TileNumberOf, ReadsTheDigitsOfATable)
{
    EXPECT_EQ(TileNumberOf("04b5"), 0x04B5);
    EXPECT_EQ(TileNumberOf("170B"), 0x170B);
    EXPECT_EQ(TileNumberOf("ffff"), 65535);
    for (const char* digits : {"", " ", "04 b5", "0x04b5", "-4", "04g5", "123456789"}) {
        EXPECT_RUNTIME_ERROR(13, TileNumberOf(digits)) << " with " << digits;
    }
}

TEST(TileNumber, AnythingElseIsATypeError)
{
    for (const char* text : {"", " ", "04a9", "0x04a9", "04  a9", "04 a", "4 a9", "04-a9", "04 g9", "+4 a9", "04 -9"}) {
        EXPECT_RUNTIME_ERROR(13, TileNumber(text, Generation070)) << " with " << text;
    }
    for (const char* text : {"", "0x", "04 a9", "04a9", "0X04a9", "0x04g9", "0x-4", "0x+4", " 0x04a9", "0x04a9 ",
                             "0x0x04", "0x123456789"}) {
        EXPECT_RUNTIME_ERROR(13, TileNumber(text, Generation09)) << " with " << text;
    }
    for (const char* text : {"04 a9", "0x04a9"}) {
        EXPECT_RUNTIME_ERROR(13, TileNumber(text, Neither)) << " with " << text;
    }
}

TEST(HexNumberText, IsUpperCaseWithoutLeadingZeros)
{
    EXPECT_EQ(HexNumberText(0x05CE), "0x5CE");
    EXPECT_EQ(HexNumberText(5899), "0x170B");
    EXPECT_EQ(HexNumberText(0), "0x0");
    EXPECT_EQ(HexNumberText(-1), "0xFFFFFFFF");
    EXPECT_EQ(HexNumberText(0x7ABCDEF9), "0x7ABCDEF9");
}

} // namespace
} // namespace qf::core
