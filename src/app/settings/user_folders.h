#pragma once

#include <filesystem>

namespace qf::app {

/// A folder of the user that an environment variable may name, as `XDG_CONFIG_HOME` does: `inHome` in the home
/// folder where the variable is unset or holds no absolute path.
std::filesystem::path UserFolder(const char* variable, const std::filesystem::path& inHome);

} // namespace qf::app
