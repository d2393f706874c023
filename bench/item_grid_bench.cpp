// The grid of the extraction panel with a million items: from the click to the first picture of it, what it takes of
// memory, and what a jump to any other place takes.
//
// item_grid_bench [ITEMS]

#include <QApplication>
#include <QScrollBar>
#include <QTableView>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include "app/application.h"
#include "bench_world.h"
#include "client/platform/simulated/simulated_platform.h"
#include "figures.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "support/temp_folder.h"
#include "ui/panel.h"
#include "ui/parts.h"

namespace {

using namespace qf;
using Clock = std::chrono::steady_clock;

constexpr double MostTimesQuery = 2;
constexpr double MostBytesOfItem = 64;

/// One picture of a screen that is drawn 60 times a second.
constexpr double MostMillisecondsOfJump = 16;

double MillisecondsOf(const auto& run)
{
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    const int          items = argc > 1 ? static_cast<int>(std::strtol(argv[1], nullptr, 10)) : 1'000'000;
    if (items <= 0) {
        std::fputs("item_grid_bench [ITEMS]\n", stderr);
        return EXIT_FAILURE;
    }
    const test::TempFolder folder;
    world::CreateWorldDatabase(folder.Path() / "qf.mdb");

    test::MemoryStore store;
    store.Write(core::section::Configuration, "ZarnVer", "1");
    client::SimulatedPlatform    desktop;
    test::QuietServices          services;
    core::PseudoUniformGenerator uniform;
    ui::Environment              environment{store,    desktop,  services, services, services,
                                services, services, services, uniform,  folder.ProgramPath()};
    app::Application             run(environment);
    if (!run.Main()) {
        return EXIT_FAILURE;
    }
    auto& database = *run.Context().database;
    bench::WorldBuilder(database, items).Build();

    auto& panel = run.Context().panels.Show("frmHouseExtraction");
    auto* grid = panel.findChild<QTableView*>(QStringLiteral("flxItems"));
    for (const auto* box : {"txtX", "txtY", "txtZ", "txtX2", "txtY2", "txtZ2"}) {
        panel.findChild<QLineEdit*>(QLatin1String(box))->setText(QStringLiteral("0"));
    }
    QApplication::processEvents();

    const auto query = MillisecondsOf([&] {
        database.ForEachRow("SELECT Name, ID, Serial, iType, X, Y, Z FROM tblItem",
                            [](std::span<const std::string_view>) {});
    });
    bench::ForgetPeak();
    const auto before = bench::Megabytes("VmRSS");
    const auto first = MillisecondsOf([&] {
        panel.InvokeClick(*panel.findChild<QWidget*>(QStringLiteral("cmdExtractItems")));
        panel.grab();
    });
    const auto peak = bench::Megabytes("VmHWM");
    bench::ForgetPeak();
    const auto held = bench::Megabytes("VmRSS");

    constexpr int Jumps = 200;
    const auto    jumps = MillisecondsOf([&] {
        auto* bar = grid->verticalScrollBar();
        for (int jump = 0; jump < Jumps; ++jump) {
            bar->setValue(static_cast<int>(std::int64_t{bar->maximum()} * (jump * 37 % Jumps) / Jumps));
            grid->viewport()->grab();
        }
    });
    std::printf("items in the grid            %10d\n", grid->model()->rowCount());
    std::printf("the bare query               %10.0f ms\n", query);
    std::printf("click to the first picture   %10.0f ms\n", first);
    std::printf("a jump in the grid           %10.2f ms\n", jumps / Jumps);
    std::printf("memory held by the grid      %10.0f MB, %.0f MB at most while it is filled\n", held - before,
                peak - before);
    bool within =
        bench::AtMost("item grid, click to first picture, times the bare query", first / query, MostTimesQuery);
    within = bench::AtMost("item grid, a jump", jumps / Jumps, MostMillisecondsOfJump, " ms") && within;
    within = bench::AtMost("item grid, memory of an item", (held - before) * 1024 * 1024 / items, MostBytesOfItem,
                           " bytes") &&
             within;
    return within && grid->model()->rowCount() == items ? EXIT_SUCCESS : EXIT_FAILURE;
}
