#include "command_list/cells.h"

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
    Add(Code(command) + (usePrefix ? "" : " without the prefix"));
}

void CellOutlet::Show(const core::Message& message)
{
    Add("says \"" + Cell(message.text) + '"');
}

bool CellOutlet::Ask(const core::Message& message)
{
    Add("asks \"" + Cell(message.text) + '"');
    return true;
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

} // namespace qf::commands
