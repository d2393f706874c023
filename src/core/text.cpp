#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "core/ansi.h"
#include "core/runtime_error.h"

namespace qf::core {

namespace {

char LowerCase(char character)
{
    const bool isUpper = character >= 'A' && character <= 'Z';
    return isUpper ? static_cast<char>(character - 'A' + 'a') : character;
}

bool EqualCharacters(char a, char b)
{
    return LowerCase(a) == LowerCase(b);
}

} // namespace

std::string NormalizeHexPrefix(std::string_view text)
{
    if (!text.starts_with("0x")) {
        return std::string(text);
    }
    std::string normalized = "&H";
    normalized += text.substr(2);
    return normalized;
}

int CountWords(std::string_view text)
{
    return static_cast<int>(std::count(text.begin(), text.end(), ' '));
}

int WordStart(std::string_view text, int n)
{
    if (n == 0) {
        return 1;
    }
    if (n < 0) {
        return -1;
    }
    std::size_t blank = text.find(' ');
    for (int seen = 1; seen < n && blank != std::string_view::npos; ++seen) {
        blank = text.find(' ', blank + 1);
    }
    return blank == std::string_view::npos ? -1 : static_cast<int>(blank) + 2;
}

std::string WordRange(std::string_view text, int a, int b)
{
    const int         first = WordStart(text, a);
    const int         last = WordStart(text, b);
    const std::size_t begin = first < 0 ? 0 : static_cast<std::size_t>(first) - 1;
    const std::size_t end = last < 0 ? text.size() : static_cast<std::size_t>(last) - 1;
    return begin < end ? std::string(text.substr(begin, end - begin)) : std::string();
}

int LastBackslash(std::string_view path)
{
    const std::size_t position = path.rfind('\\');
    return position == std::string_view::npos ? 0 : static_cast<int>(position) + 1;
}

std::string FolderOf(std::string_view path)
{
    return std::string(path.substr(0, static_cast<std::size_t>(LastBackslash(path))));
}

std::string UpperHex(std::uint32_t number)
{
    std::array<char, 8> buffer{};
    const auto          written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number, 16);

    std::string digits(buffer.data(), written.ptr);
    std::transform(digits.begin(), digits.end(), digits.begin(),
                   [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 'a' + 'A') : digit; });
    return digits;
}

std::string HueHexPair(std::int32_t number)
{
    auto digits = UpperHex(static_cast<std::uint32_t>(number));
    if (digits.size() < 4) {
        digits.insert(0, 4 - digits.size(), '0');
    }
    return digits.substr(0, 2) + ' ' + digits.substr(digits.size() - 2);
}

std::int16_t LoWord(std::int32_t value)
{
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(static_cast<std::uint32_t>(value) & 0xFFFFU));
}

std::int16_t HiWord(std::int32_t value)
{
    using Limits = std::numeric_limits<std::int16_t>;

    const std::int32_t word = value / 65535 - (value < 0 ? 1 : 0);
    if (word < Limits::min() || word > Limits::max()) {
        throw RuntimeError(error::Overflow);
    }
    return static_cast<std::int16_t>(word);
}

std::string RevisionLetter(int revision)
{
    if (revision == 0) {
        return " ";
    }
    const std::int64_t code = std::int64_t{'a'} + revision - 1;
    if (code < 0 || code > 255) {
        throw RuntimeError(error::InvalidCall);
    }
    return FromAnsi(std::string(1, static_cast<char>(static_cast<unsigned char>(code))));
}

bool EqualIgnoringCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), EqualCharacters);
}

bool ContainsIgnoringCase(std::string_view text, std::string_view part)
{
    return part.empty() ||
           std::search(text.begin(), text.end(), part.begin(), part.end(), EqualCharacters) != text.end();
}

bool StartsWithIgnoringCase(std::string_view text, std::string_view start)
{
    return EqualIgnoringCase(text.substr(0, start.size()), start);
}

std::string LowerCase(std::string_view text)
{
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) { return LowerCase(character); });
    return lower;
}

std::string_view TrimBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) {
        return text.substr(0, 0);
    }
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace qf::core
