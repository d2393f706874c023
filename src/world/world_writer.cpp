#include "world/world_writer.h"

#include <array>
#include <charconv>

#include "core/text.h"

namespace qf::world {

namespace {

constexpr std::string_view InsertItem = "INSERT INTO tblItem( [Serial], [Name], [X], [Y], [Z], [Container], [World], "
                                        "[ID], [iType], [InstanceID] ) VALUES( ";
constexpr std::string_view InsertCharacter =
    "INSERT INTO tblCharacter( Serial, Name, X, Y, Z, World, Owner, ID, InstanceID ) VALUES( ";
constexpr std::string_view NoName = "(no name)";

void AppendNumber(std::string& text, std::int32_t number)
{
    std::array<char, 12> digits{};
    const auto           end = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    text.append(digits.data(), end.ptr);
}

} // namespace

void WorldWriter::Write(const ItemRecord& item)
{
    Begin(InsertItem, item.serial, item.name);
    Add(item.x);
    Add(item.y);
    Add(item.z);
    Add(item.container);
    Add(item.world);
    Add(item.id);
    Add(item.type);
    Add(item.instance);
    Execute();
}

void WorldWriter::Write(const CharacterRecord& character)
{
    Begin(InsertCharacter, character.serial, character.name);
    Add(character.x);
    Add(character.y);
    Add(character.z);
    Add(character.world);
    Add(character.owner);
    Add(character.id);
    Add(character.instance);
    Execute();
}

void WorldWriter::Begin(std::string_view insert, std::int32_t serial, std::string_view name)
{
    statement_ = insert;
    AppendNumber(statement_, serial);
    statement_ += ", ";
    AddName(name);
}

void WorldWriter::Add(std::int32_t number)
{
    statement_ += ", ";
    AppendNumber(statement_, number);
}

void WorldWriter::AddName(std::string_view name)
{
    if (quoting_ == NameQuoting::DoubleQuotes) {
        statement_ += '"';
        statement_ += name;
        statement_ += '"';
        return;
    }
    statement_ += '\'';
    for (const char character : core::TrimBlanks(name).empty() ? NoName : name) {
        statement_ += character;
        if (character == '\'') {
            statement_ += character;
        }
    }
    statement_ += '\'';
}

void WorldWriter::Execute()
{
    statement_ += " );";
    database_.Execute(statement_);
}

} // namespace qf::world
