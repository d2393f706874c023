#pragma once

#include <functional>
#include <istream>
#include <string>
#include <string_view>

#include "core/file_numbers.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// Reads the list of NPCs out of the text of a script and gives each entry in turn, as UTF-8, when its section
/// ends. The text is ANSI; a line ends with CR LF or LF, and the last one may have no end.
/// Throws RuntimeError 13 or 6 where a section's number is none, 75 where the text cannot be read; the entries
/// before that have been given.
void ReadNpcScript(std::istream& script, const std::function<void(std::string_view)>& addEntry);

/// The path of the script beside a server's executable, both in the program's form. The folder keeps its
/// separator, so two stand in a row.
std::string NpcScriptPath(std::string_view serverPath);

/// What a load of the list asks for and what it shows on its way.
struct NpcListLoad {
    /// The path of the server's executable.
    std::function<std::string()> serverPath;

    /// Makes the server's folder the working one; throws RuntimeError where it cannot.
    std::function<void(std::string_view)> enterFolder;

    std::function<void(std::string_view)> showStatus;
    std::function<void(std::string_view)> addEntry;
    std::function<void()>                 showList;
};

/// Fills the list of NPCs from the script beside the server's executable. Any failure on the way is one message,
/// and what was listed before it stays. The newer server has no such script, which is a message too.
void LoadNpcList(const NpcListLoad& load, core::ServerGeneration generation, core::FileNumbers& numbers,
                 core::Outlet& outlet);

/// The number of an entry's section, with the blank that stands behind it.
std::string_view NumberOfNpcEntry(std::string_view entry);

} // namespace qf::console
