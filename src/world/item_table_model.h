#pragma once

#include <QAbstractTableModel>

#include "world/item_table.h"

namespace qf::world {

/// The items of the world database as a table of four columns: name, tile number, serial, type. A cell's text is
/// made when it is asked for.
class ItemTableModel final : public QAbstractTableModel {
  public:
    using QAbstractTableModel::QAbstractTableModel;

    /// Reads the items anew. Throws as ItemTable does; the rows that were read stay.
    void Fill(Database& database);

    int      rowCount(const QModelIndex& parent = {}) const override;
    int      columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  private:
    ItemTable items_;
};

} // namespace qf::world
