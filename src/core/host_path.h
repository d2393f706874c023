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

/// A path as UTF-8, in the system's own form, and back. Windows refuses bytes that are no UTF-8: PathOf then throws
/// std::system_error.
std::string           Utf8Of(const std::filesystem::path& hostPath);
std::filesystem::path PathOf(std::string_view utf8);

/// Whether a path in the program's form, found as HostPath does, is that of a file.
bool IsFile(std::string_view programPath);

} // namespace qf::core
