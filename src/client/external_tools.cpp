#include "client/external_tools.h"

#include <string>

#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::client {

namespace {

constexpr std::string_view LauncherFailure =
    "ERROR: The path to UO Gateway/NoCrypt-client was wrong. Please re-enter it.";
constexpr std::string_view ServerFailure = "ERROR: The path to Zarn/Brakewater Exe was wrong. Please re-enter it.";
constexpr std::string_view ItemToolFailure = "ERROR: The path to InsideUO Directory was wrong. Please re-enter it.";

void ShowFailure(std::string_view text, core::Outlet& outlet)
{
    outlet.Show({std::string(text), core::MessageStyle::Critical, "ERROR"});
}

void StartIn(std::string_view folder, std::string_view program, std::string_view failure, const ProgramStart& start,
             core::Outlet& outlet)
{
    try {
        if (folder.empty()) {
            throw core::RuntimeError(core::error::InvalidCall);
        }
        start(program, folder);
    } catch (const core::RuntimeError&) {
        ShowFailure(failure, outlet);
    }
}

} // namespace

void StartZarn(std::string_view path, const ProgramStart& start, core::Outlet& outlet)
{
    StartIn(core::FolderOf(path), path, ServerFailure, start, outlet);
}

void StartInsideUO(std::string_view folder, const ProgramStart& start, core::Outlet& outlet)
{
    StartIn(folder, "InsideUO.exe", ItemToolFailure, start, outlet);
}

void StartUO(core::Outlet& outlet)
{
    ShowFailure(LauncherFailure, outlet);
}

} // namespace qf::client
