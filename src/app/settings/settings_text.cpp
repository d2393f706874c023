#include "app/settings/settings_text.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace qf::app {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view Blanks = " \t";
constexpr std::string_view LineEndBytes = "\r\n";

int HexDigit(char character)
{
    if (character >= '0' && character <= '9') {
        return character - '0';
    }
    if (character >= 'A' && character <= 'F') {
        return character - 'A' + 10;
    }
    if (character >= 'a' && character <= 'f') {
        return character - 'a' + 10;
    }
    return -1;
}

bool OpensEscape(std::string_view text, std::size_t position)
{
    return text[position] == '%' && position + 2 < text.size() && HexDigit(text[position + 1]) >= 0 &&
           HexDigit(text[position + 2]) >= 0;
}

std::string Decode(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        if (OpensEscape(text, position)) {
            decoded += static_cast<char>(HexDigit(text[position + 1]) * 16 + HexDigit(text[position + 2]));
            position += 2;
        } else {
            decoded += text[position];
        }
    }
    return decoded;
}

/// `special` are the characters to escape wherever they stand, `first` those to escape at the beginning.
std::string Encode(std::string_view text, std::string_view special, std::string_view first)
{
    static constexpr std::array<char, 17> Digits{"0123456789ABCDEF"};

    std::string encoded;
    encoded.reserve(text.size());
    for (std::size_t position = 0; position < text.size(); ++position) {
        const char character = text[position];
        const bool atEnd = position == 0 || position + 1 == text.size();
        const bool escape = character == '\0' || character == '\n' || character == '\r' ||
                            (atEnd && Blanks.find(character) != std::string_view::npos) ||
                            special.find(character) != std::string_view::npos ||
                            (position == 0 && first.find(character) != std::string_view::npos) ||
                            OpensEscape(text, position);
        if (escape) {
            const auto code = static_cast<unsigned char>(character);
            encoded += '%';
            encoded += Digits[code >> 4U];
            encoded += Digits[code & 0xFU];
        } else {
            encoded += character;
        }
    }
    return encoded;
}

std::string EncodeValue(std::string_view text)
{
    return Encode(text, "", "");
}

std::string EncodeKey(std::string_view text)
{
    return Encode(text, "=", "[;#");
}

std::string EncodeHeading(std::string_view text)
{
    return Encode(text, "", "[");
}

std::string_view Trim(std::string_view text)
{
    const auto begin = text.find_first_not_of(Blanks);
    if (begin == std::string_view::npos) {
        return text.substr(text.size());
    }
    return text.substr(begin, text.find_last_not_of(Blanks) + 1 - begin);
}

std::string_view WithoutLineEnd(std::string_view line)
{
    return line.substr(0, line.find_last_not_of(LineEndBytes) + 1);
}

} // namespace

SettingsText::SettingsText(std::string_view bytes)
{
    if (const auto firstEnd = bytes.find('\n'); firstEnd != std::string_view::npos && firstEnd > 0) {
        lineEnd_ = bytes[firstEnd - 1] == '\r' ? "\r\n" : "\n";
    }
    std::size_t skip = bytes.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0;
    while (!bytes.empty()) {
        const auto length = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
        lines_.push_back(Parse(std::string(bytes.substr(0, length)), skip));
        bytes.remove_prefix(length);
        skip = 0;
    }
}

SettingsText::Line SettingsText::Parse(std::string bytes, std::size_t begin)
{
    Line line;
    line.bytes = std::move(bytes);

    const std::string_view whole(line.bytes);
    const auto             content = Trim(WithoutLineEnd(whole.substr(begin)));
    if (content.empty()) {
        line.kind = Kind::Blank;
    } else if (content.size() >= 4 && content.starts_with("[[") && content.ends_with("]]")) {
        line.kind = Kind::Application;
        line.name = Decode(Trim(content.substr(2, content.size() - 4)));
    } else if (content.size() >= 2 && content.starts_with('[') && content.ends_with(']')) {
        line.kind = Kind::Section;
        line.name = Decode(Trim(content.substr(1, content.size() - 2)));
    } else if (const auto equals = content.find('=');
               equals != std::string_view::npos &&
               std::string_view("[;#").find(content.front()) == std::string_view::npos) {
        const auto value = Trim(content.substr(equals + 1));
        line.kind = Kind::Key;
        line.name = Decode(Trim(content.substr(0, equals)));
        line.valueBegin = static_cast<std::size_t>(value.data() - whole.data());
        line.valueEnd = line.valueBegin + value.size();
    }
    return line;
}

SettingsText::Place SettingsText::Locate(std::string_view application, std::string_view section,
                                         std::string_view key) const
{
    Place place;
    bool  inApplication = false;
    bool  inSection = false;
    for (std::size_t index = 0; index < lines_.size(); ++index) {
        const Line& line = lines_[index];
        if (line.kind == Kind::Blank) {
            continue;
        }
        if (line.kind == Kind::Application) {
            inApplication = core::EqualIgnoringCase(line.name, application);
            inSection = false;
        } else if (line.kind == Kind::Section) {
            inSection = inApplication && core::EqualIgnoringCase(line.name, section);
        } else if (line.kind == Kind::Key && inSection && core::EqualIgnoringCase(line.name, key)) {
            place.key = index;
        }
        if (inApplication) {
            place.applicationEnd = index + 1;
        }
        if (inSection) {
            place.sectionEnd = index + 1;
        }
    }
    return place;
}

std::optional<std::string> SettingsText::Find(std::string_view application, std::string_view section,
                                              std::string_view key) const
{
    const auto place = Locate(application, section, key);
    if (!place.key) {
        return std::nullopt;
    }
    const Line& line = lines_[*place.key];
    return Decode(std::string_view(line.bytes).substr(line.valueBegin, line.valueEnd - line.valueBegin));
}

void SettingsText::Set(std::string_view application, std::string_view section, std::string_view key,
                       std::string_view value)
{
    const auto place = Locate(application, section, key);
    const auto encoded = EncodeValue(value);
    const auto added = EncodeKey(key) + "=" + encoded;
    const auto heading = "[" + EncodeHeading(section) + "]";
    if (place.key) {
        Line& line = lines_[*place.key];
        line.bytes.replace(line.valueBegin, line.valueEnd - line.valueBegin, encoded);
        line.valueEnd = line.valueBegin + encoded.size();
    } else if (place.sectionEnd) {
        Insert(*place.sectionEnd, {added});
    } else if (place.applicationEnd) {
        Insert(*place.applicationEnd, {heading, added});
    } else {
        Insert(lines_.size(), {"[[" + EncodeHeading(application) + "]]", heading, added});
    }
}

bool SettingsText::Remove(std::string_view application, std::string_view section, std::string_view key)
{
    bool removed = false;
    for (auto place = Locate(application, section, key); place.key; place = Locate(application, section, key)) {
        lines_.erase(lines_.begin() + static_cast<std::ptrdiff_t>(*place.key));
        removed = true;
    }
    return removed;
}

void SettingsText::Insert(std::size_t position, const std::vector<std::string>& contents)
{
    if (position > 0 && !lines_[position - 1].bytes.ends_with('\n')) {
        lines_[position - 1].bytes += lineEnd_;
    }
    std::vector<Line> added;
    added.reserve(contents.size());
    for (const auto& content : contents) {
        added.push_back(Parse(content + lineEnd_, 0));
    }
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(position), added.begin(), added.end());
}

std::string SettingsText::Bytes() const
{
    std::string bytes;
    for (const Line& line : lines_) {
        bytes += line.bytes;
    }
    return bytes;
}

} // namespace qf::app
