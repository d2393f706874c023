#pragma once

#include <cstddef>
#include <deque>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "core/outlet.h"

namespace qf::test {

/// Thrown by an outlet that has taken as much as it may. It is no RuntimeError, so that no handler of
/// the program takes it for a failure.
class LimitReached : public std::exception {
  public:
    const char* what() const noexcept override { return "the outlet's limit is reached"; }
};

/// One effect that an outlet received.
struct OutletEntry {
    enum class Kind { Send, Show, Ask };

    Kind          kind = Kind::Send;
    std::string   command;
    bool          usePrefix = true;
    core::Message message;
    bool          answer = false;

    /// One line: `send COMMAND`, `plain COMMAND` (without prefix), `box STYLE [TITLE] TEXT` or
    /// `ask STYLE [TITLE] TEXT = yes`. The part in brackets is missing where the message has no title.
    std::string Line() const;

    friend bool operator==(const OutletEntry&, const OutletEntry&) = default;
};

inline constexpr std::size_t DefaultLimit = 100'000;

/// Records every effect in order, and throws LimitReached in place of the one that follows `limit` of them.
class RecordingOutlet : public core::Outlet {
  public:
    explicit RecordingOutlet(std::size_t limit = DefaultLimit) : limit_(limit) {}

    void Send(std::string_view command, bool usePrefix = true) override;
    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;

    /// Adds the answer to one of the next questions; a question for which none is left is answered yes.
    void Answer(bool yes) { answers_.push_back(yes); }

    const std::vector<OutletEntry>& Entries() const { return entries_; }

    /// Every entry as its line.
    std::vector<std::string> Lines() const;

    /// The commands alone.
    std::vector<std::string> Commands() const;

    /// The messages alone, questions included.
    std::vector<core::Message> Messages() const;

    void Clear() { entries_.clear(); }

  private:
    void Take(OutletEntry entry);

    std::size_t              limit_;
    std::vector<OutletEntry> entries_;
    std::deque<bool>         answers_;
};

/// Counts effects without keeping them, for runs too long to record; throws like RecordingOutlet.
class CountingOutlet : public core::Outlet {
  public:
    explicit CountingOutlet(std::size_t limit) : limit_(limit) {}

    void Send(std::string_view command, bool usePrefix = true) override;
    void Show(const core::Message& message) override;
    bool Ask(const core::Message& message) override;

    std::size_t Commands() const { return commands_; }
    std::size_t Messages() const { return messages_; }

  private:
    void Count(std::size_t& counter);

    std::size_t limit_;
    std::size_t commands_ = 0;
    std::size_t messages_ = 0;
};

/// The commands that `run`, called with an outlet, sends. A run that reaches the default limit throws LimitReached.
template <typename Run>
std::vector<std::string> Collect(Run&& run)
{
    RecordingOutlet outlet;
    run(static_cast<core::Outlet&>(outlet));
    return outlet.Commands();
}

/// The commands among the first `count` effects of a run that may have no end.
template <typename Run>
std::vector<std::string> CollectFirst(std::size_t count, Run&& run)
{
    RecordingOutlet outlet(count);
    try {
        run(static_cast<core::Outlet&>(outlet));
    } catch (const LimitReached&) {
        return outlet.Commands();
    }
    return outlet.Commands();
}

} // namespace qf::test
