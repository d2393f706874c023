#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace qf::test {

/// An item as a server saves it. The name is UTF-8 and is written as ANSI text.
struct WorldItem {
    std::int32_t serial = 0;
    std::string  name;
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t z = 0;
    std::int32_t container = -1;
    std::int16_t world = 0;
    std::int32_t id = 0;
    std::int32_t type = 0;
    std::int16_t instance = 0;
};

/// A character as a server saves it.
struct WorldCharacter {
    std::int32_t serial = 0;
    std::string  name;
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t z = 0;
    std::int16_t world = 0;
    std::int32_t owner = 0;
    std::int32_t id = 0;
    std::int16_t instance = 0;
};

/// Items with the serials 1 to `count`, all over a map of 6144 by 4096 tiles; a seed gives the same ones always.
std::vector<WorldItem>      ItemsOfSeed(std::uint32_t seed, std::size_t count);
std::vector<WorldCharacter> CharactersOfSeed(std::uint32_t seed, std::size_t count);

/// The text of one file of the newer layout: sections with their keys, each line ending with CR LF.
std::string SectionText(std::span<const WorldItem> items, std::span<const WorldCharacter> characters = {});

/// The texts of items.wsc and chars.wsc of the older layout. It has no place for world and instance, nor for the ID
/// of a character.
std::string ItemBlocks(std::span<const WorldItem> items);
std::string CharacterBlocks(std::span<const WorldCharacter> characters);

/// Writes `shared/<column>.<row>.wsc` into the server's folder.
void WriteNewerWorld(const std::filesystem::path& folder, int column, int row, std::span<const WorldItem> items,
                     std::span<const WorldCharacter> characters = {});

/// Writes `items.wsc` and `chars.wsc` into the server's folder.
void WriteOlderWorld(const std::filesystem::path& folder, std::span<const WorldItem> items,
                     std::span<const WorldCharacter> characters = {});

} // namespace qf::test
