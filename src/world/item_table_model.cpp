#include "world/item_table_model.h"

#include <array>

#include "core/number_rules.h"
#include "ui/parts.h"
#include "world/item_types.h"

namespace qf::world {

namespace {

struct Column {
    std::string_view heading;
    std::string (*text)(const ItemTable::Item& item);
};

// clang-format off
constexpr std::array columns{
    Column{"Name ",   [](const ItemTable::Item& item) { return std::string(item.name); }},
    Column{"Hex ID ", [](const ItemTable::Item& item) { return GetHexIDFromNum(item.id); }},
    Column{"Serial ", [](const ItemTable::Item& item) { return core::ToText(item.serial); }},
    Column{"Type ",   [](const ItemTable::Item& item) { return std::string(GetTypeFromNum(item.type)); }},
};
// clang-format on

const Column& At(int column)
{
    return columns.at(static_cast<std::size_t>(column));
}

} // namespace

void ItemTableModel::Fill(Database& database)
{
    struct Reset {
        explicit Reset(ItemTableModel& changed) : model(changed) { model.beginResetModel(); }
        ~Reset() { model.endResetModel(); }
        Reset(const Reset&) = delete;
        Reset& operator=(const Reset&) = delete;

        ItemTableModel& model;
    };
    const Reset reset(*this);
    items_.Read(database);
}

int ItemTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(items_.Count());
}

int ItemTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(columns.size());
}

QVariant ItemTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::DisplayRole && index.isValid()) {
        return ui::Text(At(index.column()).text(items_.At(static_cast<std::size_t>(index.row()))));
    }
    return {};
}

QVariant ItemTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && section >= 0 && section < columnCount()) {
        if (role == Qt::DisplayRole) {
            return ui::Text(At(section).heading);
        }
        if (role == Qt::TextAlignmentRole) {
            return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
        }
    }
    return {};
}

} // namespace qf::world
