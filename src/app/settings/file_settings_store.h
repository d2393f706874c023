#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "app/settings/settings_text.h"
#include "core/settings.h"

namespace qf::app {

/// The settings store of systems without one of their own: a text file of the user (see SettingsText).
///
/// Each read takes the file as it is at that moment, since other programs may write it meanwhile. Each write
/// replaces the file as a whole, so that a reader, or a machine that fails, sees the old text or the new one.
/// Writers exclude each other through a lock file beside it, "<file>.lock", which stays. A file that cannot
/// be read counts as one without keys and is never replaced.
class FileSettingsStore final : public core::SettingsStore {
  public:
    explicit FileSettingsStore(std::filesystem::path file);

    /// "quernfield/settings.ini" in $XDG_CONFIG_HOME, or in ".config" of the home folder where that is unset
    /// or no absolute path.
    static std::filesystem::path DefaultFile();

    std::optional<std::string> Find(std::string_view section, std::string_view key) override;

    /// Makes missing folders. Throws RuntimeError 75 where the file can neither be read nor replaced, and
    /// where another program holds the lock for more than five seconds.
    void Write(std::string_view section, std::string_view key, std::string_view text) override;

    /// Throws RuntimeError 75 as `Write` does.
    void Remove(std::string_view section, std::string_view key) override;

  private:
    void Change(const std::function<bool(SettingsText&)>& change);

    std::filesystem::path file_;
};

} // namespace qf::app
