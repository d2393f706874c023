#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace qf::core {

/// The per-user store of settings, addressed by section and key within the program's own name. Every
/// value is text; keys and sections are found without regard to case. Reading never creates a key.
class SettingsStore {
  public:
    virtual ~SettingsStore() = default;

    virtual std::optional<std::string> Find(std::string_view section, std::string_view key) = 0;

    /// Throws RuntimeError 75 where the store cannot be written.
    virtual void Write(std::string_view section, std::string_view key, std::string_view text) = 0;

    /// Removes a key; one that is absent stays absent.
    virtual void Remove(std::string_view section, std::string_view key) = 0;

    /// The text of a key, or `fallback` where it is absent.
    std::string Read(std::string_view section, std::string_view key, std::string_view fallback = {})
    {
        auto found = Find(section, key);
        return found ? *found : std::string(fallback);
    }
};

namespace section {
inline constexpr std::string_view Configuration = "Configuration";
inline constexpr std::string_view Startup = "Startup";
} // namespace section

/// Where a client is usually installed, in the program's form.
inline constexpr std::string_view UsualClientFolder = R"(C:\Program Files\Ultima Online)";

/// The persistent configuration as the program uses it during a run. Paths have the program's form.
struct Settings {
    std::string UOPath;
    std::string ZarnPath;
    std::string IUOPath;
    std::string UOGPath;
    std::string CommandPrefix = "'";
    bool        ItemPic = false;
    bool        StayOnTop = false;
    bool        UsingThirdDawn = false;
    bool        UsingClassicUO = false;
    bool        UsingVista = false;
};

/// Reads the record from the store in the documented order, with the default of each absent key.
/// Throws RuntimeError 13 where a flag's text is no truth value, 6 where it is a number too large for one.
Settings ReadSettings(SettingsStore& store);

} // namespace qf::core
