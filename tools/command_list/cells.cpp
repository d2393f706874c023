#include "command_list/cells.h"

#include <algorithm>

namespace qf::commands {

std::string Cell(std::string_view text)
{
    std::string cell;
    for (const char character : text) {
        switch (character) {
        case '\\':
        case '<':
        case '>':
        case '*':
        case '_':
        case '[':
        case '|': cell += '\\'; [[fallthrough]];
        default: cell += character;
        }
    }
    return cell;
}

std::string Shown(std::string_view caption)
{
    std::string shown;
    for (std::size_t index = 0; index < caption.size(); ++index) {
        if (caption[index] == '&' && index + 1 < caption.size()) {
            ++index;
        }
        shown += caption[index];
    }
    return Cell(shown);
}

std::string Code(std::string_view text)
{
    return '`' + std::string(text) + '`';
}

void CellOutlet::Send(std::string_view command, bool usePrefix)
{
    effects_.push_back(Code(command) + (usePrefix ? "" : " without the prefix"));
}

void CellOutlet::Show(const core::Message& message)
{
    effects_.push_back("says \"" + Cell(message.text) + '"');
}

bool CellOutlet::Ask(const core::Message& message)
{
    effects_.push_back("asks \"" + Cell(message.text) + '"');
    return true;
}

std::string Joined(const std::vector<std::string>& effects)
{
    std::string text;
    for (const auto& effect : effects) {
        text += (text.empty() ? "" : ", then ") + effect;
    }
    return text.empty() ? "nothing" : text;
}

void Heading(std::ostream& out, std::string_view first, bool named)
{
    out << "| " << first << (named ? " | Caption" : "") << " | 0.9x.x | 0.70.x |\n| --- " << (named ? "| --- " : "")
        << "| --- | --- |\n";
}

void Columns(std::ostream& out, const std::vector<std::string>& names)
{
    Row(out, names);
    Row(out, std::vector<std::string>(names.size(), "---"));
}

void Row(std::ostream& out, const std::vector<std::string>& cells)
{
    for (const auto& cell : cells) {
        out << "| " << cell << ' ';
    }
    out << "|\n";
}

void WriteSteps(std::ostream& out, const std::vector<std::string>& in09, const std::vector<std::string>& in070)
{
    Heading(out, "Step", false);
    for (std::size_t step = 0; step < std::max(in09.size(), in070.size()); ++step) {
        const auto at = [&](const std::vector<std::string>& effects) {
            return step < effects.size() ? effects[step] : std::string();
        };
        Row(out, {std::to_string(step + 1), at(in09), at(in070)});
    }
    out << '\n';
}

} // namespace qf::commands
