#include "documents/markdown.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace qf::test {

namespace fs = std::filesystem;

namespace {

std::string Trimmed(std::string_view text)
{
    const auto begin = text.find_first_not_of(' ');
    return begin == std::string_view::npos ? std::string()
                                           : std::string(text.substr(begin, text.find_last_not_of(' ') + 1 - begin));
}

} // namespace

std::vector<std::string> LinesOf(const fs::path& file)
{
    std::ifstream stream(file);
    if (!stream) {
        throw std::runtime_error("cannot read " + file.string());
    }
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<fs::path> Documents(const fs::path& root)
{
    std::vector<fs::path> documents;
    const auto            take = [&](const fs::path& file) {
        if (file.extension() == ".md") {
            documents.push_back(file);
        }
    };
    for (const auto& entry : fs::directory_iterator(root)) {
        take(entry.path());
    }
    for (const auto& entry : fs::recursive_directory_iterator(root / "docs")) {
        take(entry.path());
    }
    std::ranges::sort(documents);
    return documents;
}

std::vector<std::string> Cells(std::string_view line)
{
    std::vector<std::string> cells;
    if (!line.starts_with('|')) {
        return cells;
    }
    for (auto begin = line.find('|') + 1; begin < line.size();) {
        auto end = line.find('|', begin);
        while (end != std::string_view::npos && line[end - 1] == '\\') {
            end = line.find('|', end + 1);
        }
        if (end == std::string_view::npos) {
            break;
        }
        cells.push_back(Trimmed(line.substr(begin, end - begin)));
        begin = end + 1;
    }
    return cells;
}

bool IsRule(const std::vector<std::string>& cells)
{
    return !cells.empty() && std::ranges::all_of(cells, [](const std::string& cell) {
        return !cell.empty() && cell.find_first_not_of("-:") == std::string::npos;
    });
}

std::vector<std::string> Targets(const std::string& line)
{
    constexpr std::string_view Begin = "](";
    std::vector<std::string>   targets;
    for (auto at = line.find(Begin); at != std::string::npos; at = line.find(Begin, at)) {
        at += Begin.size();
        const auto end = line.find_first_of(" )", at);
        if (end != std::string::npos && line[end] == ')') {
            targets.push_back(line.substr(at, end - at));
        }
    }
    return targets;
}

std::string Anchor(std::string_view heading)
{
    std::string anchor;
    for (const char character : heading) {
        if (character >= 'A' && character <= 'Z') {
            anchor += static_cast<char>(character - 'A' + 'a');
        } else if (character == ' ') {
            anchor += '-';
        } else if ((character >= 'a' && character <= 'z') || (character >= '0' && character <= '9') ||
                   character == '-' || character == '_') {
            anchor += character;
        }
    }
    return anchor;
}

} // namespace qf::test
