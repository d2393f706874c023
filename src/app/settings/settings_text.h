#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qf::app {

/// The text of a settings file:
///
///     [[Dobrin's Quernfield]]
///     [Configuration]
///     UOGPath=C:\Games\Razor\Razor.exe
///     CommandPrefix='
///
/// A line in double brackets opens an application, one in single brackets a section of it; both are found
/// without regard to ASCII case, as are keys. Blanks and tabs at the ends of a name or a value do not count.
/// What the format itself needs is written as "%" and two hex digits: line breaks, NUL, a blank at either end,
/// "=" in a key, a first character of a name that would open a heading or a comment, and a "%" that two hex
/// digits follow. Everything else, backslashes and quotes included, stands for itself.
///
/// A line that is none of this belongs to somebody else and is kept byte for byte, as are comments (";" or
/// "#"), blank lines, a byte order mark and each line's own end.
class SettingsText {
  public:
    explicit SettingsText(std::string_view bytes = {});

    /// The value of a key. Of several lines with one key the last one counts.
    std::optional<std::string> Find(std::string_view application, std::string_view section, std::string_view key) const;

    /// Changes the line that `Find` reads, keeping the key as it is spelled there, or adds one at the end of
    /// the section. Earlier lines with the same key stay.
    void Set(std::string_view application, std::string_view section, std::string_view key, std::string_view value);

    /// Removes every line of the key. False where there is none.
    bool Remove(std::string_view application, std::string_view section, std::string_view key);

    std::string Bytes() const;

  private:
    enum class Kind { Blank, Foreign, Application, Section, Key };

    /// `name` is the decoded heading or key. The value of a key lies in `bytes` from `valueBegin` to `valueEnd`.
    struct Line {
        std::string bytes;
        Kind        kind = Kind::Foreign;
        std::string name;
        std::size_t valueBegin = 0;
        std::size_t valueEnd = 0;
    };

    /// Lines of the wanted section: the last one with the key, and behind which line a new one belongs.
    struct Place {
        std::optional<std::size_t> key;
        std::optional<std::size_t> sectionEnd;
        std::optional<std::size_t> applicationEnd;
    };

    static Line Parse(std::string bytes, std::size_t begin);

    Place Locate(std::string_view application, std::string_view section, std::string_view key) const;
    void  Insert(std::size_t position, const std::vector<std::string>& contents);

    std::vector<Line> lines_;
    std::string       lineEnd_ = "\n";
};

} // namespace qf::app
