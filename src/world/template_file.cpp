#include "world/template_file.h"

#include <system_error>

#include "core/ansi.h"
#include "core/host_path.h"
#include "core/runtime_error.h"
#include "world/line_file.h"

namespace qf::world {

namespace fs = std::filesystem;

fs::path ExistingFile(std::string_view programPath)
{
    auto            file = core::HostPath(programPath);
    std::error_code failure;
    if (!fs::is_directory(file.parent_path(), failure)) {
        throw core::RuntimeError(core::error::PathNotFound);
    }
    if (!FileExists(file)) {
        throw core::RuntimeError(core::error::FileNotFound);
    }
    return file;
}

bool NextLine(TextLines& lines, std::string& line)
{
    std::string_view bytes;
    if (!lines.Next(bytes)) {
        return false;
    }
    line = core::FromAnsi(bytes);
    return true;
}

std::string WithoutFirst(std::string_view text, std::size_t characters)
{
    const auto continues = [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; };

    std::size_t at = 0;
    for (; characters > 0 && at < text.size(); --characters) {
        ++at;
        while (at < text.size() && continues(text[at])) {
            ++at;
        }
    }
    return std::string(text.substr(at));
}

} // namespace qf::world
