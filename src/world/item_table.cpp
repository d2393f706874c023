#include "world/item_table.h"

#include "world/database.h"
#include "world/stored_number.h"

namespace qf::world {

void ItemTable::Read(Database& database)
{
    rows_ = {};
    names_ = {};
    database.ForEachRow("SELECT Name, ID, Serial, iType, X, Y, Z FROM tblItem",
                        [this](std::span<const std::string_view> row) {
                            rows_.push_back({.nameBegin = names_.size(),
                                             .id = StoredNumber(row[1]),
                                             .serial = StoredNumber(row[2]),
                                             .type = StoredNumber(row[3])});
                            names_ += row[0];
                        });
}

ItemTable::Item ItemTable::At(std::size_t index) const
{
    const auto& row = rows_.at(index);
    const auto  nameEnd = index + 1 < rows_.size() ? rows_[index + 1].nameBegin : names_.size();
    return {.name = std::string_view(names_).substr(row.nameBegin, nameEnd - row.nameBegin),
            .id = row.id,
            .serial = row.serial,
            .type = row.type};
}

} // namespace qf::world
