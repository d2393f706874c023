#include "world/template_format.h"

#include <gtest/gtest.h>

#include "support/expect_error.h"

namespace qf::world {
namespace {

using core::Generation070;
using core::Generation09;

constexpr core::ServerGeneration Neither{7};
constexpr auto                   One = TemplateIdForm::OneWord;
constexpr auto                   Two = TemplateIdForm::TwoWords;

constexpr BuildPoint Here{1000, 2000, 5};

struct Reading {
    const char*    line;
    TemplateKind   kind;
    TemplateIdForm form;
    const char*    id070;
    const char*    id09;
    std::int32_t   x1, x2, y1, y2, z;
};

// clang-format off
constexpr Reading readings[] = {
    {"TILEW 1b 4d 0 2 3 4 5",     TemplateKind::Area,   Two, "1b 4d ",    "0x1b4d",     0,  2, 3, 4,  5},
    {"XLINE 1b 4d 0 2 3 4",       TemplateKind::AlongX, Two, "1b 4d ",    "0x1b4d",     0,  2, 3, 3,  4},
    {"YLINE 1b 4d 0 2 3 4",       TemplateKind::AlongY, Two, "1b 4d ",    "0x1b4d",     0,  0, 2, 3,  4},
    {"1b 4d 3 4 6",               TemplateKind::Single, Two, "1b 4d ",    "0x1b4d",     3,  3, 4, 4,  6},
    {"TILEW 0x1b4d 0 2 3 4 5",    TemplateKind::Area,   One, "0x1b4d ",   "0x1b4d ",    0,  2, 3, 4,  5},
    {"XLINE 0x1b4d 0 2 3 4",      TemplateKind::AlongX, One, "0x1b4d ",   "0x1b4d ",    0,  2, 3, 3,  4},
    {"YLINE 0x1b4d 9 3 0 5 7",    TemplateKind::AlongY, One, "0x1b4d 9 ", "0x1b4d 9 ",  3,  3, 0, 5,  7},
    {"0x1b4d 3 4 6",              TemplateKind::Single, One, "0x1b4d ",   "0x1b4d ",    3,  3, 4, 4,  6},
    {"TILEW 1B 4D -1 -2 0 +7 -5", TemplateKind::Area,   Two, "1B 4D ",    "0x1B4D",    -1, -2, 0, 7, -5},
    {"what ever 1.5 2.5 3e1",     TemplateKind::Single, Two, "what ever ", "0xwhatever", 2,  2, 2, 2, 30},
};
// clang-format on

TEST(TemplateFormat, ReadsEachKindByItsPlaces)
{
    for (const auto& reading : readings) {
        for (const auto generation : {Generation070, Generation09, Neither}) {
            const TemplateTile expected{generation.Is09() ? reading.id09 : reading.id070,
                                        reading.x1,
                                        reading.x2,
                                        reading.y1,
                                        reading.y2,
                                        reading.z};
            EXPECT_EQ(ParseTemplateLine(reading.line, reading.kind, reading.form, generation), expected)
                << reading.line << " in generation " << generation.Number();
        }
    }
}

TEST(TemplateFormat, ReadsAnEmptyIdWhereItsWordsAreEmpty)
{
    EXPECT_EQ(ParseTemplateLine("  3 4 0", TemplateKind::Single, Two, Generation070),
              (TemplateTile{"  ", 3, 3, 4, 4, 0}));
    EXPECT_EQ(ParseTemplateLine("  3 4 0", TemplateKind::Single, Two, Generation09),
              (TemplateTile{"0x", 3, 3, 4, 4, 0}));
}

TEST(TemplateFormat, FailsOnAFieldThatIsNoNumber)
{
    for (const auto* line : {"TILEW 1b 4d a 2 3 4 5", "TILEW 1b 4d 1 2 3 4 ", "TILEW 1b 4d 1 2 3 4 5z",
                             "TILEW 1b 4d 1  3 4 5 6", "TILEW 1b 4d 1 2 0x3 4 5"}) {
        EXPECT_RUNTIME_ERROR(13, ParseTemplateLine(line, TemplateKind::Area, Two, Generation09)) << line;
    }
    EXPECT_RUNTIME_ERROR(6, ParseTemplateLine("TILEW 1b 4d 1 2 3 4 2147483648", TemplateKind::Area, Two, Generation09));
}

TEST(TemplateFormat, NeverReadsALineAlongYWithAOneWordId)
{
    for (const auto generation : {Generation070, Generation09, Neither}) {
        EXPECT_RUNTIME_ERROR(13, ParseTemplateLine("YLINE 0x1b4d 3 0 5 0", TemplateKind::AlongY, One, generation));
    }
}

TEST(TemplateFormat, ComposesAnAreaInTheWordsOfTheGeneration)
{
    constexpr auto line = "TILEW 1b 4d 0 2 0 1 0";
    EXPECT_EQ(FormatTemplateLine(line, Two, Here, TemplateKind::Area, Generation070),
              "tilew 1b 4d  1000 1002 2000 2001 5");
    EXPECT_EQ(FormatTemplateLine(line, Two, Here, TemplateKind::Area, Generation09),
              "tile 0x1b4d 1000 1002 2000 2001 5");
}

TEST(TemplateFormat, MakesEveryKindAnArea)
{
    EXPECT_EQ(FormatTemplateLine("XLINE 1b 4d 0 9 3 -6", Two, Here, TemplateKind::AlongX, Generation09),
              "tile 0x1b4d 1000 1009 2003 2003 -1");
    EXPECT_EQ(FormatTemplateLine("YLINE 1b 4d 4 -2 3 0", Two, Here, TemplateKind::AlongY, Generation09),
              "tile 0x1b4d 1004 1004 1998 2003 5");
    EXPECT_EQ(FormatTemplateLine("1b 4d 3 4 0", Two, Here, TemplateKind::Single, Generation070),
              "tilew 1b 4d  1003 1003 2004 2004 5");
}

TEST(TemplateFormat, KeepsTheBlankBehindAOneWordIdInBothGenerations)
{
    EXPECT_EQ(FormatTemplateLine("0x1b4d 3 4 0", One, Here, TemplateKind::Single, Generation070),
              "tilew 0x1b4d  1003 1003 2004 2004 5");
    EXPECT_EQ(FormatTemplateLine("0x1b4d 3 4 0", One, Here, TemplateKind::Single, Generation09),
              "tile 0x1b4d  1003 1003 2004 2004 5");
}

TEST(TemplateFormat, ComposesTheLastTwoNumbersAloneForAGenerationThatIsNeither)
{
    EXPECT_EQ(FormatTemplateLine("TILEW 1b 4d 0 2 0 1 3", Two, Here, TemplateKind::Area, Neither), " 2001 8");
}

TEST(TemplateFormat, OverflowsWhereAPlaceDoesNotFit)
{
    constexpr BuildPoint far{2'147'483'647, 0, 0};
    EXPECT_RUNTIME_ERROR(6, FormatTemplateLine("1b 4d 1 0 0", Two, far, TemplateKind::Single, Generation09));
    EXPECT_EQ(FormatTemplateLine("1b 4d 0 0 0", Two, far, TemplateKind::Single, Generation09),
              "tile 0x1b4d 2147483647 2147483647 0 0 0");
    EXPECT_EQ(FormatTemplateLine("1b 4d 1 0 0", Two, far, TemplateKind::Single, Neither), " 0 0");
}

} // namespace
} // namespace qf::world
