#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"
#include "world/template_format.h"

namespace qf::world {

class TextLines;

/// The boxes of the build point, as typed.
struct BuildBoxes {
    std::string txtX;
    std::string txtY;
    std::string txtCurrentHeight;
};

/// Builds the template of this file, a path in the program's form: converts the boxes, asks whether the client is
/// there, then sends one command for each line. A run-time error ends the build and is shown.
void BuildTemplate(std::string_view path, const BuildBoxes& boxes, core::ServerGeneration generation,
                   const std::function<bool()>& clientIsThere, core::Outlet& outlet);

/// Builds the lines of a template, which come as ANSI text. A line with a wrong number of blanks is reported with
/// its number, and the next lines follow.
/// Throws RuntimeError 13 or 6 where a field is no number or a place does not fit 32 bits.
void BuildTemplateLines(TextLines& lines, const BuildPoint& point, core::ServerGeneration generation,
                        core::Outlet& outlet);

} // namespace qf::world
