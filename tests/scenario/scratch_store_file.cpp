#include "app/settings/file_settings_store.h"
#include "scenario/scratch_store.h"

namespace qf::scenario {

ScratchStore::ScratchStore(const std::filesystem::path& folder)
    : store_(std::make_unique<app::FileSettingsStore>(folder / "settings.ini"))
{}

// The file goes with its folder.
ScratchStore::~ScratchStore() = default;

} // namespace qf::scenario
