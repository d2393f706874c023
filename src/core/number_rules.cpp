#include "core/number_rules.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::core {

namespace {

/// A number as it is written: 0.d1d2d3... times ten to the power of `point`; no digits mean zero.
struct Decimal {
    std::string  digits;
    std::int64_t point = 0;
    bool         negative = false;
};

// No double lies so close to the middle of two others that more digits than this could tell on which
// side; of the rest it counts only whether there is anything but zeros.
constexpr std::size_t MaxDigits = 800;

constexpr std::int64_t ExponentLimit = 1'000'000'000'000'000;

[[noreturn]] void Fail(int number)
{
    throw RuntimeError(number);
}

bool IsDigit(char character)
{
    return character >= '0' && character <= '9';
}

std::int64_t ParseExponent(std::string_view text)
{
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty()) {
        Fail(error::TypeMismatch);
    }
    std::int64_t exponent = 0;
    for (const char digit : text) {
        if (!IsDigit(digit)) {
            Fail(error::TypeMismatch);
        }
        exponent = std::min(exponent * 10 + (digit - '0'), ExponentLimit);
    }
    return negative ? -exponent : exponent;
}

Decimal ParseDecimal(std::string_view text)
{
    Decimal number;
    number.negative = text.starts_with('-');
    if (number.negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }

    bool        anyDigit = false;
    bool        behindPoint = false;
    bool        moreDigits = false;
    std::size_t position = 0;
    for (; position < text.size(); ++position) {
        const char character = text[position];
        if (character == '.' && !behindPoint) {
            behindPoint = true;
            continue;
        }
        if (!IsDigit(character)) {
            break;
        }
        anyDigit = true;
        if (number.digits.empty() && character == '0') {
            number.point -= behindPoint ? 1 : 0;
            continue;
        }
        number.point += behindPoint ? 0 : 1;
        if (number.digits.size() < MaxDigits) {
            number.digits += character;
        } else {
            moreDigits = moreDigits || character != '0';
        }
    }
    if (!anyDigit) {
        Fail(error::TypeMismatch);
    }
    if (position < text.size()) {
        if (text[position] != 'E' && text[position] != 'e') {
            Fail(error::TypeMismatch);
        }
        number.point += ParseExponent(text.substr(position + 1));
    }
    if (moreDigits) {
        number.digits += '1';
    }
    return number;
}

bool IsHex(std::string_view trimmed)
{
    return StartsWithIgnoringCase(trimmed, "&H");
}

std::int32_t ParseHex(std::string_view trimmed)
{
    const std::string_view digits = trimmed.substr(2);
    if (digits.empty() || digits.find_first_not_of("0123456789ABCDEFabcdef") != std::string_view::npos) {
        Fail(error::TypeMismatch);
    }
    if (digits.size() > 8) {
        Fail(error::Overflow);
    }
    std::uint32_t pattern = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), pattern, 16);
    return static_cast<std::int32_t>(pattern);
}

/// The nearest whole number of the written digits themselves: a detour over a double would make a tie
/// of what is just beside one.
std::int64_t RoundDecimal(const Decimal& number)
{
    constexpr std::int64_t longest = std::numeric_limits<std::int32_t>::digits10 + 1;
    if (number.digits.empty() || number.point < 0) {
        return 0;
    }
    if (number.point > longest) {
        Fail(error::Overflow);
    }
    const auto   wholeDigits = static_cast<std::size_t>(number.point);
    std::int64_t whole = 0;
    for (std::size_t i = 0; i < wholeDigits; ++i) {
        whole = whole * 10 + (i < number.digits.size() ? number.digits[i] - '0' : 0);
    }
    if (number.digits.size() > wholeDigits) {
        const char first = number.digits[wholeDigits];
        const bool isTie = first == '5' && number.digits.find_first_not_of('0', wholeDigits + 1) == std::string::npos;
        if (isTie ? whole % 2 != 0 : first >= '5') {
            ++whole;
        }
    }
    return number.negative ? -whole : whole;
}

template <typename Integer>
Integer Fit(std::int64_t number)
{
    if (number < std::numeric_limits<Integer>::min() || number > std::numeric_limits<Integer>::max()) {
        Fail(error::Overflow);
    }
    return static_cast<Integer>(number);
}

template <typename Integer>
Integer ToInteger(std::string_view text)
{
    const std::string_view trimmed = TrimBlanks(text);

    // World files hold millions of these, nearly all of them plain digits.
    Integer    plain = 0;
    const auto parsed = std::from_chars(trimmed.data(), trimmed.data() + trimmed.size(), plain);
    if (parsed.ec == std::errc() && parsed.ptr == trimmed.data() + trimmed.size()) {
        return plain;
    }
    return Fit<Integer>(IsHex(trimmed) ? ParseHex(trimmed) : RoundDecimal(ParseDecimal(trimmed)));
}

template <typename Integer>
Integer RoundTo(double number)
{
    const double rounded = std::nearbyint(number);
    if (!(rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max())) {
        Fail(error::Overflow);
    }
    return static_cast<Integer>(rounded);
}

template <typename Floating>
std::string FloatingToText(Floating number, Floating exponentFrom)
{
    if (number == 0) {
        return "0";
    }
    const Floating size = std::abs(number);
    const bool     plain = size >= static_cast<Floating>(1E-05) && size < exponentFrom;

    std::array<char, 64> buffer{};
    const auto           written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                       plain ? std::chars_format::fixed : std::chars_format::scientific);
    std::string          text(buffer.data(), written.ptr);
    if (!plain) {
        std::replace(text.begin(), text.end(), 'e', 'E');
    }
    return text;
}

} // namespace

std::int16_t ToInteger16(std::string_view text)
{
    return ToInteger<std::int16_t>(text);
}

std::int32_t ToInteger32(std::string_view text)
{
    return ToInteger<std::int32_t>(text);
}

double ToDouble(std::string_view text)
{
    // Beyond these powers of ten nothing is left to the digits.
    constexpr std::int64_t surelyTooLarge = 400;
    constexpr std::int64_t surelyTooSmall = -400;

    const std::string_view trimmed = TrimBlanks(text);
    if (IsHex(trimmed)) {
        return ParseHex(trimmed);
    }
    const Decimal number = ParseDecimal(trimmed);
    const double  zero = number.negative ? -0.0 : 0.0;
    if (number.digits.empty() || number.point < surelyTooSmall) {
        return zero;
    }
    if (number.point > surelyTooLarge) {
        Fail(error::Overflow);
    }
    const std::string plain =
        number.digits + 'e' + std::to_string(number.point - static_cast<std::int64_t>(number.digits.size()));

    double     size = 0;
    const auto parsed = std::from_chars(plain.data(), plain.data() + plain.size(), size);
    if (parsed.ec == std::errc::result_out_of_range && number.point < 0) {
        return zero;
    }
    if (parsed.ec != std::errc() || std::isinf(size)) {
        Fail(error::Overflow);
    }
    return number.negative ? -size : size;
}

bool ToBoolean(std::string_view text)
{
    if (EqualIgnoringCase(text, "True")) {
        return true;
    }
    if (EqualIgnoringCase(text, "False")) {
        return false;
    }
    return ToDouble(text) != 0;
}

std::int16_t RoundToInteger16(double number)
{
    return RoundTo<std::int16_t>(number);
}

std::int32_t RoundToInteger32(double number)
{
    return RoundTo<std::int32_t>(number);
}

std::string ToText(double number)
{
    return FloatingToText(number, 1E+15);
}

std::string ToText(float number)
{
    return FloatingToText(number, 1E+07F);
}

std::string ToText(std::int32_t number)
{
    return std::to_string(number);
}

std::int32_t Add32(std::int32_t a, std::int32_t b)
{
    return Fit<std::int32_t>(std::int64_t{a} + b);
}

std::int32_t Subtract32(std::int32_t a, std::int32_t b)
{
    return Fit<std::int32_t>(std::int64_t{a} - b);
}

std::int32_t Multiply32(std::int32_t a, std::int32_t b)
{
    return Fit<std::int32_t>(std::int64_t{a} * b);
}

} // namespace qf::core
