#pragma once

#include <filesystem>
#include <memory>

#include "core/settings.h"

namespace qf::scenario {

/// A settings store of the kind that this system has, empty at first and gone at the end: a file in the given
/// folder, or on Windows a key of its own in the registry.
class ScratchStore {
  public:
    explicit ScratchStore(const std::filesystem::path& folder);
    ~ScratchStore();
    ScratchStore(const ScratchStore&) = delete;
    ScratchStore& operator=(const ScratchStore&) = delete;

    core::SettingsStore& operator*() { return *store_; }
    core::SettingsStore* operator->() { return store_.get(); }

  private:
    std::unique_ptr<core::SettingsStore> store_;
};

} // namespace qf::scenario
