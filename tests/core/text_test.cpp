#include "core/text.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>

#include "support/expect_error.h"

namespace qf::core {
namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

TEST(TextProcedures, NormalizeHexPrefixReplacesTheSmallX)
{
    EXPECT_EQ(NormalizeHexPrefix("0x1F"), "&H1F");
    EXPECT_EQ(NormalizeHexPrefix("0x"), "&H");
    EXPECT_EQ(NormalizeHexPrefix("0x0x1"), "&H0x1");
}

TEST(TextProcedures, NormalizeHexPrefixIsCaseSensitive)
{
    EXPECT_EQ(NormalizeHexPrefix("0X1F"), "0X1F");
}

TEST(TextProcedures, NormalizeHexPrefixLeavesOtherTextAlone)
{
    EXPECT_EQ(NormalizeHexPrefix("31"), "31");
    EXPECT_EQ(NormalizeHexPrefix(""), "");
    EXPECT_EQ(NormalizeHexPrefix("0"), "0");
    EXPECT_EQ(NormalizeHexPrefix(" 0x1F"), " 0x1F");
    EXPECT_EQ(NormalizeHexPrefix("-0x1F"), "-0x1F");
}

TEST(TextProcedures, CountWordsCountsBlanks)
{
    EXPECT_EQ(CountWords("a b  c"), 3);
    EXPECT_EQ(CountWords(""), 0);
    EXPECT_EQ(CountWords("word"), 0);
    EXPECT_EQ(CountWords(" a "), 2);
    EXPECT_EQ(CountWords("a\tb"), 0);
}

TEST(TextProcedures, WordStartIsBehindTheBlank)
{
    EXPECT_EQ(WordStart("a b", 0), 1);
    EXPECT_EQ(WordStart("a b", 1), 3);
    EXPECT_EQ(WordStart("a b", 2), -1);
    EXPECT_EQ(WordStart("a  b", 2), 4);
    EXPECT_EQ(WordStart("a ", 1), 3);
    EXPECT_EQ(WordStart("", 0), 1);
    EXPECT_EQ(WordStart("", 1), -1);
    EXPECT_EQ(WordStart("a b", -1), -1);
    EXPECT_EQ(WordStart("a b", std::numeric_limits<int>::max()), -1);
    EXPECT_EQ(WordStart("a b", std::numeric_limits<int>::min()), -1);
}

TEST(TextProcedures, WordRangeKeepsTheBlankBehindTheLastWord)
{
    EXPECT_EQ(WordRange("DESC a b", 1, 2), "a ");
    EXPECT_EQ(WordRange("DESC a b", 0, 1), "DESC ");
    EXPECT_EQ(WordRange("DESC a b", 0, 2), "DESC a ");
}

TEST(TextProcedures, WordRangeRunsToTheEndWhereTheEndIsMissing)
{
    EXPECT_EQ(WordRange("DESC a b", 1, 3), "a b");
    EXPECT_EQ(WordRange("DESC a b", 2, 99), "b");
    EXPECT_EQ(WordRange("", 0, 1), "");
}

TEST(TextProcedures, WordRangeBeginsAtTheFirstCharacterWhereTheStartIsMissing)
{
    EXPECT_EQ(WordRange("DESC a b", 9, 1), "DESC ");
    EXPECT_EQ(WordRange("DESC a b", 9, 9), "DESC a b");
}

TEST(TextProcedures, WordRangeIsEmptyWhereTheEndIsNotBehindTheStart)
{
    EXPECT_EQ(WordRange("DESC a b", 1, 1), "");
    EXPECT_EQ(WordRange("DESC a b", 2, 1), "");
    EXPECT_EQ(WordRange("DESC ", 1, 2), "");
}

TEST(TextProcedures, LastBackslashCountsFromOne)
{
    EXPECT_EQ(LastBackslash("C:\\UO\\client.exe"), 6);
    EXPECT_EQ(LastBackslash("\\"), 1);
    EXPECT_EQ(LastBackslash("client.exe"), 0);
    EXPECT_EQ(LastBackslash(""), 0);
    EXPECT_EQ(LastBackslash("C:/UO/client.exe"), 0);
}

TEST(TextProcedures, FolderKeepsItsBackslash)
{
    EXPECT_EQ(FolderOf("C:\\UO\\client.exe"), "C:\\UO\\");
    EXPECT_EQ(FolderOf("C:\\UO\\"), "C:\\UO\\");
    EXPECT_EQ(FolderOf("client.exe"), "");
    EXPECT_EQ(FolderOf(""), "");
}

TEST(TextProcedures, UpperHexHasNeitherPrefixNorLeadingZeros)
{
    EXPECT_EQ(UpperHex(0), "0");
    EXPECT_EQ(UpperHex(9), "9");
    EXPECT_EQ(UpperHex(0x5CE), "5CE");
    EXPECT_EQ(UpperHex(0x12ABCDEF), "12ABCDEF");
    EXPECT_EQ(UpperHex(0xFFFFFFFF), "FFFFFFFF");
}

TEST(TextProcedures, HueHexPairFormsTwoPairs)
{
    struct Row {
        std::int32_t number;
        const char*  pairs;
    };
    const Row rows[] = {
        {0, "00 00"},       {1, "00 01"},          {10, "00 0A"},     {15, "00 0F"},      {16, "00 10"},
        {26, "00 1A"},      {255, "00 FF"},        {256, "01 00"},    {1024, "04 00"},    {2047, "07 FF"},
        {4095, "0F FF"},    {4096, "10 00"},       {0xABCD, "AB CD"}, {0x12345, "12 45"}, {0xABCDEF, "AB EF"},
        {Highest, "7F FF"}, {0x12345678, "12 78"}, {-1, "FF FF"},     {Lowest, "80 00"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(HueHexPair(row.number), row.pairs) << row.number;
    }
}

TEST(Words, LoWordIsSigned)
{
    EXPECT_EQ(LoWord(-1), -1);
    EXPECT_EQ(LoWord(0x8000), -32768);
    EXPECT_EQ(LoWord(0x7FFF), 32767);
    EXPECT_EQ(LoWord(0), 0);
    EXPECT_EQ(LoWord(0x10000), 0);
    EXPECT_EQ(LoWord(567 * 65536 + 1234), 1234);
    EXPECT_EQ(LoWord(Lowest), 0);
    EXPECT_EQ(LoWord(Highest), -1);
}

TEST(Words, HiWordOfMinusOneIsMinusOne)
{
    EXPECT_EQ(HiWord(-1), -1);
}

TEST(Words, HiWordOfAPlaceIsItsY)
{
    EXPECT_EQ(HiWord(567 * 65536 + 1234), 567);
    EXPECT_EQ(HiWord(4095 * 65536 + 6143), 4095);
    EXPECT_EQ(HiWord(0), 0);
}

TEST(Words, HiWordDividesBy65535)
{
    EXPECT_EQ(HiWord(65534), 0);
    EXPECT_EQ(HiWord(65535), 1);
    EXPECT_EQ(HiWord(65536), 1);
    EXPECT_EQ(HiWord(1 * 65536 + 65533), 1);
    EXPECT_EQ(HiWord(1 * 65536 + 65534), 2); // X + Y reaches 65535
    EXPECT_EQ(HiWord(-65534), -1);
    EXPECT_EQ(HiWord(-65535), -2);
}

TEST(Words, HiWordOverflowsBeyondSixteenBits)
{
    EXPECT_EQ(HiWord(65535 * 32767), 32767);
    EXPECT_EQ(HiWord(65535 * 32767 + 65534), 32767);
    EXPECT_RUNTIME_ERROR(6, HiWord(65535 * 32767 + 65535));
    EXPECT_RUNTIME_ERROR(6, HiWord(Highest));
    EXPECT_EQ(HiWord(-65535 * 32767 - 65534), -32768);
    EXPECT_RUNTIME_ERROR(6, HiWord(-65535 * 32767 - 65535));
    EXPECT_RUNTIME_ERROR(6, HiWord(Lowest));
}

TEST(IgnoringCase, EqualComparesAsciiLetters)
{
    EXPECT_TRUE(EqualIgnoringCase("ClassicUO", "classicuo"));
    EXPECT_TRUE(EqualIgnoringCase("", ""));
    EXPECT_FALSE(EqualIgnoringCase("a", "ab"));
    EXPECT_FALSE(EqualIgnoringCase("a", "b"));
    EXPECT_FALSE(EqualIgnoringCase("[", "{"));
    EXPECT_FALSE(EqualIgnoringCase("@", "`"));
    EXPECT_FALSE(EqualIgnoringCase("\xC3\x84", "\xC3\xA4"));
    EXPECT_TRUE(EqualIgnoringCase("\xC3\x84x", "\xC3\x84X"));
}

TEST(IgnoringCase, ContainsFindsAPartAnywhere)
{
    EXPECT_TRUE(ContainsIgnoringCase("classicuo - Someone", "ClassicUO"));
    EXPECT_TRUE(ContainsIgnoringCase("My CLASSICUO", "ClassicUO"));
    EXPECT_TRUE(ContainsIgnoringCase("", ""));
    EXPECT_TRUE(ContainsIgnoringCase("x", ""));
    EXPECT_FALSE(ContainsIgnoringCase("Classic UO", "ClassicUO"));
    EXPECT_FALSE(ContainsIgnoringCase("", "ClassicUO"));
    EXPECT_FALSE(ContainsIgnoringCase("ClassicU", "ClassicUO"));
}

TEST(IgnoringCase, StartsWithLooksAtTheFrontAlone)
{
    EXPECT_TRUE(StartsWithIgnoringCase("SECTION WorldItem", "section"));
    EXPECT_TRUE(StartsWithIgnoringCase("x", ""));
    EXPECT_FALSE(StartsWithIgnoringCase("a section", "section"));
    EXPECT_FALSE(StartsWithIgnoringCase("sec", "section"));
}

TEST(IgnoringCase, LowerCaseTouchesAsciiLettersAlone)
{
    EXPECT_EQ(LowerCase("AZ az09[]@\xC3\x84"), "az az09[]@\xC3\x84");
}

TEST(TrimBlanks, TakesBlanksAlone)
{
    EXPECT_EQ(TrimBlanks("  a b "), "a b");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
    EXPECT_EQ(TrimBlanks("\ta\r\n"), "\ta\r\n");
    EXPECT_EQ(TrimBlanks(" \ta "), "\ta");
}

} // namespace
} // namespace qf::core
