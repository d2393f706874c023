#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings.h"
#include "ui/environment.h"

namespace qf::test {

/// A settings store in memory.
class MemoryStore final : public core::SettingsStore {
  public:
    std::optional<std::string> Find(std::string_view section, std::string_view key) override
    {
        const auto found = texts_.find(Place(section, key));
        return found == texts_.end() ? std::nullopt : std::optional(found->second);
    }
    void Write(std::string_view section, std::string_view key, std::string_view text) override
    {
        texts_[Place(section, key)] = text;
    }
    void Remove(std::string_view section, std::string_view key) override { texts_.erase(Place(section, key)); }

  private:
    static std::string Place(std::string_view section, std::string_view key)
    {
        return std::string(section) + '/' + std::string(key);
    }

    std::map<std::string, std::string> texts_;
};

/// The services of a desktop with nobody in front of it: boxes are kept and answered Yes, dialogs are
/// cancelled, nothing is started.
class QuietServices final : public ui::MessageBoxes,
                            public ui::FileDialogs,
                            public ui::Clipboard,
                            public ui::Shell,
                            public ui::Components,
                            public ui::ProcessControl {
  public:
    void Show(const core::Message& message) override { boxes.push_back(message.text); }
    bool Ask(const core::Message& message) override
    {
        boxes.push_back(message.text);
        return true;
    }
    std::string OpenFile(const ui::FileDialogRequest& request) override { return request.fileName; }
    void        SetText(std::string_view) override {}
    void        OpenAddress(std::string_view) override {}
    void        StartProgram(std::string_view, std::string_view) override {}
    void        Check() override {}
    bool        AnotherInstanceRuns() override { return false; }

    std::vector<std::string> boxes;

  protected:
    void OnEnd() override {}
    void OnFailure(const core::RuntimeError& error) override { boxes.push_back(error.Description()); }
};

} // namespace qf::test
