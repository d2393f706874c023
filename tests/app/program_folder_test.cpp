#include "app/program_folder.h"

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <optional>
#include <vector>

#ifndef _WIN32
#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#endif

#include "core/runtime_error.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"

namespace qf::app {
namespace {

namespace fs = std::filesystem;

const std::optional<std::string> Absent;

TEST(ProgramPlace, AnExecutableOfItsOwnFolderHasItBeside)
{
    const test::TempFolder folder;
    const auto             executables = folder.MakeFolder("bin");
    folder.Write("bin/qf.mdb", "");
    EXPECT_EQ(PlaceOf(executables, "/home/gm/.local/share"), (ProgramPlace{executables, {}}));
}

TEST(ProgramPlace, AnInstalledOneHasItInTheDataHome)
{
    const test::TempFolder folder;
    const auto             executables = folder.MakeFolder("bin");
    folder.MakeFolder("share/quernfield");
    EXPECT_EQ(PlaceOf(executables, "/home/gm/.local/share").folder, executables);
    folder.Write("share/quernfield/qf.mdb", "");
    EXPECT_EQ(PlaceOf(executables, "/home/gm/.local/share"),
              (ProgramPlace{"/home/gm/.local/share/quernfield", folder.Path() / "share/quernfield"}));
}

TEST(Marks, TellVersionsApart)
{
    EXPECT_EQ(MarkOf("a list"), MarkOf("a list"));
    EXPECT_NE(MarkOf("a list"), MarkOf("a LIST"));
    EXPECT_NE(MarkOf(""), MarkOf(std::string_view("\0", 1)));
    EXPECT_EQ(MarkOf("").find(' '), std::string::npos);
    EXPECT_FALSE(MarkOf("").empty());
}

TEST(DueFiles, AFileComesWhereItIsNewToTheUser)
{
    EXPECT_TRUE(IsDue("1", Absent, Absent));
    EXPECT_FALSE(IsDue("1", Absent, "his own"));
    EXPECT_FALSE(IsDue("1", Absent, ""));
}

TEST(DueFiles, ADeletedFileStaysDeleted)
{
    EXPECT_FALSE(IsDue("1", "1", Absent));
    EXPECT_FALSE(IsDue("2", "1", Absent));
}

TEST(DueFiles, ANewerOneReplacesAnUntouchedCopyAlone)
{
    EXPECT_FALSE(IsDue("1", "1", "1"));
    EXPECT_TRUE(IsDue("2", "1", "1"));
    EXPECT_FALSE(IsDue("2", "1", "changed"));
    EXPECT_FALSE(IsDue("2", "1", "2"));
    EXPECT_FALSE(IsDue("2", "1", ""));
}

class SeedingTest : public testing::Test {
  protected:
    SeedingTest()
    {
        shipped.Write("qf.mdb", "empty world");
        shipped.Write("TYPES.TXT", "types");
        shipped.Write("Templates/cottage.tmp", "cottage");
        shipped.Write("Templates/well.tmp", "well");
        shipped.Write("ItemExplorer/Stone walls.txt", "1,2,3");
        shipped.Write("PracticeArt/art.mul", "art");
    }

    void Seed() const { SeedProgramFolder(place); }

    /// Everything in the user's folder, the record apart, by name.
    std::string Names() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::recursive_directory_iterator(place.folder)) {
            if (!entry.is_directory() && entry.path().filename() != ".originals") {
                names.push_back(entry.path().lexically_relative(place.folder).generic_string());
            }
        }
        std::ranges::sort(names);
        std::string all;
        for (const auto& name : names) {
            all += name + ";";
        }
        return all;
    }

    static constexpr auto AllNames =
        "ItemExplorer/Stone walls.txt;TYPES.TXT;Templates/cottage.tmp;Templates/well.tmp;qf.mdb;";

    test::TempFolder shipped;
    test::TempFolder data;
    ProgramPlace     place{data.Path() / "deep/quernfield", shipped.Path()};
};

TEST_F(SeedingTest, WithoutOriginalsNothingHappens)
{
    SeedProgramFolder({place.folder, {}});
    EXPECT_FALSE(data.Has("deep"));
}

TEST_F(SeedingTest, TheFirstStartBringsEverythingButTheArt)
{
    Seed();
    EXPECT_EQ(Names(), AllNames);
    EXPECT_EQ(data.Read("deep/quernfield/qf.mdb"), "empty world");
    EXPECT_EQ(data.Read("deep/quernfield/ItemExplorer/Stone walls.txt"), "1,2,3");
    EXPECT_FALSE(data.Has("deep/quernfield/PracticeArt"));
}

TEST_F(SeedingTest, TheNextStartWritesNothing)
{
    Seed();
    std::vector<fs::path> watched{place.folder / ".originals", place.folder / "TYPES.TXT"};
    const auto            longAgo = fs::last_write_time(watched[0]) - std::chrono::hours(1);
    for (const auto& file : watched) {
        fs::last_write_time(file, longAgo);
    }
    Seed();
    for (const auto& file : watched) {
        EXPECT_EQ(fs::last_write_time(file), longAgo) << file;
    }
}

TEST_F(SeedingTest, AnUpdateReplacesUntouchedCopiesAndNothingElse)
{
    Seed();
    data.Write("deep/quernfield/Templates/cottage.tmp", "my cottage");
    fs::remove(place.folder / "TYPES.TXT");
    data.Write("deep/quernfield/Templates/castle.tmp", "my castle");
    data.Write("deep/quernfield/qf.mdb", "my world");
    for (const auto* name : {"qf.mdb", "TYPES.TXT", "Templates/cottage.tmp", "Templates/well.tmp",
                             "Templates/castle.tmp", "Templates/tower.tmp"}) {
        shipped.Write(name, "newer");
    }
    for (int start = 0; start < 2; ++start) {
        Seed();
        EXPECT_EQ(data.Read("deep/quernfield/Templates/cottage.tmp"), "my cottage");
        EXPECT_EQ(data.Read("deep/quernfield/Templates/castle.tmp"), "my castle");
        EXPECT_EQ(data.Read("deep/quernfield/Templates/well.tmp"), "newer");
        EXPECT_EQ(data.Read("deep/quernfield/Templates/tower.tmp"), "newer");
        EXPECT_EQ(data.Read("deep/quernfield/qf.mdb"), "my world");
        EXPECT_FALSE(data.Has("deep/quernfield/TYPES.TXT"));
    }
    // A copy that came with an update is as much ours as a first one.
    shipped.Write("Templates/well.tmp", "newest");
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/Templates/well.tmp"), "newest");
}

TEST_F(SeedingTest, WhatIsShippedNoMoreStaysWithTheUser)
{
    Seed();
    fs::remove(shipped.Path() / "Templates/well.tmp");
    Seed();
    EXPECT_EQ(Names(), AllNames);
}

TEST_F(SeedingTest, ADeletedDatabaseIsMadeAnewWithoutTheLogsOfTheOldOne)
{
    Seed();
    fs::remove(place.folder / "qf.mdb");
    data.Write("deep/quernfield/qf.mdb-wal", "log");
    data.Write("deep/quernfield/qf.mdb-shm", "index");
    Seed();
    EXPECT_EQ(Names(), AllNames);
}

TEST_F(SeedingTest, TheLogOfALivingDatabaseStays)
{
    Seed();
    data.Write("deep/quernfield/qf.mdb-wal", "log");
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/qf.mdb-wal"), "log");
}

TEST_F(SeedingTest, ADeletedFolderComesBackEmpty)
{
    Seed();
    fs::remove_all(place.folder / "Templates");
    Seed();
    EXPECT_TRUE(data.Has("deep/quernfield/Templates"));
    EXPECT_FALSE(data.Has("deep/quernfield/Templates/well.tmp"));
}

TEST_F(SeedingTest, WithoutTheRecordNothingOfTheUserIsTouched)
{
    Seed();
    data.Write("deep/quernfield/Templates/cottage.tmp", "my cottage");
    for (const std::string record : {"", "\n \nnonsense\nx y\n"}) {
        data.Write("deep/quernfield/.originals", record);
        Seed();
        EXPECT_EQ(data.Read("deep/quernfield/Templates/cottage.tmp"), "my cottage");
        EXPECT_EQ(Names(), AllNames);
    }
    // The copies that still are as shipped are known again.
    shipped.Write("Templates/well.tmp", "newer");
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/Templates/well.tmp"), "newer");
}

TEST_F(SeedingTest, AFileInTheWayOfAFolderIsTold)
{
    data.Write("deep", "");
    try {
        Seed();
        FAIL();
    } catch (const core::RuntimeError& error) {
        EXPECT_EQ(error.Number(), core::error::PathFileAccess);
        EXPECT_EQ(error.Description(), "Path/File access error: " + place.folder.string());
    }
}

TEST_F(SeedingTest, AFolderInTheWayOfAFileIsTheUsersOwn)
{
    data.MakeFolder("deep/quernfield/TYPES.TXT");
    Seed();
    EXPECT_TRUE(fs::is_directory(place.folder / "TYPES.TXT"));
}

TEST_F(SeedingTest, OriginalsThatCannotBeReadAreTold)
{
    fs::remove_all(shipped.Path());
    EXPECT_RUNTIME_ERROR(core::error::PathFileAccess, Seed());
}

#ifndef _WIN32
TEST_F(SeedingTest, ALinkIsTheUsersOwn)
{
    data.Write("dotfiles/TYPES.TXT", "types");
    data.MakeFolder("deep/quernfield");
    fs::create_symlink(data.Path() / "dotfiles/TYPES.TXT", place.folder / "TYPES.TXT");
    Seed();
    shipped.Write("TYPES.TXT", "newer");
    Seed();
    EXPECT_TRUE(fs::is_symlink(place.folder / "TYPES.TXT"));
    EXPECT_EQ(data.Read("dotfiles/TYPES.TXT"), "types");
}

/// Seeds in a process whose files may have so many bytes; what it ended with. A write beyond fails where the
/// process heeds no signal of it, and kills it otherwise.
int SeedWithinLimit(const ProgramPlace& place, rlim_t bytes, bool isKilled)
{
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit{bytes, bytes};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        const rlimit noCore{0, 0};
        ::setrlimit(RLIMIT_CORE, &noCore);
        std::signal(SIGXFSZ, isKilled ? SIG_DFL : SIG_IGN);
        try {
            SeedProgramFolder(place);
        } catch (const core::RuntimeError& error) {
            ::_exit(error.Number());
        }
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

TEST_F(SeedingTest, AFullDiskIsToldAndLeavesNoPartOfAFile)
{
    shipped.Write("Templates/palace.tmp", std::string(100000, 'p'));
    EXPECT_EQ(SeedWithinLimit(place, 5000, false), core::error::PathFileAccess);
    EXPECT_EQ(Names().find("palace"), std::string::npos);
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/Templates/palace.tmp").size(), 100000U);
}

TEST_F(SeedingTest, AKilledSeedingLeavesOldFilesWholeAndIsFinishedByTheNext)
{
    Seed();
    shipped.Write("Templates/cottage.tmp", "newer");
    shipped.Write("Templates/well.tmp", std::string(100000, 'w'));
    EXPECT_EQ(SeedWithinLimit(place, 5000, true), -SIGXFSZ);
    EXPECT_EQ(data.Read("deep/quernfield/Templates/cottage.tmp"), "newer");
    EXPECT_EQ(data.Read("deep/quernfield/Templates/well.tmp"), "well");
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/Templates/well.tmp").size(), 100000U);
    EXPECT_EQ(Names(), AllNames);
    // The copy that came before the kill is known as ours.
    shipped.Write("Templates/cottage.tmp", "newest");
    Seed();
    EXPECT_EQ(data.Read("deep/quernfield/Templates/cottage.tmp"), "newest");
}
#endif

} // namespace
} // namespace qf::app
