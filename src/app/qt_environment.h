#pragma once

#include <QLockFile>
#include <memory>

#include "app/program_folder.h"
#include "ui/environment.h"

namespace qf::app {

/// Message boxes on the user's desktop.
class DesktopMessageBoxes final : public ui::MessageBoxes {
  public:
    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;
};

/// The desktop's own file dialogs.
class DesktopFileDialogs final : public ui::FileDialogs {
  public:
    std::string OpenFile(const ui::FileDialogRequest& request) override;
};

class DesktopClipboard final : public ui::Clipboard {
  public:
    void SetText(std::string_view text) override;
};

class DesktopShell final : public ui::Shell {
  public:
    void OpenAddress(std::string_view address) override;
    void EnterFolder(std::string_view folder) override;
    void StartProgram(std::string_view program, std::string_view folder) override;
};

/// The files and libraries that the program needs, and its place as the one running instance.
class InstalledComponents final : public ui::Components {
  public:
    explicit InstalledComponents(ProgramPlace place) : place_(std::move(place)) {}

    /// Fills the program's folder as well. Throws RuntimeError 75 where that fails.
    void Check() override;
    bool AnotherInstanceRuns() override;

  private:
    ProgramPlace               place_;
    std::unique_ptr<QLockFile> lock_;
};

/// The process that runs the Qt event loop.
class DesktopProcess final : public ui::ProcessControl {
  public:
    explicit DesktopProcess(ui::MessageBoxes& boxes) : boxes_(boxes) {}

    /// What the process ends with: 0 in order, 1 after a run-time error.
    int ExitCode() const { return exitCode_; }

  protected:
    void OnEnd() override;
    void OnFailure(const core::RuntimeError& error) override;

  private:
    ui::MessageBoxes& boxes_;
    int               exitCode_ = 0;
};

/// The box that reports a run-time error which no handler trapped.
core::Message RuntimeErrorBox(const core::RuntimeError& error);

} // namespace qf::app
