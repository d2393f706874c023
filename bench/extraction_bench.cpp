// Extraction of a template from a world of a million items, the whole map and one house of 40 by 40, each beside
// the bare query in the same run, with the most memory that the process holds in each.
//
// extraction_bench [ITEMS] [ROUNDS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

#include "bench_world.h"
#include "figures.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "world/extraction.h"

namespace {

using namespace qf;
using Clock = std::chrono::steady_clock;

constexpr double MostTimesQuery = 3;
constexpr int    HouseSide = 40;
constexpr int    HouseCorner = 1000;

struct Measure {
    double seconds = 1e9;
    double peak = 0;
};

void Take(Measure& measure, const auto& run)
{
    bench::ForgetPeak();
    const auto start = Clock::now();
    run();
    measure.seconds = std::min(measure.seconds, std::chrono::duration<double>(Clock::now() - start).count());
    measure.peak = std::max(measure.peak, bench::Megabytes("VmHWM"));
}

world::ExtractionState StateOf(const world::ExtractionArea& area)
{
    return {.txtX = std::to_string(area.x1),
            .txtY = std::to_string(area.y1),
            .txtZ = std::to_string(area.z1),
            .txtX2 = std::to_string(area.x2),
            .txtY2 = std::to_string(area.y2),
            .txtZ2 = std::to_string(area.z2),
            .txtWorld = "0",
            .txtInstance = "0",
            .txtName = "Bench",
            .txtDescription = ""};
}

long LinesOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return std::count(std::istreambuf_iterator<char>(stream), {}, '\n');
}

/// The times that the extraction takes as long as its query.
double Compare(const char* name, const world::ExtractionArea& area, world::Database& database,
               const test::TempFolder& folder, int rounds)
{
    const auto file = folder.Path() / "Templates" / "Bench.tmp";
    Measure    query;
    Measure    extraction;
    long       rows = 0;
    for (int round = 0; round < rounds; ++round) {
        rows = 0;
        Take(query, [&] {
            database.ForEachRow(world::OptimizedQuery(area), [&](std::span<const std::string_view>) { ++rows; });
        });
        std::filesystem::remove(file);
        test::RecordingOutlet outlet;
        Take(extraction, [&] { world::WriteOptimizedTemplate(StateOf(area), folder.ProgramPath(), database, outlet); });
    }
    const auto ratio = extraction.seconds / query.seconds;
    std::printf("%-16s %9ld %9ld %10.1f %10.1f %7.2f %10.0f %10.0f\n", name, rows, LinesOf(file) - 1,
                query.seconds * 1000, extraction.seconds * 1000, ratio, query.peak, extraction.peak);
    return ratio;
}

} // namespace

int main(int argc, char** argv)
{
    const int items = argc > 1 ? static_cast<int>(std::strtol(argv[1], nullptr, 10)) : 1'000'000;
    const int rounds = argc > 2 ? static_cast<int>(std::strtol(argv[2], nullptr, 10)) : 3;
    if (items <= 0 || rounds <= 0) {
        std::fputs("extraction_bench [ITEMS] [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }
    const test::TempFolder folder;
    folder.MakeFolder("Templates");
    world::CreateWorldDatabase(folder.Path() / "qf.mdb");
    const auto database = world::Database::Open(folder.Path() / "qf.mdb");
    world::UpgradeDatabase(*database);
    bench::WorldBuilder builder(*database, items);
    builder.House(HouseCorner, HouseCorner, HouseSide, HouseSide, 3);
    builder.Build();

    std::printf("%-16s %9s %9s %10s %10s %7s %10s %10s\n", "area", "rows", "lines", "query ms", "whole ms", "ratio",
                "query MB", "whole MB");
    constexpr int HouseEnd = HouseCorner + HouseSide - 1;
    const auto map = Compare("whole map", {0, 0, -128, bench::MapWidth - 1, bench::MapHeight - 1, 127, 0, 0}, *database,
                             folder, rounds);
    const auto house = Compare("house of 40 x 40", {HouseCorner, HouseCorner, -128, HouseEnd, HouseEnd, 127, 0, 0},
                               *database, folder, rounds);
    bool       within = bench::AtMost("extraction of the whole map, times its query", map, MostTimesQuery);
    within = bench::AtMost("extraction of a house, times its query", house, MostTimesQuery) && within;
    std::printf("an extraction takes at most %.0f times as long as its query: %s\n", MostTimesQuery,
                within ? "yes" : "no");
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
