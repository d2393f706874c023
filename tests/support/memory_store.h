#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/runtime_error.h"
#include "core/settings.h"

namespace qf::test {

/// A store in memory that notes its writes and refuses those from the `failsAt`-th write on, counted from 0,
/// where that is not 0.
class MemoryStore final : public core::SettingsStore {
  public:
    std::optional<std::string> Find(std::string_view section, std::string_view key) override
    {
        const auto found = texts_.find(NameOf(section, key));
        return found == texts_.end() ? std::nullopt : std::optional(found->second);
    }

    void Write(std::string_view section, std::string_view key, std::string_view text) override
    {
        if (failsAt != 0 && log.size() >= failsAt) {
            throw core::RuntimeError(core::error::PathFileAccess);
        }
        const auto name = NameOf(section, key);
        texts_[name] = text;
        log.push_back(name + "=" + std::string(text));
    }

    void Remove(std::string_view section, std::string_view key) override { texts_.erase(NameOf(section, key)); }

    std::vector<std::string> log;
    std::size_t              failsAt = 0;

  private:
    static std::string NameOf(std::string_view section, std::string_view key)
    {
        return std::string(section) + " " + std::string(key);
    }

    std::map<std::string, std::string> texts_;
};

} // namespace qf::test
