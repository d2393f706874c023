#pragma once

#include <chrono>
#include <csignal>
#include <functional>
#include <string>
#include <vector>

#include <sys/types.h>
#include <xcb/xcb.h>

#include "client/platform.h"
#include "support/temp_folder.h"

namespace qf::test {

/// Asks again and again until the condition holds; false where the time runs out first.
bool Eventually(const std::function<bool()>& condition, std::chrono::seconds limit = std::chrono::seconds{20});

/// A program that runs beside the test and is ended with it.
class ChildProcess {
  public:
    explicit ChildProcess(const std::vector<std::string>& command);
    ~ChildProcess();
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    pid_t Id() const { return id_; }

    /// Sends the signal and waits for the end.
    void End(int signal);

  private:
    pid_t id_ = -1;
};

/// Runs a program to its end; true where it exits with 0.
bool RunTool(const std::vector<std::string>& command);

/// The program that receives what is typed, with its log.
class Receiver {
  public:
    explicit Receiver(const std::vector<std::string>& options = {});

    /// The lines received until now, as UTF-8.
    std::vector<std::string> Lines() const;

    /// Waits until this many lines have come, and gives all.
    std::vector<std::string> WaitForLines(std::size_t count) const;

    ChildProcess& Process() { return process_; }

  private:
    TempFolder   folder_;
    ChildProcess process_;
};

/// Keeps the display from starting anew, as it does when its last program leaves.
void HoldDisplay();

/// Every symbol of every key of the display's keyboard.
std::vector<xcb_keysym_t> KeyboardMapping();

/// True while a window manager answers for the display and has listed its windows.
bool WindowManagerRuns();

/// A window manager that runs as long as this lives.
class WindowManager {
  public:
    WindowManager();
    ~WindowManager() { process_.End(SIGTERM); }
    WindowManager(const WindowManager&) = delete;
    WindowManager& operator=(const WindowManager&) = delete;

    /// Ends it without a chance to tidy up.
    void Kill() { process_.End(SIGKILL); }

  private:
    ChildProcess process_;
};

/// Changes a property of the root window that nobody reads. A manager that has fallen asleep on an event
/// which came while it started wakes up at the next one.
void NudgeWindowManager();

} // namespace qf::test
