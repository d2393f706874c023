#include "client/platform/x11/sdl_window.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <string>

namespace qf::client {

namespace {

constexpr std::array<std::string_view, 4> SdlLibraryNames{"libSDL2-", "libSDL2.", "libSDL3-", "libSDL3."};

} // namespace

bool MapsNameSdl(std::istream& maps)
{
    std::string line;
    while (std::getline(maps, line)) {
        const std::size_t slash = line.rfind('/');
        if (slash == std::string::npos) {
            continue;
        }
        const std::string_view file = std::string_view(line).substr(slash + 1);
        if (std::any_of(SdlLibraryNames.begin(), SdlLibraryNames.end(),
                        [file](std::string_view name) { return file.starts_with(name); })) {
            return true;
        }
    }
    return false;
}

bool ProcessUsesSdl(ProcessId process)
{
    if (process == 0) {
        return false;
    }
    std::ifstream maps("/proc/" + std::to_string(process) + "/maps");
    return maps && MapsNameSdl(maps);
}

bool IsKnownClientClass(std::string_view className)
{
    const auto& classic = window_class::Classic;
    return className == window_class::Assist || std::find(classic.begin(), classic.end(), className) != classic.end();
}

} // namespace qf::client
