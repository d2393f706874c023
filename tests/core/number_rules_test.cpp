#include "core/number_rules.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>
#include <random>
#include <string>
#include <vector>

#include "support/expect_error.h"

namespace qf::core {
namespace {

constexpr std::int32_t Lowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t Highest = std::numeric_limits<std::int32_t>::max();

/// Texts that are no number for any of the conversions.
std::vector<std::string> NoNumbers()
{
    // clang-format off
    return {"",      " ",     "   ",   "N/A",    "abc",   ".",     "+",      "-",      "+.",    "-.",      "+-1",
            "--1",   "++1",   "- 1",   "+ 1",    "5-",    "5+",    "1 2",    "1.2.3",  "..5",   "1..",     "1e",
            "1E",    "1e+",   "1e-",   "e5",     "E5",    ".e5",   "1e5.5",  "1e 5",   "1 e5",  "1e5e5",   "1e++5",
            "0x1F",  "1F",    "&",     "&H",     "&h",    "&HG",   "&H 1",   "& H1",   "-&H1",  "+&H1",    "&H-1",
            "&H+1",  "&H1.5", "&H1F&", "&H1G2",  "H1",    "&O17",  "&HG23456789",      "1,000", "1,5",     "\t1",
            "1\t",   "1\r\n", "\n1",   "$5",     "5%",    "1d5",   "1D5",    "inf",    "INF",   "nan",     "infinity",
            "-inf",  "0x",    "1_000", "\xC2\xA0" "1", "\xEF\xBC\x91", std::string("1\0", 2), std::string("\0", 1)};
    // clang-format on
}

TEST(ToInteger32, TextThatIsNoNumberIsATypeError)
{
    for (const std::string& text : NoNumbers()) {
        EXPECT_RUNTIME_ERROR(13, ToInteger32(text)) << " with \"" << text << '"';
    }
    EXPECT_RUNTIME_ERROR(13, ToInteger32("True"));
}

TEST(ToInteger16, TextThatIsNoNumberIsATypeError)
{
    for (const std::string& text : NoNumbers()) {
        EXPECT_RUNTIME_ERROR(13, ToInteger16(text)) << " with \"" << text << '"';
    }
}

TEST(ToDouble, TextThatIsNoNumberIsATypeError)
{
    for (const std::string& text : NoNumbers()) {
        EXPECT_RUNTIME_ERROR(13, ToDouble(text)) << " with \"" << text << '"';
    }
}

TEST(ToBoolean, TextThatIsNoTruthValueIsATypeError)
{
    for (const std::string& text : NoNumbers()) {
        EXPECT_RUNTIME_ERROR(13, ToBoolean(text)) << " with \"" << text << '"';
    }
    for (const char* text : {"yes", "Tru", "Trues", " True", "False ", "T", "on"}) {
        EXPECT_RUNTIME_ERROR(13, ToBoolean(text)) << " with \"" << text << '"';
    }
}

TEST(ToInteger32, AcceptsTheWholeGrammar)
{
    struct Row {
        const char*  text;
        std::int32_t number;
    };
    const Row rows[] = {
        {"0", 0},
        {"7", 7},
        {"+7", 7},
        {"-7", -7},
        {"-0", 0},
        {"007", 7},
        {"  42  ", 42},
        {" -42", -42},
        {"5.", 5},
        {".5", 0},
        {"-.5", 0},
        {"1.5", 2},
        {"1.", 1},
        {"0.", 0},
        {".0", 0},
        {"12e2", 1200},
        {"12E2", 1200},
        {"12e+2", 1200},
        {"1200e-2", 12},
        {"1.25e1", 12},
        {"1.35e1", 14},
        {".5e1", 5},
        {"5.e1", 50},
        {"1e0", 1},
        {"1e-0", 1},
        {"1e00009", 1000000000},
        {"0e999999999999999999999", 0},
        {"0.000e-5", 0},
        {"2147483647", Highest},
        {"-2147483648", Lowest},
        {"+2147483647", Highest},
        {"0000000000000000000000000002147483647", Highest},
        {"2.147483647e9", Highest},
        {"21474836470e-1", Highest},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToInteger32(row.text), row.number) << row.text;
    }
}

TEST(ToInteger32, FractionsRoundWithTiesToEven)
{
    struct Row {
        const char*  text;
        std::int32_t number;
    };
    const Row rows[] = {
        {"0.5", 0},
        {"1.5", 2},
        {"2.5", 2},
        {"3.5", 4},
        {"-0.5", 0},
        {"-1.5", -2},
        {"-2.5", -2},
        {"0.49", 0},
        {"0.51", 1},
        {"9.5", 10},
        {"10.5", 10},
        {"99.9", 100},
        {"2.50000000000000000000000000000000000001", 3},
        {"2.49999999999999999999999999999999999999", 2},
        {"2.5000000000000000000000000000000000000000", 2},
        {"0.05e1", 0},
        {"0.15e1", 2},
        {"25e-1", 2},
        {"251e-2", 3},
        {"5e-1", 0},
        {"6e-1", 1},
        {"9e-2", 0},
        {"2147483646.5", Highest - 1},
        {"2147483647.49999999999999999999", Highest},
        {"-2147483648.5", Lowest},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToInteger32(row.text), row.number) << row.text;
    }
}

TEST(ToInteger32, NumbersOutOfRangeOverflow)
{
    for (const char* text : {"2147483648", "-2147483649", "2147483647.5", "-2147483648.50000000000001", "-2147483649.5",
                             "1e10", "1e400", "1e99999999999999999999999999", "99999999999999999999999999999",
                             "-99999999999999999999999999999", "4294967296", "10000000000"}) {
        EXPECT_RUNTIME_ERROR(6, ToInteger32(text)) << " with " << text;
    }
}

TEST(ToInteger32, HexadecimalTextIsThePattern)
{
    struct Row {
        const char*  text;
        std::int32_t number;
    };
    const Row rows[] = {
        {"&H0", 0},
        {"&H1F", 31},
        {"&h1f", 31},
        {"&hAbCd", 0xABCD},
        {" &H1F ", 31},
        {"&H7FFF", 32767},
        {"&H8000", 32768},
        {"&HFFFF", 65535},
        {"&H9E8E", 40590},
        {"&H0000FFFF", 65535},
        {"&H7FFFFFFF", Highest},
        {"&H80000000", Lowest},
        {"&HFFFFFFFF", -1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToInteger32(row.text), row.number) << row.text;
    }
}

TEST(ToInteger32, MoreThanEightHexadecimalDigitsOverflow)
{
    EXPECT_RUNTIME_ERROR(6, ToInteger32("&H100000000"));
    EXPECT_RUNTIME_ERROR(6, ToInteger32("&H000000001"));
    EXPECT_RUNTIME_ERROR(6, ToInteger32("&H" + std::string(100'000, 'F')));
}

TEST(ToInteger16, KeepsToItsRange)
{
    EXPECT_EQ(ToInteger16("32767"), 32767);
    EXPECT_EQ(ToInteger16("-32768"), -32768);
    EXPECT_EQ(ToInteger16("32766.5"), 32766);
    EXPECT_EQ(ToInteger16("-32768.5"), -32768);
    EXPECT_EQ(ToInteger16(" 7 "), 7);
    EXPECT_EQ(ToInteger16("&H7FFF"), 32767);
    EXPECT_EQ(ToInteger16("&HFFFFFFFF"), -1);
    EXPECT_RUNTIME_ERROR(6, ToInteger16("32768"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("32767.5"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("-32769"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("&H8000"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("&HFFFF"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("99999999999"));
    EXPECT_RUNTIME_ERROR(6, ToInteger16("&H123456789"));
}

TEST(ToInteger32, VeryLongTextsEnd)
{
    constexpr std::size_t length = 1'000'000;
    const std::string     zeros(length, '0');
    const std::string     nines(length, '9');
    EXPECT_EQ(ToInteger32(zeros + "5"), 5);
    EXPECT_EQ(ToInteger32("5." + zeros), 5);
    EXPECT_EQ(ToInteger32("2.5" + zeros), 2);
    EXPECT_EQ(ToInteger32("2.5" + zeros + "1"), 3);
    EXPECT_EQ(ToInteger32("0." + zeros + "5"), 0);
    EXPECT_EQ(ToInteger32("0." + zeros + "5e1000001"), 5);
    EXPECT_EQ(ToInteger32("5" + zeros + "e-1000000"), 5);
    EXPECT_EQ(ToInteger32("1e-" + nines), 0);
    EXPECT_EQ(ToInteger32(std::string(length, ' ') + "1"), 1);
    EXPECT_RUNTIME_ERROR(6, ToInteger32(nines));
    EXPECT_RUNTIME_ERROR(6, ToInteger32("1e" + nines));
    EXPECT_RUNTIME_ERROR(13, ToInteger32(nines + "x"));
}

TEST(ToDouble, AcceptsTheWholeGrammar)
{
    struct Row {
        const char* text;
        double      number;
    };
    const Row rows[] = {
        {"0", 0},
        {"5", 5},
        {"+5", 5},
        {"-5", -5},
        {" 5 ", 5},
        {".5", 0.5},
        {"5.", 5},
        {"-.25", -0.25},
        {"0.1", 0.1},
        {"1e3", 1000},
        {"1E+3", 1000},
        {"1e-3", 0.001},
        {"1.7976931348623157e308", DBL_MAX},
        {"2.2250738585072014e-308", DBL_MIN},
        {"5e-324", 5e-324},
        {"9007199254740993", 9007199254740992.0},
        {"9007199254740993.00000000000000000001", 9007199254740994.0},
        {"&H1F", 31},
        {"&HFFFF", 65535},
        {"&HFFFFFFFF", -1},
        {"&H80000000", -2147483648.0},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(ToDouble(row.text), row.number) << row.text;
    }
}

TEST(ToDouble, ManyDigitsRoundCorrectly)
{
    // The middle of 1 and the double behind it, written out, with and without something behind it.
    const std::string middle = "1.00000000000000011102230246251565404236316680908203125";
    const double      next = std::nextafter(1.0, 2.0);
    EXPECT_EQ(ToDouble(middle), 1.0);
    EXPECT_EQ(ToDouble(middle + std::string(2000, '0')), 1.0);
    EXPECT_EQ(ToDouble(middle + std::string(2000, '0') + "1"), next);
    EXPECT_EQ(ToDouble(middle + "1"), next);
    EXPECT_EQ(ToDouble("0." + std::string(100'000, '0') + "25e100001"), 2.5);
    EXPECT_EQ(ToDouble("25" + std::string(100'000, '0') + "e-100001"), 2.5);
}

TEST(ToDouble, NumbersTooLargeOverflow)
{
    for (const char* text : {"1.8e308", "-1.8e308", "1e309", "1e400", "1e401", "1e99999999999999999999", "-1e1000"}) {
        EXPECT_RUNTIME_ERROR(6, ToDouble(text)) << " with " << text;
    }
    EXPECT_RUNTIME_ERROR(6, ToDouble(std::string(1'000'000, '9')));
    EXPECT_RUNTIME_ERROR(6, ToDouble("&H123456789"));
}

TEST(ToDouble, OverflowBeginsHalfwayBehindTheLargestDouble)
{
    // The halfway number without its last digit.
    const std::string halfway =
        "179769313486231580793728971405303415079934132710037826936173778980444968292764750946649017"
        "977587207096330286416692887910946555547851940402630657488671505820681908902000708383676273"
        "854845817711531764475730270069855571366959622842914819860834936475292719074168444365510704"
        "34271155969950809304288017790417449779";
    EXPECT_EQ(ToDouble(halfway + "1"), DBL_MAX);
    EXPECT_EQ(ToDouble(halfway + "1.9"), DBL_MAX);
    EXPECT_RUNTIME_ERROR(6, ToDouble(halfway + "2"));
}

TEST(ToDouble, NumbersTooSmallAreZero)
{
    for (const char* text : {"1e-324", "-1e-324", "1e-325", "1e-399", "1e-401", "-1e-400", "1e-99999999999999999999"}) {
        EXPECT_EQ(ToDouble(text), 0.0) << text;
    }
    EXPECT_EQ(ToDouble("0." + std::string(1'000'000, '0') + "1"), 0.0);
}

TEST(ToBoolean, WordsInAnyCase)
{
    for (const char* text : {"True", "true", "TRUE", "tRuE"}) {
        EXPECT_TRUE(ToBoolean(text)) << text;
    }
    for (const char* text : {"False", "false", "FALSE"}) {
        EXPECT_FALSE(ToBoolean(text)) << text;
    }
}

TEST(ToBoolean, AnyNonZeroNumberIsTrue)
{
    for (const char* text : {"1", "-1", "2", " 1 ", "0.1", ".5", "1e-300", "&H1", "&H80000000"}) {
        EXPECT_TRUE(ToBoolean(text)) << text;
    }
    for (const char* text : {"0", " 0 ", "-0", "0.0", ".0", "0e5", "&H0"}) {
        EXPECT_FALSE(ToBoolean(text)) << text;
    }
    EXPECT_RUNTIME_ERROR(6, ToBoolean("1e999"));
}

TEST(RoundToInteger, TiesGoToTheEvenNumber)
{
    EXPECT_EQ(RoundToInteger32(0.5), 0);
    EXPECT_EQ(RoundToInteger32(1.5), 2);
    EXPECT_EQ(RoundToInteger32(2.5), 2);
    EXPECT_EQ(RoundToInteger32(-0.5), 0);
    EXPECT_EQ(RoundToInteger32(-1.5), -2);
    EXPECT_EQ(RoundToInteger32(0.49999999999999994), 0);
    EXPECT_EQ(RoundToInteger32(-7.0), -7);
    EXPECT_EQ(RoundToInteger16(2.5), 2);
    EXPECT_EQ(RoundToInteger16(-3.5), -4);
}

TEST(RoundToInteger, OverflowsOutOfRange)
{
    EXPECT_EQ(RoundToInteger32(2147483647.25), Highest);
    EXPECT_EQ(RoundToInteger32(-2147483648.5), Lowest);
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(2147483647.5));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(-2147483649.0));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(1e300));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(std::numeric_limits<double>::infinity()));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(-std::numeric_limits<double>::infinity()));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger32(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_EQ(RoundToInteger16(32767.25), 32767);
    EXPECT_EQ(RoundToInteger16(-32768.5), -32768);
    EXPECT_RUNTIME_ERROR(6, RoundToInteger16(32767.5));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger16(-32769.0));
    EXPECT_RUNTIME_ERROR(6, RoundToInteger16(std::numeric_limits<double>::quiet_NaN()));
}

TEST(Arithmetic32, OverflowsAsAnError)
{
    EXPECT_EQ(Add32(Highest - 1, 1), Highest);
    EXPECT_EQ(Add32(Lowest, Highest), -1);
    EXPECT_RUNTIME_ERROR(6, Add32(Highest, 1));
    EXPECT_RUNTIME_ERROR(6, Add32(Lowest, -1));
    EXPECT_EQ(Subtract32(Lowest + 1, 1), Lowest);
    EXPECT_EQ(Subtract32(-1, Lowest), Highest);
    EXPECT_RUNTIME_ERROR(6, Subtract32(Lowest, 1));
    EXPECT_RUNTIME_ERROR(6, Subtract32(0, Lowest));
    EXPECT_EQ(Multiply32(46340, 46340), 2147395600);
    EXPECT_EQ(Multiply32(65536, -32768), Lowest);
    EXPECT_RUNTIME_ERROR(6, Multiply32(46341, 46341));
    EXPECT_RUNTIME_ERROR(6, Multiply32(65536, 32768));
    EXPECT_RUNTIME_ERROR(6, Multiply32(Lowest, -1));
    EXPECT_RUNTIME_ERROR(6, Multiply32(Lowest, Lowest));
}

/// A decimal built from its parts, whose rounded value is known from them by whole-number arithmetic.
struct KnownDecimal {
    std::string                 text;
    std::optional<std::int32_t> number;
};

KnownDecimal RandomDecimal(std::mt19937_64& random)
{
    const auto draw = [&random](std::uint64_t below) { return static_cast<std::int64_t>(random() % below); };

    // value = units / 10^places, with units drawn so that ties, near ties and the range's ends all come up.
    const int    places = static_cast<int>(draw(8));
    std::int64_t power = 1;
    for (int i = 0; i < places; ++i) {
        power *= 10;
    }
    std::int64_t units = 0;
    switch (draw(4)) {
    case 0: units = draw(100) * power + power / 2; break;
    case 1: units = (std::int64_t{Highest} + draw(4) - 1) * power + draw(3) * (power / 2); break;
    case 2: units = draw(1000); break;
    default: units = draw(4'000'000'000U) * power + draw(static_cast<std::uint64_t>(power)); break;
    }
    const bool negative = draw(2) == 1;

    std::int64_t       whole = units / power;
    const std::int64_t twice = 2 * (units % power);
    const bool         roundUp = twice > power || (twice == power && whole % 2 == 1);
    whole += roundUp ? 1 : 0;
    whole = negative ? -whole : whole;

    KnownDecimal known;
    if (whole >= Lowest && whole <= Highest) {
        known.number = static_cast<std::int32_t>(whole);
    }

    // The point stands anywhere among the digits, and the exponent makes up for it.
    std::string digits = std::string(static_cast<std::size_t>(draw(3)), '0') + std::to_string(units);
    const auto  behind = draw(digits.size() + 1);
    digits.insert(digits.size() - static_cast<std::size_t>(behind), 1, '.');
    const std::int64_t exponent = behind - places;

    known.text = std::string(static_cast<std::size_t>(draw(3)), ' ');
    known.text += negative ? "-" : (draw(2) == 1 ? "+" : "");
    known.text += digits;
    if (exponent != 0 || draw(2) == 1) {
        known.text += draw(2) == 1 ? 'e' : 'E';
        known.text += (exponent >= 0 && draw(2) == 1) ? "+" : "";
        known.text += std::to_string(exponent);
    }
    known.text += std::string(static_cast<std::size_t>(draw(2)), ' ');
    return known;
}

TEST(ToInteger32, RandomDecimalsRoundAsTheirPartsSay)
{
    std::mt19937_64 random(1);
    int             inRange = 0;
    for (int i = 0; i < 50'000; ++i) {
        const KnownDecimal known = RandomDecimal(random);
        if (known.number) {
            ++inRange;
            ASSERT_EQ(test::ErrorNumberOf([&] { ASSERT_EQ(ToInteger32(known.text), *known.number); }), 0) << known.text;
        } else {
            ASSERT_EQ(test::ErrorNumberOf([&] { ToInteger32(known.text); }), 6) << known.text;
        }
    }
    EXPECT_GT(inRange, 20'000);
    EXPECT_LT(inRange, 45'000);
}

TEST(NumberRules, RandomTextsEitherConvertOrFailInOrder)
{
    constexpr char  alphabet[] = "0123456789+-.eE &HhFf";
    std::mt19937_64 random(2);
    for (int i = 0; i < 50'000; ++i) {
        std::string text;
        for (auto length = random() % 12; length > 0; --length) {
            text += alphabet[random() % (sizeof alphabet - 1)];
        }
        double    asDouble = 0;
        const int doubleError = test::ErrorNumberOf([&] { asDouble = ToDouble(text); });
        int32_t   asInteger = 0;
        const int integerError = test::ErrorNumberOf([&] { asInteger = ToInteger32(text); });
        ASSERT_EQ(doubleError == 13, integerError == 13) << text;
        if (doubleError == 0) {
            const int roundError = test::ErrorNumberOf([&] { RoundToInteger32(asDouble); });
            ASSERT_EQ(integerError, roundError) << text;
            if (roundError == 0) {
                ASSERT_EQ(asInteger, RoundToInteger32(asDouble)) << text;
            }
        } else {
            ASSERT_EQ(integerError, doubleError) << text;
        }
    }
}

} // namespace
} // namespace qf::core
