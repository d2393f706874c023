#include "world/extraction.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <sstream>
#include <utility>

#include "failure_of.h"
#include "plain_walk.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "world/database.h"
#include "world/item_table.h"

#ifndef _WIN32
#include "support/file_size_limit.h"
#endif

namespace qf::world {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

struct Place {
    int x = 0;
    int y = 0;
    int z = 0;
    int world = 0;
    int instance = 0;
};

class ExtractionTest : public testing::Test {
  protected:
    ExtractionTest()
    {
        CreateWorldDatabase(folder.Path() / "qf.mdb");
        database = Database::Open(folder.Path() / "qf.mdb");
        UpgradeDatabase(*database);
        folder.MakeFolder("Templates");
        state = {.txtX = "0",
                 .txtY = "0",
                 .txtZ = "-128",
                 .txtX2 = "100",
                 .txtY2 = "100",
                 .txtZ2 = "127",
                 .txtWorld = "0",
                 .txtInstance = "0",
                 .txtName = "Hut",
                 .txtDescription = ""};
    }

    void Add(int id, const Place& place, const std::string& name = "item", int type = 0)
    {
        ++serial;
        std::ostringstream sql;
        sql << "INSERT INTO tblItem( [Serial], [Name], [X], [Y], [Z], [Container], [World], [ID], [iType], "
               "[InstanceID] ) VALUES( "
            << serial << ", '" << name << "', " << place.x << ", " << place.y << ", " << place.z << ", 0, "
            << place.world << ", " << id << ", " << type << ", " << place.instance << " );";
        database->Execute(sql.str());
    }

    void AddBox(int id, int x1, int y1, int x2, int y2, int z)
    {
        for (int y = y1; y <= y2; ++y) {
            for (int x = x1; x <= x2; ++x) {
                Add(id, {x, y, z});
            }
        }
    }

    void Build() { WriteOptimizedTemplate(state, folder.ProgramPath(), *database, outlet); }
    void BuildPlain() { WritePlainTemplate(state, folder.ProgramPath(), *database, outlet); }

    /// The lines of a template; each must end with CR LF.
    Lines LinesOf(const std::string& name) const
    {
        Lines      lines;
        const auto bytes = folder.Read("Templates/" + name);
        for (std::size_t begin = 0; begin < bytes.size();) {
            const auto end = bytes.find("\r\n", begin);
            if (end == std::string::npos) {
                ADD_FAILURE() << name << " has a line without an end";
                break;
            }
            lines.push_back(bytes.substr(begin, end - begin));
            begin = end + 2;
        }
        return lines;
    }

    Lines BuiltLines()
    {
        Build();
        auto lines = LinesOf("Hut.tmp");
        EXPECT_FALSE(lines.empty());
        EXPECT_EQ(lines.front(), ":Hut");
        lines.erase(lines.begin());
        return lines;
    }

    std::string SuccessBox(const std::string& name) const
    {
        return "box 64 Optimized template '" + folder.ProgramPath() + "\\Templates\\" + name +
               "' created successfully!";
    }

    const test::TempFolder    folder;
    std::unique_ptr<Database> database;
    test::RecordingOutlet     outlet;
    ExtractionState           state;
    int                       serial = 0;
};

TEST(OptimizedQueryText, AllEightNumbers)
{
    EXPECT_EQ(OptimizedQuery({.x1 = 1, .y1 = 2, .z1 = -3, .x2 = 4, .y2 = 5, .z2 = 6, .world = 7, .instance = 8}),
              "SELECT DISTINCT ID, X, Y, Z FROM tblItem WHERE X >= 1 AND X <= 4 AND Y >= 2 AND Y <= 5 AND Z >= -3 AND "
              "Z <= 6 AND WorldNumber = 7 AND InstanceID = 8 ORDER BY Z, Y, X");
}

TEST_F(ExtractionTest, FloorIsOneLineFromItsOwnCorner)
{
    AddBox(0x51A, 10, 20, 12, 21, 5);
    EXPECT_EQ(BuiltLines(), Lines{"TILEW 05 1A 0 2 0 1 0"});
    EXPECT_EQ(outlet.Lines(), Lines{SuccessBox("Hut.tmp")});
}

TEST_F(ExtractionTest, LShapeIsTwoLines)
{
    Add(0x51A, {0, 0, 0});
    Add(0x51A, {1, 0, 0});
    Add(0x51A, {0, 1, 0});
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 05 1A 0 1 0 0 0", "TILEW 05 1A 0 0 1 1 0"}));
}

TEST_F(ExtractionTest, OneCellOfEachTileGetsItsOwnLine)
{
    Add(7, {3, 4, 0});
    Add(0x1B4D, {3, 4, 0});
    auto lines = BuiltLines();
    std::ranges::sort(lines);
    EXPECT_EQ(lines, (Lines{"TILEW 00 07 0 0 0 0 0", "TILEW 1B 4D 0 0 0 0 0"}));
}

TEST_F(ExtractionTest, SameTileAtTwoHeightsIsTwoLayers)
{
    Add(7, {3, 4, 20});
    Add(7, {3, 4, -5});
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 00 07 0 0 0 0 0", "TILEW 00 07 0 0 0 0 25"}));
}

TEST_F(ExtractionTest, LowestLayerFirstThenByFirstSight)
{
    Add(3, {5, 5, 20});
    Add(2, {1, 1, 0});
    Add(1, {9, 0, 0});
    Add(2, {0, 2, 0});
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 00 01 9 9 0 0 0", "TILEW 00 02 1 1 1 1 0", "TILEW 00 02 0 0 2 2 0",
                                   "TILEW 00 03 5 5 5 5 20"}));
}

TEST_F(ExtractionTest, OriginIsTheSmallestOfEachCoordinate)
{
    // The three smallest numbers lie on three different items, and none at the corner of the box.
    Add(1, {50, 30, 10});
    Add(1, {40, 60, 10});
    Add(1, {70, 70, 4});
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 00 01 30 30 40 40 0", "TILEW 00 01 10 10 0 0 6", "TILEW 00 01 0 0 30 30 6"}));
}

TEST_F(ExtractionTest, CornersBelongToTheBox)
{
    state.txtX = "10";
    state.txtY = "20";
    state.txtZ = "0";
    state.txtX2 = "12";
    state.txtY2 = "22";
    state.txtZ2 = "5";
    for (const int z : {-1, 0, 5, 6}) {
        AddBox(1, 8, 18, 14, 24, z);
    }
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 00 01 0 2 0 2 0", "TILEW 00 01 0 2 0 2 5"}));
}

TEST_F(ExtractionTest, WorldAndInstanceAreFilters)
{
    Add(1, {1, 1, 0, 0, 0});
    Add(2, {1, 1, 0, 1, 0});
    Add(3, {1, 1, 0, 0, 1});
    Add(4, {1, 1, 0, 1, 1});
    state.txtWorld = "1";
    EXPECT_EQ(BuiltLines(), Lines{"TILEW 00 02 0 0 0 0 0"});
    state.txtName = "Second";
    state.txtInstance = "1";
    Build();
    EXPECT_EQ(LinesOf("Second.tmp"), (Lines{":Second", "TILEW 00 04 0 0 0 0 0"}));
}

TEST_F(ExtractionTest, EveryItemOnceHoweverOftenItLiesThere)
{
    Add(1, {1, 1, 0});
    Add(1, {1, 1, 0});
    Add(1, {2, 1, 0});
    EXPECT_EQ(BuiltLines(), Lines{"TILEW 00 01 0 1 0 0 0"});
}

TEST_F(ExtractionTest, TileOfMoreThanFourDigits)
{
    Add(0x12345, {1, 1, 0});
    EXPECT_EQ(BuiltLines(), Lines{"TILEW 12 45 0 0 0 0 0"});
}

TEST_F(ExtractionTest, NothingInTheBoxLeavesTheHeadAlone)
{
    state.txtDescription = "A hut";
    Build();
    EXPECT_EQ(LinesOf("Hut.tmp"), (Lines{":Hut", "DESC A hut"}));
    EXPECT_EQ(outlet.Lines(), Lines{SuccessBox("Hut.tmp")});

    Add(1, {1, 1, 0});
    state.txtX = "100";
    state.txtX2 = "0";
    Build();
    EXPECT_EQ(LinesOf("Hut0.tmp"), (Lines{":Hut", "DESC A hut"}));
}

TEST_F(ExtractionTest, HugeAndNegativeCornersAreJustNumbers)
{
    Add(1, {-5, 0, 0});
    Add(1, {6143, 4095, 0});
    state.txtX = "-2147483648";
    state.txtY = "-2147483648";
    state.txtX2 = "2147483647";
    state.txtY2 = " 2147483646.5 ";
    EXPECT_EQ(BuiltLines(), (Lines{"TILEW 00 01 0 0 0 0 0", "TILEW 00 01 6148 6148 4095 4095 0"}));
}

TEST_F(ExtractionTest, OffsetThatDoesNotFitIsAnOverflow)
{
    database->Execute("INSERT INTO tblItem( X, Y, Z, World, ID, InstanceID ) VALUES( -2147483648, 0, 0, 0, 1, 0 )");
    Add(1, {1, 0, 0});
    state.txtX = "-2147483648";
    EXPECT_RUNTIME_ERROR(6, Build());
}

TEST_F(ExtractionTest, NameIsWanted)
{
    state.txtName = "";
    state.txtX = "no number";
    Build();
    BuildPlain();
    EXPECT_EQ(outlet.Lines(), Lines(2, "box 64 You must supply a name for this building"));
    EXPECT_TRUE(fs::is_empty(folder.Path() / "Templates"));
}

TEST_F(ExtractionTest, FirstFreeNumberBehindTheName)
{
    Build();
    Build();
    Build();
    EXPECT_EQ(outlet.Lines(), (Lines{SuccessBox("Hut.tmp"), SuccessBox("Hut0.tmp"), SuccessBox("Hut1.tmp")}));
    EXPECT_EQ(LinesOf("Hut1.tmp"), Lines{":Hut"});

    fs::remove(folder.Path() / "Templates/Hut0.tmp");
    folder.Write("Templates/Hut2.tmp", "mine");
    Build();
    Build();
    EXPECT_EQ(outlet.Lines()[3], SuccessBox("Hut0.tmp"));
    EXPECT_EQ(outlet.Lines()[4], SuccessBox("Hut3.tmp"));
    EXPECT_EQ(folder.Read("Templates/Hut2.tmp"), "mine");
}

TEST_F(ExtractionTest, NameInAnotherCaseIsTaken)
{
    folder.Write("Templates/hUT.TMP", "mine");
    Build();
    EXPECT_EQ(outlet.Lines(), Lines{SuccessBox("Hut0.tmp")});
    EXPECT_EQ(folder.Read("Templates/hUT.TMP"), "mine");
}

TEST_F(ExtractionTest, TextsAreAnsi)
{
    state.txtName = "H\xC3\xBCtte";
    state.txtDescription = "\xE2\x82\xAC 5, \xD0\x96";
    Build();
    EXPECT_EQ(folder.Read("Templates/H\xC3\xBCtte.tmp"), ":H\xFCtte\r\nDESC \x80 5, ?\r\n");
}

TEST_F(ExtractionTest, BoxWithoutANumberLeavesTheHeadAlone)
{
    state.txtDescription = "A hut";
    const std::vector<std::string ExtractionState::*> boxes{
        &ExtractionState::txtX,  &ExtractionState::txtY,  &ExtractionState::txtZ,     &ExtractionState::txtX2,
        &ExtractionState::txtY2, &ExtractionState::txtZ2, &ExtractionState::txtWorld, &ExtractionState::txtInstance};
    for (std::size_t box = 0; box < boxes.size(); ++box) {
        for (const auto& [text, number] : {std::pair("", 13), std::pair("x", 13), std::pair("3000000000", 6)}) {
            auto broken = state;
            broken.*boxes[box] = text;
            broken.txtName = "Box" + std::to_string(box) + "_" + text;
            EXPECT_RUNTIME_ERROR(number, WriteOptimizedTemplate(broken, folder.ProgramPath(), *database, outlet));
            EXPECT_EQ(LinesOf(broken.txtName + ".tmp"), (Lines{":" + broken.txtName, "DESC A hut"}));
        }
    }
    EXPECT_TRUE(outlet.Lines().empty());
}

TEST_F(ExtractionTest, RefusedQueryLeavesTheHeadAlone)
{
    database->Execute("DROP TABLE tblItem");
    EXPECT_EQ(FailureOf([&] { Build(); }), std::pair(1, std::string("no such table: tblItem")));
    EXPECT_EQ(LinesOf("Hut.tmp"), Lines{":Hut"});
}

TEST_F(ExtractionTest, MissingFolder)
{
    fs::remove(folder.Path() / "Templates");
    EXPECT_RUNTIME_ERROR(76, Build());
    EXPECT_FALSE(fs::exists(folder.Path() / "Templates"));
    folder.Write("Templates", "a file");
    EXPECT_RUNTIME_ERROR(76, Build());
}

TEST_F(ExtractionTest, NamesThatNoFileHas)
{
    state.txtName = std::string("Hut\0x", 5);
    EXPECT_EQ(FailureOf([&] { Build(); }), std::pair(52, std::string("Bad file name or number")));
    state.txtName = std::string(300, 'x');
    EXPECT_RUNTIME_ERROR(52, Build());
    EXPECT_TRUE(fs::is_empty(folder.Path() / "Templates"));
}

#ifndef _WIN32
TEST_F(ExtractionTest, AFullDiskIsToldAndNothingIsCalledDone)
{
    database->Commit();
    const test::FileSizeLimit limit(3);
    EXPECT_RUNTIME_ERROR(75, Build());
    EXPECT_EQ(outlet.Lines(), Lines{});
}
#endif

TEST_F(ExtractionTest, SeparatorInTheNameLeadsIntoAFolder)
{
    state.txtName = "Town\\Hut";
    EXPECT_RUNTIME_ERROR(76, Build());
    folder.MakeFolder("Templates/Town");
    Build();
    EXPECT_EQ(LinesOf("Town/Hut.tmp"), Lines{":Town\\Hut"});
}

TEST_F(ExtractionTest, EqualsTheWalkOnRandomBuildings)
{
    std::mt19937 draw(43); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    const auto   below = [&](unsigned limit) { return static_cast<int>(draw() % limit); };
    // Some pieces reach beyond the box.
    state.txtX2 = "16";
    state.txtY2 = "16";
    for (int round = 0; round < 1000; ++round) {
        database->Execute("DELETE * FROM tblItem;");
        for (int piece = 0; piece <= below(6); ++piece) {
            const int x = below(14);
            const int y = below(14);
            const int z = below(3) * 20 - 5;
            AddBox(below(3) + 0x4A9, x, y, x + below(6), y + below(6), z);
            // A hole, or nothing where there was none.
            database->Execute("DELETE * FROM tblItem WHERE X = " + std::to_string(x + below(4)) +
                              " AND Y = " + std::to_string(y + below(4)));
        }
        std::vector<test::WalkRow> rows;
        for (const auto& row : database->Query(OptimizedQuery({0, 0, -128, 16, 16, 127, 0, 0}))) {
            rows.push_back({std::stoi(row[0]), std::stoi(row[1]), std::stoi(row[2]), std::stoi(row[3])});
        }
        fs::remove(folder.Path() / "Templates/Hut.tmp");
        ASSERT_EQ(BuiltLines(), test::WalkLines(rows, {0, 0, 16, 16})) << round;
    }
}

TEST_F(ExtractionTest, PlainTemplateHoldsEveryItem)
{
    Add(0x51A, {12, 20, 7});
    Add(0x51A, {12, 20, 7, 1, 3});
    Add(0x12345, {10, 25, -3});
    Add(1, {101, 0, 0});
    state.txtX = "11";
    state.txtX2 = "100";
    state.txtY = "22";
    state.txtY2 = "0";
    state.txtDescription = "As it is";
    BuildPlain();
    EXPECT_EQ(LinesOf("Hut.tmp"), (Lines{":Hut", "DESC As it is"}));

    state.txtY = "15";
    state.txtY2 = "100";
    state.txtX = "10";
    state.txtZ = "-4";
    state.txtWorld = "nowhere";
    state.txtInstance = "";
    BuildPlain();
    EXPECT_EQ(LinesOf("Hut0.tmp"), (Lines{":Hut", "DESC As it is", "05 1A 2 5 11", "05 1A 2 5 11", "12 45 0 10 1"}));
    EXPECT_TRUE(outlet.Lines().empty());
}

TEST_F(ExtractionTest, PlainTemplateWithABoxWithoutANumber)
{
    state.txtZ2 = "";
    EXPECT_RUNTIME_ERROR(13, BuildPlain());
    EXPECT_EQ(LinesOf("Hut.tmp"), Lines{":Hut"});
}

class ExtractItemsTest : public ExtractionTest {
  protected:
    bool Extract()
    {
        return ExtractItems(state, *database, outlet, [this] {
            ++filled;
            table.Read(*database);
        });
    }

    ItemTable table;
    int       filled = 0;
};

TEST_F(ExtractItemsTest, TellsTheCountAndListsEverything)
{
    Add(0x1B4D, {5, 5, 0}, "a chair", 51);
    Add(10, {5000, 4000, 0, 3, 9}, "far away", 9999);
    EXPECT_TRUE(Extract());
    EXPECT_EQ(outlet.Lines(),
              Lines{"box 64 [Debug Info] Database Check: Found a total of 2 items loaded in the database."});
    ASSERT_EQ(table.Count(), 2U);
    EXPECT_EQ(table.At(0).name, "a chair");
    EXPECT_EQ(table.At(0).id, 0x1B4D);
    EXPECT_EQ(table.At(0).serial, 1);
    EXPECT_EQ(table.At(0).type, 51);
    EXPECT_EQ(table.At(1).name, "far away");
    EXPECT_EQ(table.At(1).type, 9999);
}

TEST_F(ExtractItemsTest, CountComesBeforeTheCorners)
{
    state.txtZ2 = "N/A";
    EXPECT_FALSE(Extract());
    EXPECT_EQ(outlet.Lines(),
              (Lines{"box 64 [Debug Info] Database Check: Found a total of 0 items loaded in the database.",
                     "box 0 Please fill in a valid set of coordinates!"}));
    EXPECT_EQ(filled, 0);
}

TEST_F(ExtractItemsTest, EachCornerIsChecked)
{
    for (auto box : {&ExtractionState::txtX, &ExtractionState::txtY, &ExtractionState::txtZ, &ExtractionState::txtX2,
                     &ExtractionState::txtY2, &ExtractionState::txtZ2}) {
        const auto kept = std::exchange(state.*box, "");
        EXPECT_FALSE(Extract());
        EXPECT_EQ(outlet.Lines().back(), "box 0 Please fill in a valid set of coordinates!");
        state.*box = kept;
    }
    state.txtX = "3000000000";
    EXPECT_FALSE(Extract());
    EXPECT_EQ(outlet.Lines().back(), "box 0 Overflow");
    EXPECT_EQ(filled, 0);
}

TEST_F(ExtractItemsTest, WorldInstanceAndNameDoNotMatter)
{
    state.txtWorld = "";
    state.txtInstance = "x";
    state.txtName = "";
    EXPECT_TRUE(Extract());
    EXPECT_EQ(filled, 1);
}

TEST_F(ExtractItemsTest, FailuresOfTheDatabaseAreShown)
{
    database->Execute("DROP TABLE tblItem");
    EXPECT_FALSE(Extract());
    EXPECT_EQ(outlet.Lines(), Lines{"box 0 no such table: tblItem"});
}

TEST_F(ExtractItemsTest, RowsBeforeABrokenOneStay)
{
    Add(1, {1, 1, 0}, "first");
    database->Execute("INSERT INTO tblItem( Name, ID, Serial, iType ) VALUES( 'broken', 99999999999, 2, 0 )");
    Add(1, {1, 1, 0}, "third");
    EXPECT_FALSE(Extract());
    EXPECT_EQ(outlet.Lines().back(), "box 0 Overflow");
    ASSERT_EQ(table.Count(), 1U);
    EXPECT_EQ(table.At(0).name, "first");
}

TEST_F(ExtractItemsTest, SecondReadingDropsTheFirst)
{
    Add(1, {1, 1, 0}, "old");
    EXPECT_TRUE(Extract());
    database->Execute("DELETE * FROM tblItem;");
    Add(2, {1, 1, 0}, "");
    EXPECT_TRUE(Extract());
    ASSERT_EQ(table.Count(), 1U);
    EXPECT_EQ(table.At(0).name, "");
    EXPECT_EQ(table.At(0).id, 2);
}

TEST(ExtractionHelp, PointsAtTheReadme)
{
    test::RecordingOutlet outlet;
    ShowExtractionHelp(outlet);
    EXPECT_EQ(outlet.Lines(),
              Lines{"box 0 Look in the file Quernfield Readme.txt that comes with Quernfield for closer information on "
                    "how to make templates using this tool."});
}

} // namespace
} // namespace qf::world
