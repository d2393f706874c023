#include "gamedata/art_bytes.h"

#include <algorithm>

namespace qf::test {

namespace {

std::string LowByteFirst(std::int64_t number, int bytes)
{
    std::string text;
    for (int i = 0; i < bytes; ++i) {
        text += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * i) & 0xFF);
    }
    return text;
}

char Letter(core::Rgb colour)
{
    switch (colour) {
    case core::White: return '.';
    case 0xF80000: return 'r';
    case 0x00F800: return 'g';
    case 0x0000F8: return 'b';
    case 0x000000: return '#';
    default: return '?';
    }
}

} // namespace

std::string Words(const std::vector<int>& numbers)
{
    std::string text;
    for (const int number : numbers) {
        text += LowByteFirst(number, 2);
    }
    return text;
}

std::string Long(std::int64_t number)
{
    return LowByteFirst(number, 4);
}

std::string IndexRecord(std::int64_t lookup, std::int32_t size)
{
    return Long(lookup) + Long(size) + Long(0);
}

std::string IndexOf(int id, const std::string& record)
{
    std::string index;
    for (int absent = 0; absent < 0x4000 + id; ++absent) {
        index += IndexRecord(-1, -1);
    }
    return index + record;
}

std::string RunTile(int width, int height, const std::vector<Line>& lines, std::int64_t flag)
{
    std::vector<int> starts;
    std::vector<int> words;
    for (const auto& line : lines) {
        starts.push_back(static_cast<int>(words.size()));
        words.insert(words.end(), line.begin(), line.end());
    }
    return Long(flag) + RunTileAt(width, height, starts, words).substr(4);
}

std::string RunTileAt(int width, int height, const std::vector<int>& lineStarts, const std::vector<int>& words)
{
    return Long(1) + Words({width, height}) + Words(lineStarts) + Words(words);
}

std::vector<std::string> Rows(const core::PixelSurface& surface)
{
    std::vector<std::string> rows;
    for (int y = 0; y < surface.Height(); ++y) {
        std::string row;
        for (int x = 0; x < surface.Width(); ++x) {
            row += Letter(surface.At(x, y));
        }
        rows.push_back(row);
    }
    return rows;
}

int Drawn(const core::PixelSurface& surface)
{
    const auto pixels = surface.Pixels();
    return static_cast<int>(
        std::ranges::count_if(pixels, [](std::uint32_t pixel) { return (pixel & core::White) != core::White; }));
}

} // namespace qf::test
