#include "core/ansi.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

namespace qf::core {
namespace {

TEST(Ansi, EveryCodeSurvivesBothWays)
{
    std::string all;
    for (int code = 0; code < 256; ++code) {
        all += static_cast<char>(static_cast<unsigned char>(code));
    }
    EXPECT_EQ(ToAnsi(FromAnsi(all)), all);
    for (const char code : all) {
        EXPECT_EQ(ToAnsi(FromAnsi(std::string(1, code))), std::string(1, code))
            << int{static_cast<unsigned char>(code)};
    }
}

TEST(Ansi, EveryCodeIsADifferentCharacter)
{
    std::set<char32_t> characters;
    for (int code = 0; code < 256; ++code) {
        characters.insert(AnsiToUnicode(static_cast<unsigned char>(code)));
    }
    EXPECT_EQ(characters.size(), 256U);
}

TEST(Ansi, KnownCharacters)
{
    struct Row {
        unsigned char code;
        char32_t      character;
        const char*   utf8;
    };
    const Row rows[] = {
        {0x41, U'A', "A"},
        {0x7F, 0x7F, "\x7F"},
        {0x80, 0x20AC, "\xE2\x82\xAC"}, // euro
        {0x81, 0x81, "\xC2\x81"},
        {0x85, 0x2026, "\xE2\x80\xA6"}, // ellipsis
        {0x8A, 0x0160, "\xC5\xA0"},
        {0x93, 0x201C, "\xE2\x80\x9C"}, // left double quote
        {0x99, 0x2122, "\xE2\x84\xA2"}, // trade mark
        {0x9D, 0x9D, "\xC2\x9D"},
        {0x9F, 0x0178, "\xC5\xB8"},
        {0xA0, 0xA0, "\xC2\xA0"},
        {0xE4, 0xE4, "\xC3\xA4"}, // a with diaeresis
        {0xFF, 0xFF, "\xC3\xBF"},
    };
    for (const Row& row : rows) {
        const std::string ansi(1, static_cast<char>(row.code));
        EXPECT_EQ(AnsiToUnicode(row.code), row.character) << int{row.code};
        EXPECT_EQ(FromAnsi(ansi), row.utf8) << int{row.code};
        EXPECT_EQ(ToAnsi(row.utf8), ansi) << int{row.code};
    }
}

TEST(Ansi, OpenCodesAreControlCharacters)
{
    constexpr unsigned char open[] = {0x81, 0x8D, 0x8F, 0x90, 0x9D};
    for (const unsigned char code : open) {
        EXPECT_EQ(AnsiToUnicode(code), char32_t{code});
    }
}

TEST(Ansi, CharactersThatThePageLacksBecomeQuestionMarks)
{
    EXPECT_EQ(ToAnsi("\xC4\x80"), "?");           // U+0100
    EXPECT_EQ(ToAnsi("\xC2\x80"), "?");           // the control character whose code is the euro's
    EXPECT_EQ(ToAnsi("a\xE6\x97\xA5z"), "a?z");   // U+65E5
    EXPECT_EQ(ToAnsi("\xF0\x9F\x8F\xB0!"), "?!"); // U+1F3F0
    EXPECT_EQ(ToAnsi("\xF4\x8F\xBF\xBF"), "?");   // U+10FFFF
}

TEST(Ansi, EachByteThatIsNotUtf8BecomesAQuestionMark)
{
    EXPECT_EQ(ToAnsi("\x80"), "?");
    EXPECT_EQ(ToAnsi("\xE4z"), "?z");
    EXPECT_EQ(ToAnsi("\xE2\x82"), "??"); // cut off
    EXPECT_EQ(ToAnsi("\xE2\x82z"), "??z");
    EXPECT_EQ(ToAnsi("\xC0\x80"), "??");           // overlong
    EXPECT_EQ(ToAnsi("\xE0\x80\x80"), "???");      // overlong
    EXPECT_EQ(ToAnsi("\xF0\x80\x80\x80"), "????"); // overlong
    EXPECT_EQ(ToAnsi("\xED\xA0\x80"), "???");      // surrogate
    EXPECT_EQ(ToAnsi("\xF4\x90\x80\x80"), "????"); // above U+10FFFF
    EXPECT_EQ(ToAnsi("\xF8\x88\x80\x80\x80"), "?????");
    EXPECT_EQ(ToAnsi("\xFF\xFE"), "??");
}

TEST(Ansi, EmptyTextStaysEmpty)
{
    EXPECT_EQ(ToAnsi(""), "");
    EXPECT_EQ(FromAnsi(""), "");
}

TEST(Ansi, NulIsACharacter)
{
    const std::string text("a\0b", 3);
    EXPECT_EQ(ToAnsi(text), text);
    EXPECT_EQ(FromAnsi(text), text);
}

} // namespace
} // namespace qf::core
