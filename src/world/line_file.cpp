#include "world/line_file.h"

#include <system_error>

#include "core/runtime_error.h"

namespace qf::world {

namespace fs = std::filesystem;

bool FileExists(const fs::path& file)
{
    std::error_code failure;
    const auto      status = fs::status(file, failure);
    return fs::exists(status) && !fs::is_directory(status);
}

LineFile::LineFile(const fs::path& file) : lines_(bytes_)
{
    if (bytes_.open(file, std::ios::in | std::ios::binary) == nullptr) {
        throw core::RuntimeError(core::error::PathFileAccess);
    }
}

} // namespace qf::world
