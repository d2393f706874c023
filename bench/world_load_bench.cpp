// World load: the world files of a million items through the program's loader, parsing included, beside prepared
// inserts of the same rows in one transaction on the same table; then one area query. Each measure runs in a
// process of its own, which tells its peak memory.
//
// world_load_bench [ITEMS] [ROUNDS]

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sqlite3.h>
#include <stdexcept>
#include <string>

#include <sys/wait.h>
#include <unistd.h>

#include "core/host_path.h"
#include "figures.h"
#include "support/temp_folder.h"
#include "support/world_files.h"
#include "world/database.h"
#include "world/world_loader.h"

namespace {

using namespace qf;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::uint32_t Seed = 1;
constexpr double        LeastOfPrepared = 0.25;
constexpr double        MostOfMemory = 0.25;
constexpr double        MostMillisecondsOfQuery = 200;
constexpr auto          AreaQuery =
    "SELECT DISTINCT ID, X, Y, Z FROM tblItem WHERE X >= 1000 AND X <= 1039 AND Y >= 1000 AND Y <= 1039 AND "
    "Z >= -128 AND Z <= 127 AND WorldNumber = 0 AND InstanceID = 0 ORDER BY Z, Y, X";

double SecondsOf(const auto& run)
{
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

class Unwatched final : public core::Outlet {
  public:
    void Send(std::string_view, bool) override {}
    void Show(const core::Message&) override {}
    bool Ask(const core::Message&) override { return true; }
};

struct Measure {
    double seconds = 1e9;
    long   peakKilobytes = 0;
};

long PeakKilobytes()
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::strtol(line.c_str() + std::string_view("VmHWM:").size(), nullptr, 10);
        }
    }
    return 0;
}

Measure InOwnProcess(const std::function<double()>& work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        throw std::runtime_error("no pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        int code = EXIT_FAILURE;
        try {
            const Measure measure{work(), PeakKilobytes()};
            code = write(ends[1], &measure, sizeof measure) == sizeof measure ? EXIT_SUCCESS : EXIT_FAILURE;
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "%s\n", failure.what());
        }
        _exit(code);
    }
    close(ends[1]);
    Measure    measure;
    const bool told = read(ends[0], &measure, sizeof measure) == sizeof measure;
    close(ends[0]);
    waitpid(child, nullptr, 0);
    if (!told) {
        throw std::runtime_error("a measure failed");
    }
    return measure;
}

fs::path FreshDatabase(const test::TempFolder& folder)
{
    fs::path file = folder.Path() / "qf.mdb";
    fs::remove(file);
    world::CreateWorldDatabase(file);
    world::UpgradeDatabase(*world::Database::Open(file));
    return file;
}

void RequireRows(world::Database& database, std::size_t items)
{
    if (database.Query("SELECT COUNT(*) FROM tblItem").front().front() != std::to_string(items)) {
        throw std::runtime_error("rows are missing");
    }
}

double Load(const test::TempFolder& folder, core::ServerGeneration generation, std::size_t items)
{
    const auto   database = world::Database::Open(FreshDatabase(folder));
    Unwatched    outlet;
    const auto   server = core::ProgramPath(folder.Path()) + "\\server.exe";
    const double seconds = SecondsOf([&] { world::LoadWorld(*database, outlet, generation, server); });
    RequireRows(*database, items);
    return seconds;
}

void Require(int code, int wanted)
{
    if (code != wanted) {
        throw std::runtime_error(sqlite3_errstr(code));
    }
}

double InsertPrepared(const test::TempFolder& folder, std::size_t count)
{
    const auto file = FreshDatabase(folder);
    const auto items = test::ItemsOfSeed(Seed, count);
    sqlite3*   connection = nullptr;
    Require(sqlite3_open(file.c_str(), &connection), SQLITE_OK);
    Require(sqlite3_exec(connection, "PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr), SQLITE_OK);
    const double seconds = SecondsOf([&] {
        sqlite3_stmt* insert = nullptr;
        Require(sqlite3_exec(connection, "BEGIN", nullptr, nullptr, nullptr), SQLITE_OK);
        Require(sqlite3_prepare_v2(connection,
                                   "INSERT INTO tblItem( Serial, Name, X, Y, Z, Container, World, ID, iType, "
                                   "InstanceID ) VALUES( ?, ?, ?, ?, ?, ?, ?, ?, ?, ? )",
                                   -1, &insert, nullptr),
                SQLITE_OK);
        for (const auto& item : items) {
            sqlite3_bind_int(insert, 1, item.serial);
            sqlite3_bind_text(insert, 2, item.name.data(), static_cast<int>(item.name.size()), SQLITE_STATIC);
            sqlite3_bind_int(insert, 3, item.x);
            sqlite3_bind_int(insert, 4, item.y);
            sqlite3_bind_int(insert, 5, item.z);
            sqlite3_bind_int(insert, 6, item.container);
            sqlite3_bind_int(insert, 7, item.world);
            sqlite3_bind_int(insert, 8, item.id);
            sqlite3_bind_int(insert, 9, item.type);
            sqlite3_bind_int(insert, 10, item.instance);
            Require(sqlite3_step(insert), SQLITE_DONE);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(insert);
        Require(sqlite3_exec(connection, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    });
    sqlite3_close(connection);
    RequireRows(*world::Database::Open(file), count);
    return seconds;
}

void Better(Measure& best, const Measure& measure)
{
    best.seconds = std::min(best.seconds, measure.seconds);
    best.peakKilobytes = std::max(best.peakKilobytes, measure.peakKilobytes);
}

} // namespace

int main(int argc, char** argv)
{
    const auto items = argc > 1 ? static_cast<std::size_t>(std::strtoul(argv[1], nullptr, 10)) : 1'000'000;
    const auto rounds = argc > 2 ? std::strtol(argv[2], nullptr, 10) : 3;
    if (items == 0 || rounds <= 0) {
        std::fputs("world_load_bench [ITEMS] [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        const test::TempFolder folder;
        InOwnProcess([&] {
            const auto all = test::ItemsOfSeed(Seed, items);
            test::WriteNewerWorld(folder.Path(), 0, 0, all);
            test::WriteOlderWorld(folder.Path(), all);
            return 0;
        });

        Measure prepared;
        Measure newer;
        Measure older;
        Measure query;
        for (int round = 0; round < rounds; ++round) {
            Better(prepared, InOwnProcess([&] { return InsertPrepared(folder, items); }));
            Better(older, InOwnProcess([&] { return Load(folder, core::Generation070, items); }));
            Better(newer, InOwnProcess([&] { return Load(folder, core::Generation09, items); }));
            Better(query, InOwnProcess([&] {
                       const auto database = world::Database::Open(folder.Path() / "qf.mdb");
                       return SecondsOf([&] { database->Query(AreaQuery); });
                   }));
        }

        bool       within = true;
        const auto print = [&](const char* name, const Measure& measure) {
            const double ratio = prepared.seconds / measure.seconds;
            std::printf("%-34s %10.0f %7.2f %8.1f\n", name, static_cast<double>(items) / measure.seconds, ratio,
                        static_cast<double>(measure.peakKilobytes) / 1024);
        };
        const auto judge = [&](const std::string& name, const Measure& measure) {
            const double memory =
                static_cast<double>(measure.peakKilobytes) / static_cast<double>(prepared.peakKilobytes);
            print(name.c_str(), measure);
            within = bench::AtLeast(name + ", rate beside prepared inserts", prepared.seconds / measure.seconds,
                                    LeastOfPrepared) &&
                     within;
            within = bench::AtMost(name + ", memory beside that of all rows", memory, MostOfMemory) && within;
        };
        std::printf("%-34s %10s %7s %8s\n", "measure", "rows/s", "ratio", "peak MiB");
        print("prepared inserts, one transaction", prepared);
        judge("load of the newer layout", newer);
        judge("load of the older layout", older);
        std::printf("an area query of 40 by 40 tiles over %zu rows takes %.1f ms\n", items, query.seconds * 1000);
        within =
            bench::AtMost("area query over all rows", query.seconds * 1000, MostMillisecondsOfQuery, " ms") && within;
        std::printf("a load runs at %.2f of prepared inserts at least, in %.2f of their memory at most: %s\n",
                    LeastOfPrepared, MostOfMemory, within ? "yes" : "no");
        return within ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
