#pragma once

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace qf::test {

/// The files of the category lists that come with the program.
inline std::set<std::filesystem::path> ItemListFiles()
{
    std::set<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(QF_ITEM_LISTS)) {
        files.insert(entry.path());
    }
    return files;
}

inline std::string TextOf(const std::filesystem::path& file)
{
    std::ifstream      stream(file, std::ios::binary);
    std::ostringstream text;
    text << stream.rdbuf();
    return text.str();
}

/// The texts of a list's line.
inline std::vector<std::string> ItemsOf(const std::filesystem::path& file)
{
    std::istringstream       line(TextOf(file).substr(0, TextOf(file).find('\n')));
    std::vector<std::string> items;
    for (std::string item; std::getline(line, item, ',');) {
        items.push_back(item);
    }
    return items;
}

} // namespace qf::test
