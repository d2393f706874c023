#include <gtest/gtest.h>

#include <set>
#include <string>

#include "practice/font.h"

namespace qf::practice {

namespace {

std::string Shape(char32_t character)
{
    std::string shape;
    for (int row = 0; row < GlyphHeight; ++row) {
        for (int column = 0; column < GlyphWidth; ++column) {
            shape += GlyphPoint(character, column, row) ? '#' : '.';
        }
    }
    return shape;
}

TEST(PracticeFont, TellsAllPrintableCharactersApart)
{
    std::set<std::string> shapes;
    for (char32_t character = 0x20; character <= 0x7E; ++character) {
        EXPECT_TRUE(shapes.insert(Shape(character)).second) << "character " << static_cast<unsigned>(character);
    }
    EXPECT_TRUE(shapes.insert(Shape(0x20AC)).second);
    EXPECT_EQ(Shape(0x20AC), Shape(0x09));
}

TEST(PracticeFont, ReadsUtf8AndStepsOverWhatIsNone)
{
    std::string_view text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xFF\xC3(\xE2\x82";
    const char32_t   wanted[] = {U'a', 0xE9, 0x20AC, 0x1F600, 0xFFFD, 0xFFFD, U'(', 0xFFFD, 0xFFFD};
    EXPECT_EQ(CharacterCount(text), std::size(wanted));
    for (const char32_t character : wanted) {
        EXPECT_EQ(NextCharacter(text), character);
    }
    EXPECT_TRUE(text.empty());
}

} // namespace

} // namespace qf::practice
