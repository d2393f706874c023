#include "world/item_table.h"

#include "core/number_rules.h"
#include "world/database.h"

namespace qf::world {

void ItemTable::Read(Database& database)
{
    rows_ = {};
    names_ = {};
    database.ForEachRow("SELECT Name, ID, Serial, iType, X, Y, Z FROM tblItem",
                        [this](std::span<const std::string_view> row) {
                            rows_.push_back({.nameBegin = names_.size(),
                                             .id = core::ToInteger32(row[1]),
                                             .serial = core::ToInteger32(row[2]),
                                             .type = core::ToInteger32(row[3])});
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
