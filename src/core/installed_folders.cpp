#include "core/installed_folders.h"

#include <system_error>

namespace qf::core {

namespace fs = std::filesystem;

fs::path SharedFolder(const fs::path& executableFolder)
{
    return (executableFolder / ".." / "share" / "quernfield").lexically_normal();
}

fs::path PracticeArtFolder(const fs::path& executableFolder)
{
    for (const auto& folder : {executableFolder, SharedFolder(executableFolder)}) {
        std::error_code failure;
        auto            art = (folder / "PracticeArt").lexically_normal();
        if (fs::is_regular_file(art / "art.mul", failure)) {
            return art;
        }
    }
    return {};
}

} // namespace qf::core
