#include "core/product.h"

#include <gtest/gtest.h>

#include "core/text.h"
#include "support/expect_error.h"

namespace qf::core {
namespace {

TEST(Product, VersionRunsTogetherAndEndsInTheRevisionLetter)
{
    EXPECT_EQ(VersionText(), "20250 ");
    EXPECT_EQ(VersionText({"", 3, 12, 1, ""}), "312a");
}

TEST(Product, TitleEndsInTheBlankOfRevisionZero)
{
    EXPECT_EQ(ProductTitle(), "Dobrin's Quernfield 20250 ");
}

TEST(Product, RevisionThreeGivesCInTheTitle)
{
    EXPECT_EQ(ProductTitle({"Dobrin's Quernfield", 2025, 0, 3, ""}), "Dobrin's Quernfield 20250c");
}

TEST(Product, DescriptionStandsBehindABlank)
{
    EXPECT_EQ(ProductTitle({"Title", 1, 2, 0, "beta"}), "Title 12  beta");
    EXPECT_EQ(ProductTitle({"Title", 1, 2, 2, "beta"}), "Title 12b beta");
}

TEST(RevisionLetter, IsOneBlankForZero)
{
    EXPECT_EQ(RevisionLetter(0), " ");
}

TEST(RevisionLetter, CountsFromSmallA)
{
    EXPECT_EQ(RevisionLetter(1), "a");
    EXPECT_EQ(RevisionLetter(2), "b");
    EXPECT_EQ(RevisionLetter(3), "c");
    EXPECT_EQ(RevisionLetter(26), "z");
    EXPECT_EQ(RevisionLetter(27), "{");
}

TEST(RevisionLetter, EndsWithTheAnsiCharacters)
{
    EXPECT_EQ(RevisionLetter(159), "\xC3\xBF");
    EXPECT_EQ(RevisionLetter(-96), std::string(1, '\0'));
    EXPECT_RUNTIME_ERROR(5, RevisionLetter(160));
    EXPECT_RUNTIME_ERROR(5, RevisionLetter(-97));
    EXPECT_RUNTIME_ERROR(5, RevisionLetter(2147483647));
    EXPECT_RUNTIME_ERROR(5, RevisionLetter(-2147483647 - 1));
}

} // namespace
} // namespace qf::core
