#pragma once

#include <string_view>

namespace qf::app {

/// Makes the drive of the path's first letter the current one; nothing where the system has no drives.
/// Throws RuntimeError 5 where the path is empty, 68 where there is no such drive.
void ChangeDrive(std::string_view path);

} // namespace qf::app
