#pragma once

#include <memory>
#include <string>

#include "core/settings.h"

namespace qf::app {

/// The store in which this system keeps the user's settings: the registry on Windows, elsewhere a file.
std::unique_ptr<core::SettingsStore> OpenSettingsStore();

/// Where that store is, to be told to the user: the name of the key or of the file, in UTF-8.
std::string SettingsPlace();

} // namespace qf::app
