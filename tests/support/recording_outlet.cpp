#include "support/recording_outlet.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace qf::test {

std::string OutletEntry::Line() const
{
    if (kind == Kind::Send) {
        return (usePrefix ? "send " : "plain ") + command;
    }
    std::string line = kind == Kind::Show ? "box " : "ask ";
    line += std::to_string(static_cast<int>(message.style));
    if (message.title) {
        line += " [" + *message.title + ']';
    }
    line += ' ' + message.text;
    if (kind == Kind::Ask) {
        line += answer ? " = yes" : " = no";
    }
    return line;
}

void RecordingOutlet::Send(std::string_view command, bool usePrefix)
{
    OutletEntry entry;
    entry.kind = OutletEntry::Kind::Send;
    entry.command = command;
    entry.usePrefix = usePrefix;
    Take(std::move(entry));
}

void RecordingOutlet::Show(const core::Message& message)
{
    OutletEntry entry;
    entry.kind = OutletEntry::Kind::Show;
    entry.message = message;
    Take(std::move(entry));
}

bool RecordingOutlet::Ask(const core::Message& message)
{
    OutletEntry entry;
    entry.kind = OutletEntry::Kind::Ask;
    entry.message = message;
    entry.answer = answers_.empty() || answers_.front();
    const bool answer = entry.answer;
    Take(std::move(entry));
    if (!answers_.empty()) {
        answers_.pop_front();
    }
    return answer;
}

std::vector<std::string> RecordingOutlet::Lines() const
{
    std::vector<std::string> lines;
    std::transform(entries_.begin(), entries_.end(), std::back_inserter(lines),
                   [](const OutletEntry& entry) { return entry.Line(); });
    return lines;
}

std::vector<std::string> RecordingOutlet::Commands() const
{
    std::vector<std::string> commands;
    for (const OutletEntry& entry : entries_) {
        if (entry.kind == OutletEntry::Kind::Send) {
            commands.push_back(entry.command);
        }
    }
    return commands;
}

std::vector<core::Message> RecordingOutlet::Messages() const
{
    std::vector<core::Message> messages;
    for (const OutletEntry& entry : entries_) {
        if (entry.kind != OutletEntry::Kind::Send) {
            messages.push_back(entry.message);
        }
    }
    return messages;
}

void RecordingOutlet::Take(OutletEntry entry)
{
    if (entries_.size() >= limit_) {
        throw LimitReached();
    }
    entries_.push_back(std::move(entry));
}

void CountingOutlet::Send(std::string_view /*command*/, bool /*usePrefix*/)
{
    Count(commands_);
}

void CountingOutlet::Show(const core::Message& /*message*/)
{
    Count(messages_);
}

bool CountingOutlet::Ask(const core::Message& /*message*/)
{
    Count(messages_);
    return true;
}

void CountingOutlet::Count(std::size_t& counter)
{
    if (commands_ + messages_ >= limit_) {
        throw LimitReached();
    }
    ++counter;
}

} // namespace qf::test
