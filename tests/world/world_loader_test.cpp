#include "world/world_loader.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/host_path.h"
#include "failure_of.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "support/world_files.h"
#include "world/line_file.h"

namespace qf::world {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;
using Rows = std::vector<std::vector<std::string>>;

constexpr auto MissingBox = "box 0 Items.wsc does not exist, please check your path!";

std::string Scanned(int count)
{
    return "box 64 [Load Status] World file scan complete.\r\nFound and processed " + std::to_string(count) +
           " .wsc files.";
}

class WorldLoaderTest : public testing::Test {
  protected:
    WorldLoaderTest()
    {
        CreateWorldDatabase(data.Path() / "qf.mdb");
        database = Database::Open(data.Path() / "qf.mdb");
        UpgradeDatabase(*database);
        database->Execute("INSERT INTO tblItem( Serial, Name ) VALUES( 99, 'of an earlier load' )");
        database->Execute("INSERT INTO tblCharacter( Serial, Name ) VALUES( 99, 'of an earlier load' )");
    }

    bool Load(core::ServerGeneration generation)
    {
        return LoadWorld(*database, outlet, generation, server.ProgramPath() + "\\zarn.exe");
    }

    Rows Items() { return database->Query("SELECT * FROM tblItem"); }
    Rows Characters() { return database->Query("SELECT * FROM tblCharacter"); }

    Rows ItemNames() { return database->Query("SELECT Name FROM tblItem"); }

    const test::TempFolder    server;
    const test::TempFolder    data;
    std::unique_ptr<Database> database;
    test::RecordingOutlet     outlet;
};

TEST_F(WorldLoaderTest, AnotherGenerationEmptiesTheTablesAndLoadsNothing)
{
    server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\n}\n");
    server.Write("chars.wsc", "{\nSERIAL 1\n}\n");
    server.Write("shared/0.0.wsc", "[ITEM]\nSerial=1\n");
    for (const std::int16_t generation : std::initializer_list<std::int16_t>{-1, 2, 7}) {
        EXPECT_FALSE(Load(core::ServerGeneration(generation)));
    }
    EXPECT_EQ(Items(), Rows{});
    EXPECT_EQ(Characters(), Rows{});
    EXPECT_EQ(outlet.Lines(), Lines{});
}

TEST_F(WorldLoaderTest, OlderLayoutWithoutItsFiles)
{
    EXPECT_FALSE(Load(core::Generation070));
    server.Write("chars.wsc", "{\nSERIAL 1\n}\n");
    EXPECT_FALSE(Load(core::Generation070));
    fs::remove(server.Path() / "chars.wsc");
    server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\n}\n");
    EXPECT_FALSE(Load(core::Generation070));
    server.MakeFolder("chars.wsc");
    EXPECT_FALSE(Load(core::Generation070));
    EXPECT_EQ(outlet.Lines(), (Lines{MissingBox, MissingBox, MissingBox, MissingBox}));
    EXPECT_EQ(Items(), Rows{});
    EXPECT_EQ(Characters(), Rows{});
}

TEST_F(WorldLoaderTest, OlderLayoutFillsBothTables)
{
    server.Write("items.wsc", "WORLDITEM\r\n{\r\nSERIAL 5\r\nID 2894\r\nNAME o'malley's chair\r\nCONT -1\r\nTYPE 12\r\n"
                              "X 10\r\nY 20\r\nZ -5\r\nSTAMINA 70000\r\n}\r\n");
    server.Write("chars.wsc", "{\r\nSERIAL 6\r\nNAME  \r\nX 1\r\nY 2\r\nZ 3\r\nOWNER 4\r\nMANA 65536\r\n}\r\n");
    EXPECT_TRUE(Load(core::Generation070));
    EXPECT_EQ(Items(), (Rows{{"5", "o'malley's chair", "10", "20", "-5", "-1", "0", "2894", "12", "0"}}));
    EXPECT_EQ(Characters(), (Rows{{"6", " ", "1", "2", "3", "0", "4", "0", "0"}}));
    EXPECT_EQ(outlet.Lines(), (Lines{"box 0 Char   with serial 6 has an invalid mana value 65536",
                                     "box 0 Item o'malley's chair with serial 5 has an invalid stamina value 70000"}));
}

TEST_F(WorldLoaderTest, OlderLayoutReadsCharactersFirst)
{
    server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\n}\nWORLDITEM\n{\nSERIAL none\n}\n");
    server.Write("chars.wsc", "{\nSERIAL 6\n}\n");
    EXPECT_EQ(FailureOf([&] { Load(core::Generation070); }), std::pair(13, std::string("Type mismatch")));
    EXPECT_EQ(Items().size(), 1U);
    EXPECT_EQ(Characters().size(), 1U);
}

TEST_F(WorldLoaderTest, OlderLayoutBreaksAtADoubleQuoteInAName)
{
    for (const std::string name : {R"(a "b" c)", R"(")", R"(chair")", R"("chair)"}) {
        SCOPED_TRACE(name);
        server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\nNAME kept\n}\nWORLDITEM\n{\nSERIAL 2\nNAME " + name +
                                      "\n}\nWORLDITEM\n{\nSERIAL 3\nNAME never\n}\n");
        server.Write("chars.wsc", "");
        EXPECT_EQ(FailureOf([&] { Load(core::Generation070); }).first, 1);
        EXPECT_EQ(ItemNames(), (Rows{{"kept"}}));
    }
}

TEST_F(WorldLoaderTest, OlderLayoutFindsItsFilesInAnyCase)
{
    server.Write("ITEMS.WSC", "WORLDITEM\n{\nSERIAL 1\n}\n");
    server.Write("Chars.wsc", "{\nSERIAL 1\n}\n");
    EXPECT_TRUE(Load(core::Generation070));
    EXPECT_EQ(Items().size(), 1U);
}

TEST_F(WorldLoaderTest, NewerLayoutFillsBothTables)
{
    server.Write("shared/12.34.wsc",
                 "[ITEM]\r\nSerial=0x40000001\r\nID=0xB4E\r\nName=o'malley's \"chair\"\r\nLocation=10,20,-5,1,7\r\n"
                 "Cont=-1\r\nType=12\r\n[ITEM]\r\nSerial=0x80000000\r\nName=   \r\n[CHARACTER]\r\nSerial=6\r\n"
                 "Name=J\xFCrgen\r\nLocation=1,2,3,4\r\nOwnerID=0x10\r\nID=400\r\n[CHARACTER]\r\nSerial=7\r\n");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(Items(), (Rows{{"1073741825", "o'malley's \"chair\"", "10", "20", "-5", "-1", "1", "2894", "12", "7"},
                             {"-2147483648", "(no name)", "0", "0", "0", "0", "0", "0", "0", "0"}}));
    EXPECT_EQ(Characters(), (Rows{{"6", "J\xC3\xBCrgen", "1", "2", "3", "4", "16", "400", "0"},
                                  {"7", "(no name)", "0", "0", "0", "0", "0", "0", "0"}}));
    EXPECT_EQ(outlet.Lines(), Lines{Scanned(1)});
}

TEST_F(WorldLoaderTest, NewerLayoutKeepsBlanksAroundANameThatIsNone)
{
    server.Write("shared/0.0.wsc", "[ITEM]\nSerial=1\nName= x'' \n[ITEM]\nSerial=2\nName=\t\n");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(ItemNames(), (Rows{{" x''"}, {"\t"}}));
}

TEST_F(WorldLoaderTest, NewerLayoutWithoutFilesIsALoadedWorld)
{
    EXPECT_TRUE(Load(core::Generation09));
    server.MakeFolder("shared");
    EXPECT_TRUE(Load(core::Generation09));
    server.MakeFolder("shared/1.1.wsc");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(outlet.Lines(), (Lines{Scanned(0), Scanned(0), Scanned(0)}));
    EXPECT_EQ(Items(), Rows{});
    EXPECT_EQ(Characters(), Rows{});
}

TEST_F(WorldLoaderTest, NewerLayoutScansFiftyOneByFiftyOneNames)
{
    for (const auto* name :
         {"0.0", "0.50", "50.0", "50.50", "2.3", "10.1", "51.0", "0.51", "-1.0", "00.0", "1.wsc", "x", "1.1.1"}) {
        server.Write("shared/" + std::string(name) + ".wsc", "[ITEM]\nSerial=1\nName=" + std::string(name) + "\n");
    }
    server.Write("shared/3.3.wsc.old", "[ITEM]\nSerial=1\n");
    server.Write("4.4.wsc", "[ITEM]\nSerial=1\n");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(outlet.Lines(), Lines{Scanned(6)});
    EXPECT_EQ(ItemNames(), (Rows{{"0.0"}, {"0.50"}, {"2.3"}, {"10.1"}, {"50.0"}, {"50.50"}}));
}

TEST_F(WorldLoaderTest, NewerLayoutFindsItsFilesInAnyCase)
{
    server.Write("Shared/1.2.WSC", "[ITEM]\nSerial=1\nName=upper\n");
#ifndef _WIN32
    server.Write("Shared/3.4.Wsc", "[ITEM]\nSerial=1\nName=second\n");
    server.Write("Shared/3.4.WSc", "[ITEM]\nSerial=1\nName=first in byte order\n");
    server.Write("Shared/5.6.WSC", "[ITEM]\nSerial=1\nName=other\n");
    server.Write("Shared/5.6.wsc", "[ITEM]\nSerial=1\nName=as written\n");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(outlet.Lines(), Lines{Scanned(3)});
    EXPECT_EQ(ItemNames(), (Rows{{"upper"}, {"first in byte order"}, {"as written"}}));
#else
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(ItemNames(), Rows{{"upper"}});
#endif
}

TEST_F(WorldLoaderTest, AnEmptyFileIsAFile)
{
    server.Write("shared/0.0.wsc", "");
    server.Write("shared/0.1.wsc", "\r\n\r\n");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(outlet.Lines(), Lines{Scanned(2)});
}

TEST_F(WorldLoaderTest, ABrokenFileEndsTheLoadAndKeepsTheRowsBefore)
{
    server.Write("shared/0.0.wsc", "[ITEM]\nSerial=1\n[ITEM]\nSerial=2\nLocation=1,2,3\n[ITEM]\nSerial=3\n");
    server.Write("shared/0.1.wsc", "[ITEM]\nSerial=4\n");
    EXPECT_EQ(FailureOf([&] { Load(core::Generation09); }), std::pair(9, std::string("Subscript out of range")));
    EXPECT_EQ(database->Query("SELECT Serial FROM tblItem"), Rows{{"1"}});
    EXPECT_EQ(outlet.Lines(), Lines{});
}

TEST_F(WorldLoaderTest, AReloadLeavesOnlyTheNewRows)
{
    test::WriteNewerWorld(server.Path(), 1, 1, test::ItemsOfSeed(1, 100), test::CharactersOfSeed(1, 10));
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(Items().size(), 100U);
    test::WriteNewerWorld(server.Path(), 1, 1, test::ItemsOfSeed(2, 30), test::CharactersOfSeed(2, 3));
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(Items().size(), 30U);
    EXPECT_EQ(Characters().size(), 3U);
    test::WriteOlderWorld(server.Path(), test::ItemsOfSeed(3, 20), test::CharactersOfSeed(3, 2));
    EXPECT_TRUE(Load(core::Generation070));
    EXPECT_EQ(Items().size(), 20U);
    EXPECT_EQ(Characters().size(), 2U);
}

TEST_F(WorldLoaderTest, TheFolderIsThePathUpToItsLastBackslash)
{
    server.Write("bin/items.wsc", "WORLDITEM\n{\nSERIAL 1\n}\n");
    server.Write("bin/chars.wsc", "{\nSERIAL 1\n}\n");
    const auto bin = server.ProgramPath() + "\\bin";
    EXPECT_TRUE(LoadWorld(*database, outlet, core::Generation070, bin + "\\"));
    EXPECT_TRUE(LoadWorld(*database, outlet, core::Generation070, bin + "\\no such program"));
    EXPECT_FALSE(LoadWorld(*database, outlet, core::Generation070, bin));
    EXPECT_EQ(outlet.Lines(), Lines{MissingBox});
}

TEST_F(WorldLoaderTest, WithoutABackslashTheFolderIsTheCurrentOne)
{
    server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\n}\n");
    server.Write("chars.wsc", "{\nSERIAL 1\n}\n");
    const auto before = fs::current_path();
    fs::current_path(server.Path());
    EXPECT_TRUE(LoadWorld(*database, outlet, core::Generation070, "zarn.exe"));
    EXPECT_TRUE(LoadWorld(*database, outlet, core::Generation070, ""));
    fs::current_path(before);
    EXPECT_EQ(Items().size(), 1U);
}

/// Looks at the database from outside while a box is open.
class LookingOutlet final : public core::Outlet {
  public:
    explicit LookingOutlet(fs::path file) : file_(std::move(file)) {}

    void Send(std::string_view, bool) override {}
    void Show(const core::Message&) override { seen.push_back(Count()); }
    bool Ask(const core::Message&) override { return true; }

    std::string Count() const { return Database::Open(file_)->Query("SELECT COUNT(*) FROM tblItem").front().front(); }

    Lines seen;

  private:
    fs::path file_;
};

TEST_F(WorldLoaderTest, NothingIsPendingWhileABoxIsOpenAndAtTheEnd)
{
    server.Write("chars.wsc", "");
    server.Write("items.wsc", "WORLDITEM\n{\nSERIAL 1\nMANA 70000\n}\nWORLDITEM\n{\nMANA 70000\n}\n"
                              "WORLDITEM\n{\nSERIAL 3\n}\n");
    LookingOutlet looking(data.Path() / "qf.mdb");
    EXPECT_TRUE(LoadWorld(*database, looking, core::Generation070, server.ProgramPath() + "\\zarn.exe"));
    EXPECT_EQ(looking.seen, (Lines{"0", "1"}));
    EXPECT_EQ(looking.Count(), "3");
}

TEST_F(WorldLoaderTest, NamesThatLookLikeStatementsAreTexts)
{
    const Lines names{"', 1, 2, 3 ); DELETE * FROM tblItem; --", "WorldNumber", "[x]", "?", "; --", "/*", "\\'", "''"};
    std::string newer;
    std::string older;
    Rows        rows;
    for (const auto& name : names) {
        newer += "[ITEM]\nSerial=1\nName=" + name + "\n";
        older += "WORLDITEM\n{\nNAME " + name + "\n}\n";
        rows.push_back({name});
    }
    server.Write("shared/0.0.wsc", newer);
    server.Write("items.wsc", older);
    server.Write("chars.wsc", "");
    EXPECT_TRUE(Load(core::Generation09));
    EXPECT_EQ(ItemNames(), rows);
    EXPECT_TRUE(Load(core::Generation070));
    EXPECT_EQ(ItemNames(), rows);
}

TEST(LineFile, ThatCannotBeOpenedIsAnError)
{
    const test::TempFolder folder;
    EXPECT_EQ(FailureOf([&] { LineFile file(folder.Path() / "none"); }).first, 75);
    EXPECT_FALSE(FileExists(folder.Path() / "none"));
    EXPECT_FALSE(FileExists(folder.Path()));
    EXPECT_TRUE(FileExists(folder.Write("some", "")));
}

} // namespace
} // namespace qf::world
