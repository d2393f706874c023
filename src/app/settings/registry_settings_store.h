#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/settings.h"

namespace qf::app {

/// The settings store of Windows: text values in the current user's registry, one key for each section.
class RegistrySettingsStore final : public core::SettingsStore {
  public:
    /// The program's own key, below that of the current user.
    static constexpr std::wstring_view DefaultRoot = L"Software\\Quernfield\\Dobrin's Quernfield";

    explicit RegistrySettingsStore(std::wstring root = std::wstring(DefaultRoot));

    /// A value that is no text counts as absent.
    std::optional<std::string> Find(std::string_view section, std::string_view key) override;

    void Write(std::string_view section, std::string_view key, std::string_view text) override;
    void Remove(std::string_view section, std::string_view key) override;

  private:
    std::wstring PathOf(std::string_view section) const;

    std::wstring root_;
};

} // namespace qf::app
