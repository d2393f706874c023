#include "app/settings/store_factory.h"

#include <filesystem>

#include "core/host_path.h"

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
    return core::Utf8Of(std::filesystem::path(L"HKEY_CURRENT_USER") / RegistrySettingsStore::DefaultRoot);
#else
    return core::Utf8Of(FileSettingsStore::DefaultFile());
#endif
}

} // namespace qf::app
