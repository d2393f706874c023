#include "world/sql_shape.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/runtime_error.h"

namespace qf::world {
namespace {

using namespace std::string_literals;

std::string Translated(std::string_view sql)
{
    SqlShape shape;
    shape.Parse(sql, SqlShape::Mode::KeepLiterals);
    return shape.Statement();
}

/// The shape, then each literal behind a "|".
std::string Shape(std::string_view sql)
{
    SqlShape shape;
    shape.Parse(sql, SqlShape::Mode::TakeLiterals);
    std::string text = shape.Statement();
    for (const auto& literal : shape.Literals()) {
        text += '|';
        switch (literal.kind) {
        case SqlShape::Kind::Integer: text += std::to_string(literal.integer); break;
        case SqlShape::Kind::Real: text += std::to_string(literal.real); break;
        case SqlShape::Kind::Text: text += shape.Text(literal); break;
        }
    }
    return text;
}

TEST(SqlShape, DeleteStarIsDelete)
{
    EXPECT_EQ(Translated("DELETE * FROM tblItem;"), "DELETE   FROM tblItem;");
    EXPECT_EQ(Translated("delete*from tblItem"), "delete from tblItem");
}

TEST(SqlShape, OtherStarsStay)
{
    EXPECT_EQ(Translated("SELECT * FROM tblItem"), "SELECT * FROM tblItem");
    EXPECT_EQ(Translated("SELECT COUNT(*) FROM tblItem"), "SELECT COUNT(*) FROM tblItem");
    EXPECT_EQ(Translated("SELECT [DELETE] * 2"), "SELECT [DELETE] * 2");
}

TEST(SqlShape, DoubleQuotesHoldTexts)
{
    EXPECT_EQ(Translated(R"(SELECT "chair")"), "SELECT 'chair'");
    EXPECT_EQ(Translated(R"(SELECT "o'malley's")"), "SELECT 'o''malley''s'");
    EXPECT_EQ(Translated(R"(SELECT "a""b")"), "SELECT 'a\"b'");
    EXPECT_EQ(Translated(R"(SELECT "")"), "SELECT ''");
    EXPECT_EQ(Translated(R"(SELECT "[x] DELETE * -- /* WorldNumber")"), "SELECT '[x] DELETE * -- /* WorldNumber'");
}

TEST(SqlShape, SingleQuotesAndBracketsAreRespected)
{
    EXPECT_EQ(Translated(R"(SELECT 'say "hi"' , [odd "name"])"), R"(SELECT 'say "hi"' , [odd "name"])");
    EXPECT_EQ(Translated("SELECT 'it''s WorldNumber'"), "SELECT 'it''s WorldNumber'");
    EXPECT_EQ(Translated("SELECT `it's`, [it's]"), "SELECT `it's`, [it's]");
}

TEST(SqlShape, TextsWithoutAnEndStayForTheStoreToRefuse)
{
    EXPECT_EQ(Translated("SELECT 'abc"), "SELECT 'abc");
    EXPECT_EQ(Translated("SELECT \"abc"), "SELECT \"abc");
    EXPECT_EQ(Translated("SELECT [abc"), "SELECT [abc");
    EXPECT_EQ(Shape("INSERT INTO t VALUES( \"a\"b\" )"), "INSERT INTO t VALUES( ?b\" )|a");
}

TEST(SqlShape, WorldNumberIsTheColumnWorld)
{
    EXPECT_EQ(Shape("SELECT ID FROM tblItem WHERE WorldNumber = 3 AND worldnumber < 9"),
              "SELECT ID FROM tblItem WHERE World = ? AND World < ?|3|9");
    EXPECT_EQ(Translated("SELECT [WorldNumber], tblItem.WORLDNUMBER"), "SELECT [World], tblItem.World");
    EXPECT_EQ(Translated("SELECT WorldNumbers, xWorldNumber"), "SELECT WorldNumbers, xWorldNumber");
}

TEST(SqlShape, LiteralsOfRowsAreTakenOut)
{
    EXPECT_EQ(Shape("INSERT INTO tblItem( [Serial], [Name], [X] ) VALUES( -5, 'o''malley', 1.5 );"),
              "INSERT INTO tblItem( [Serial], [Name], [X] ) VALUES( -?, ?, ? );|5|o'malley|1.500000");
    EXPECT_EQ(Shape("INSERT INTO t VALUES( \"a'b\", 9223372036854775807, 9223372036854775808 )"),
              "INSERT INTO t VALUES( ?, ?, ? )|a'b|9223372036854775807|9223372036854775808.000000");
}

TEST(SqlShape, LiteralsThatAreNoValuesStay)
{
    EXPECT_EQ(Shape("SELECT 5, X FROM t WHERE X > 7 ORDER BY 1"), "SELECT 5, X FROM t WHERE X > ? ORDER BY 1|7");
    EXPECT_EQ(Shape("SELECT X FROM t WHERE X IN (SELECT 2 FROM u WHERE Y = 3 LIMIT 1)"),
              "SELECT X FROM t WHERE X IN (SELECT 2 FROM u WHERE Y = ? LIMIT 1)|3");
    EXPECT_EQ(Shape("CREATE INDEX i ON t(X) WHERE X > 5"), "CREATE INDEX i ON t(X) WHERE X > 5");
    EXPECT_EQ(Shape("INSERT INTO t VALUES( 0x1F, 12abc, t1 )"), "INSERT INTO t VALUES( 0x1F, 12abc, t1 )");
}

TEST(SqlShape, ASignBelongsToANumberBehindTheLetterOfAnExponent)
{
    EXPECT_EQ(Shape("INSERT INTO t VALUES( 1e5, 1E+2, 2e-1, .5, 7., 3E-1x )"),
              "INSERT INTO t VALUES( ?, ?, ?, ?, ?, 3E-1x )|100000.000000|100.000000|0.200000|0.500000|7.000000");
    EXPECT_EQ(Shape("INSERT INTO t VALUES( 3-1, 4+2, 5E, 6e, 1_0, 7$, . )"),
              "INSERT INTO t VALUES( ?-?, ?+?, 5E, 6e, 1_0, 7$, . )|3|1|4|2");
}

TEST(SqlShape, AStatementThatBeginsLikeTheOneBeforeIsReadTheSame)
{
    const std::vector<std::string> statements = {
        "INSERT INTO t( [X], WorldNumber ) VALUES( 1, 'a' );",
        "INSERT INTO t( [X], WorldNumber ) VALUES( 2, \"b\" );",
        "INSERT INTO t( [X], WorldNumber ) VALUES",
        "INSERT INTO t( [X], WorldNumber ) VALUES2( 3, 'c' );",
        "INSERT INTO t( [X], WorldNumber ) SELECT 4, 'd'",
        "INSERT INTO t( [X], WorldNumber ) VALUES( 5, 'e' ) RETURNING 6",
        "SELECT 'x' VALUES( 7 )",
        "SELECT 'y' VALUES( 8 )",
        "SELECT X FROM t WHERE X = 9 VALUES( 10 )",
        "SELECT X FROM t WHERE X = 9 VALUES( 11 )",
        "DELETE VALUES * FROM t",
        "DELETE VALUES( 12 )",
        "CREATE VALUES( 13 )",
        "INSERT INTO t( [X], WorldNumber ) VALUES( 14, 'f' );",
    };
    SqlShape shape;
    for (const auto mode : {SqlShape::Mode::TakeLiterals, SqlShape::Mode::KeepLiterals, SqlShape::Mode::TakeLiterals}) {
        for (const auto& first : statements) {
            for (const auto& second : statements) {
                shape.Parse(first, SqlShape::Mode::TakeLiterals);
                shape.Parse(second, mode);
                SqlShape fresh;
                fresh.Parse(second, mode);
                EXPECT_EQ(shape.Statement(), fresh.Statement()) << first << " before " << second;
                ASSERT_EQ(shape.Literals().size(), fresh.Literals().size()) << first << " before " << second;
                for (std::size_t i = 0; i < fresh.Literals().size(); ++i) {
                    EXPECT_EQ(shape.Literals()[i].integer, fresh.Literals()[i].integer);
                    EXPECT_EQ(shape.Text(shape.Literals()[i]), fresh.Text(fresh.Literals()[i]));
                }
            }
        }
    }
}

TEST(SqlShape, CommentsAreBlanks)
{
    EXPECT_EQ(Translated("SELECT 1 -- it's\n, 2 /* \" */, 3 /* open"), "SELECT 1   , 2  , 3  ");
}

TEST(SqlShape, ParametersOfTheTextsOwnAreRefused)
{
    for (const auto& sql : {"SELECT ?"s, "SELECT ?1"s, "SELECT :a"s, "SELECT @a"s, "SELECT $a"s, "SELECT 1\0"s}) {
        SqlShape shape;
        try {
            shape.Parse(sql, SqlShape::Mode::TakeLiterals);
            ADD_FAILURE() << sql;
        } catch (const core::RuntimeError& error) {
            EXPECT_EQ(error.Number(), 1);
        }
    }
    EXPECT_EQ(Translated("SELECT '?:@$', [?]"), "SELECT '?:@$', [?]");
}

} // namespace
} // namespace qf::world
