#include "console/area_commands.h"

#include <array>
#include <string>

namespace qf::console {

namespace {

constexpr int              DyeIndex = 0;
constexpr std::string_view ColourPrefix = "0x";
constexpr std::string_view ColourWanted =
    "This command takes a HexID, which needs to be prefixed with 0x, which in this case would be: 0x";

constexpr std::string_view DyeText = "Dye many items in two clicks, preface color hex-id with 0x!";
constexpr std::string_view IncXText =
    "Move many items in one go, either west or east, by the specified amount of tiles. "
    "(negative numbers for left, positive for right)";
constexpr std::string_view IncYText =
    "Move many items in one go, either north or south, by the specified amount of tiles. "
    "(negative numbers for north, positive for south)";
constexpr std::string_view IncZText = "Move many items in one go, either up or down, by the specified amount of tiles. "
                                      "(negative numbers for down, positive for up)";
constexpr std::string_view SetXText = "Set the X coordinate of many items to the specified coordinate.";
constexpr std::string_view SetYText = "Set the Y coordinate of many items to the specified coordinate.";
constexpr std::string_view SetZText = "Set the Z coordinate of many items to the specified coordinate.";
constexpr std::string_view TypeText =
    "Set the type of many items in one go to the specified type (255 for WorldForge compability)";

// clang-format off
constexpr std::array areaCommands{
    AreaCommand{ 0, "Colour",     "Dye",           "txtDye",        "areacommand dye ",           DyeText},
    AreaCommand{ 2, "Move by",    "IncX",          "txtIncX",       "areacommand incx ",          IncXText},
    AreaCommand{ 4, "Move by",    "IncY",          "txtIncY",       "areacommand incy ",          IncYText},
    AreaCommand{ 6, "Move by",    "IncZ",          "txtIncZ",       "areacommand incz ",          IncZText},
    AreaCommand{ 8, "Move to",    "SetX",          "txtSetX",       "areacommand setx ",          SetXText},
    AreaCommand{10, "Move to",    "SetY",          "txtSetY",       "areacommand sety ",          SetYText},
    AreaCommand{12, "Move to",    "SetZ",          "txtSetZ",       "areacommand setz ",          SetZText},
    AreaCommand{14, "Properties", "SetType",       "txtSetTYPE",    "areacommand settype ",       TypeText},
    AreaCommand{16, "Properties", "SetMovable",    "txtSetMovable", "areacommand setmovable ",    TypeText},
    AreaCommand{18, "Properties", "SetScpTrig",    "txtSetScpTrig", "areacommand setscptrig ",    TypeText},
    AreaCommand{20, "Properties", "AddScpTrig",    "txtAddScpTrig", "areacommand addscptrig ",    TypeText},
    AreaCommand{22, "Properties", "RemoveScpTrig", "txtAddScpTrig", "areacommand removescptrig ", TypeText},
    AreaCommand{24, "Properties", "Name",          "txtName",       "areacommand name ",          TypeText},
    AreaCommand{26, "Properties", "SetEvent",      "txtSetEvent",   "areacommand setevent ",      TypeText},
    AreaCommand{28, "Properties", "Decayable",     "txtDecayable",  "areacommand decayable ",     TypeText},
};

constexpr std::array areaSyntaxes{
    AreaSyntax{"cmdTypeSyntax",          14, ""},
    AreaSyntax{"cmdMoveSyntax",          16, "0 == default by client, 1 == everyone can move, 2 == GM Only, "
                                             "3 == house-locked down(Owner only)"},
    AreaSyntax{"cmdScpTrigSyntax",       18, "Assigns JS script ID, overwriting all other script IDs that might be "
                                             "assigned"},
    AreaSyntax{"cmdAddScpTrigSyntax",    20, "Adds JS script ID to object's list of script IDs"},
    AreaSyntax{"cmdRemoveScpTrigSyntax", 22, "Removes JS script ID from object's list of script IDs"},
    AreaSyntax{"cmdNameSyntax",          24, "Enter name to assign to all items within the selected area"},
    AreaSyntax{"cmdSetEventSyntax",      26, "Assigns defined event name to all items within selected area. "
                                             "Used by 'decorate feature"},
    AreaSyntax{"cmdDecayableSyntax",     28, "0 == not decayable, 1 == decayable"},
};
// clang-format on

} // namespace

std::span<const AreaCommand> AreaCommands()
{
    return areaCommands;
}

std::span<const AreaSyntax> AreaSyntaxes()
{
    return areaSyntaxes;
}

void SendAreaCommand(const AreaCommand& command, std::string_view text, core::Outlet& outlet)
{
    if (command.index == DyeIndex && !text.starts_with(ColourPrefix)) {
        outlet.Show(core::PlainBox(std::string(ColourWanted).append(text)));
        return;
    }
    outlet.Send(std::string(command.command).append(text));
}

void TellSyntax(const AreaSyntax& syntax, core::Outlet& outlet)
{
    outlet.Show(core::PlainBox(std::string(syntax.message)));
}

} // namespace qf::console
