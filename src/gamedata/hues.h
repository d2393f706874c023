#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "core/file_numbers.h"
#include "core/pixel_surface.h"
#include "gamedata/byte_source.h"

namespace qf::gamedata {

/// One hue: 32 colours as 32-bit RGB values with red lowest, two unused values, and its name of 20 bytes.
struct HueEntry {
    std::array<std::int32_t, 32> colours{};
    std::int32_t                 tableStart = 0;
    std::int32_t                 tableEnd = 0;
    std::array<char, 21>         name{};

    /// The name's 20 bytes, those that are 0 included.
    std::string_view NameBytes() const { return {name.data(), name.size() - 1}; }
};

struct HueGroup {
    static constexpr int Entries = 8;

    std::array<std::byte, 4>      header{};
    std::array<HueEntry, Entries> entries{};
};

/// The hues of `hues.mul`, all 0 until they are loaded.
struct HueTable {
    static constexpr int Groups = 374;

    std::vector<HueGroup> groups = std::vector<HueGroup>(Groups);
    bool                  loaded = false;
};

/// A hue colour, red lowest, as 0xRRGGBB.
core::Rgb ToRgb(std::int32_t hueColour);

/// What is told while the hues are loaded: once before the first group, then before each group (0 to 373).
struct HueProgress {
    std::function<void()>          begin;
    std::function<void(int group)> group;
};

/// Reads one group of the file's 374, counted from 0: a block of 708 bytes.
void ReadHueGroup(ByteSource& file, int number, HueGroup& group);

/// Reads the client folder's `hues.mul`: 374 blocks of 708 bytes, each a header of 4 bytes and eight entries
/// of 88 bytes (32 colours, table start and end with the high byte first, a name of 20 bytes). What is missing
/// at the end reads as zeros; where there is no such file nothing but the flag changes.
/// Throws RuntimeError 67 where no file number is free.
void LoadHueData(std::string_view uoPath, HueTable& table, core::FileNumbers& numbers, const HueProgress& progress);

} // namespace qf::gamedata
