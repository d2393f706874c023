#include "core/host_path.h"

#ifdef _WIN32
#include "core/ansi.h"
#else
#include <algorithm>
#include <optional>
#include <system_error>

#include "core/text.h"
#endif

namespace qf::core {

namespace fs = std::filesystem;

#ifdef _WIN32

namespace {

fs::path FromUtf8(std::string_view text)
{
    return fs::path(std::u8string(text.begin(), text.end()));
}

} // namespace

fs::path HostPath(std::string_view programPath)
{
    try {
        return FromUtf8(programPath);
    } catch (const std::system_error&) {
        // Not UTF-8, so these are bytes of the system's code page that came in unconverted.
        return FromUtf8(FromAnsi(programPath));
    }
}

std::string ProgramPath(const fs::path& hostPath)
{
    std::string text;
    for (const char8_t unit : hostPath.u8string()) {
        text += unit == u8'/' ? '\\' : static_cast<char>(unit);
    }
    return text;
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

std::string ProgramPath(const fs::path& hostPath)
{
    std::string text = hostPath.string();
    for (char& character : text) {
        if (character == '/') {
            character = '\\';
        }
    }
    return text;
}

#endif

} // namespace qf::core
