#pragma once

#include <filesystem>

namespace qf::core {

/// Where an installed program keeps what it only reads: "share/quernfield" beside the folder of its executables.
/// Nothing is looked up.
std::filesystem::path SharedFolder(const std::filesystem::path& executableFolder);

/// The client folder with art of our own, beside the executable or in the shared folder; empty where neither
/// holds an `art.mul`.
std::filesystem::path PracticeArtFolder(const std::filesystem::path& executableFolder);

} // namespace qf::core
