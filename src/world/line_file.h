#pragma once

#include <filesystem>
#include <fstream>

#include "world/text_lines.h"

namespace qf::world {

/// Whether there is something of this name that is no folder.
bool FileExists(const std::filesystem::path& file);

/// A text file that is open for reading.
class LineFile {
  public:
    /// Throws RuntimeError 75 where the file cannot be opened.
    explicit LineFile(const std::filesystem::path& file);

    TextLines& Lines() { return lines_; }

  private:
    std::filebuf bytes_;
    TextLines    lines_;
};

} // namespace qf::world
