#include "app/settings/store_factory.h"

#include <filesystem>

#ifdef _WIN32
#include "app/settings/registry_settings_store.h"
#else
#include "app/settings/file_settings_store.h"
#endif

namespace qf::app {

std::unique_ptr<core::SettingsStore> OpenSettingsStore()
{
#ifdef _WIN32
    return std::make_unique<RegistrySettingsStore>();
#else
    return std::make_unique<FileSettingsStore>(FileSettingsStore::DefaultFile());
#endif
}

std::string SettingsPlace()
{
#ifdef _WIN32
    const auto place = (std::filesystem::path(L"HKEY_CURRENT_USER") / RegistrySettingsStore::DefaultRoot).u8string();
#else
    const auto place = FileSettingsStore::DefaultFile().u8string();
#endif
    return {place.begin(), place.end()};
}

} // namespace qf::app
