#pragma once

#include <iosfwd>
#include <string_view>

#include "client/platform.h"

namespace qf::client {

/// True where a process's memory map names the SDL library of version 2 or 3.
bool MapsNameSdl(std::istream& maps);

/// True where the process of this machine has the SDL library mapped; false where it cannot be told.
bool ProcessUsesSdl(ProcessId process);

/// True for a class by which programs look for a classic client or for the assist window. Such a window
/// keeps its class whatever library its process has loaded.
bool IsKnownClientClass(std::string_view className);

} // namespace qf::client
