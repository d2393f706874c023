#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "practice/chat_line.h"

namespace qf::practice {

namespace {

TEST(PracticeChatLine, GivesItsLinesInOrderAndOnce)
{
    ChatLine chat;
    chat.Insert("'wh");
    chat.Insert("ere");
    chat.Return();
    chat.Return();
    chat.Insert("half");
    EXPECT_THAT(chat.TakeLines(), testing::ElementsAre("'where", ""));
    EXPECT_THAT(chat.TakeLines(), testing::IsEmpty());
    EXPECT_EQ(chat.Text(), "half");
}

TEST(PracticeChatLine, BackspaceDeletesACharacterAndNotAByte)
{
    ChatLine chat;
    chat.Insert("a\xC3\xA9\xE2\x82\xAC");
    chat.Backspace();
    EXPECT_EQ(chat.Text(), "a\xC3\xA9");
    chat.Backspace();
    EXPECT_EQ(chat.Text(), "a");
    chat.Backspace();
    chat.Backspace();
    EXPECT_EQ(chat.Text(), "");
}

} // namespace

} // namespace qf::practice
