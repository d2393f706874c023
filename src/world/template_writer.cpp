#include "world/template_writer.h"

#include <cerrno>
#include <filesystem>
#include <system_error>

#include "core/ansi.h"
#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::world {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Extension = ".tmp";
constexpr std::size_t      LongestFileName = 255;

[[noreturn]] void FailFor(std::errc reason)
{
    switch (reason) {
    case std::errc::no_such_file_or_directory:
    case std::errc::not_a_directory: throw core::RuntimeError(core::error::PathNotFound);
    case std::errc::filename_too_long:
    case std::errc::invalid_argument:
    case std::errc::illegal_byte_sequence: throw core::RuntimeError(core::error::BadFileName);
    default: throw core::RuntimeError(core::error::PathFileAccess);
    }
}

/// Whatever lies there, a link to nothing included, is not to be written over.
bool IsTaken(const fs::path& file)
{
    std::error_code failure;
    return fs::exists(fs::symlink_status(file, failure));
}

} // namespace

TemplateWriter::TemplateWriter(std::string_view programFolder, std::string_view name)
{
    // Systems tell differently of a name that is too long for them, so it is found out here.
    const auto lastPart = name.substr(name.rfind('\\') + 1);
    if (name.find('\0') != std::string_view::npos || lastPart.size() + Extension.size() > LongestFileName) {
        FailFor(std::errc::invalid_argument);
    }
    const auto start = std::string(programFolder) + "\\Templates\\" + std::string(name);
    path_ = start + std::string(Extension);
    auto file = core::HostPath(path_);
    for (std::int32_t number = 0; IsTaken(file); number = core::Add32(number, 1)) {
        path_ = start + core::ToText(number) + std::string(Extension);
        file = core::HostPath(path_);
    }
    errno = 0;
    stream_.open(file, std::ios::binary);
    if (!stream_) {
        FailFor(static_cast<std::errc>(errno));
    }
}

void TemplateWriter::WriteLine(std::string_view text)
{
    stream_ << core::ToAnsi(text) << "\r\n";
}

void TemplateWriter::Close()
{
    stream_.close();
    if (!stream_) {
        FailFor(std::errc::io_error);
    }
}

} // namespace qf::world
