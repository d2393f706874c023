#include "tools/hue_file.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace qf::tools {

namespace {

constexpr int         Blocks = 374;
constexpr int         Entries = 8;
constexpr int         Colours = 32;
constexpr std::size_t NameBytes = 20;
constexpr int         GreyBlocks = 14;
constexpr int         BlocksPerName = 15;

constexpr std::array<std::string_view, (Blocks - GreyBlocks) / BlocksPerName> Names{
    "scarlet", "vermilion", "orange", "amber",     "yellow",  "lime",      "moss",  "fern",
    "green",   "emerald",   "jade",   "sea green", "cyan",    "turquoise", "azure", "cornflower",
    "blue",    "indigo",    "violet", "purple",    "magenta", "plum",      "rose",  "crimson",
};

struct Hue {
    double angle = 0.0;      ///< 0 to 1, once around the circle
    double saturation = 0.0; ///< 0 to 1
    double lightest = 0.0;   ///< 0 to 1
};

/// A field of a 16-bit pixel. The highest value is not used: a reader that rounds the quotients of the whole
/// pixel carries it over to 0.
int Field(double value)
{
    constexpr double Most = 30.0;
    return static_cast<int>(std::lround(std::clamp(value, 0.0, 1.0) * Most));
}

int Pixel(const Hue& hue, double lightness)
{
    const double reach = hue.saturation * std::min(lightness, 1.0 - lightness);
    const auto   part = [&](double offset) {
        const double place = std::fmod(offset + hue.angle * 12.0, 12.0);
        return Field(lightness - reach * std::clamp(std::min(place - 3.0, 9.0 - place), -1.0, 1.0));
    };
    return part(0.0) << 10 | part(8.0) << 5 | part(4.0);
}

Hue HueOf(int block, int entry)
{
    const double share = static_cast<double>(entry) / (Entries - 1);
    if (block >= Blocks - GreyBlocks) {
        const int grey = block - (Blocks - GreyBlocks);
        return {0.08, 0.02 * (grey % 3), 0.35 + 0.6 * (grey * Entries + entry) / (GreyBlocks * Entries)};
    }
    return {static_cast<double>(block) / (Blocks - GreyBlocks), 0.3 + 0.65 * share, 0.92 - 0.3 * share};
}

std::string NameOf(int block, int entry)
{
    const bool        isGrey = block >= Blocks - GreyBlocks;
    const int         number = isGrey ? block - (Blocks - GreyBlocks) : block % BlocksPerName;
    const std::string name(isGrey ? "grey" : Names[static_cast<std::size_t>(block / BlocksPerName)]);
    return name + " " + std::to_string(number + 1) + static_cast<char>('a' + entry);
}

void AppendEntry(std::string& bytes, int block, int entry)
{
    constexpr double Darkest = 0.06;
    const Hue        hue = HueOf(block, entry);
    const auto       colour = [&](int i) { return Pixel(hue, Darkest + (hue.lightest - Darkest) * i / (Colours - 1)); };
    const auto       low = [](int value) { return static_cast<char>(value & 0xFF); };
    const auto       high = [](int value) { return static_cast<char>(value >> 8 & 0xFF); };
    for (int i = 0; i < Colours; ++i) {
        bytes += {low(colour(i)), high(colour(i))};
    }
    // The ends of the ramp stand with the high byte first.
    for (const int end : {colour(0), colour(Colours - 1)}) {
        bytes += {high(end), low(end)};
    }
    std::string name = NameOf(block, entry);
    name.resize(NameBytes, '\0');
    bytes += name;
}

} // namespace

std::string MakeHues()
{
    constexpr std::size_t HeaderBytes = 4;
    std::string           bytes;
    for (int block = 0; block < Blocks; ++block) {
        bytes.append(HeaderBytes, '\0');
        for (int entry = 0; entry < Entries; ++entry) {
            AppendEntry(bytes, block, entry);
        }
    }
    return bytes;
}

} // namespace qf::tools
