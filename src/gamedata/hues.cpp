#include "gamedata/hues.h"

#include <algorithm>
#include <string>

#include "core/host_path.h"
#include "core/little_endian.h"
#include "gamedata/art.h"

namespace qf::gamedata {

namespace {

constexpr std::size_t HeaderBytes = 4;
constexpr std::size_t EntryBytes = 88;
constexpr std::size_t BlockBytes = HeaderBytes + HueGroup::Entries * EntryBytes;

unsigned Byte(std::span<const std::byte> bytes, std::size_t place)
{
    return static_cast<unsigned>(bytes[place]);
}

/// A colour of the file as a number with red lowest.
std::int32_t FileColour(const std::byte* bytes)
{
    const auto rgb = RoundingColour(static_cast<std::int16_t>(core::ReadLittle16(bytes)));
    return static_cast<std::int32_t>((rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16);
}

void ReadEntry(std::span<const std::byte> bytes, HueEntry& entry)
{
    std::size_t place = 0;
    for (auto& colour : entry.colours) {
        colour = FileColour(bytes.data() + place);
        place += 2;
    }
    // High byte first, against the order of everything else in the file.
    entry.tableStart = static_cast<std::int32_t>(Byte(bytes, place) * 256 + Byte(bytes, place + 1));
    entry.tableEnd = static_cast<std::int32_t>(Byte(bytes, place + 2) * 256 + Byte(bytes, place + 3));
    place += 4;
    for (std::size_t i = 0; i + 1 < entry.name.size(); ++i) {
        entry.name[i] = static_cast<char>(Byte(bytes, place + i));
    }
}

} // namespace

core::Rgb ToRgb(std::int32_t hueColour)
{
    const auto value = static_cast<std::uint32_t>(hueColour);
    return (value & 0xFF) << 16 | (value & 0xFF00) | (value >> 16 & 0xFF);
}

void ReadHueGroup(ByteSource& file, int number, HueGroup& group)
{
    std::array<std::byte, BlockBytes> block{};
    file.Read(static_cast<std::int64_t>(BlockBytes) * number, block);
    std::copy_n(block.begin(), HeaderBytes, group.header.begin());
    for (std::size_t e = 0; e < HueGroup::Entries; ++e) {
        ReadEntry(std::span(block).subspan(HeaderBytes + e * EntryBytes, EntryBytes), group.entries[e]);
    }
}

void LoadHueData(std::string_view uoPath, HueTable& table, core::FileNumbers& numbers, const HueProgress& progress)
{
    table.loaded = false;
    const auto path = std::string(uoPath) + "hues.mul";
    if (!core::IsFile(path)) {
        return;
    }
    const int number = numbers.Take();
    FileBytes file(path, FileBytes::Access::ReadOnly);
    progress.begin();
    for (int g = 0; g < HueTable::Groups; ++g) {
        progress.group(g);
        ReadHueGroup(file, g, table.groups[static_cast<std::size_t>(g)]);
    }
    numbers.Release(number);
    table.loaded = true;
}

} // namespace qf::gamedata
