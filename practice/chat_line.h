#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qf::practice {

/// The line that is being typed, and the lines that Return has ended but nobody has taken yet. UTF-8.
class ChatLine {
  public:
    void Insert(std::string_view text);

    /// Deletes the last character, however many bytes it takes.
    void Backspace();

    void Return();

    const std::string& Text() const { return text_; }

    /// The ended lines in their order; they are gone from here afterwards.
    std::vector<std::string> TakeLines();

  private:
    std::string              text_;
    std::vector<std::string> lines_;
};

} // namespace qf::practice
