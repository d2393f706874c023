#include <QDesktopServices>
#include <QUrl>

#include "app/current_drive.h"
#include "app/qt_environment.h"
#include "ui/parts.h"

namespace qf::app {

void DesktopShell::OpenAddress(std::string_view address)
{
    QDesktopServices::openUrl(QUrl(ui::Text(address)));
}

void ChangeDrive(std::string_view) {}

} // namespace qf::app
