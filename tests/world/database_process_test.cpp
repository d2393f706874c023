#include <chrono>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sqlite3.h>
#include <time.h>
#include <unistd.h>

#include "failure_of.h"
#include "other_process.h"
#include "support/temp_folder.h"
#include "world/database.h"

namespace qf::world {
namespace {

OtherProcess Locker(const std::filesystem::path& file)
{
    return OtherProcess([&](const std::function<void()>& ready) {
        sqlite3* connection = nullptr;
        if (sqlite3_open(file.c_str(), &connection) == SQLITE_OK &&
            sqlite3_exec(connection, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr) == SQLITE_OK) {
            ready();
            ::pause();
        }
    });
}

TEST(DatabaseProcesses, LockedByAnotherProcess)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    for (const bool hasBeenOpened : {false, true}) {
        if (hasBeenOpened) {
            UpgradeDatabase(*Database::Open(folder.Path() / "qf.mdb"));
        }
        auto locker = Locker(folder.Path() / "qf.mdb");
        ASSERT_TRUE(locker.IsReady());
        const auto start = std::chrono::steady_clock::now();
        EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }),
                  std::pair(5, std::string("database is locked")));
        // A lock that is given back in a moment is waited for.
        EXPECT_GE(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(200));
        locker.Kill();
        EXPECT_EQ(FailureOf([&] { Database::Open(folder.Path() / "qf.mdb"); }).first, 0);
    }
}

TEST(DatabaseProcesses, AKilledWriterLeavesADatabaseThatOpens)
{
    const test::TempFolder folder;
    CreateWorldDatabase(folder.Path() / "qf.mdb");
    std::mt19937 random(11);
    for (int round = 0; round < 20; ++round) {
        OtherProcess writer([&](const std::function<void()>& ready) {
            const auto database = Database::Open(folder.Path() / "qf.mdb");
            UpgradeDatabase(*database);
            database->Execute("DELETE * FROM tblItem;");
            database->Execute("DELETE * FROM tblCharacter;");
            database->Execute("INSERT INTO tblCharacter( Serial, Name ) VALUES( " + std::to_string(round) +
                              ", 'kept' )");
            database->Commit();
            ready();
            for (int serial = 0;; ++serial) {
                database->Execute("INSERT INTO tblItem( Serial, Name, X, Y ) VALUES( " + std::to_string(serial) +
                                  ", 'name', 1, 2 )");
                if (serial % 7 == 6) {
                    database->Commit();
                }
            }
        });
        ASSERT_TRUE(writer.IsReady());
        const timespec moment{0, static_cast<long>(random() % 10'000'000)};
        ::nanosleep(&moment, nullptr);
        writer.Kill();

        const auto database = Database::Open(folder.Path() / "qf.mdb");
        EXPECT_EQ(database->Query("PRAGMA integrity_check"), (std::vector<std::vector<std::string>>{{"ok"}}));
        EXPECT_EQ(database->Query("SELECT Serial FROM tblCharacter"),
                  (std::vector<std::vector<std::string>>{{std::to_string(round)}}));
        EXPECT_EQ(database->Query("SELECT COUNT(*) % 7, COALESCE(MAX(Serial) + 1 - COUNT(*), 0) FROM tblItem"),
                  (std::vector<std::vector<std::string>>{{"0", "0"}}));
    }
}

} // namespace
} // namespace qf::world
