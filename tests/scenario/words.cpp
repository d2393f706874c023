#include "scenario/words.h"

#include <algorithm>
#include <charconv>

namespace qf::scenario {

namespace {

constexpr std::string_view Blanks = " \t\r";

void AppendUtf8(std::string& text, std::uint32_t code)
{
    const auto trailing = [&](int shift) { text += static_cast<char>(0x80U | ((code >> shift) & 0x3FU)); };
    if (code < 0x80) {
        text += static_cast<char>(code);
    } else if (code < 0x800) {
        text += static_cast<char>(0xC0U | (code >> 6U));
        trailing(0);
    } else if (code < 0x10000) {
        text += static_cast<char>(0xE0U | (code >> 12U));
        trailing(6);
        trailing(0);
    } else {
        text += static_cast<char>(0xF0U | (code >> 18U));
        trailing(12);
        trailing(6);
        trailing(0);
    }
}

/// Decodes one JSON string of a line, from behind its opening quote.
class StringReader {
  public:
    StringReader(std::string_view line, std::size_t position) : line_(line), position_(position) {}

    std::string Read()
    {
        std::string text;
        while (true) {
            const char c = Take();
            if (c == '"') {
                return text;
            }
            if (static_cast<unsigned char>(c) < 0x20) {
                throw LineError("a control character in a quoted word");
            }
            if (c == '\\') {
                ReadEscape(text);
            } else {
                text += c;
            }
        }
    }

    std::size_t Position() const { return position_; }

  private:
    char Take()
    {
        if (position_ >= line_.size()) {
            throw LineError("a quoted word without its closing quote");
        }
        return line_[position_++];
    }

    void ReadEscape(std::string& text)
    {
        const char c = Take();
        switch (c) {
        case '"':
        case '\\':
        case '/': text += c; return;
        case 'b': text += '\b'; return;
        case 'f': text += '\f'; return;
        case 'n': text += '\n'; return;
        case 'r': text += '\r'; return;
        case 't': text += '\t'; return;
        case 'u': AppendUtf8(text, ReadCodePoint()); return;
        default: throw LineError(std::string("\"\\") + c + "\" is no escape of a quoted word");
        }
    }

    std::uint32_t ReadCodePoint()
    {
        const std::uint32_t first = ReadUnit();
        if (first < 0xD800 || first > 0xDFFF) {
            return first;
        }
        if (first < 0xDC00 && Take() == '\\' && Take() == 'u') {
            const std::uint32_t second = ReadUnit();
            if (second >= 0xDC00 && second <= 0xDFFF) {
                return 0x10000 + ((first - 0xD800) << 10U) + (second - 0xDC00);
            }
        }
        throw LineError("half a character in a quoted word");
    }

    std::uint32_t ReadUnit()
    {
        std::uint32_t unit = 0;
        for (int i = 0; i < 4; ++i) {
            const char    digit = Take();
            std::uint32_t value = 0;
            if (std::from_chars(&digit, &digit + 1, value, 16).ec != std::errc()) {
                throw LineError(R"("\u" without four hexadecimal digits)");
            }
            unit = unit * 16 + value;
        }
        return unit;
    }

    std::string_view line_;
    std::size_t      position_;
};

} // namespace

Words SplitWords(std::string_view line)
{
    Words       words;
    std::size_t position = line.find_first_not_of(Blanks);
    while (position != std::string_view::npos) {
        if (line[position] == '"') {
            StringReader reader(line, position + 1);
            words.push_back({reader.Read(), true});
            position = reader.Position();
            if (position < line.size() && Blanks.find(line[position]) == std::string_view::npos) {
                throw LineError("no blank behind a quoted word");
            }
        } else {
            const std::size_t end = std::min(line.find_first_of(Blanks, position), line.size());
            words.push_back({std::string(line.substr(position, end - position)), false});
            position = end;
        }
        position = line.find_first_not_of(Blanks, position);
    }
    return words;
}

std::string JsonString(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string                json = "\"";
    for (const char c : text) {
        switch (c) {
        case '"': json += "\\\""; break;
        case '\\': json += "\\\\"; break;
        case '\b': json += "\\b"; break;
        case '\f': json += "\\f"; break;
        case '\n': json += "\\n"; break;
        case '\r': json += "\\r"; break;
        case '\t': json += "\\t"; break;
        default:
            if (const auto code = static_cast<unsigned char>(c); code < 0x20) {
                json += "\\u00";
                json += digits[code / 16];
                json += digits[code % 16];
            } else {
                json += c;
            }
        }
    }
    return json + '"';
}

std::string JsonArray(const std::vector<std::string>& texts)
{
    std::string json = "[";
    for (const auto& text : texts) {
        json += json.size() > 1 ? "," : "";
        json += JsonString(text);
    }
    return json + "]";
}

std::string FormatWords(const Words& words)
{
    std::string line;
    for (const auto& word : words) {
        line += line.empty() ? "" : " ";
        line += word.quoted ? JsonString(word.text) : word.text;
    }
    return line;
}

std::optional<std::int64_t> ParseNumber(std::string_view text)
{
    const bool hexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (hexadecimal) {
        text.remove_prefix(2);
    } else if (text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty() || ((hexadecimal || text.size() == 1) && text.front() == '-')) {
        return std::nullopt;
    }
    std::int64_t number = 0;
    const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), number, hexadecimal ? 16 : 10);
    if (code != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

bool Matches(const Words& expected, const Words& recorded)
{
    return std::equal(expected.begin(), expected.end(), recorded.begin(), recorded.end(),
                      [](const Word& wanted, const Word& got) {
                          return (wanted.text == "?" && !wanted.quoted) || wanted.text == got.text;
                      });
}

std::string ReplaceAll(std::string text, std::string_view from, std::string_view to)
{
    for (auto at = text.find(from); at != std::string::npos && !from.empty(); at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
    return text;
}

} // namespace qf::scenario
