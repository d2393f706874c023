#include "practice/commands.h"

#include <charconv>
#include <optional>
#include <span>
#include <vector>

#include "core/text.h"

namespace qf::practice {

namespace {

using Words = std::span<const std::string_view>;

std::vector<std::string_view> SplitAtBlanks(std::string_view text)
{
    std::vector<std::string_view> words;
    std::size_t                   start = text.find_first_not_of(' ');
    while (start != std::string_view::npos) {
        const std::size_t end = text.find(' ', start);
        words.push_back(text.substr(start, end - start));
        start = end == std::string_view::npos ? end : text.find_first_not_of(' ', end);
    }
    return words;
}

std::optional<int> Decimal(std::string_view word)
{
    int        value = 0;
    const auto end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, value);
    if (read.ec != std::errc() || read.ptr != end) {
        return std::nullopt;
    }
    return value;
}

std::optional<unsigned> Hex(std::string_view word, std::size_t mostDigits)
{
    unsigned   value = 0;
    const auto end = word.data() + word.size();
    const auto read = std::from_chars(word.data(), end, value, 16);
    if (word.empty() || word.size() > mostDigits || word.front() == '-' || read.ec != std::errc() || read.ptr != end) {
        return std::nullopt;
    }
    return value;
}

std::string_view WithoutHexMark(std::string_view word)
{
    const bool marked = word.starts_with("0x") || word.starts_with("0X");
    return marked ? word.substr(2) : word;
}

std::optional<std::uint16_t> TileId(Words words)
{
    if (words.size() == 1) {
        const auto number = Hex(WithoutHexMark(words[0]), 4);
        return number ? std::optional(static_cast<std::uint16_t>(*number)) : std::nullopt;
    }
    if (words.size() == 2) {
        const auto high = Hex(WithoutHexMark(words[0]), 2);
        const auto low = Hex(words[1], 2);
        if (high && low) {
            return static_cast<std::uint16_t>(*high << 8U | *low);
        }
    }
    return std::nullopt;
}

template <std::size_t Count>
bool ReadNumbers(Words words, int (&numbers)[Count])
{
    if (words.size() != Count) {
        return false;
    }
    for (std::size_t i = 0; i < Count; ++i) {
        const auto number = Decimal(words[i]);
        if (!number) {
            return false;
        }
        numbers[i] = *number;
    }
    return true;
}

Command Flawed(std::string text)
{
    Command command;
    command.verb = Verb::Flawed;
    command.flaw = std::move(text);
    return command;
}

Command ReadTile(const std::string& word, Words fields)
{
    constexpr std::size_t AreaNumbers = 5;
    if (fields.size() < AreaNumbers && word != "tilew") {
        const auto id = TileId(fields);
        return id ? Command{.verb = Verb::PickArea, .id = *id, .box = {}, .flaw = {}}
                  : Flawed("\"" + word + "\" needs a tile number.");
    }
    if (fields.size() <= AreaNumbers) {
        return Flawed("\"" + word + "\" needs a tile number, both X, both Y and Z.");
    }
    const auto id = TileId(fields.first(fields.size() - AreaNumbers));
    if (!id) {
        return Flawed("\"" + word + "\" has no valid tile number.");
    }
    int numbers[AreaNumbers] = {};
    if (!ReadNumbers(fields.last(AreaNumbers), numbers)) {
        return Flawed("\"" + word + "\" needs whole numbers for both X, both Y and Z.");
    }
    return Command{.verb = Verb::PlaceArea,
                   .id = *id,
                   .box = Box{numbers[0], numbers[2], numbers[1], numbers[3]},
                   .z = numbers[4],
                   .flaw = {}};
}

Command ReadWipe(const std::string& word, Words fields)
{
    const bool inside = word == "wipe";
    if (fields.empty()) {
        return Command{.verb = inside ? Verb::PickWipeInside : Verb::PickWipeOutside, .box = {}, .flaw = {}};
    }
    if (inside && fields.size() == 1 && core::LowerCase(fields[0]) == "all") {
        return Command{.verb = Verb::WipeAll, .box = {}, .flaw = {}};
    }
    int numbers[4] = {};
    if (!ReadNumbers(fields, numbers)) {
        return Flawed("\"" + word + "\" needs X1, Y1, X2 and Y2.");
    }
    return Command{.verb = inside ? Verb::WipeInside : Verb::WipeOutside,
                   .box = Box{numbers[0], numbers[1], numbers[2], numbers[3]},
                   .flaw = {}};
}

} // namespace

Command ParseCommand(std::string_view text)
{
    const std::vector<std::string_view> words = SplitAtBlanks(text);
    if (words.empty()) {
        return {};
    }
    const std::string word = core::LowerCase(words.front());
    const Words       fields = Words(words).subspan(1);
    if (word == "tile" || word == "tilew") {
        return ReadTile(word, fields);
    }
    if (word == "rndtile") {
        const auto id = TileId(fields);
        return id ? Command{.verb = Verb::PickArea, .id = *id, .box = {}, .flaw = {}}
                  : Flawed("\"rndtile\" needs a tile number.");
    }
    if (word == "add" || word == "radd") {
        // "add npc male" and its like belong to the server's other commands.
        const auto id = TileId(fields);
        return id ? Command{.verb = Verb::PickTile, .id = *id, .box = {}, .repeats = word == "radd", .flaw = {}}
                  : Command{};
    }
    if ((word == "remove" || word == "rremove") && fields.empty()) {
        return Command{.verb = Verb::PickRemove, .box = {}, .repeats = word == "rremove", .flaw = {}};
    }
    if (word == "wipe" || word == "iwipe") {
        return ReadWipe(word, fields);
    }
    if (word == "go") {
        int numbers[3] = {};
        if (ReadNumbers(fields, numbers)) {
            return Command{.verb = Verb::Go, .box = Box{numbers[0], numbers[1], 0, 0}, .z = numbers[2], .flaw = {}};
        }
        return {};
    }
    if (word == "where" && fields.empty()) {
        return Command{.verb = Verb::Where, .box = {}, .flaw = {}};
    }
    return {};
}

} // namespace qf::practice
