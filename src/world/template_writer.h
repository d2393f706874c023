#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace qf::world {

/// A template that is written: text in the ANSI code page, lines ended by CR LF.
class TemplateWriter {
  public:
    /// Makes `Templates\NAME.tmp` below the program's folder, or the first of NAME0.tmp, NAME1.tmp and so on that
    /// is not there yet.
    /// Throws RuntimeError 76 without the folder, 52 for a name that no file can have, 75 for any other failure.
    TemplateWriter(std::string_view programFolder, std::string_view name);

    /// The file in the program's form of a path.
    const std::string& Path() const { return path_; }

    void WriteLine(std::string_view text);

    /// Throws RuntimeError 75 where something could not be written.
    void Close();

  private:
    std::string   path_;
    std::ofstream stream_;
};

} // namespace qf::world
