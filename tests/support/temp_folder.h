#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace qf::test {

/// A new, empty folder in the system's place for temporary files, removed with all it holds at the end.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

    /// The folder as the program writes it: "\" between the names, none at the end.
    std::string ProgramPath() const;

    /// Writes a file, missing folders included, and gives its path. `name` is UTF-8 and may hold "/".
    std::filesystem::path Write(std::string_view name, std::string_view bytes) const;

    /// Makes a folder, missing ones above it included, and gives its path.
    std::filesystem::path MakeFolder(std::string_view name) const;

    /// The bytes of a file; throws where it cannot be read.
    std::string Read(std::string_view name) const;

    bool Has(std::string_view name) const;

  private:
    std::filesystem::path Inside(std::string_view name) const;

    std::filesystem::path path_;
};

} // namespace qf::test
