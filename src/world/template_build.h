#pragma once

#include <functional>
#include <span>
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

/// A button of the template panel that sends one text, the same in both generations.
struct TemplateCommand {
    std::string_view button;
    std::string_view caption;
    std::string_view command;
    std::string_view hint;
};

std::span<const TemplateCommand> TemplateCommands();

} // namespace qf::world
