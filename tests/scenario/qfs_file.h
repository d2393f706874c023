#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "scenario/words.h"

namespace qf::scenario {

enum class Verb {
    // the stage
    Setting,
    Unset,
    Generation,
    Windows,
    Window,
    Front,
    Process,
    Memory,
    Poke,
    Assist,
    File,
    Bytes,
    Copy,
    Folder,
    Delete,
    Another,
    // what the user does
    Click,
    Double,
    Press,
    Type,
    Focus,
    Choose,
    Check,
    Tab,
    Menu,
    Cell,
    Scroll,
    Wheel,
    Resize,
    Move,
    Minimise,
    Close,
    // the run
    Start,
    Open,
    Tick,
    Restart,
    Answer,
    Dialog,
    Random,
    Limit,
    Trace,
    // questions
    Get,
    Pixel,
    AskCell,
    AskSetting,
    AskClipboard,
    AskFile,
    AskFiles,
    AskSql,
};

/// A line of expected output.
struct Expectation {
    int   line = 0;
    Words words;
};

/// A step: what is done, with which words, and the lines that it must record.
struct Step {
    int                      line = 0;
    Verb                     verb{};
    bool                     forced = false; ///< the form with "!", without the test for shown and enabled
    std::vector<std::string> arguments;
    std::vector<std::string> text; ///< the "|" lines of a file
    std::vector<Expectation> expected;
    int                      lastLine = 0; ///< the step's own last line: its last "|" line where it has one
};

/// Something that is wrong in a file.
struct FileError {
    int         line = 0;
    std::string message;
};

struct Scenario {
    std::string              name;
    int                      line = 0;
    std::vector<Step>        steps;
    std::optional<FileError> error; ///< the first one; such a scenario is not run
};

/// A scenario file taken apart.
struct QfsFile {
    std::vector<std::string> lines;
    std::vector<Scenario>    scenarios;
    std::vector<FileError>   errors; ///< those that belong to no scenario
};

/// Takes the text of a file apart. Nothing is thrown: what is wrong stands in the errors.
QfsFile ParseQfs(std::string_view text);

/// Whether a line is one of expected output.
bool IsExpectation(std::string_view line);

/// The control and the property of the argument of `get`.
struct PropertyReference {
    std::string control;
    std::string property;
};

/// Nothing where the text names none of the properties.
std::optional<PropertyReference> ParsePropertyReference(std::string_view text);

/// Whether this is one of the properties, each 0 or 1, that a panel has also while it is not loaded.
bool IsPanelFlag(std::string_view property);

} // namespace qf::scenario
