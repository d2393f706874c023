#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>
#include <string_view>

namespace qf::gamedata {

/// Bytes that are read at any offset. Whatever lies before their start or behind their end reads as 0, so a
/// damaged offset leads to zeros and never out of the file.
class ByteSource {
  public:
    virtual ~ByteSource() = default;

    /// Fills the whole of `out` with the bytes that begin at `offset`.
    virtual void Read(std::int64_t offset, std::span<std::byte> out) = 0;
};

/// Bytes in memory, which must outlive this.
class MemoryBytes final : public ByteSource {
  public:
    explicit MemoryBytes(std::span<const std::byte> bytes) : bytes_(bytes) {}

    void Read(std::int64_t offset, std::span<std::byte> out) override;

  private:
    std::span<const std::byte> bytes_;
};

/// An open file. A file that cannot be opened reads as one without bytes.
class FileBytes final : public ByteSource {
  public:
    enum class Access {
        ReadOnly,
        ReadWrite, ///< as the art files are opened: one that is not there is made, empty
    };

    /// The path is in the program's form.
    FileBytes(std::string_view programPath, Access access);

    /// The file at a path of the system, for one that is opened again and again.
    static FileBytes OnHost(const std::filesystem::path& path, Access access);

    void Read(std::int64_t offset, std::span<std::byte> out) override;

  private:
    FileBytes() = default;

    void Open(const std::filesystem::path& path, Access access);

    std::filebuf file_;
    std::int64_t size_ = 0;
};

} // namespace qf::gamedata
