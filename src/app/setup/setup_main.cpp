#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <iostream>
#include <string_view>

#include "app/quern_picture.h"
#include "app/settings/store_factory.h"
#include "app/setup/setup_dialog.h"
#include "core/host_path.h"
#include "core/installed_folders.h"
#include "ui/desktop_colours.h"
#include "ui/parts.h"

namespace {

constexpr auto Usage = "quernfield-setup [--if-needed | --start]\n\n"
                       "  --if-needed  ask only where the settings lack the server's generation\n"
                       "  --start      ask only where that is needed, and then start quernfield\n"
                       "  --help       this text\n";

struct Options {
    bool onlyIfNeeded = false;
    bool start = false;
    bool help = false;
    bool unknown = false;
};

/// What begins with one dash is left to Qt.
Options ReadOptions(int argc, char** argv)
{
    Options options;
    for (int index = 1; index < argc; ++index) {
        const std::string_view argument = argv[index];
        if (argument == "--start") {
            options.start = options.onlyIfNeeded = true;
        } else if (argument == "--if-needed") {
            options.onlyIfNeeded = true;
        } else if (argument == "--help") {
            options.help = true;
        } else if (argument.starts_with("--")) {
            options.unknown = true;
        }
    }
    return options;
}

std::string PracticeArt()
{
    return qf::core::Utf8Of(qf::core::PracticeArtFolder(QDir(QApplication::applicationDirPath()).filesystemPath()));
}

/// The program beside this one, on its own from then on. Where that fails, the user is told.
bool StartProgram()
{
    const auto folder = QApplication::applicationDirPath();
    const auto program = QStandardPaths::findExecutable(QStringLiteral("quernfield"), {folder});
    if (!program.isEmpty() && QProcess::startDetached(program, {})) {
        return true;
    }
    QMessageBox::critical(nullptr, QStringLiteral("Quernfield"),
                          QStringLiteral("Quernfield cannot be started.\n\nIts program \"quernfield\" is missing in "
                                         "this folder, or the system refuses to run it:\n") +
                              QDir::toNativeSeparators(folder));
    return false;
}

} // namespace

// Asks for the settings that the program cannot start without; with --if-needed or --start only where they are
// missing. --start then starts the program. Ends with 0 when that is done, with 1 when the user cancels or the
// program cannot be started, with 2 for an unknown option.
int main(int argc, char** argv)
{
    const auto options = ReadOptions(argc, argv);
    if (options.unknown || options.help) {
        (options.unknown ? std::cerr : std::cout) << Usage;
        return options.unknown ? 2 : 0;
    }
    const auto store = qf::app::OpenSettingsStore();
    const bool asks = !options.onlyIfNeeded || qf::app::IsSetupNeeded(*store);
    if (!asks && !options.start) {
        return 0;
    }
    qf::ui::AskForDesktopColours();
    QApplication application(argc, argv);
    qf::ui::FollowDesktopColours(application);
    QApplication::setWindowIcon(qf::app::QuernIcon());
    // A Wayland desktop takes the icon from the entry of its menu.
    QApplication::setDesktopFileName(QStringLiteral("quernfield"));
    if (asks && qf::app::SetupDialog(*store, {PracticeArt(), qf::app::SettingsPlace()}).exec() != QDialog::Accepted) {
        return 1;
    }
    return !options.start || StartProgram() ? 0 : 1;
}
