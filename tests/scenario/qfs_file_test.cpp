#include "scenario/qfs_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qf::scenario {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

std::string FirstError(std::string_view text)
{
    const auto file = ParseQfs(text);
    if (!file.errors.empty()) {
        return std::to_string(file.errors.front().line) + ": " + file.errors.front().message;
    }
    for (const auto& scenario : file.scenarios) {
        if (scenario.error) {
            return std::to_string(scenario.error->line) + ": " + scenario.error->message;
        }
    }
    return {};
}

TEST(SplitWords, PartsBareAndQuotedWordsByBlanks)
{
    EXPECT_THAT(SplitWords(R"(  type  frmFloors.txtX1 "a \"b\" \r\n"	x)"),
                ElementsAre(Word{"type"}, Word{"frmFloors.txtX1"}, Word{"a \"b\" \r\n", true}, Word{"x"}));
}

TEST(SplitWords, AQuoteWithinABareWordStandsForItself)
{
    EXPECT_THAT(SplitWords(R"(a"b c")"), ElementsAre(Word{"a\"b"}, Word{"c\""}));
}

TEST(SplitWords, DecodesEveryEscape)
{
    EXPECT_THAT(SplitWords(R"("\"\\\/\b\f\n\r\t\u0041\u00e9\u20AC\ud83d\ude00")"),
                ElementsAre(Word{"\"\\/\b\f\n\r\tA\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80", true}));
}

TEST(SplitWords, AnEmptyStringIsAWord)
{
    EXPECT_THAT(SplitWords("\"\""), ElementsAre(Word{"", true}));
}

TEST(SplitWords, RefusesWhatIsNoJsonString)
{
    for (const char* line : {"\"open", R"("\x")", R"("\u12")", R"("\u12g4")", R"("\ud83d")", R"("\ud83dA")",
                             R"("\ude00")", R"("a"b)", "\"a\tb\"", "\"\\"}) {
        EXPECT_THROW(SplitWords(line), LineError) << line;
    }
}

TEST(JsonString, EscapesWhatMustBe)
{
    EXPECT_EQ(JsonString("a\"\\/\r\n\t\x1B\xC3\xA9"), R"("a\"\\/\r\n\t\u001b)"
                                                      "\xC3\xA9\"");
}

TEST(JsonString, ComesBackFromItsOwnText)
{
    std::string all;
    for (char c = 0; c < 127; ++c) {
        all += c;
    }
    EXPECT_THAT(SplitWords(JsonString(all)), ElementsAre(Word{all, true}));
}

TEST(JsonArray, HasNoBlanks)
{
    EXPECT_EQ(JsonArray({}), "[]");
    EXPECT_EQ(JsonArray({"a b", "\""}), R"(["a b","\""])");
}

TEST(ParseNumber, TakesDecimalAndHexadecimal)
{
    EXPECT_EQ(ParseNumber("0x4CA"), 0x4CA);
    EXPECT_EQ(ParseNumber("-12"), -12);
    EXPECT_EQ(ParseNumber("3223060481"), 3223060481);
    for (const char* text : {"", "-", "0x", "0x-1", "1x", "1.5", " 1", "99999999999999999999"}) {
        EXPECT_EQ(ParseNumber(text), std::nullopt) << text;
    }
}

TEST(Matches, ComparesDecodedWords)
{
    EXPECT_TRUE(Matches(SplitWords(R"(send "a\u0062")"), SplitWords("send \"ab\"")));
    EXPECT_FALSE(Matches(SplitWords("send \"a\""), SplitWords("send \"A\"")));
    EXPECT_FALSE(Matches(SplitWords("send"), SplitWords("send \"a\"")));
    EXPECT_FALSE(Matches(SplitWords("send \"a\" b"), SplitWords("send \"a\"")));
}

TEST(Matches, ABareQuestionMarkIsAnyOneWord)
{
    EXPECT_TRUE(Matches(SplitWords("box ? ? \"x\""), SplitWords("box 16 \"a b\" \"x\"")));
    EXPECT_FALSE(Matches(SplitWords("box ? \"x\""), SplitWords("box 16 \"a b\" \"x\"")));
    EXPECT_FALSE(Matches(SplitWords("value \"?\""), SplitWords("value \"a\"")));
}

TEST(ParseQfs, TakesAFileApart)
{
    const auto file = ParseQfs("# head\r\n"
                               "scenario \"one thing\"\r\n"
                               "file ${DIR}/a.txt\r\n"
                               "|  indented \r\n"
                               "|\r\n"
                               "\r\n"
                               "click! frmFloors.cmdAddFloor\r\n"
                               "> send \"x\"\r\n"
                               "# between\r\n"
                               "> end\r\n"
                               "scenario two");
    EXPECT_TRUE(file.errors.empty());
    ASSERT_EQ(file.scenarios.size(), 2U);
    const auto& one = file.scenarios.front();
    EXPECT_FALSE(one.error);
    EXPECT_EQ(one.name, "one thing");
    ASSERT_EQ(one.steps.size(), 2U);
    EXPECT_EQ(one.steps[0].verb, Verb::File);
    EXPECT_THAT(one.steps[0].text, ElementsAre(" indented ", ""));
    EXPECT_EQ(one.steps[0].lastLine, 5);
    EXPECT_EQ(one.steps[1].verb, Verb::Click);
    EXPECT_TRUE(one.steps[1].forced);
    EXPECT_EQ(one.steps[1].line, 7);
    ASSERT_EQ(one.steps[1].expected.size(), 2U);
    EXPECT_EQ(one.steps[1].expected[1].line, 10);
    EXPECT_EQ(file.scenarios.back().name, "two");
}

TEST(ParseQfs, TellsWhatIsWrongAndWhere)
{
    EXPECT_EQ(FirstError("start"), "1: a step outside a scenario");
    EXPECT_EQ(FirstError("> end"), "1: expected output before any step");
    EXPECT_EQ(FirstError("scenario a\n> end"), "2: expected output before any step");
    EXPECT_EQ(FirstError("scenario a\nstart\n| text"), "3: a line of a file belongs to no \"file\" step");
    EXPECT_EQ(FirstError("scenario\nstart"), "1: a scenario has one name");
    EXPECT_EQ(FirstError("scenario a b"), "1: a scenario has one name");
    EXPECT_EQ(FirstError("scenario a\nstart\nfly away"), "3: unknown step \"fly\"");
    EXPECT_EQ(FirstError("scenario a\nstart!"), "2: unknown step \"start!\"");
    EXPECT_EQ(FirstError("scenario a\nstart now"), "2: a word too many: now");
    EXPECT_EQ(FirstError("scenario a\ntype frmFloors.txtX1"), "2: a word is missing behind \"type\"");
    EXPECT_EQ(FirstError("scenario a\nchoose a.b first"), "2: \"first\" is no number");
    EXPECT_EQ(FirstError("scenario a\nget frmFloors.txtX1.colour"),
              "2: \"frmFloors.txtX1.colour\" is no property of a control");
    EXPECT_EQ(FirstError("scenario a\nget caption"), "2: \"caption\" is no property of a control");
    EXPECT_EQ(FirstError("scenario a\nrandom 0.5 often"), "2: \"often\" is no number");
    EXPECT_EQ(FirstError("scenario a\nbytes a 00 1"), "2: \"1\" is no row of bytes in hexadecimal");
    EXPECT_EQ(FirstError("scenario a\nfront window"), "2: \"window\" is none of [client|other]");
    EXPECT_EQ(FirstError("scenario a\nassist maybe"), "2: \"maybe\" is no number");
    EXPECT_EQ(FirstError("scenario a\npoke 0x10"), "2: a word is missing behind \"poke\"");
    EXPECT_THAT(FirstError("scenario a\nstart\n> send \"x"), HasSubstr("3: a quoted word"));
}

TEST(ParseQfs, AnErrorBelongsToItsScenarioAlone)
{
    const auto file = ParseQfs("scenario a\nfly\nrun\nscenario b\nstart");
    ASSERT_EQ(file.scenarios.size(), 2U);
    ASSERT_TRUE(file.scenarios[0].error);
    EXPECT_EQ(file.scenarios[0].error->line, 2);
    EXPECT_FALSE(file.scenarios[1].error);
}

TEST(ParsePropertyReference, TheLastPointPartsControlAndProperty)
{
    const auto reference = ParsePropertyReference("frmFloors.optFloorType(4).value");
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->control, "frmFloors.optFloorType(4)");
    EXPECT_EQ(reference->property, "value");
}

} // namespace
} // namespace qf::scenario
