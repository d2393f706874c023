#include "core/ansi.h"

#include <array>
#include <cstddef>
#include <optional>

namespace qf::core {

namespace {

// The characters of the codes 0x80 to 0x9F; every other code is the Unicode character of its number.
// clang-format off
constexpr std::array<char16_t, 32> MiddleRows = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
    0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
    0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
// clang-format on

constexpr unsigned char MiddleFirst = 0x80;
constexpr unsigned char MiddleEnd = 0xA0;

std::optional<char> UnicodeToAnsi(char32_t character)
{
    if (character < MiddleFirst || (character >= MiddleEnd && character <= 0xFF)) {
        return static_cast<char>(static_cast<unsigned char>(character));
    }
    for (std::size_t i = 0; i < MiddleRows.size(); ++i) {
        if (MiddleRows[i] == character) {
            return static_cast<char>(static_cast<unsigned char>(MiddleFirst + i));
        }
    }
    return std::nullopt;
}

struct Decoded {
    char32_t    character = 0;
    std::size_t length = 0; // 0: no UTF-8 begins here
};

Decoded DecodeFirst(std::string_view text)
{
    const auto byteAt = [text](std::size_t i) { return static_cast<unsigned char>(text[i]); };

    const unsigned char lead = byteAt(0);
    if (lead < 0x80) {
        return {lead, 1};
    }

    Decoded  result;
    char32_t smallest = 0;
    if (lead >= 0xC0 && lead < 0xE0) {
        result = {static_cast<char32_t>(lead & 0x1F), 2};
        smallest = 0x80;
    } else if (lead >= 0xE0 && lead < 0xF0) {
        result = {static_cast<char32_t>(lead & 0x0F), 3};
        smallest = 0x800;
    } else if (lead >= 0xF0 && lead < 0xF8) {
        result = {static_cast<char32_t>(lead & 0x07), 4};
        smallest = 0x10000;
    } else {
        return {};
    }
    if (text.size() < result.length) {
        return {};
    }
    for (std::size_t i = 1; i < result.length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80) {
            return {};
        }
        result.character = (result.character << 6) | (byteAt(i) & 0x3FU);
    }
    const bool isSurrogate = result.character >= 0xD800 && result.character < 0xE000;
    if (result.character < smallest || result.character > 0x10FFFF || isSurrogate) {
        return {};
    }
    return result;
}

} // namespace

std::string ToAnsi(std::string_view utf8)
{
    std::string ansi;
    ansi.reserve(utf8.size());
    while (!utf8.empty()) {
        const Decoded decoded = DecodeFirst(utf8);
        if (decoded.length == 0) {
            ansi += '?';
            utf8.remove_prefix(1);
            continue;
        }
        ansi += UnicodeToAnsi(decoded.character).value_or('?');
        utf8.remove_prefix(decoded.length);
    }
    return ansi;
}

std::string FromAnsi(std::string_view ansi)
{
    std::string utf8;
    utf8.reserve(ansi.size());
    for (const char code : ansi) {
        const char32_t character = AnsiToUnicode(static_cast<unsigned char>(code));
        if (character < 0x80) {
            utf8 += static_cast<char>(character);
        } else if (character < 0x800) {
            utf8 += static_cast<char>(0xC0 | (character >> 6));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            utf8 += static_cast<char>(0xE0 | (character >> 12));
            utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
            utf8 += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return utf8;
}

char32_t AnsiToUnicode(unsigned char code)
{
    if (code >= MiddleFirst && code < MiddleEnd) {
        return MiddleRows[static_cast<std::size_t>(code - MiddleFirst)];
    }
    return code;
}

} // namespace qf::core
