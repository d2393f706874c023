#include "world/database.h"

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>

#include "failure_of.h"
#include "support/temp_folder.h"

namespace qf::world {
namespace {

namespace fs = std::filesystem;

using Row = std::vector<std::string>;
using Rows = std::vector<Row>;
using Failure = std::pair<int, std::string>;

const std::string InsertItem = "INSERT INTO tblItem( [Serial], [Name], [X], [Y], [Z], [Container], [World], [ID], "
                               "[iType], [InstanceID] ) VALUES( ";
const std::string InsertCharacter =
    "INSERT INTO tblCharacter( Serial, Name, X, Y, Z, World, Owner, ID, InstanceID ) VALUES( ";

class DatabaseTest : public testing::Test {
  protected:
    DatabaseTest()
    {
        CreateWorldDatabase(file);
        database = Database::Open(file);
        UpgradeDatabase(*database);
    }

    const test::TempFolder    folder;
    fs::path                  file = (folder.Path() / "qf.mdb");
    std::unique_ptr<Database> database;
};

TEST(DatabaseOpen, MissingFileIsNotMade)
{
    const test::TempFolder folder;
    EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }),
              Failure(14, "unable to open database file"));
    EXPECT_FALSE(fs::exists(folder.Path() / "qf.mdb"));
    EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "no/such/qf.mdb"); }).first, 14);
}

TEST(DatabaseOpen, FolderInItsPlace)
{
    const test::TempFolder folder;
    fs::create_directory(folder.Path() / "qf.mdb");
    EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }),
              Failure(14, "unable to open database file"));
}

TEST(DatabaseOpen, NotADatabase)
{
    const test::TempFolder folder;
    for (const std::string& bytes : {std::string("xx"), std::string(99, 'x'), std::string(100, '\0'),
                                     std::string(5000, 'x'), std::string("SQLite format 3\0", 16)}) {
        folder.Write("qf.mdb", bytes);
        EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }), Failure(26, "file is not a database"))
            << bytes.size();
        EXPECT_EQ(fs::file_size(folder.Path() / "qf.mdb"), bytes.size());
    }
}

TEST(DatabaseOpen, LockedByAnotherConnection)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    {
        const auto first = Database::Open(folder.Path() / "qf.mdb");
        first->Execute("DELETE * FROM tblItem;");
        EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }), Failure(5, "database is locked"));
        first->Commit();
        EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }), Failure(0, ""));
    }
}

TEST(DatabaseOpen, NameOutsideTheAnsiCharacters)
{
    const test::TempFolder folder;
    const auto             file = folder.Path() / (u8" \u00FC \u0416 'x'");
    CreateWorldDatabase(file);
    EXPECT_TRUE(fs::exists(file));
    EXPECT_EQ(Database::Open(file)->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"0"}});
}

TEST(DatabaseCreate, TablesWithoutTheAddedColumns)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    const auto database = Database::Open(folder.Path() / "qf.mdb");
    EXPECT_EQ(database->Query("SELECT name FROM pragma_table_info('tblItem') ORDER BY cid"),
              (Rows{{"Serial"}, {"Name"}, {"X"}, {"Y"}, {"Z"}, {"Container"}, {"World"}, {"ID"}, {"iType"}}));
    EXPECT_EQ(database->Query("SELECT name FROM pragma_table_info('tblCharacter') ORDER BY cid"),
              (Rows{{"Serial"}, {"Name"}, {"X"}, {"Y"}, {"Z"}, {"World"}, {"Owner"}, {"ID"}}));
}

TEST(DatabaseCreate, NeverOverwritesAndIgnoresLeftovers)
{
    const test::TempFolder folder;
    folder.Write("qf.mdb", "a world");
    EXPECT_EQ(FailureOf([&] { CreateWorldDatabase(folder.Path() / "qf.mdb"); }), Failure(58, "File already exists"));
    EXPECT_EQ(fs::file_size(folder.Path() / "qf.mdb"), 7U);
    fs::remove(folder.Path() / "qf.mdb");
    folder.Write("qf.mdb.new", "half a file");
    folder.Write("qf.mdb-wal", "an old log");
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    EXPECT_EQ(Database::Open(folder.Path() / "qf.mdb")->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"0"}});
    EXPECT_FALSE(fs::exists(folder.Path() / "qf.mdb.new"));
    EXPECT_EQ(FailureOf([&] { CreateWorldDatabase(folder.Path() / "no/such/qf.mdb"); }).first, 14);
}

TEST(DatabaseUpgrade, AddsBothColumns)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    const auto database = Database::Open(folder.Path() / "qf.mdb");
    UpgradeDatabase(*database);
    database->Execute("UPDATE tblItem SET InstanceID = 1");
    database->Execute("UPDATE tblCharacter SET InstanceID = 1");
}

TEST(DatabaseUpgrade, AlreadyHoldingTheTwoColumnsIsSilent)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    for (int start = 0; start < 3; ++start) {
        const auto database = Database::Open(folder.Path() / "qf.mdb");
        UpgradeDatabase(*database);
        database->Execute(InsertItem + "1, 'chair', 1, 2, 3, -1, 0, 2894, 0, 0 );");
    }
    EXPECT_EQ(Database::Open(folder.Path() / "qf.mdb")->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"3"}});
}

TEST(DatabaseUpgrade, FailureOfTheFirstDoesNotSkipTheSecond)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    const auto database = Database::Open(folder.Path() / "qf.mdb");
    database->Execute("ALTER TABLE tblItem ADD COLUMN InstanceID LONG;");
    UpgradeDatabase(*database);
    database->Execute(InsertCharacter + "1, 'Iolo', 1, 2, 3, 0, 4, 400, 5 );");
    EXPECT_EQ(database->Query("SELECT InstanceID FROM tblCharacter"), Rows{{"5"}});
}

TEST(DatabaseUpgrade, WithoutTablesIsSilentAndKeepsWhatWasOpen)
{
    const test::TempFolder folder;
    folder.Write("qf.mdb", "");
    {
        const auto database = Database::Open(folder.Path() / "qf.mdb");
        database->Execute("CREATE TABLE other( X INTEGER )");
        database->Execute("INSERT INTO other VALUES( 1 )");
        UpgradeDatabase(*database);
        EXPECT_EQ(database->Query("SELECT X FROM other"), Rows{{"1"}});
        EXPECT_EQ(FailureOf([&] { database->Query("SELECT COUNT(*) FROM tblItem"); }),
                  Failure(1, "no such table: tblItem"));
    }
    EXPECT_EQ(Database::Open(folder.Path() / "qf.mdb")->Query("SELECT X FROM other"), Rows{{"1"}});
}

TEST_F(DatabaseTest, BothQuotingRules)
{
    database->Execute(InsertItem + "1, 'o''malley''s \"chair\"', 10, 20, -5, 0, 1, 2894, 12, 7 );");
    database->Execute(InsertItem + "2, \"o'malley's chair\", 10, 20, 0, 0, 0, 2894, 12, 0 );");
    database->Execute(InsertItem + "-3, '', 10, 20, 0, 0, 0, 2894, 12, 0 );");
    EXPECT_EQ(database->Query("SELECT Name, ID, Serial, iType, X, Y, Z FROM tblItem"),
              (Rows{{"o'malley's \"chair\"", "2894", "1", "12", "10", "20", "-5"},
                    {"o'malley's chair", "2894", "2", "12", "10", "20", "0"},
                    {"", "2894", "-3", "12", "10", "20", "0"}}));
}

TEST_F(DatabaseTest, DoubleQuoteInsideADoubleQuotedNameBreaksTheStatement)
{
    for (const std::string name : {R"(a"b)", R"(say "hi" now)", R"(")", R"(", 1, 2, 3, 4, 5, 6, 7, 8 ); -- )"}) {
        EXPECT_EQ(
            FailureOf([&] { database->Execute(InsertItem + "1, \"" + name + "\", 1, 2, 3, 4, 5, 6, 7, 0 );"); }).first,
            name.starts_with("\", 1") ? 0 : 1)
            << name;
    }
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"1"}});
}

TEST_F(DatabaseTest, AStatementBehindTheFirstIsRefused)
{
    database->Execute(InsertItem + "1, 'kept', 1, 2, 3, 4, 5, 6, 7, 8 );");
    EXPECT_EQ(FailureOf([&] {
                  database->Execute(InsertItem + "2, \"x\", 1, 2, 3, 4, 5, 6, 7, 8 ); DELETE FROM tblItem --\", 1 );");
              }).first,
              1);
    EXPECT_EQ(FailureOf([&] { database->Execute(" ; "); }).first, 1);
    EXPECT_EQ(FailureOf([&] { database->Execute(""); }).first, 1);
    EXPECT_EQ(database->Query("SELECT Name FROM tblItem"), Rows{{"kept"}});
}

TEST_F(DatabaseTest, NamesThatLookLikeStatementsAreTexts)
{
    const std::vector<std::string> names = {"?",     "[x]",    "--",       "/*",  ";",  "WorldNumber", "DELETE * FROM",
                                            "WHERE", "a\nb\t", "\xC3\xBC", "\\'", ":p", "\xFF\xFE"};
    for (const auto& name : names) {
        std::string quoted;
        for (const char character : name) {
            quoted += character;
            quoted += character == '\'' ? "'" : "";
        }
        database->Execute("DELETE * FROM tblItem;");
        database->Execute(InsertItem + "1, '" + quoted + "', 1, 2, 3, 4, 5, 6, 7, 8 );");
        database->Execute(InsertItem + "1, \"" + name + "\", 1, 2, 3, 4, 5, 6, 7, 8 );");
        EXPECT_EQ(database->Query("SELECT Name FROM tblItem"), (Rows{{name}, {name}}));
    }
}

TEST_F(DatabaseTest, AreaQueryFindsTheWorldThatWasWritten)
{
    database->Execute(InsertItem + "1, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    database->Execute(InsertItem + "2, 'b', 10, 20, 5, 0, 3, 100, 0, 7 );");
    database->Execute(InsertItem + "3, 'c', 11, 20, -5, 0, 3, 101, 0, 7 );");
    database->Execute(InsertItem + "4, 'd', 10, 20, 5, 0, 2, 102, 0, 7 );");
    database->Execute(InsertItem + "5, 'e', 10, 20, 5, 0, 3, 103, 0, 6 );");
    const std::string area = "ID, X, Y, Z FROM tblItem WHERE X >= 10 AND X <= 11 AND Y >= 20 AND Y <= 20 AND "
                             "Z >= -10 AND Z <= 10";
    EXPECT_EQ(database->Query("SELECT DISTINCT " + area + " AND WorldNumber = 3 AND InstanceID = 7 ORDER BY Z, Y, X"),
              (Rows{{"101", "11", "20", "-5"}, {"100", "10", "20", "5"}}));
    EXPECT_EQ(database->Query("SELECT " + area).size(), 5U);
}

TEST_F(DatabaseTest, DeleteStarEmptiesBothTables)
{
    database->Execute(InsertItem + "1, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    database->Execute(InsertCharacter + "1, \"Iolo\", 1, 2, 3, 0, 4, 400, 0 );");
    database->Execute("DELETE * FROM tblItem;");
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"0"}});
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblCharacter"), Rows{{"1"}});
    database->Execute("DELETE * FROM tblCharacter;");
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblCharacter"), Rows{{"0"}});
}

TEST_F(DatabaseTest, AbsentValuesAreEmptyTexts)
{
    database->Execute("INSERT INTO tblItem( Serial ) VALUES( 4294967296 )");
    EXPECT_EQ(database->Query("SELECT Serial, Name, X FROM tblItem"), (Rows{{"4294967296", "", ""}}));
    EXPECT_EQ(database->Query("SELECT Name FROM tblItem WHERE Serial = 0"), Rows{});
}

TEST_F(DatabaseTest, LiteralsThatCannotBeParametersStillWork)
{
    EXPECT_EQ(database->Query("SELECT 'yes' WHERE CAST(12 AS VARCHAR(10)) = '12' AND X'41' = CAST('A' AS BLOB)"),
              Rows{{"yes"}});
    EXPECT_EQ(FailureOf([&] { database->Query("SELECT Nmae FROM tblItem WHERE X = 5"); }),
              Failure(1, "no such column: Nmae"));
}

TEST_F(DatabaseTest, NumbersWithAPointAreCompared)
{
    EXPECT_EQ(database->Query("SELECT 'less' WHERE 1.5 < 1.75"), Rows{{"less"}});
    EXPECT_EQ(database->Query("SELECT 'less' WHERE 2.5 < 1.75"), Rows{});
    EXPECT_EQ(database->Query("SELECT 'equal' WHERE 25E-1 = 2.5"), Rows{{"equal"}});
}

TEST_F(DatabaseTest, RowFunctionMayUseTheDatabase)
{
    for (int serial = 1; serial <= 20; ++serial) {
        database->Execute(InsertCharacter + std::to_string(serial) + ", 'x', 1, 2, 3, 0, 4, 400, 0 );");
    }
    int rows = 0;
    database->ForEachRow("SELECT Serial FROM tblCharacter WHERE X = 1", [&](std::span<const std::string_view> row) {
        ++rows;
        const std::string serial(row[0]);
        database->Execute("INSERT INTO tblItem( Serial, Name ) VALUES( " + serial + ", 'of " + serial + "' )");
        database->ForEachRow("SELECT Serial FROM tblCharacter WHERE X = 2",
                             [](std::span<const std::string_view>) { FAIL(); });
    });
    EXPECT_EQ(rows, 20);
    EXPECT_EQ(database->Query("SELECT COUNT(DISTINCT Name) FROM tblItem"), Rows{{"20"}});
}

TEST_F(DatabaseTest, QueriesWithinQueriesHaveNoLimit)
{
    database->Execute(InsertCharacter + "1, 'x', 1, 2, 3, 0, 4, 400, 0 );");
    constexpr int                  Depth = 40;
    int                            reached = 0;
    const std::function<void(int)> descend = [&](int depth) {
        database->ForEachRow("SELECT Serial FROM tblCharacter WHERE X < " + std::to_string(depth + 2),
                             [&](std::span<const std::string_view> row) {
                                 EXPECT_EQ(row[0], "1");
                                 reached = depth;
                                 if (depth < Depth) {
                                     descend(depth + 1);
                                 }
                                 EXPECT_EQ(row[0], "1");
                             });
    };
    descend(1);
    EXPECT_EQ(reached, Depth);
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblCharacter WHERE X < 5"), Rows{{"1"}});
}

TEST_F(DatabaseTest, WhatARowFunctionThrowsEndsTheQuery)
{
    database->Execute(InsertCharacter + "1, 'x', 1, 2, 3, 0, 4, 400, 0 );");
    const auto stop = [](std::span<const std::string_view>) { throw std::domain_error("stop"); };
    for (int round = 0; round < 20; ++round) {
        EXPECT_THROW(database->ForEachRow("SELECT Serial FROM tblCharacter WHERE X = 1", stop), std::domain_error);
    }
    database->Execute("DELETE * FROM tblCharacter;");
    database->Commit();
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblCharacter"), Rows{{"0"}});
}

TEST_F(DatabaseTest, GroupsAreSeenInsideAtOnceAndOutsideWhenCommitted)
{
    const auto other = Database::Open(file);
    database->Execute(InsertItem + "1, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    EXPECT_EQ(database->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"1"}});
    EXPECT_EQ(other->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"0"}});
    database->Commit();
    database->Commit();
    EXPECT_EQ(other->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"1"}});
    database->Execute(InsertItem + "2, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    database.reset();
    EXPECT_EQ(other->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"2"}});
}

TEST_F(DatabaseTest, ARefusedStatementKeepsTheRowsBeforeIt)
{
    database->Execute(InsertItem + "1, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    EXPECT_EQ(FailureOf([&] { database->Execute(InsertItem + "2, \"a\"b\", 10, 20, 5, 0, 3, 100, 0, 0 );"); }).first,
              1);
    database->Commit();
    EXPECT_EQ(Database::Open(file)->Query("SELECT Serial FROM tblItem"), Rows{{"1"}});
}

TEST_F(DatabaseTest, AnotherWriterIsTheStoresOwnError)
{
    const auto other = Database::Open(file);
    other->Execute(InsertItem + "1, 'a', 10, 20, 5, 0, 3, 100, 0, 7 );");
    EXPECT_EQ(FailureOf([&] { database->Execute("DELETE * FROM tblItem;"); }), Failure(5, "database is locked"));
    UpgradeDatabase(*database);
    other->Commit();
    database->Execute("DELETE * FROM tblItem;");
    database->Commit();
    EXPECT_EQ(other->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"0"}});
}

TEST_F(DatabaseTest, AGroupEndsByItselfAfterTenThousandStatements)
{
    const auto other = Database::Open(file);
    for (int row = 0; row < 10'500; ++row) {
        const auto number = std::to_string(row);
        database->Execute(InsertItem + number + ", 'n" + number + "', 10, 20, 5, 0, 3, 100, 0, 7 );");
    }
    EXPECT_EQ(other->Query("SELECT COUNT(*) FROM tblItem"), Rows{{"10000"}});
    EXPECT_EQ(database->Query("SELECT COUNT(*), COUNT(DISTINCT Name) FROM tblItem"), (Rows{{"10500", "10500"}}));
}

TEST_F(DatabaseTest, MoreShapesThanAreKept)
{
    for (int round = 0; round < 3; ++round) {
        for (int columns = 1; columns <= 40; ++columns) {
            std::string sql = "SELECT 1";
            for (int column = 1; column < columns; ++column) {
                sql += ", 1";
            }
            sql += " WHERE " + std::to_string(columns) + " = " + std::to_string(columns);
            EXPECT_EQ(database->Query(sql), Rows{Row(static_cast<std::size_t>(columns), "1")});
        }
    }
}

} // namespace
} // namespace qf::world
