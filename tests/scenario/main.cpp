#include <QApplication>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <string>
#include <vector>

#include "scenario/event_loop.h"
#include "scenario/runner.h"
#include "world/database.h"

namespace fs = std::filesystem;

namespace {

/// A folder in memory where the system has one, so that a thousand scenarios do not wait for a disk.
fs::path FolderForScratch()
{
    const fs::path  memory = "/dev/shm";
    std::error_code failure;
    return fs::is_directory(memory, failure) ? memory : fs::temp_directory_path();
}

/// A new folder of a name of its own, removed at the end.
class ScratchFolder {
  public:
    ScratchFolder()
    {
        std::error_code    failure;
        std::random_device random;
        for (fs::path base = FolderForScratch();; base = fs::temp_directory_path()) {
            path_ = base / ("quernfield-scenario-" + std::to_string(random()));
            if (fs::create_directory(path_, failure)) {
                fs::permissions(path_, fs::perms::owner_all, failure);
                return;
            }
            if (base == fs::temp_directory_path()) {
                throw std::runtime_error("no scratch folder can be made in " + base.string());
            }
        }
    }
    ~ScratchFolder()
    {
        std::error_code failure;
        fs::remove_all(path_, failure);
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    const fs::path& Path() const { return path_; }

  private:
    fs::path path_;
};

/// Writes what the offscreen platform takes its screen from: one of a common size, since its own is so
/// small that large panels would be cut to it.
fs::path WriteScreen(const fs::path& folder)
{
    fs::path file = folder / "screen.json";
    std::ofstream(file) << R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false,)"
                        << R"( "screens": [{"name": "screen", "x": 0, "y": 0, "width": 1920, "height": 1080,)"
                        << R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    return file;
}

/// Lets through what Qt has to tell but for what the offscreen platform says at every window.
void PassOnMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support"))) {
        std::cerr << message.toStdString() << '\n';
    }
}

int Run(int argc, char** argv)
{
    std::vector<std::string> files(argv + 1, argv + argc);
    const bool               print = !files.empty() && files.front() == "--print";
    const bool               stop = !files.empty() && files.front() == "--stop";
    if (print || stop) {
        files.erase(files.begin());
    }
    if (files.empty() || files.front().starts_with("--")) {
        std::cerr << "usage: quernfield-scenario [--print | --stop] FILE.qfs...\n";
        return 2;
    }

    const ScratchFolder scratch;
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" + QByteArray::fromStdString(WriteScreen(scratch.Path()).string()));
    qputenv("QT_NO_GLIB", "1");
    qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(scratch.Path().string()));
    qunsetenv("QT_STYLE_OVERRIDE");
    for (const char* scaling : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_FONT_DPI"}) {
        qunsetenv(scaling);
    }
    qInstallMessageHandler(PassOnMessage);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setQuitOnLastWindowClosed(false);
    const qf::scenario::TimerStop timerStop;

    // Made anew, since the one beside the programs holds what was loaded into it there.
    const fs::path database = scratch.Path() / "qf.mdb";
    qf::world::CreateWorldDatabase(database);
    qf::scenario::Runner runner({scratch.Path(), database}, std::cout, std::cerr);
    for (const auto& file : files) {
        if (print) {
            runner.Print(file);
        } else {
            runner.Compare(file);
        }
        if (stop && runner.Failed() > 0) {
            break;
        }
    }
    if (!print) {
        std::cout << runner.Passed() << " passed, " << runner.Failed() << " failed\n";
    }
    return runner.Failed() == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run(argc, argv);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
