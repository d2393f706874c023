#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ui/environment.h"

namespace qf::test {

/// The services of a desktop with nobody in front of it: boxes are kept and answered Yes, dialogs are
/// cancelled, nothing is started, which is only counted.
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
    std::string OpenFile(const ui::FileDialogRequest& request) override
    {
        ++errands;
        return request.fileName;
    }
    void SetText(std::string_view) override { ++errands; }
    void OpenAddress(std::string_view) override { ++errands; }
    void EnterFolder(std::string_view) override { ++errands; }
    void StartProgram(std::string_view, std::string_view) override { ++errands; }
    bool AnotherInstanceRuns() override { return false; }
    void Check() override
    {
        if (missingComponent != 0) {
            throw core::RuntimeError(missingComponent);
        }
    }

    std::vector<std::string> boxes;

    /// How often the clipboard, a file dialog, an address or a program was asked for.
    int errands = 0;

    /// The error that tells of a missing component, 0 where all are there.
    int missingComponent = 0;

  protected:
    void OnEnd() override {}
    void OnFailure(const core::RuntimeError& error) override { boxes.push_back(error.Description()); }
};

} // namespace qf::test
