#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "client/platform/simulated/simulated_platform.h"
#include "scenario/doubles.h"
#include "scenario/qfs_file.h"
#include "scenario/recorder.h"
#include "scenario/scratch_store.h"
#include "support/scripted_uniform.h"

namespace qf::scenario {

/// The folders of one scenario, each in the program's form of a path, and their stand-ins in a file.
struct Folders {
    std::string app;
    std::string dir;
    std::string here;

    /// The text with the folders in the place of "${APP}", "${DIR}" and "${HERE}".
    std::string Expand(std::string text) const;
    Words       Expand(Words words) const;

    /// The words as they stand in a file, whatever the scratch folders are called.
    Words Contract(Words words) const;
};

/// What a scenario's program runs on: scratch folders, a settings store, a simulated desktop and the
/// doubles of everything else outside the program. It outlives the runs of the program in one scenario.
class Stage {
  public:
    /// `scratch` must not exist and is removed at the end; `database` is the empty world database,
    /// `here` the folder of the scenario file.
    Stage(std::filesystem::path scratch, const std::filesystem::path& database, const std::filesystem::path& here);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    /// Does a step that changes the stage or scripts what happens on it. False where the step is none of
    /// these. Throws LineError where it cannot be done.
    bool Arrange(const Step& step);

    /// Records the answer to a question that needs no program. False where the step is none of these.
    bool Answer(const Step& step);

    const Folders&        Places() const { return folders_; }
    core::SettingsStore&  Settings() { return *store_; }
    std::filesystem::path DatabaseFile() const { return scratch_ / "app" / "qf.mdb"; }

    Recorder                  recorder;
    client::SimulatedPlatform platform;
    DeliveryWatch             watch{platform, recorder};
    RecordingBoxes            boxes{recorder, watch};
    ScriptedDialogs           dialogs;
    KeptClipboard             clipboard;
    RecordingShell            shell{recorder, watch};
    ScriptedComponents        components;
    test::ScriptedUniform     uniform;

  private:
    bool ArrangeDesktop(const Step& step);
    bool ArrangeFiles(const Step& step);
    bool ArrangeScripts(const Step& step);

    void              BringForward(bool client);
    void              SetAssist(std::string_view result);
    client::ProcessId LastProcess() const;
    void              AskFile(std::string_view path);
    void              AskFolder(std::string_view path);
    void              WriteSetting(std::string_view section, std::string_view key, std::string_view text);

    std::filesystem::path scratch_;
    ScratchStore          store_;
    Folders               folders_;
    client::ProcessId     process_ = 0;
    client::WindowHandle  assist_ = 0;
};

} // namespace qf::scenario
