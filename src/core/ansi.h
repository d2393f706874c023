#pragma once

#include <string>
#include <string_view>

namespace qf::core {

/// UTF-8 text in the ANSI code page (Windows-1252), one byte a character. A character that the page
/// lacks becomes "?", and so does each byte that is not UTF-8.
std::string ToAnsi(std::string_view utf8);

/// Text of the ANSI code page as UTF-8. The five bytes that the page leaves open (0x81, 0x8D, 0x8F,
/// 0x90, 0x9D) become the control characters of the same number, so that every byte survives both ways.
std::string FromAnsi(std::string_view ansi);

/// The Unicode code point of one byte of the ANSI code page.
char32_t AnsiToUnicode(unsigned char code);

} // namespace qf::core
