#include "app/settings/user_folders.h"

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace qf::app {

namespace fs = std::filesystem;

namespace {

fs::path AbsoluteFromEnvironment(const char* name)
{
    // Nothing writes the environment any more when this reads it.
    const char* text = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    fs::path    path = text == nullptr ? "" : text;
    return path.is_absolute() ? path : fs::path();
}

} // namespace

fs::path UserFolder(const char* variable, const fs::path& inHome)
{
    if (auto folder = AbsoluteFromEnvironment(variable); !folder.empty()) {
        return folder;
    }
    auto home = AbsoluteFromEnvironment("HOME");
    if (home.empty()) {
        const passwd* user = ::getpwuid(::getuid()); // NOLINT(concurrency-mt-unsafe)
        home = user == nullptr || user->pw_dir == nullptr ? "/" : user->pw_dir;
    }
    return home / inHome;
}

} // namespace qf::app
