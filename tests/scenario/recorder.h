#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "scenario/words.h"

namespace qf::scenario {

/// Hears every line that a step records. Bare words and numbers are told apart from texts, which are
/// always quoted.
class Recorder {
  public:
    void Bare(std::string_view word) { Add({{std::string(word), false}}); }

    /// One text behind the line's name.
    void Text(std::string_view name, std::string_view text);

    void Add(Words line);

    /// While it is shut nothing is recorded.
    void Shut(bool shut) { shut_ = shut; }
    bool IsShut() const { return shut_; }

    /// The lines since the last call.
    std::vector<Words> Take();

  private:
    std::vector<Words> lines_;
    bool               shut_ = false;
};

} // namespace qf::scenario
