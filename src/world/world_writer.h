#pragma once

#include <string>
#include <string_view>

#include "world/database.h"
#include "world/world_records.h"

namespace qf::world {

/// How a name stands in its statement.
enum class NameQuoting {
    SingleQuotes, ///< apostrophes doubled; a name of blanks is "(no name)"
    DoubleQuotes, ///< as it is, so that a double quote inside breaks the statement
};

/// Writes records into the database, each by a statement of its own.
/// A statement that the store refuses is its own RuntimeError.
class WorldWriter final : public RecordSink {
  public:
    WorldWriter(Database& database, NameQuoting quoting) : database_(database), quoting_(quoting) {}

    void Write(const ItemRecord& item) override;
    void Write(const CharacterRecord& character) override;

  private:
    void Begin(std::string_view insert, std::int32_t serial, std::string_view name);
    void Add(std::int32_t number);
    void AddName(std::string_view name);
    void Execute();

    Database&   database_;
    NameQuoting quoting_;
    std::string statement_;
};

} // namespace qf::world
