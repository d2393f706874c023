#pragma once

#include <cstdint>
#include <string>

namespace qf::world {

/// What the older layout tells of a thing's strength; it is checked and goes nowhere.
struct Statistics {
    std::int16_t strength = 0;
    std::int16_t dexterity = 0;
    std::int16_t stamina = 0;
    std::int16_t mana = 0;
};

/// An item of a world file. The name is UTF-8.
struct ItemRecord {
    std::int32_t serial = 0;
    std::string  name;
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t z = 0;
    std::int32_t container = 0;
    std::int16_t world = 0;
    std::int32_t id = 0;
    std::int32_t type = 0;
    std::int16_t instance = 0;

    // Told by the older layout alone, and not stored.
    std::uint8_t layer = 0;
    Statistics   statistics;
};

/// A character of a world file. The name is UTF-8.
struct CharacterRecord {
    std::int32_t serial = 0;
    std::string  name;
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t z = 0;
    std::int16_t world = 0;
    std::int32_t owner = 0;
    std::int32_t id = 0;
    std::int16_t instance = 0;

    // Told by the older layout alone, and not stored.
    Statistics statistics;
};

/// Where the readers of world files put what they have read, one record at a time.
class RecordSink {
  public:
    virtual ~RecordSink() = default;
    virtual void Write(const ItemRecord& item) = 0;
    virtual void Write(const CharacterRecord& character) = 0;
};

} // namespace qf::world
