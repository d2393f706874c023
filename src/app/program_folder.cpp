#include "app/program_folder.h"

#include <algorithm>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <system_error>
#include <vector>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

#include "core/host_path.h"
#include "core/installed_folders.h"
#include "core/runtime_error.h"

namespace qf::app {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view WorldDatabase = "qf.mdb";
constexpr std::string_view RecordName = ".originals";
constexpr std::string_view OnlyRead = "PracticeArt";

/// Marks by name, which has "/" between its parts.
using Marks = std::map<std::string, std::string>;

struct Originals {
    std::vector<fs::path> folders;
    std::vector<fs::path> files;
};

[[noreturn]] void ThrowAccessError(const fs::path& path)
{
    throw core::RuntimeError(core::error::PathFileAccess,
                             core::DescriptionOf(core::error::PathFileAccess) + ": " + core::Utf8Of(path));
}

std::optional<std::string> ReadAll(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::string   bytes{std::istreambuf_iterator<char>(stream), {}};
    return stream.is_open() && !stream.bad() ? std::optional(std::move(bytes)) : std::nullopt;
}

/// Whether the bytes have reached the disk. A rename alone could outlive them where the machine fails.
bool Flush([[maybe_unused]] const fs::path& file)
{
#ifdef _WIN32
    return true;
#else
    const int  descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    const bool flushed = descriptor >= 0 && ::fsync(descriptor) == 0;
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return flushed;
#endif
}

void WriteWhole(const fs::path& file, std::string_view bytes)
{
    auto            fresh = file;
    std::error_code failure;
    fresh.replace_filename("." + file.filename().string() + ".part");
    fs::remove(fresh, failure);

    std::ofstream stream(fresh, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    const bool written = stream.good() && Flush(fresh);
    if (written) {
        fs::rename(fresh, file, failure);
    }
    if (!written || failure) {
        fs::remove(fresh, failure);
        ThrowAccessError(file);
    }
}

void MakeFolder(const fs::path& folder)
{
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (!fs::is_directory(folder, failure)) {
        ThrowAccessError(folder);
    }
}

Originals ListOriginals(const fs::path& root)
{
    Originals                        found;
    std::error_code                  failure;
    fs::recursive_directory_iterator entry(root, failure);
    while (!failure && entry != fs::recursive_directory_iterator()) {
        const auto name = entry->path().lexically_relative(root);
        if (entry->is_directory(failure)) {
            if (name == OnlyRead) {
                entry.disable_recursion_pending();
            } else {
                found.folders.push_back(name);
            }
        } else {
            found.files.push_back(name);
        }
        entry.increment(failure);
    }
    if (failure) {
        ThrowAccessError(root);
    }
    std::ranges::sort(found.files);
    return found;
}

std::optional<std::string> MarkOfOwn(const fs::path& file)
{
    std::error_code failure;
    const auto      status = fs::symlink_status(file, failure);
    if (status.type() == fs::file_type::not_found) {
        return std::nullopt;
    }
    const auto bytes = fs::is_regular_file(status) ? ReadAll(file) : std::nullopt;
    return bytes ? MarkOf(*bytes) : std::string();
}

Marks ReadRecord(const fs::path& file)
{
    Marks              marks;
    std::istringstream lines(ReadAll(file).value_or(std::string()));
    for (std::string line; std::getline(lines, line);) {
        if (const auto blank = line.find(' '); blank != std::string::npos) {
            marks[line.substr(blank + 1)] = line.substr(0, blank);
        }
    }
    return marks;
}

void WriteRecord(const fs::path& file, const Marks& marks)
{
    std::string text;
    for (const auto& [name, mark] : marks) {
        text += mark;
        text += ' ';
        text += name;
        text += '\n';
    }
    WriteWhole(file, text);
}

/// An empty database for a folder that has none. A log that another one left behind would be played back into it.
void SeedDatabase(const fs::path& file, std::string_view bytes)
{
    std::error_code failure;
    if (fs::exists(fs::symlink_status(file, failure))) {
        return;
    }
    for (const char* suffix : {"-journal", "-wal", "-shm"}) {
        auto stale = file;
        stale += suffix;
        fs::remove(stale, failure);
    }
    WriteWhole(file, bytes);
}

} // namespace

ProgramPlace PlaceOf(const fs::path& executableFolder, const fs::path& dataHome)
{
    std::error_code failure;
    auto            shared = core::SharedFolder(executableFolder);
    if (fs::is_regular_file(shared / WorldDatabase, failure)) {
        return {dataHome / "quernfield", std::move(shared)};
    }
    return {executableFolder, {}};
}

std::string MarkOf(std::string_view bytes)
{
    // FNV-1a: nobody forges a file against himself, it only has to tell versions apart.
    std::uint64_t hash = 0xCBF29CE484222325U;
    for (const char byte : bytes) {
        hash = (hash ^ static_cast<unsigned char>(byte)) * 0x100000001B3U;
    }
    std::ostringstream text;
    text << std::hex << hash << '-' << bytes.size();
    return text.str();
}

bool IsDue(std::string_view original, const std::optional<std::string>& remembered,
           const std::optional<std::string>& own)
{
    if (!own) {
        return !remembered;
    }
    return own == remembered && *own != original;
}

void SeedProgramFolder(const ProgramPlace& place)
{
    if (place.originals.empty()) {
        return;
    }
    MakeFolder(place.folder);
    const auto originals = ListOriginals(place.originals);
    for (const auto& folder : originals.folders) {
        MakeFolder(place.folder / folder);
    }

    const auto recordFile = place.folder / RecordName;
    const auto known = ReadRecord(recordFile);
    auto       marks = known;
    for (const auto& file : originals.files) {
        const auto target = place.folder / file;
        const auto bytes = ReadAll(place.originals / file);
        if (!bytes) {
            ThrowAccessError(place.originals / file);
        }
        if (file == WorldDatabase) {
            SeedDatabase(target, *bytes);
            continue;
        }
        const auto name = file.generic_string();
        const auto mark = MarkOf(*bytes);
        const auto own = MarkOfOwn(target);
        const auto entry = known.find(name);
        const bool isDue = IsDue(mark, entry == known.end() ? std::nullopt : std::optional(entry->second), own);
        if (isDue) {
            WriteWhole(target, *bytes);
        }
        // What an interrupted call put there counts as ours too.
        if (isDue || own == mark) {
            marks[name] = mark;
        }
    }
    if (marks != known) {
        WriteRecord(recordFile, marks);
    }
}

} // namespace qf::app
