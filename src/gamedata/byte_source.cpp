#include "gamedata/byte_source.h"

#include <algorithm>
#include <cstring>

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
    std::fill(out.begin(), out.end(), std::byte{});
    const auto part = FindOverlap(offset, out.size(), static_cast<std::int64_t>(bytes_.size()));
    if (part.length > 0) {
        std::memcpy(out.data() + part.place, bytes_.data() + part.from, part.length);
    }
}

FileBytes::FileBytes(std::string_view programPath, Access access)
{
    const auto path = core::HostPath(programPath);
    const auto read = std::ios::in | std::ios::binary;
    if (access == Access::ReadWrite && file_.open(path, read | std::ios::out) == nullptr &&
        !std::filesystem::exists(path)) {
        file_.open(path, read | std::ios::out | std::ios::trunc);
    }
    if (!file_.is_open()) {
        file_.open(path, read);
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
    file_.sgetn(reinterpret_cast<char*>(out.data() + part.place), static_cast<std::streamsize>(part.length));
}

} // namespace qf::gamedata
