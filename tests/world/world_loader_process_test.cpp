#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <iostream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#include "other_process.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "support/world_files.h"
#include "world/database.h"
#include "world/world_loader.h"

namespace qf::world {
namespace {

using Rows = std::vector<std::vector<std::string>>;

/// A server's folder and a database that processes load it into and are killed.
class KilledLoad : public testing::Test {
  protected:
    KilledLoad() { CreateWorldDatabase(file); }

    void Load(Database& database, core::ServerGeneration generation) const
    {
        test::RecordingOutlet outlet;
        LoadWorld(database, outlet, generation, folder.ProgramPath() + "\\server.exe");
    }

    std::vector<Rows> AllRows(Database& database) const
    {
        return {database.Query("SELECT * FROM tblItem"), database.Query("SELECT * FROM tblCharacter")};
    }

    /// Loads the world once, then again and again in a process that is killed on the way. What it leaves must be
    /// the beginning of the world, and the next load must be right.
    void KillAtRandomMoments(core::ServerGeneration generation, std::uint32_t seed, int kills)
    {
        auto database = Database::Open(file);
        UpgradeDatabase(*database);
        const auto start = std::chrono::steady_clock::now();
        Load(*database, generation);
        const std::chrono::duration<double> whole = std::chrono::steady_clock::now() - start;
        const auto                          world = AllRows(*database);
        ASSERT_FALSE(world[0].empty());
        ASSERT_FALSE(world[1].empty());
        database->Execute("DELETE * FROM tblItem;");
        database->Execute("DELETE * FROM tblCharacter;");
        database.reset();

        std::mt19937 random(seed);
        int          cut = 0;
        for (int round = 0; round < kills; ++round) {
            SCOPED_TRACE(round);
            OtherProcess loader([&](const std::function<void()>& ready) {
                const auto own = Database::Open(file);
                ready();
                Load(*own, generation);
            });
            ASSERT_TRUE(loader.IsReady());
            const auto share = static_cast<double>(random()) / static_cast<double>(std::mt19937::max());
            std::this_thread::sleep_for(share * whole);
            loader.Kill();

            database = Database::Open(file);
            // Nothing ends this process, so it need not wait for the disk.
            database->Query("PRAGMA synchronous=OFF");
            ASSERT_EQ(database->Query("PRAGMA synchronous"), Rows{{"0"}});
            ASSERT_EQ(database->Query("PRAGMA integrity_check"), Rows{{"ok"}});
            const auto left = AllRows(*database);
            for (std::size_t table = 0; table < world.size(); ++table) {
                ASSERT_LE(left[table].size(), world[table].size());
                ASSERT_TRUE(std::equal(left[table].begin(), left[table].end(), world[table].begin()));
            }
            cut += left == world ? 0 : 1;
            Load(*database, generation);
            ASSERT_EQ(AllRows(*database), world);
            database->Execute("DELETE * FROM tblItem;");
            database->Execute("DELETE * FROM tblCharacter;");
            database.reset();
        }
        std::cout << kills << " kills, " << cut << " of them before the load was done\n";
        EXPECT_GT(cut, kills / 4);
    }

    const test::TempFolder      folder;
    const std::filesystem::path file = folder.Path() / "qf.mdb";
};

TEST_F(KilledLoad, NewerLayoutLeavesTheRowsOfWholeGroups)
{
    test::WriteNewerWorld(folder.Path(), 0, 0, {}, test::CharactersOfSeed(1, 500));
    test::WriteNewerWorld(folder.Path(), 3, 7, test::ItemsOfSeed(2, 11'000));
    KillAtRandomMoments(core::Generation09, 3, 50);
}

TEST_F(KilledLoad, OlderLayoutWithBoxesBetween)
{
    auto        characters = test::CharacterBlocks(test::CharactersOfSeed(4, 500));
    std::string items;
    const auto  all = test::ItemsOfSeed(5, 2500);
    for (std::size_t i = 0; i < all.size(); i += 250) {
        items += test::ItemBlocks(std::span(all).subspan(i, 250));
        items += "WORLDITEM\r\n{\r\nSERIAL 1000000\r\nMANA 70000\r\n}\r\n";
    }
    folder.Write("items.wsc", items);
    folder.Write("chars.wsc", characters);
    KillAtRandomMoments(core::Generation070, 6, 150);
}

} // namespace
} // namespace qf::world
