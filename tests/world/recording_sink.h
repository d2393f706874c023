#pragma once

#include <string>
#include <vector>

#include "world/world_records.h"

namespace qf::world {

/// Keeps the records that it is given, each as one line in the order of their fields, and the records themselves.
class RecordingSink final : public RecordSink {
  public:
    void Write(const ItemRecord& item) override
    {
        items.push_back(item);
        lines.push_back("item " + std::to_string(item.serial) + " '" + item.name + "' " + Place(item) + " in " +
                        std::to_string(item.container) + " world " + std::to_string(item.world) + " id " +
                        std::to_string(item.id) + " type " + std::to_string(item.type) + " instance " +
                        std::to_string(item.instance));
    }

    void Write(const CharacterRecord& character) override
    {
        characters.push_back(character);
        lines.push_back("character " + std::to_string(character.serial) + " '" + character.name + "' " +
                        Place(character) + " world " + std::to_string(character.world) + " of " +
                        std::to_string(character.owner) + " id " + std::to_string(character.id) + " instance " +
                        std::to_string(character.instance));
    }

    std::vector<std::string>     lines;
    std::vector<ItemRecord>      items;
    std::vector<CharacterRecord> characters;

  private:
    template <typename Record>
    static std::string Place(const Record& record)
    {
        return std::to_string(record.x) + " " + std::to_string(record.y) + " " + std::to_string(record.z);
    }
};

} // namespace qf::world
