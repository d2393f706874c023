#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace qf::practice {

/// What the command line asks for.
struct Options {
    std::string logFile;        ///< empty: no log
    std::string screenshotFile; ///< empty: no picture
    std::string prefix = "'";
    std::string clientFolder; ///< whose art is drawn; empty: the practice art beside the program, if it is there
    bool        noArt = false;
    int         width = 1024; ///< of the window, in pixels
    int         height = 768;
    bool        help = false;
};

/// A command line that cannot be obeyed; `what()` says why.
class UsageError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name. Throws UsageError.
Options ParseOptions(std::span<const char* const> arguments);

/// The text of --help.
std::string UsageText();

} // namespace qf::practice
