#include <array>
#include <sstream>
#include <string>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "world/template_build.h"
#include "world/text_lines.h"

namespace qf::commands {

namespace {

/// A line of every kind, with the ID in its forms.
constexpr std::array Lines{
    ":small house",
    "DESC one room with a door",
    "TILEW 0x04a9 0 7 0 5 0",
    "TILEW 04 a9 0 7 0 5 0",
    "XLINE 0x0006 0 7 0 0",
    "XLINE 00 06 0 7 0 0",
    "YLINE 0x0007 0 0 5 0",
    "YLINE 00 07 0 0 5 0",
    "0x0675 3 5 0",
    "06 75 3 5 0",
    "0x0675 3",
};

} // namespace

void WriteTemplates(std::ostream& out)
{
    out << "## House templates: `frmHouseTemplates`\n\nWhat \"Add House\" does with the lines of a template at X 1000, "
           "Y 2000 and height 20.\n\n";
    Heading(out, "Line", false);
    for (const char* line : Lines) {
        CommandRow(out, {Code(line)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            std::stringbuf   bytes(std::string(line) + "\r\n");
            world::TextLines lines(bytes);
            world::BuildTemplateLines(lines, {.x = 1000, .y = 2000, .z = 20}, generation, outlet);
        });
    }
    out << '\n';

    Heading(out, "Control", true);
    for (const auto& row : world::TemplateCommands()) {
        CommandRow(out, {Code(row.button), std::string(row.caption)},
                   [&](core::ServerGeneration, core::Outlet& outlet) { outlet.Send(row.command); });
    }
    out << '\n';
}

} // namespace qf::commands
