#include "console/npc_script.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "core/ansi.h"
#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace qf::console {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view NewerServer = "Sorry, this is only available for 0.70.x versions of Zarn at the moment.";
constexpr std::string_view LoadFailure =
    "ERROR: The path to Zarn/Brakewater dir (and thus npc.dfn) was wrong. Please re-enter it.";

constexpr std::string_view NameKey = "NAME";
constexpr std::string_view TitleKey = "TITLE";

/// Where the number stands in the first line of a section.
constexpr std::size_t NumberStart = 12;

/// What is known of the section that is being read.
struct Section {
    std::string number;
    std::string name;
    std::string title;
    bool        hasNameList = false;

    /// The entry of the list. A section that draws its name from a list is known by its title.
    std::string Entry() const
    {
        const bool byTitle = hasNameList && (!title.empty() || name.empty());
        return number + " - " + (byTitle ? title : name);
    }
};

std::string_view From(std::string_view line, std::size_t start)
{
    return line.substr(std::min(start, line.size()));
}

bool StartsSection(std::string_view line)
{
    return line.starts_with("SECTION") && line.find("NPC") != std::string_view::npos &&
           line.find("NPCLIST") == std::string_view::npos;
}

/// Takes a line within a section. One more character than the key goes, whichever it is.
void TakeLine(std::string_view line, Section& section)
{
    if (line.starts_with("NAMELIST")) {
        section.hasNameList = true;
    } else if (line.starts_with(NameKey)) {
        section.name = From(line, NameKey.size() + 1);
    }
    if (line.starts_with(TitleKey)) {
        section.title = From(line, TitleKey.size() + 1);
    }
}

/// A file number for as long as a file is open.
class HeldNumber {
  public:
    explicit HeldNumber(core::FileNumbers& numbers) : numbers_(numbers), number_(numbers.Take()) {}
    ~HeldNumber() { numbers_.Release(number_); }
    HeldNumber(const HeldNumber&) = delete;
    HeldNumber& operator=(const HeldNumber&) = delete;

  private:
    core::FileNumbers& numbers_;
    int                number_;
};

void Load(const NpcListLoad& load, core::FileNumbers& numbers)
{
    const auto server = load.serverPath();
    load.enterFolder(core::FolderOf(server));
    const auto path = NpcScriptPath(server);
    load.showStatus("Loading " + path);

    const auto      hostPath = core::HostPath(path);
    std::error_code failure;
    if (!fs::is_regular_file(hostPath, failure)) {
        throw core::RuntimeError(core::error::FileNotFound);
    }
    {
        const HeldNumber number(numbers);
        std::ifstream    script(hostPath, std::ios::binary);
        if (!script) {
            throw core::RuntimeError(core::error::PathFileAccess);
        }
        ReadNpcScript(script, load.addEntry);
    }
    load.showStatus("Working on file " + path);
    load.showList();
}

} // namespace

void ReadNpcScript(std::istream& script, const std::function<void(std::string_view)>& addEntry)
{
    bool    inSection = false;
    Section section;
    for (std::string read; std::getline(script, read);) {
        std::string_view line = read;
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (inSection) {
            if (core::TrimBlanks(line) == "}") {
                addEntry(core::FromAnsi(section.Entry()));
                inSection = false;
            } else {
                TakeLine(line, section);
            }
        } else if (StartsSection(line)) {
            section = {};
            section.number = core::ToText(core::ToInteger32(From(line, NumberStart)));
            inSection = true;
        }
    }
    if (script.bad()) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

std::string NpcScriptPath(std::string_view serverPath)
{
    return core::FolderOf(serverPath) + "\\npc.scp";
}

void LoadNpcList(const NpcListLoad& load, core::ServerGeneration generation, core::FileNumbers& numbers,
                 core::Outlet& outlet)
{
    if (generation.Is09()) {
        outlet.Show(core::PlainBox(std::string(NewerServer)));
    }
    if (!generation.Is070()) {
        return;
    }
    try {
        Load(load, numbers);
    } catch (const core::RuntimeError&) {
        outlet.Show({std::string(LoadFailure), core::MessageStyle::Critical, "ERROR"});
    }
}

std::string_view NumberOfNpcEntry(std::string_view entry)
{
    return entry.substr(0, entry.find('-'));
}

} // namespace qf::console
