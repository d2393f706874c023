#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace qf::app {

/// Where a program finds what stands "beside" it.
struct ProgramPlace {
    /// The program's folder: the world database, templates and item lists, which the program reads and writes.
    std::filesystem::path folder;

    /// The originals that the folder is filled from; empty where the program runs from its own folder.
    std::filesystem::path originals;

    friend bool operator==(const ProgramPlace&, const ProgramPlace&) = default;
};

/// The place of a program by its executable's folder. An installed one, whose shared folder holds a world
/// database, has its folder in the user's data home, since it may not write beside itself; any other has the
/// executable's own.
ProgramPlace PlaceOf(const std::filesystem::path& executableFolder, const std::filesystem::path& dataHome);

/// What two copies of a file are told apart by, without a blank.
std::string MarkOf(std::string_view bytes);

/// Whether the user's folder gets a shipped file. `remembered` is the mark of what was put there last, `own` of
/// what is there now (an empty mark is a thing that never came from us).
///
/// A file that is new to the user comes, and so does one newer than a copy that he left as it was. What he
/// changed, deleted or had before stays as he wants it.
bool IsDue(std::string_view original, const std::optional<std::string>& remembered,
           const std::optional<std::string>& own);

/// Brings the program's folder up to date with its originals, by `IsDue`; the world database comes only where
/// there is none. Nothing happens where there are no originals. What was put there is remembered in the folder's
/// file ".originals".
///
/// A file is there whole or not at all, whenever the program is killed, and the next call goes on.
/// Throws RuntimeError 75 with the name of the file or folder that cannot be read or written.
void SeedProgramFolder(const ProgramPlace& place);

} // namespace qf::app
