#include <QDir>
#include <QFileInfo>
#include <QProcess>

#include "app/current_drive.h"
#include "app/qt_environment.h"
#include "core/host_path.h"
#include "ui/parts.h"

namespace qf::app {

namespace {

QString HostText(std::string_view programPath)
{
    return ui::Text(core::Utf8Of(core::HostPath(programPath)));
}

} // namespace

void DesktopShell::EnterFolder(std::string_view folder)
{
    ChangeDrive(folder);
    // The program's own working folder stays changed, whatever becomes of what follows.
    if (folder.empty() || !QDir::setCurrent(HostText(folder))) {
        throw core::RuntimeError(core::error::PathNotFound);
    }
}

void DesktopShell::StartProgram(std::string_view program, std::string_view folder)
{
    EnterFolder(folder);
    // A name without a folder is looked for where the program is to run.
    const QFileInfo file(HostText(program));
    if (!file.isFile()) {
        throw core::RuntimeError(core::error::FileNotFound);
    }
    if (!QProcess::startDetached(file.absoluteFilePath(), {})) {
        throw core::RuntimeError(core::error::InvalidCall);
    }
}

} // namespace qf::app
