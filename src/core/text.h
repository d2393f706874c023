#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf::core {

/// "&H" and the rest where the text begins with exactly "0x"; otherwise the text as it stands.
std::string NormalizeHexPrefix(std::string_view text);

/// The number of blanks in the text (two adjacent blanks count two).
int CountWords(std::string_view text);

/// 1 for n = 0; otherwise the position, counted from 1 in bytes, behind the n-th blank; -1 where the text
/// has fewer than n blanks, and for a negative n.
int WordStart(std::string_view text, int n);

/// The characters from WordStart(a) up to but not including WordStart(b). A start that is missing
/// counts as 1, an end that is missing as the end of the text. The blank behind the last word stays.
/// Empty where the end lies before the start.
std::string WordRange(std::string_view text, int a, int b);

/// The position of the last "\" counted from 1 in bytes, 0 where there is none.
int LastBackslash(std::string_view path);

/// The path up to and including its last "\"; empty where it has none.
std::string FolderOf(std::string_view path);

/// The number in upper-case hexadecimal without prefix and leading zeros: "5CE", "0".
std::string UpperHex(std::uint32_t number);

/// The number in upper-case hexadecimal as two byte-pairs of the older dialect: "00 0A", "07 FF".
/// Four or more digits give the first two and the last two. Negative numbers are their 32-bit pattern.
std::string HueHexPair(std::int32_t number);

/// The low 16 bits as a signed number.
std::int16_t LoWord(std::int32_t value);

/// The value divided by 65535 (not 65536) with truncation, less 1 for a negative value.
/// Throws RuntimeError 6 where that does not fit 16 bits.
std::int16_t HiWord(std::int32_t value);

/// One blank for 0; "a" for 1, "b" for 2 and so on.
/// Throws RuntimeError 5 for a number that leads out of the ANSI characters (0 to 255).
std::string RevisionLetter(int revision);

/// Comparison of ASCII letters without regard to case; every other byte stands for itself.
bool EqualIgnoringCase(std::string_view a, std::string_view b);
bool ContainsIgnoringCase(std::string_view text, std::string_view part);
bool StartsWithIgnoringCase(std::string_view text, std::string_view start);

/// ASCII letters in lower case.
std::string LowerCase(std::string_view text);

/// The text without the blanks (U+0020 alone) at its two ends.
std::string_view TrimBlanks(std::string_view text);

} // namespace qf::core
