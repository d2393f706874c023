#include "world/item_table_model.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>
#include <memory>

#include "support/expect_error.h"
#include "support/temp_folder.h"
#include "ui/parts.h"
#include "world/database.h"

namespace qf::world {
namespace {

class ItemTableModelTest : public testing::Test {
  protected:
    ItemTableModelTest()
    {
        CreateWorldDatabase(folder.Path() / "qf.mdb");
        database = Database::Open(folder.Path() / "qf.mdb");
    }

    void Add(const std::string& name, const std::string& id, int serial, int type)
    {
        database->Execute("INSERT INTO tblItem( Name, ID, Serial, iType, X, Y, Z ) VALUES( '" + name + "', " + id +
                          ", " + std::to_string(serial) + ", " + std::to_string(type) + ", 1, 2, 3 );");
    }

    std::vector<std::string> Row(int row) const
    {
        std::vector<std::string> cells;
        for (int column = 0; column < model.columnCount(); ++column) {
            cells.push_back(ui::Utf8(model.index(row, column).data().toString()));
        }
        return cells;
    }

    const test::TempFolder    folder;
    std::unique_ptr<Database> database;
    ItemTableModel            model;
    QAbstractItemModelTester  tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

using Cells = std::vector<std::string>;

TEST_F(ItemTableModelTest, FourHeadingsBeforeAnyItem)
{
    EXPECT_EQ(model.rowCount(), 0);
    ASSERT_EQ(model.columnCount(), 4);
    const Cells headings{"Name ", "Hex ID ", "Serial ", "Type "};
    for (int column = 0; column < 4; ++column) {
        EXPECT_EQ(ui::Utf8(model.headerData(column, Qt::Horizontal).toString()),
                  headings[static_cast<std::size_t>(column)]);
        EXPECT_TRUE(model.headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() & Qt::AlignLeft);
    }
    EXPECT_FALSE(model.headerData(4, Qt::Horizontal).isValid());
    EXPECT_FALSE(model.headerData(-1, Qt::Horizontal).isValid());
    EXPECT_FALSE(model.headerData(0, Qt::Vertical).isValid());
}

TEST_F(ItemTableModelTest, RowsInTheOrderOfTheDatabase)
{
    Add("T\xC3\xBCr", "6925", 1073741825, 12);
    Add("", "74565", -5, 51);
    Add("stone", "10", 0, 7777);
    model.Fill(*database);
    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(Row(0), (Cells{"T\xC3\xBCr", "1B 0D", "1073741825", "Door"}));
    EXPECT_EQ(Row(1), (Cells{"", "12 45", "-5", "Start gate "}));
    EXPECT_EQ(Row(2), (Cells{"stone", "00 0A", "0", "Unknown"}));
    EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).isValid());
    EXPECT_FALSE(model.data({}).isValid());
    EXPECT_EQ(model.rowCount(model.index(0, 0)), 0);
}

TEST_F(ItemTableModelTest, FillingAnewResetsOnce)
{
    Add("old", "1", 1, 0);
    model.Fill(*database);
    database->Execute("DELETE * FROM tblItem;");
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.Fill(*database);
    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(resets.count(), 1);
}

TEST_F(ItemTableModelTest, RowsBeforeABrokenOneStay)
{
    Add("first", "1", 1, 0);
    Add("broken", "'wood'", 2, 0);
    const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    EXPECT_RUNTIME_ERROR(13, model.Fill(*database));
    EXPECT_EQ(model.rowCount(), 1);
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(Row(0), (Cells{"first", "00 01", "1", "Normal"}));
}

} // namespace
} // namespace qf::world
