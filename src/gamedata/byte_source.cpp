#include "gamedata/byte_source.h"

#include <algorithm>

#include "core/host_path.h"

namespace qf::gamedata {

namespace {

/// The part of a read that lies within the bytes.
struct Overlap {
    std::int64_t from = 0;
    std::size_t  place = 0; ///< where in the output it goes
    std::size_t  length = 0;
};

Overlap FindOverlap(std::int64_t offset, std::size_t length, std::int64_t size)
{
    if (offset >= size) {
        return {};
    }
    const auto skipped = offset < 0 ? -static_cast<std::uint64_t>(offset) : 0;
    if (skipped >= length) {
        return {};
    }
    const auto from = std::max<std::int64_t>(offset, 0);
    const auto room = length - static_cast<std::size_t>(skipped);
    return {from, static_cast<std::size_t>(skipped), std::min(room, static_cast<std::size_t>(size - from))};
}

} // namespace

void MemoryBytes::Read(std::int64_t offset, std::span<std::byte> out)
{
    const auto part = FindOverlap(offset, out.size(), static_cast<std::int64_t>(bytes_.size()));
    const auto bytes = bytes_.subspan(static_cast<std::size_t>(part.from), part.length);
    auto       rest = std::fill_n(out.begin(), part.place, std::byte{});
    rest = std::copy(bytes.begin(), bytes.end(), rest);
    std::fill(rest, out.end(), std::byte{});
}

FileBytes::FileBytes(std::string_view programPath, Access access)
{
    Open(core::HostPath(programPath), access);
}

FileBytes FileBytes::OnHost(const std::filesystem::path& path, Access access)
{
    FileBytes file;
    file.Open(path, access);
    return file;
}

void FileBytes::Open(const std::filesystem::path& path, Access access)
{
    std::error_code failure;
    const auto      kind = std::filesystem::status(path, failure).type();
    const auto      read = std::ios::in | std::ios::binary;
    if (kind == std::filesystem::file_type::regular) {
        if (access == Access::ReadOnly || file_.open(path, read | std::ios::out) == nullptr) {
            file_.open(path, read);
        }
    } else if (kind == std::filesystem::file_type::not_found && access == Access::ReadWrite) {
        file_.open(path, read | std::ios::out | std::ios::trunc);
    }
    if (file_.is_open()) {
        size_ = std::max<std::int64_t>(file_.pubseekoff(0, std::ios::end, std::ios::in), 0);
    }
}

void FileBytes::Read(std::int64_t offset, std::span<std::byte> out)
{
    std::fill(out.begin(), out.end(), std::byte{});
    const auto part = FindOverlap(offset, out.size(), size_);
    if (part.length == 0 || file_.pubseekpos(part.from, std::ios::in) != std::streampos(part.from)) {
        return;
    }
    try {
        file_.sgetn(reinterpret_cast<char*>(out.data() + part.place), static_cast<std::streamsize>(part.length));
    } catch (const std::ios_base::failure&) {
        return; // a medium that fails in its course reads as a file that ends there
    }
}

} // namespace qf::gamedata
