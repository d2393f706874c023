#include "support/world_files.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string_view>

#include "core/ansi.h"

namespace qf::test {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t MapWidth = 6144;
constexpr std::uint32_t MapHeight = 4096;

// Apostrophes, characters outside ASCII and blanks are what a reader can stumble over.
constexpr std::array<std::string_view, 12> ItemNames{
    "chair",      "wooden box", "O'Malley's sign", "stone wall", "Fa\xC3\x9F Bier", "scroll of the d\xC3\xA9j\xC3\xA0",
    "gold coins", "torch",      "marble floor",    "#",          "a book",          "Wirt's leg"};
constexpr std::array<std::string_view, 4> CharacterNames{"Iolo", "J\xC3\xBCrgen", "Shamino", "an orc of N'Gar"};

/// Stops the file texts from growing with the world.
constexpr std::size_t RecordsInPiece = 4096;

void AppendNumber(std::string& text, std::int64_t number, int base = 10)
{
    std::array<char, 24> digits{};
    const auto           end = std::to_chars(digits.data(), digits.data() + digits.size(), number, base);
    text.append(digits.data(), end.ptr);
}

void AppendLine(std::string& text, std::string_view key, std::string_view value)
{
    text.append(key).append(value).append("\r\n");
}

void AppendLine(std::string& text, std::string_view key, std::int32_t value)
{
    text += key;
    AppendNumber(text, value);
    text += "\r\n";
}

void AppendHexLine(std::string& text, std::string_view key, std::int32_t value)
{
    text.append(key).append("0x");
    AppendNumber(text, static_cast<std::uint32_t>(value), 16);
    text += "\r\n";
}

template <typename Record>
void AppendLocation(std::string& text, const Record& record)
{
    text += "Location=";
    for (const std::int16_t member : {record.x, record.y, record.z, record.world}) {
        AppendNumber(text, member);
        text += ',';
    }
    AppendNumber(text, record.instance);
    text += "\r\n";
}

template <typename Record>
void AppendPlace(std::string& text, const Record& record)
{
    AppendLine(text, "X ", record.x);
    AppendLine(text, "Y ", record.y);
    AppendLine(text, "Z ", record.z);
}

void AppendSection(std::string& text, const WorldItem& item)
{
    text += "[ITEM]\r\n";
    AppendHexLine(text, "Serial=", item.serial);
    AppendHexLine(text, "ID=", item.id);
    AppendLine(text, "Name=", core::ToAnsi(item.name));
    AppendLocation(text, item);
    AppendHexLine(text, "Cont=", item.container);
    AppendLine(text, "Type=", item.type);
    AppendLine(text, "Decay=", 0);
    text += "\r\n";
}

void AppendSection(std::string& text, const WorldCharacter& character)
{
    text += "[CHARACTER]\r\n";
    AppendHexLine(text, "Serial=", character.serial);
    AppendHexLine(text, "ID=", character.id);
    AppendLine(text, "Name=", core::ToAnsi(character.name));
    AppendLocation(text, character);
    AppendHexLine(text, "OwnerID=", character.owner);
    text += "\r\n";
}

void AppendBlock(std::string& text, const WorldItem& item)
{
    AppendLine(text, "SECTION WORLDITEM ", item.serial);
    text += "{\r\n";
    AppendLine(text, "SERIAL ", item.serial);
    AppendLine(text, "NAME ", core::ToAnsi(item.name));
    AppendLine(text, "ID ", item.id);
    AppendPlace(text, item);
    AppendLine(text, "CONT ", item.container);
    AppendLine(text, "TYPE ", item.type);
    AppendLine(text, "LAYER ", 0);
    text += "}\r\n\r\n";
}

void AppendBlock(std::string& text, const WorldCharacter& character)
{
    AppendLine(text, "SECTION CHARACTER ", character.serial);
    text += "{\r\n";
    AppendLine(text, "SERIAL ", character.serial);
    AppendLine(text, "NAME ", core::ToAnsi(character.name));
    AppendPlace(text, character);
    AppendLine(text, "XBODY ", character.id);
    AppendLine(text, "STRENGTH ", 50);
    AppendLine(text, "OWNER ", character.owner);
    text += "}\r\n\r\n";
}

template <typename Record>
void WriteInPieces(std::ostream& stream, std::span<const Record> records, void (*append)(std::string&, const Record&))
{
    std::string piece;
    while (!records.empty()) {
        const auto count = std::min(records.size(), RecordsInPiece);
        piece.clear();
        for (const auto& record : records.first(count)) {
            append(piece, record);
        }
        stream.write(piece.data(), static_cast<std::streamsize>(piece.size()));
        records = records.subspan(count);
    }
}

template <typename Record>
std::string Together(std::span<const Record> records, void (*append)(std::string&, const Record&))
{
    std::string text;
    for (const auto& record : records) {
        append(text, record);
    }
    return text;
}

std::ofstream Create(const fs::path& file)
{
    fs::create_directories(file.parent_path());
    std::ofstream stream(file, std::ios::binary);
    return stream;
}

void Finish(std::ofstream& stream, const fs::path& file)
{
    stream.close();
    if (!stream) {
        throw std::runtime_error("cannot write " + file.string());
    }
}

template <typename Record>
void WriteBlocks(const fs::path& file, std::span<const Record> records)
{
    auto stream = Create(file);
    WriteInPieces<Record>(stream, records, AppendBlock);
    Finish(stream, file);
}

} // namespace

std::vector<WorldItem> ItemsOfSeed(std::uint32_t seed, std::size_t count)
{
    std::mt19937           draw(seed);
    std::vector<WorldItem> items(count);
    std::int32_t           serial = 0;
    for (auto& item : items) {
        item.serial = ++serial;
        item.name = ItemNames[draw() % ItemNames.size()];
        item.x = static_cast<std::int16_t>(draw() % MapWidth);
        item.y = static_cast<std::int16_t>(draw() % MapHeight);
        item.z = static_cast<std::int16_t>(static_cast<int>(draw() % 256) - 128);
        item.container = draw() % 4 == 0 ? static_cast<std::int32_t>(1 + draw() % count) : -1;
        item.id = static_cast<std::int32_t>(draw() % 0x4000);
        item.type = static_cast<std::int32_t>(draw() % 220);
        item.world = static_cast<std::int16_t>(draw() % 2);
        item.instance = static_cast<std::int16_t>(draw() % 16 == 0);
    }
    return items;
}

std::vector<WorldCharacter> CharactersOfSeed(std::uint32_t seed, std::size_t count)
{
    std::mt19937                draw(seed);
    std::vector<WorldCharacter> characters(count);
    std::int32_t                serial = 0;
    for (auto& character : characters) {
        character.serial = ++serial;
        character.name = CharacterNames[draw() % CharacterNames.size()];
        character.x = static_cast<std::int16_t>(draw() % MapWidth);
        character.y = static_cast<std::int16_t>(draw() % MapHeight);
        character.z = static_cast<std::int16_t>(static_cast<int>(draw() % 256) - 128);
        character.world = static_cast<std::int16_t>(draw() % 2);
        character.owner = static_cast<std::int32_t>(draw() % 1000);
        character.id = static_cast<std::int32_t>(400 + draw() % 2);
        character.instance = static_cast<std::int16_t>(draw() % 16 == 0);
    }
    return characters;
}

std::string SectionText(std::span<const WorldItem> items, std::span<const WorldCharacter> characters)
{
    return Together<WorldItem>(items, AppendSection) + Together<WorldCharacter>(characters, AppendSection) +
           "o---o\r\n";
}

std::string ItemBlocks(std::span<const WorldItem> items)
{
    return Together<WorldItem>(items, AppendBlock);
}

std::string CharacterBlocks(std::span<const WorldCharacter> characters)
{
    return Together<WorldCharacter>(characters, AppendBlock);
}

void WriteNewerWorld(const fs::path& folder, int column, int row, std::span<const WorldItem> items,
                     std::span<const WorldCharacter> characters)
{
    const auto file = folder / "shared" / (std::to_string(column) + "." + std::to_string(row) + ".wsc");
    auto       stream = Create(file);
    WriteInPieces<WorldItem>(stream, items, AppendSection);
    WriteInPieces<WorldCharacter>(stream, characters, AppendSection);
    stream << "o---o\r\n";
    Finish(stream, file);
}

void WriteOlderWorld(const fs::path& folder, std::span<const WorldItem> items,
                     std::span<const WorldCharacter> characters)
{
    WriteBlocks(folder / "items.wsc", items);
    WriteBlocks(folder / "chars.wsc", characters);
}

} // namespace qf::test
