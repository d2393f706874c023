#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/outlet.h"

namespace qf::world {

/// A template in the panel's list.
struct TemplateEntry {
    /// The first line of the file from its second character on.
    std::string text;

    /// The file's name without its folder.
    std::string fileName;

    friend bool operator==(const TemplateEntry&, const TemplateEntry&) = default;
};

/// The files of a folder whose names end in "TMP" in any case, ordered by name without regard to case. A file
/// without any line has an empty text. The folder is in the program's form of a path.
/// Throws RuntimeError 76 where the folder is not there, 75 where it or one of the files cannot be read.
std::vector<TemplateEntry> ListTemplates(std::string_view folder);

/// The description of a template; one blank where it has none. Throws RuntimeError 76, 53 or 75 where the file cannot
/// be read.
std::string TemplateDescription(std::string_view path);

/// Shows a template's description, or that it has none. Throws RuntimeError 76, 53 or 75 where the file cannot be read.
void ShowTemplateInfo(std::string_view path, std::string_view entryText, core::Outlet& outlet);

} // namespace qf::world
