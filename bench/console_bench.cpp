// The opening of the console, from its making to its first picture, beside that of an empty window with as many plain
// buttons as the console has controls, in the same run.
//
// console_bench [ROUNDS]

#include <QApplication>
#include <QDir>
#include <QGridLayout>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

#include "app/application.h"
#include "client/platform/simulated/simulated_platform.h"
#include "core/host_path.h"
#include "figures.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "ui/panel.h"
#include "world/database.h"

namespace {

using namespace qf;
using Clock = std::chrono::steady_clock;

constexpr double MostTimesPlain = 2;
constexpr int    PlainColumns = 12;

double SecondsOf(const auto& run)
{
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

/// The round that was disturbed least by what else runs on the machine.
double BestOf(const std::vector<double>& times)
{
    return *std::ranges::min_element(times);
}

/// A control bears a name; what Qt makes for itself bears none or one of Qt's.
bool IsControl(const QWidget* widget)
{
    return !widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_"));
}

void DeleteWhatIsDue()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

double OpenConsole(ui::Panels& panels)
{
    ui::Panel*   console = nullptr;
    const double seconds = SecondsOf([&] {
        console = &panels.Show("frmGMCommands");
        QCoreApplication::processEvents();
    });
    panels.Unload(*console);
    DeleteWhatIsDue();
    return seconds;
}

double OpenPlainWindow(int buttons, QSize size)
{
    std::unique_ptr<QWidget> window;
    return SecondsOf([&] {
        window = std::make_unique<QWidget>();
        auto* grid = new QGridLayout(window.get());
        for (int number = 0; number < buttons; ++number) {
            auto* button = new QPushButton(QStringLiteral("Button %1").arg(number), window.get());
            grid->addWidget(button, number / PlainColumns, number % PlainColumns);
        }
        window->resize(size);
        window->show();
        QCoreApplication::processEvents();
    });
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    const int rounds = std::max(1, argumentCount > 1 ? std::atoi(arguments[1]) : 41);

    const QTemporaryDir scratch;
    const auto          folder = QDir(scratch.path()).filesystemPath();
    world::CreateWorldDatabase(folder / "qf.mdb");
    test::MemoryStore store;
    store.Write(core::section::Configuration, "ZarnVer", "1");
    store.Write(core::section::Startup, "GMposX", "0");
    store.Write(core::section::Startup, "GMposY", "0");
    client::SimulatedPlatform    desktop;
    test::QuietServices          services;
    core::PseudoUniformGenerator uniform;
    ui::Environment              environment{store,    desktop,  services, services, services,
                                services, services, services, uniform,  core::ProgramPath(folder)};
    app::Application             run(environment);
    if (!run.Main()) {
        return 1;
    }
    auto& panels = run.Context().panels;

    auto&      console = panels.Show("frmGMCommands");
    const auto controls = static_cast<int>(std::ranges::count_if(console.findChildren<QWidget*>(), IsControl));
    const auto size = console.size();
    panels.Unload(console);
    DeleteWhatIsDue();

    std::vector<double> opening;
    std::vector<double> plain;
    for (int round = 0; round < rounds; ++round) {
        opening.push_back(OpenConsole(panels));
        plain.push_back(OpenPlainWindow(controls, size));
        DeleteWhatIsDue();
    }
    const double times = BestOf(opening) / BestOf(plain);
    std::printf("console       %6.2f ms\n", BestOf(opening) * 1e3);
    std::printf("plain window  %6.2f ms  (%d buttons)\n", BestOf(plain) * 1e3, controls);
    std::printf("ratio         %6.2f     (limit %.0f)\n", times, MostTimesPlain);
    const bool within = bench::AtMost("opening of the console, times a plain window's", times, MostTimesPlain);
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
