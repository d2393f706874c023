#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <string>
#include <string_view>

#include "client/platform/simulated/simulated_platform.h"
#include "scenario/recorder.h"
#include "ui/environment.h"

namespace qf::scenario {

/// Comes out of a step that would send more commands than the limit allows. It is no std::exception, so
/// that no handler of the program takes it for one of its own failures.
struct LimitReached {};

/// Records what is typed at the simulated desktop, in order with everything else that a step records.
class DeliveryWatch {
  public:
    DeliveryWatch(client::SimulatedPlatform& platform, Recorder& recorder);

    /// Begins a step: the commands are counted anew.
    void BeginStep();

    /// Records the lines typed so far, so that what is recorded next stands behind them.
    void Flush();

    /// Counts a message box that takes the place of a command for want of a client window.
    /// Throws LimitReached once there were as many as the limit allows.
    void CountBox();

    void SetLimit(std::int64_t limit) { limit_ = limit; }
    void SetTrace(bool trace);

  private:
    void Hear(const client::PlatformCall& call);
    void RecordCall(const client::PlatformCall& call);

    client::SimulatedPlatform& platform_;
    Recorder&                  recorder_;
    std::int64_t               limit_ = 10000;
    std::int64_t               sent_ = 0;
    std::int64_t               boxes_ = 0;
    bool                       trace_ = false;
};

/// Records message boxes and answers questions as scripted, Yes where nothing is scripted.
class RecordingBoxes final : public ui::MessageBoxes {
  public:
    RecordingBoxes(Recorder& recorder, DeliveryWatch& watch) : recorder_(recorder), watch_(watch) {}

    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;

    std::deque<bool> answers;

  private:
    void Record(const core::Message& message);

    Recorder&      recorder_;
    DeliveryWatch& watch_;
};

/// Gives the scripted files; a dialog beyond them is cancelled, as is one for which nothing is scripted.
class ScriptedDialogs final : public ui::FileDialogs {
  public:
    std::string OpenFile(const ui::FileDialogRequest& request) override;

    /// No file where the dialog is cancelled.
    std::deque<std::optional<std::string>> results;
};

class KeptClipboard final : public ui::Clipboard {
  public:
    void SetText(std::string_view text) override { text_ = text; }

    const std::string& Text() const { return text_; }

  private:
    std::string text_;
};

/// Records what would be started, and starts nothing.
class RecordingShell final : public ui::Shell {
  public:
    RecordingShell(Recorder& recorder, DeliveryWatch& watch) : recorder_(recorder), watch_(watch) {}

    void OpenAddress(std::string_view address) override;
    void EnterFolder(std::string_view folder) override;
    void StartProgram(std::string_view program, std::string_view folder) override;

  private:
    Recorder&      recorder_;
    DeliveryWatch& watch_;
};

class ScriptedComponents final : public ui::Components {
  public:
    void Check() override {}
    bool AnotherInstanceRuns() override { return anotherInstance; }

    bool anotherInstance = false;
};

/// Records the end of the process, and how a handler was stopped.
class RecordingProcess final : public ui::ProcessControl {
  public:
    RecordingProcess(Recorder& recorder, DeliveryWatch& watch) : recorder_(recorder), watch_(watch) {}

    /// What came out of a handler that is neither a run-time error nor the limit; empty where nothing did.
    const std::string& Stray() const { return stray_; }

  protected:
    void OnEnd() override;
    void OnFailure(const core::RuntimeError& error) override;
    void OnForeignException() override;

  private:
    Recorder&      recorder_;
    DeliveryWatch& watch_;
    std::string    stray_;
};

} // namespace qf::scenario
