#include <string>
#include <windows.h>

#include "app/settings/registry_settings_store.h"
#include "scenario/scratch_store.h"

namespace qf::scenario {

namespace {

std::wstring Root()
{
    return L"Software\\Quernfield\\Scenario " + std::to_wstring(GetCurrentProcessId());
}

} // namespace

ScratchStore::ScratchStore(const std::filesystem::path&) : store_(std::make_unique<app::RegistrySettingsStore>(Root()))
{
    RegDeleteTreeW(HKEY_CURRENT_USER, Root().c_str());
}

ScratchStore::~ScratchStore()
{
    RegDeleteTreeW(HKEY_CURRENT_USER, Root().c_str());
}

} // namespace qf::scenario
