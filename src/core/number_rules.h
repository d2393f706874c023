#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf::core {

// One rule for every box, key and file field that becomes a number. Accepted are blanks (U+0020 alone)
// around the number, one sign directly before the digits, a decimal fraction and an exponent ("E" or
// "e"), and without a sign one to eight hexadecimal digits behind "&H" (either case). Everything else,
// the empty text included, is a type error (13); a number outside the range of the result and
// hexadecimal text of more digits are an overflow (6).

/// The text as a 16-bit number; fractions round to the nearest integer, ties to the even one.
/// Throws RuntimeError 13 or 6.
std::int16_t ToInteger16(std::string_view text);

/// The text as a 32-bit number; fractions round to the nearest integer, ties to the even one.
/// Hexadecimal text of up to eight digits is the 32-bit pattern, so "&H80000000" is negative.
/// Throws RuntimeError 13 or 6.
std::int32_t ToInteger32(std::string_view text);

/// The text as the nearest double; hexadecimal text as with ToInteger32, and what is too small is 0.
/// Throws RuntimeError 13, or 6 when it is too large for a double.
double ToDouble(std::string_view text);

/// The text as a truth value: "True" and "False" in any case and without blanks around them, otherwise
/// any non-zero number is true.
/// Throws RuntimeError 13 or 6.
bool ToBoolean(std::string_view text);

/// The number as the nearest whole number, ties to the even one. Throws RuntimeError 6 out of range.
std::int16_t RoundToInteger16(double number);
std::int32_t RoundToInteger32(double number);

/// The shortest decimal text that gives the same number back: "0.5", "-3", "20250". Numbers of 1E+15
/// (float: 1E+07) and above and those below 1E-05 are written with an exponent of at least two digits, "1E+15"; -0 is
/// "0".
std::string ToText(double number);
std::string ToText(float number);
std::string ToText(std::int32_t number);

/// 32-bit arithmetic that overflows as an error. Each throws RuntimeError 6 when the result does not fit.
std::int32_t Add32(std::int32_t a, std::int32_t b);
std::int32_t Subtract32(std::int32_t a, std::int32_t b);
std::int32_t Multiply32(std::int32_t a, std::int32_t b);

} // namespace qf::core
