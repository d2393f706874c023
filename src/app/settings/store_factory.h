#pragma once

#include <memory>

#include "core/settings.h"

namespace qf::app {

/// The store in which this system keeps the user's settings: the registry on Windows, elsewhere a file.
std::unique_ptr<core::SettingsStore> OpenSettingsStore();

} // namespace qf::app
