#include "world/world_files_09.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <system_error>

#include "core/ansi.h"
#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "world/line_file.h"

namespace qf::world {

namespace fs = std::filesystem;

namespace {

constexpr int LastRegion = 50;

enum class Section { None, Item, Character };

std::int32_t Number(std::string_view value)
{
    return core::ToInteger32(core::NormalizeHexPrefix(value));
}

/// Sets the place of a record from "X,Y,Z,World" with an optional instance behind.
template <typename Record>
void TakeLocation(Record& record, std::string_view value)
{
    constexpr std::size_t needed = 4;

    std::array<std::string_view, needed + 1> members;
    std::size_t                              count = 0;
    for (std::size_t begin = 0; count < members.size() && !value.empty() && begin <= value.size(); ++count) {
        const auto end = std::min(value.find(',', begin), value.size());
        members[count] = value.substr(begin, end - begin);
        begin = end + 1;
    }
    if (count < needed) {
        throw core::RuntimeError(core::error::SubscriptRange);
    }
    record.x = core::ToInteger16(members[0]);
    record.y = core::ToInteger16(members[1]);
    record.z = core::ToInteger16(members[2]);
    record.world = core::ToInteger16(members[3]);
    if (count > needed) {
        record.instance = core::ToInteger16(members[needed]);
    }
}

void TakeKey(ItemRecord& item, std::string_view key, std::string_view value)
{
    if (key == "Serial") {
        item.serial = Number(value);
    } else if (key == "ID") {
        item.id = Number(value);
    } else if (key == "Cont") {
        item.container = Number(value);
    } else if (key == "Type") {
        item.type = Number(value);
    } else if (key == "Name") {
        item.name = core::FromAnsi(value);
    } else if (key == "Location") {
        TakeLocation(item, value);
    }
}

void TakeKey(CharacterRecord& character, std::string_view key, std::string_view value)
{
    if (key == "Serial") {
        character.serial = Number(value);
    } else if (key == "ID") {
        character.id = Number(value);
    } else if (key == "OwnerID") {
        character.owner = Number(value);
    } else if (key == "Name") {
        character.name = core::FromAnsi(value);
    } else if (key == "Location") {
        TakeLocation(character, value);
    }
}

template <typename Record>
void TakeLine(Record& record, std::string_view line)
{
    if (const auto split = line.find('='); split != std::string_view::npos) {
        TakeKey(record, line.substr(0, split), line.substr(split + 1));
    }
}

template <typename Record>
void WriteIfNumbered(RecordSink& sink, const Record& record)
{
    if (record.serial != 0) {
        sink.Write(record);
    }
}

class SectionReader {
  public:
    explicit SectionReader(RecordSink& sink) : sink_(sink) {}

    void Take(std::string_view line)
    {
        if (core::EqualIgnoringCase(line, "[ITEM]")) {
            Finish(Section::Item);
            item_ = {};
        } else if (core::EqualIgnoringCase(line, "[CHARACTER]")) {
            Finish(Section::Character);
            character_ = {};
        } else if (core::EqualIgnoringCase(line, "o---o")) {
            Finish(Section::None);
        } else if (section_ == Section::Item) {
            TakeLine(item_, line);
        } else if (section_ == Section::Character) {
            TakeLine(character_, line);
        }
    }

    /// Writes the record of the section that ends here.
    void Finish(Section next)
    {
        if (section_ == Section::Item) {
            WriteIfNumbered(sink_, item_);
        } else if (section_ == Section::Character) {
            WriteIfNumbered(sink_, character_);
        }
        section_ = next;
    }

  private:
    RecordSink&     sink_;
    Section         section_ = Section::None;
    ItemRecord      item_;
    CharacterRecord character_;
};

/// The files of a folder by their names in lower case; of two that differ in case alone the first in byte order.
std::map<std::string, fs::path> FilesByName(const fs::path& folder)
{
    std::map<std::string, fs::path> files;
    std::error_code                 failure;
    for (fs::directory_iterator entry(folder, failure); !failure && entry != fs::directory_iterator();
         entry.increment(failure)) {
        auto& file = files[core::LowerCase(core::ProgramPath(entry->path().filename()))];
        if (file.empty() || entry->path() < file) {
            file = entry->path();
        }
    }
    return files;
}

} // namespace

void ReadSections(TextLines& lines, RecordSink& sink)
{
    SectionReader reader(sink);
    for (std::string_view line; lines.Next(line);) {
        if (line = core::TrimBlanks(line); !line.empty()) {
            reader.Take(line);
        }
    }
    reader.Finish(Section::None);
}

void LoadWorldFiles09(std::string_view folder, RecordSink& sink, core::Outlet& outlet)
{
    // One look at the folder finds the names of other case; looking through it for each name would take seconds.
    const auto shared = core::HostPath(std::string(folder) + "/shared/");
    const auto present = FilesByName(shared);

    int count = 0;
    for (int i = 0; i <= LastRegion; ++i) {
        for (int j = 0; j <= LastRegion; ++j) {
            const auto name = std::to_string(i) + "." + std::to_string(j) + ".wsc";
            auto       file = shared / name;
            if (const auto other = present.find(name); !FileExists(file) && other != present.end()) {
                file = other->second;
            }
            if (FileExists(file)) {
                ++count;
                LineFile world(file);
                ReadSections(world.Lines(), sink);
            }
        }
    }
    outlet.Show({"World file scan complete.\r\nFound and processed " + std::to_string(count) + " .wsc files.",
                 core::MessageStyle::Information, "Load Status"});
}

} // namespace qf::world
