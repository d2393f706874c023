#include "world/world_files_070.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>
#include <string>

#include "core/ansi.h"
#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "world/line_file.h"

namespace qf::world {

namespace {

constexpr std::int32_t FirstBadStatistic = 65536;
constexpr std::int16_t BadStatisticBecomes = 30000;

std::uint8_t ToByte(std::string_view text)
{
    const auto number = core::ToInteger32(text);
    if (number < 0 || number > std::numeric_limits<std::uint8_t>::max()) {
        throw core::RuntimeError(core::error::Overflow);
    }
    return static_cast<std::uint8_t>(number);
}

std::int16_t Narrow(std::int32_t number)
{
    if (number < std::numeric_limits<std::int16_t>::min() || number > std::numeric_limits<std::int16_t>::max()) {
        throw core::RuntimeError(core::error::Overflow);
    }
    return static_cast<std::int16_t>(number);
}

/// The block that is being read. One is used for a whole file: a record is not cleared between blocks.
template <typename Record>
struct Block {
    std::string_view owner; ///< what the boxes call the record
    core::Outlet&    outlet;
    Record           record;
    int              badStatistics = 0;
};

template <typename Record>
std::int16_t TakeStatistic(Block<Record>& block, std::string_view name, std::string_view value)
{
    const auto number = core::ToInteger32(value);
    if (number < FirstBadStatistic) {
        return Narrow(number);
    }
    ++block.badStatistics;
    block.outlet.Show(core::PlainBox(std::string(block.owner) + " " + block.record.name + " with serial " +
                                     core::ToText(block.record.serial) + " has an invalid " + std::string(name) +
                                     " value " + core::ToText(number)));
    return BadStatisticBecomes;
}

/// A key, where its value begins (counted from 1), and what takes the value.
template <typename Record>
struct Key {
    std::string_view key;
    std::size_t      valueFrom;
    void (*take)(Block<Record>& block, std::string_view value);
};

// clang-format off
constexpr Key<ItemRecord> itemKeys[] = {
    {"SERIAL",     8, [](auto& block, auto value) { block.record.serial = core::ToInteger32(value); }},
    {"ID",         4, [](auto& block, auto value) { block.record.id = core::ToInteger32(value); }},
    {"NAME",       6, [](auto& block, auto value) { block.record.name = core::FromAnsi(value); }},
    {"CONT",       6, [](auto& block, auto value) { block.record.container = core::ToInteger32(value); }},
    {"TYPE",       6, [](auto& block, auto value) { block.record.type = core::ToInteger32(value); }},
    {"LAYER",      7, [](auto& block, auto value) { block.record.layer = ToByte(value); }},
    {"X",          2, [](auto& block, auto value) { block.record.x = core::ToInteger16(value); }},
    {"Y",          2, [](auto& block, auto value) { block.record.y = core::ToInteger16(value); }},
    {"Z",          2, [](auto& block, auto value) { block.record.z = core::ToInteger16(value); }},
    {"STRENGTH",  10, [](auto& block, auto value) { block.record.statistics.strength = TakeStatistic(block, "strength", value); }},
    {"DEXTERITY", 11, [](auto& block, auto value) { block.record.statistics.dexterity = TakeStatistic(block, "dexterity", value); }},
    {"STAMINA",    9, [](auto& block, auto value) { block.record.statistics.stamina = TakeStatistic(block, "stamina", value); }},
    {"MANA",       6, [](auto& block, auto value) { block.record.statistics.mana = TakeStatistic(block, "mana", value); }},
};
constexpr Key<CharacterRecord> characterKeys[] = {
    {"SERIAL",     8, [](auto& block, auto value) { block.record.serial = core::ToInteger32(value); }},
    {"NAME",       6, [](auto& block, auto value) { block.record.name = core::FromAnsi(value); }},
    {"XBODY",      1, [](auto&, auto) {}},
    {"XSKIN",      1, [](auto&, auto) {}},
    {"X",          2, [](auto& block, auto value) { block.record.x = core::ToInteger16(value); }},
    {"Y",          2, [](auto& block, auto value) { block.record.y = core::ToInteger16(value); }},
    {"Z",          2, [](auto& block, auto value) { block.record.z = core::ToInteger16(value); }},
    {"STRENGTH",  10, [](auto& block, auto value) { block.record.statistics.strength = TakeStatistic(block, "strength", value); }},
    {"DEXTERITY", 11, [](auto& block, auto value) { block.record.statistics.dexterity = TakeStatistic(block, "dexterity", value); }},
    {"STAMINA",    9, [](auto& block, auto value) { block.record.statistics.stamina = TakeStatistic(block, "stamina", value); }},
    {"MANA",       6, [](auto& block, auto value) { block.record.statistics.mana = TakeStatistic(block, "mana", value); }},
    {"OWNER",      7, [](auto& block, auto value) { block.record.owner = core::ToInteger32(value); }},
};
// clang-format on

template <typename Record>
void TakeLine(Block<Record>& block, std::span<const Key<Record>> keys, std::string_view line)
{
    for (const auto& key : keys) {
        if (line.starts_with(key.key)) {
            key.take(block, line.substr(std::min(key.valueFrom - 1, line.size())));
            return;
        }
    }
}

/// Skips to the line that opens a block: one with "{" on or behind a line that holds `announcement`.
bool FindBlock(TextLines& lines, std::string_view announcement)
{
    bool announced = false;
    for (std::string_view line; lines.Next(line);) {
        announced = announced || line.find(announcement) != std::string_view::npos;
        if (announced && line.find('{') != std::string_view::npos) {
            return true;
        }
    }
    return false;
}

template <typename Record>
int ReadBlocks(TextLines& lines, std::string_view announcement, std::span<const Key<Record>> keys, Block<Record> block,
               RecordSink& sink)
{
    while (FindBlock(lines, announcement)) {
        for (std::string_view line; lines.Next(line);) {
            if (line.starts_with('}')) {
                sink.Write(block.record);
                break;
            }
            TakeLine(block, keys, line);
        }
    }
    return block.badStatistics;
}

} // namespace

int ReadItemBlocks(TextLines& lines, RecordSink& sink, core::Outlet& outlet)
{
    return ReadBlocks<ItemRecord>(lines, "WORLDITEM", itemKeys, {.owner = "Item", .outlet = outlet, .record = {}},
                                  sink);
}

int ReadCharacterBlocks(TextLines& lines, RecordSink& sink, core::Outlet& outlet)
{
    return ReadBlocks<CharacterRecord>(lines, "", characterKeys, {.owner = "Char", .outlet = outlet, .record = {}},
                                       sink);
}

bool LoadWorldFiles070(std::string_view folder, RecordSink& sink, core::Outlet& outlet)
{
    const auto itemsFile = core::HostPath(std::string(folder) + "items.wsc");
    const auto charactersFile = core::HostPath(std::string(folder) + "chars.wsc");
    for (const auto& file : {itemsFile, charactersFile}) {
        if (!FileExists(file)) {
            outlet.Show(core::PlainBox("Items.wsc does not exist, please check your path!"));
            return false;
        }
    }
    LineFile items(itemsFile);
    LineFile characters(charactersFile);
    ReadCharacterBlocks(characters.Lines(), sink, outlet);
    ReadItemBlocks(items.Lines(), sink, outlet);
    return true;
}

} // namespace qf::world
