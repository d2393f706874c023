#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/runtime_error.h"
#include "core/settings.h"
#include "core/text.h"

namespace qf::test {

/// A store in memory that notes its writes and refuses those from the `failsAt`-th write on, counted from 0,
/// where that is not 0.
class MemoryStore final : public core::SettingsStore {
  public:
    std::optional<std::string> Find(std::string_view section, std::string_view key) override
    {
        asked.emplace_back(key);
        const auto found = texts_.find(NameOf(section, key));
        return found == texts_.end() ? std::nullopt : std::optional(found->second);
    }

    void Write(std::string_view section, std::string_view key, std::string_view text) override
    {
        if (failsAt != 0 && log.size() >= failsAt) {
            throw core::RuntimeError(core::error::PathFileAccess);
        }
        texts_[NameOf(section, key)] = text;
        log.push_back(std::string(section) + " " + std::string(key) + "=" + std::string(text));
    }

    void Remove(std::string_view section, std::string_view key) override { texts_.erase(NameOf(section, key)); }

    /// The keys that were looked for, in order.
    std::vector<std::string> asked;

    std::size_t Size() const { return texts_.size(); }

    std::vector<std::string> log;
    std::size_t              failsAt = 0;

  private:
    static std::string NameOf(std::string_view section, std::string_view key)
    {
        return core::LowerCase(section) + " " + core::LowerCase(key);
    }

    std::map<std::string, std::string> texts_;
};

} // namespace qf::test
