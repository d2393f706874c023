#include <array>
#include <string>

#include <windows.h>

#include <shellapi.h>

#include "app/current_drive.h"
#include "app/qt_environment.h"
#include "core/runtime_error.h"

namespace qf::app {

void DesktopShell::OpenAddress(std::string_view address)
{
    ShellExecuteA(nullptr, "Open", std::string(address).c_str(), nullptr, nullptr, SW_SHOW);
}

void ChangeDrive(std::string_view path)
{
    if (path.empty()) {
        throw core::RuntimeError(core::error::InvalidCall);
    }
    // Without a backslash the drive keeps the folder that was the current one on it.
    const std::array<char, 3> drive{path.front(), ':', '\0'};
    if (SetCurrentDirectoryA(drive.data()) == 0) {
        throw core::RuntimeError(core::error::DeviceUnavailable);
    }
}

} // namespace qf::app
