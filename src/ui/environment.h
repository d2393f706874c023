#pragma once

#include <exception>
#include <functional>
#include <string>
#include <string_view>

#include "client/platform.h"
#include "core/message.h"
#include "core/runtime_error.h"
#include "core/settings.h"
#include "core/uniform.h"

namespace qf::ui {

/// Shows message boxes to the user.
class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    virtual void Show(const core::Message& message) = 0;
    virtual bool Ask(const core::Message& message) = 0;
};

/// What a file dialog is opened with. The filter is "caption|mask|caption|mask", masks parted by ";".
struct FileDialogRequest {
    std::string title;
    std::string fileName;
    std::string filter;
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;

    /// The chosen file in the program's form of a path, or `request.fileName` as it stands when the
    /// dialog is cancelled.
    virtual std::string OpenFile(const FileDialogRequest& request) = 0;
};

class Clipboard {
  public:
    virtual ~Clipboard() = default;
    virtual void SetText(std::string_view text) = 0;
};

/// What is started outside the program.
class Shell {
  public:
    virtual ~Shell() = default;
    virtual void OpenAddress(std::string_view address) = 0;

    /// Makes a folder, in the program's form of a path, the working folder of the whole process, which it stays.
    /// Where the system has drives, the folder's first letter is made the current one before.
    /// Throws RuntimeError 5 where the path is empty and the system has drives, 68 where there is no such drive, 76
    /// where there is no such folder.
    virtual void EnterFolder(std::string_view folder) = 0;

    /// Enters the folder and starts a program in it, both in the program's form of a path.
    /// Throws what EnterFolder throws, RuntimeError 53 where the program is not there, 5 where the start fails.
    virtual void StartProgram(std::string_view program, std::string_view folder) = 0;
};

/// What must be there before anything is shown.
class Components {
  public:
    virtual ~Components() = default;

    /// Throws RuntimeError 429 or 430 where a component that the program needs is missing or unusable.
    virtual void Check() = 0;

    /// Whether another instance of the program is running; the first call claims the place.
    virtual bool AnotherInstanceRuns() = 0;
};

/// The end of the process, and the one boundary at which a handler's run-time error is caught.
class ProcessControl {
  public:
    virtual ~ProcessControl() = default;

    /// Runs a handler. A RuntimeError that it lets through ends the process with a report, or goes to
    /// `onError` where that is given; once the process has ended no handler runs any more.
    ///
    /// A handler may run within another, as when a box that it fills has a handler of its own. What comes out
    /// of an inner one is kept for the outermost, and no exception crosses the signal between them.
    void Run(const std::function<void()>& handler, const std::function<void(const core::RuntimeError&)>& onError = {});

    /// Leaves the running handler by a throw where one within it has failed already, or where the process has
    /// ended: nothing of the program's effects may follow. Called before each of them.
    void ThrowIfStopped() const;

    /// Ends the process in order.
    void End();

    bool HasEnded() const { return ended_; }

    /// Called with each fatal error before it is reported; what must be kept is written here.
    std::function<void()> beforeFailure;

  protected:
    virtual void OnEnd() = 0;
    virtual void OnFailure(const core::RuntimeError& error) = 0;

    /// Something other than a RuntimeError came out of a handler; called within the catch clause.
    virtual void OnForeignException() { throw; }

  private:
    void Report(std::exception_ptr failure, const std::function<void(const core::RuntimeError&)>& onError);

    int                depth_ = 0;
    std::exception_ptr failure_;
    bool               ended_ = false;
};

/// Everything of the outside world that a run of the program stands on.
struct Environment {
    core::SettingsStore&    store;
    client::ClientPlatform& platform;
    MessageBoxes&           boxes;
    FileDialogs&            dialogs;
    Clipboard&              clipboard;
    Shell&                  shell;
    Components&             components;
    ProcessControl&         process;
    core::UniformGenerator& uniform;

    /// The program's own folder in the program's form of a path, without a separator at its end.
    std::string programFolder;
};

} // namespace qf::ui
