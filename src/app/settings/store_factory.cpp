#include "app/settings/store_factory.h"

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

} // namespace qf::app
