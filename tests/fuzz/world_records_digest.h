#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "world/world_records.h"

/// Boils the records of a file down to one number, so that two ways of reading it can be compared.
class RecordsDigest final : public qf::world::RecordSink {
  public:
    void Write(const qf::world::ItemRecord& item) override
    {
        everyRecordHasASerial = everyRecordHasASerial && item.serial != 0;
        Mix(item.name);
        Mix(item.serial, item.x, item.y, item.z, item.container, item.world, item.id, item.type, item.instance,
            item.layer);
        Mix(item.statistics);
    }

    void Write(const qf::world::CharacterRecord& character) override
    {
        everyRecordHasASerial = everyRecordHasASerial && character.serial != 0;
        Mix(character.name);
        Mix(character.serial, character.x, character.y, character.z, character.world, character.owner, character.id,
            character.instance);
        Mix(character.statistics);
    }

    std::size_t digest = 0;
    bool        everyRecordHasASerial = true;

  private:
    void Mix(const std::string& text) { digest = digest * 31 + std::hash<std::string>()(text); }
    void Mix(const qf::world::Statistics& statistics)
    {
        Mix(statistics.strength, statistics.dexterity, statistics.stamina, statistics.mana);
    }
    template <typename... Numbers>
    void Mix(Numbers... numbers)
    {
        ((digest = digest * 31 + static_cast<std::size_t>(numbers)), ...);
    }
};
