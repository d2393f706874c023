#pragma once

#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace qf::scenario {

/// A word of a line: a JSON string, decoded, or a bare word.
struct Word {
    std::string text;
    bool        quoted = false;

    friend bool operator==(const Word&, const Word&) = default;
};

using Words = std::vector<Word>;

/// What is wrong with a line of a scenario file.
class LineError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The words of a line, parted by blanks. Throws LineError for a word that is no JSON string although it
/// begins with a double quote.
Words SplitWords(std::string_view line);

/// The text as a JSON string, its characters beyond ASCII as they stand.
std::string JsonString(std::string_view text);

/// The texts as a JSON array without blanks.
std::string JsonArray(const std::vector<std::string>& texts);

/// The words as a line of a file.
std::string FormatWords(const Words& words);

/// A whole decimal number with an optional sign, or "0x" and hexadecimal digits; nothing where the text
/// is neither or does not fit.
std::optional<std::int64_t> ParseNumber(std::string_view text);

/// Whether a recorded line is the expected one, in which a bare "?" stands for any one word.
bool Matches(const Words& expected, const Words& recorded);

/// The text with each `from` replaced by `to`.
std::string ReplaceAll(std::string text, std::string_view from, std::string_view to);

} // namespace qf::scenario
