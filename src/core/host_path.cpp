#include "core/host_path.h"

#include <algorithm>
#include <system_error>

#ifdef _WIN32
#include "core/ansi.h"
#else
#include <optional>

#include "core/text.h"
#endif

namespace qf::core {

namespace fs = std::filesystem;

#ifdef _WIN32

fs::path HostPath(std::string_view programPath)
{
    try {
        return PathOf(programPath);
    } catch (const std::system_error&) {
        // Not UTF-8, so these are bytes of the system's code page that came in unconverted.
        return PathOf(FromAnsi(programPath));
    }
}

#else

namespace {

bool IsThere(const fs::path& path)
{
    std::error_code failure;
    return fs::exists(fs::symlink_status(path, failure));
}

std::optional<std::string> FindInFolder(const fs::path& folder, const std::string& name)
{
    std::error_code            failure;
    std::optional<std::string> best;
    fs::directory_iterator     entry(folder.empty() ? fs::path(".") : folder, failure);
    while (!failure && entry != fs::directory_iterator()) {
        std::string candidate = entry->path().filename().string();
        if (EqualIgnoringCase(candidate, name) && (!best || candidate < *best)) {
            best = std::move(candidate);
        }
        entry.increment(failure);
    }
    return best;
}

} // namespace

fs::path HostPath(std::string_view programPath)
{
    std::string written(programPath);
    for (char& character : written) {
        if (character == '\\') {
            character = '/';
        }
    }
    const bool endsInSeparator = written.ends_with('/');

    fs::path path = written.starts_with('/') ? "/" : "";
    bool     searching = true;
    for (std::size_t begin = 0; begin < written.size();) {
        const std::size_t end = std::min(written.find('/', begin), written.size());
        const std::string name = written.substr(begin, end - begin);
        begin = end + 1;
        if (name.empty()) {
            continue;
        }
        const fs::path asWritten = path / name;
        if (!searching || IsThere(asWritten)) {
            path = asWritten;
        } else if (const auto found = FindInFolder(path, name)) {
            path /= *found;
        } else {
            path = asWritten;
            searching = false;
        }
    }
    if (endsInSeparator && path.has_filename()) {
        path /= "";
    }
    return path;
}

#endif

std::string ProgramPath(const fs::path& hostPath)
{
    auto text = Utf8Of(hostPath);
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

std::string Utf8Of(const fs::path& hostPath)
{
    const auto text = hostPath.u8string();
    return {text.begin(), text.end()};
}

fs::path PathOf(std::string_view utf8)
{
    return {std::u8string(utf8.begin(), utf8.end())};
}

bool IsFile(std::string_view programPath)
{
    std::error_code failure;
    return fs::is_regular_file(HostPath(programPath), failure);
}

} // namespace qf::core
