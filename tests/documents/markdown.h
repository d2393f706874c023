#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace qf::test {

/// The lines of a text file of the tree, without their ends. Throws std::runtime_error where it cannot be read.
std::vector<std::string> LinesOf(const std::filesystem::path& file);

/// The documents that users and developers read: those in the root, in docs and below it.
std::vector<std::filesystem::path> Documents(const std::filesystem::path& root);

/// The cells of a table's line without the blanks around them; empty where the line is none of a table.
std::vector<std::string> Cells(std::string_view line);

/// Whether the cells are those of the line below a table's heading.
bool IsRule(const std::vector<std::string>& cells);

/// The targets of the links and pictures of a line.
std::vector<std::string> Targets(const std::string& line);

/// The name by which a link reaches a heading, given without its marks.
std::string Anchor(std::string_view heading);

} // namespace qf::test
