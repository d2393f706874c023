#include <QApplication>
#include <QDir>

#include "app/application.h"
#include "app/font_start.h"
#include "app/program_folder.h"
#include "app/qt_environment.h"
#include "app/quern_picture.h"
#include "app/settings/store_factory.h"
#include "core/host_path.h"
#include "ui/desktop_colours.h"

#ifdef _WIN32
#include "client/platform/win32/win32_platform.h"
#else
#include "app/settings/user_folders.h"
#include "client/platform/x11/x11_platform.h"
#endif

namespace {

std::unique_ptr<qf::client::ClientPlatform> OpenPlatform()
{
#ifdef _WIN32
    return std::make_unique<qf::client::Win32Platform>();
#else
    return std::make_unique<qf::client::X11Platform>();
#endif
}

qf::app::ProgramPlace FindPlace()
{
    auto folder = QDir(QApplication::applicationDirPath()).filesystemPath();
#ifdef _WIN32
    return {std::move(folder), {}};
#else
    return qf::app::PlaceOf(folder, qf::app::UserFolder("XDG_DATA_HOME", ".local/share"));
#endif
}

} // namespace

int main(int argumentCount, char** arguments)
{
    using namespace qf;

#ifndef _WIN32
    // The windows that are typed into belong to the X server, and so do the panels beside them.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
#endif
    const app::FontStart fonts;
    ui::AskForDesktopColours();
    QApplication application(argumentCount, arguments);
    ui::FollowDesktopColours(application);
    QApplication::setApplicationName(QStringLiteral("quernfield"));
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(app::QuernPicture(64));

    app::DesktopMessageBoxes boxes;
    try {
        const auto place = FindPlace();
        const auto store = app::OpenSettingsStore();
        const auto platform = OpenPlatform();

        app::DesktopFileDialogs      dialogs;
        app::DesktopClipboard        clipboard;
        app::DesktopShell            shell;
        app::InstalledComponents     components(place);
        app::DesktopProcess          process(boxes);
        core::PseudoUniformGenerator uniform;
        ui::Environment              environment{*store, *platform,  boxes,   dialogs, clipboard,
                                    shell,  components, process, uniform, core::ProgramPath(place.folder)};

        app::Application run(environment);
        if (!run.Main()) {
            return process.ExitCode();
        }
        const int code = QApplication::exec();
        return process.HasEnded() ? process.ExitCode() : code;
    } catch (const core::RuntimeError& error) {
        boxes.Show(app::StartupErrorBox(error));
        return 1;
    }
}
