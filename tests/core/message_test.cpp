#include "core/message.h"

#include <gtest/gtest.h>

namespace qf::core {
namespace {

TEST(Message, PlainBoxHasNoTitleOfItsOwn)
{
    const Message message = PlainBox("Item ID copied to clipboard!");
    EXPECT_EQ(message.text, "Item ID copied to clipboard!");
    EXPECT_EQ(message.style, MessageStyle::Plain);
    EXPECT_FALSE(message.title.has_value());
}

TEST(Message, BoxesWithAnIconCarryTheProductTitle)
{
    EXPECT_EQ(InformationBox("i"), (Message{"i", MessageStyle::Information, "Dobrin's Quernfield 20250 "}));
    EXPECT_EQ(CriticalBox("c"), (Message{"c", MessageStyle::Critical, "Dobrin's Quernfield 20250 "}));
    EXPECT_EQ(QuestionBox("q"), (Message{"q", MessageStyle::Question, "Dobrin's Quernfield 20250 "}));
}

TEST(Message, AnInformationMayComeUntitled)
{
    EXPECT_EQ(UntitledInformationBox("i"), (Message{"i", MessageStyle::Information, std::nullopt}));
}

TEST(Message, StylesHaveTheirNumbers)
{
    EXPECT_EQ(static_cast<int>(PlainBox("").style), 0);
    EXPECT_EQ(static_cast<int>(QuestionBox("").style), 4);
    EXPECT_EQ(static_cast<int>(CriticalBox("").style), 16);
    EXPECT_EQ(static_cast<int>(MessageStyle::Warning), 48);
    EXPECT_EQ(static_cast<int>(InformationBox("").style), 64);
}

} // namespace
} // namespace qf::core
