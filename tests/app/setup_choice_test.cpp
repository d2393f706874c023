#include "app/setup/setup_choice.h"

#include <gtest/gtest.h>

#include "core/host_path.h"
#include "support/memory_store.h"
#include "support/temp_folder.h"

namespace qf::app {
namespace {

TEST(SetupChoice, TextsOfTheGenerations)
{
    EXPECT_EQ(TextsOf({0, "\\"}), (SetupTexts{"0", "\\"}));
    EXPECT_EQ(TextsOf({1, "\\"}), (SetupTexts{"1", "\\"}));
}

TEST(SetupChoice, FolderGetsTheProgramsFormAndABackslash)
{
    EXPECT_EQ(TextsOf({1, "/games/Ultima Online"}).uoPath, "\\games\\Ultima Online\\");
    EXPECT_EQ(TextsOf({1, "/games/Ultima Online/"}).uoPath, "\\games\\Ultima Online\\");
    EXPECT_EQ(TextsOf({1, "C:\\Games"}).uoPath, "C:\\Games\\");
    EXPECT_EQ(TextsOf({1, "C:\\Games\\"}).uoPath, "C:\\Games\\");
    EXPECT_EQ(TextsOf({1, "/"}).uoPath, "\\");
    EXPECT_EQ(TextsOf({1, ""}).uoPath, "\\");
    EXPECT_EQ(TextsOf({1, "/sp\xC3\xA4te Spiele"}).uoPath, "\\sp\xC3\xA4te Spiele\\");
}

TEST(SetupChoice, SavingWritesTheTwoKeysAndNothingElse)
{
    test::MemoryStore store;
    SaveChoice(store, {0, "/games/uo"});
    EXPECT_EQ(store.log, (std::vector<std::string>{"Configuration UOPath=\\games\\uo\\", "Configuration ZarnVer=0"}));
}

TEST(SetupChoice, WhereAWriteFailsSetupStaysNeeded)
{
    test::MemoryStore store;
    store.failsAt = 1;
    EXPECT_THROW(SaveChoice(store, {1, "/games/uo"}), core::RuntimeError);
    EXPECT_TRUE(IsSetupNeeded(store));
    store.failsAt = 0;
    SaveChoice(store, {1, "/games/uo"});
    EXPECT_FALSE(IsSetupNeeded(store));
}

TEST(SetupChoice, NeededUntilThereIsAGenerationThatTheProgramReads)
{
    test::MemoryStore store;
    EXPECT_TRUE(IsSetupNeeded(store));
    EXPECT_TRUE(store.log.empty());
    for (const auto* text : {"0", "1", "7", " 1 "}) {
        store.Write("Configuration", "ZarnVer", text);
        EXPECT_FALSE(IsSetupNeeded(store)) << text;
    }
    for (const auto* text : {"", "x", "99999"}) {
        store.Write("Configuration", "ZarnVer", text);
        EXPECT_TRUE(IsSetupNeeded(store)) << text;
    }
}

TEST(SetupChoice, AFolderWithoutTileArtIsKnown)
{
    const test::TempFolder folder;
    const SetupChoice      choice{1, core::Utf8Of(folder.Path())};
    EXPECT_TRUE(LacksTileArt(choice));
    folder.Write("art.mul", "");
    EXPECT_TRUE(LacksTileArt(choice));
    folder.Write("artidx.mul", "");
    EXPECT_FALSE(LacksTileArt(choice));
    EXPECT_FALSE(LacksTileArt({1, choice.clientFolder + "/"}));
    EXPECT_TRUE(LacksTileArt({1, choice.clientFolder + "/no such folder"}));
    EXPECT_FALSE(LacksTileArt({1, ""}));
}

TEST(SetupChoice, InitialChoiceIsWhatIsStored)
{
    test::MemoryStore store;
    EXPECT_EQ(InitialChoice(store).generation, 1);
    store.Write("Configuration", "ZarnVer", "7");
    EXPECT_EQ(InitialChoice(store).generation, 1);
    store.Write("Configuration", "ZarnVer", "0");
    EXPECT_EQ(InitialChoice(store).generation, 0);
    SaveChoice(store, {1, "/no such folder/uo"});
    const auto again = InitialChoice(store);
    EXPECT_EQ(again.generation, 1);
    EXPECT_EQ(TextsOf(again).uoPath, "\\no such folder\\uo\\");
}

TEST(SetupChoice, AClientAtTheUsualPlaceComesBeforeThePracticeArt)
{
    const test::TempFolder folder;
    const auto             usual = core::ProgramPath(folder.MakeFolder("client"));
    const auto             shown = core::Utf8Of(folder.Path() / "client");
    test::MemoryStore      store;
    EXPECT_EQ(core::PathOf(InitialChoice(store, "/art", usual).clientFolder), core::PathOf(shown));
    EXPECT_EQ(InitialChoice(store, "/art", usual + " that is not there").clientFolder, "/art");
    EXPECT_EQ(InitialChoice(store, "/art", "").clientFolder, "/art");
    EXPECT_EQ(core::PathOf(InitialChoice(store, "", usual).clientFolder), core::PathOf(shown));
    store.Write("Configuration", "UOPath", "\\stored\\");
    EXPECT_EQ(TextsOf(InitialChoice(store, "/art", usual)).uoPath, "\\stored\\");
}

#ifndef _WIN32
TEST(SetupChoice, WithoutAStoredFolderTheBoxIsEmpty)
{
    test::MemoryStore store;
    EXPECT_EQ(InitialChoice(store).clientFolder, "");
}

TEST(SetupChoice, ThePracticeArtIsOfferedWhereNoFolderIsStored)
{
    test::MemoryStore store;
    const auto        choice = InitialChoice(store, "/usr/share/quernfield/PracticeArt");
    EXPECT_EQ(choice.clientFolder, "/usr/share/quernfield/PracticeArt");
    EXPECT_EQ(TextsOf(choice).uoPath, "\\usr\\share\\quernfield\\PracticeArt\\");
    EXPECT_TRUE(store.log.empty());

    for (const auto* stored : {"\\no such folder\\uo\\", "\\", ""}) {
        store.Write("Configuration", "UOPath", stored);
        EXPECT_EQ(TextsOf(InitialChoice(store, "/art")).uoPath, std::string_view(stored).empty() ? "\\" : stored);
    }
}

TEST(SetupChoice, TileArtIsFoundWhateverItsLetters)
{
    const test::TempFolder folder;
    folder.Write("Art.mul", "");
    folder.Write("ARTIDX.MUL", "");
    EXPECT_FALSE(LacksTileArt({1, folder.Path().string()}));
}

TEST(SetupChoice, TheFolderIsShownInTheSystemsForm)
{
    test::MemoryStore store;
    store.Write("Configuration", "UOPath", "\\no such folder\\uo\\");
    EXPECT_EQ(InitialChoice(store).clientFolder, "/no such folder/uo/");
}
#endif

} // namespace
} // namespace qf::app
