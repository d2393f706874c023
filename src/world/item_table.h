#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qf::world {

class Database;

/// The items of the world database as they were when they were read, in the database's order. A million of
/// them take about 40 MB.
class ItemTable {
  public:
    struct Item {
        std::string_view name;
        std::int32_t     id = 0;
        std::int32_t     serial = 0;
        std::int32_t     type = 0;
    };

    /// Drops what is held and reads all items. Where that fails, the items read until then are held.
    /// Throws RuntimeError as Database does, and 13 or 6 for a column that holds no 32-bit number.
    void Read(Database& database);

    std::size_t Count() const { return rows_.size(); }

    /// The name is good until the next `Read`.
    Item At(std::size_t index) const;

  private:
    struct Row {
        std::size_t  nameBegin;
        std::int32_t id;
        std::int32_t serial;
        std::int32_t type;
    };

    std::vector<Row> rows_;

    /// All names, one behind the other.
    std::string names_;
};

} // namespace qf::world
