#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qf::core {

/// The system's own form of a path that the program holds with "\".
///
/// On Windows it is the path itself. Elsewhere every "\" (and "/") parts two names, and each name is
/// looked up first as it stands and then without regard to the case of ASCII letters (the first in byte
/// order wins where several match); names that are not there, as of a file to be made, stay as written,
/// and so do names in a folder that cannot be read. A separator at the end stays.
std::filesystem::path HostPath(std::string_view programPath);

/// The program's form of a path of the system: UTF-8 with "\" between the names.
std::string ProgramPath(const std::filesystem::path& hostPath);

} // namespace qf::core
