#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

#include "world/text_lines.h"

namespace qf::world {

/// A file that is there, out of the program's form of its path.
/// Throws RuntimeError 76 where its folder is not there, 53 where the file is not.
std::filesystem::path ExistingFile(std::string_view programPath);

/// The next line of ANSI text as UTF-8; false behind the last one.
/// Throws RuntimeError 75 where the bytes cannot be read.
bool NextLine(TextLines& lines, std::string& line);

/// The text without its first characters; empty where it has no more than these.
std::string WithoutFirst(std::string_view text, std::size_t characters);

} // namespace qf::world
