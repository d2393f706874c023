#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "console/area_commands.h"
#include "console/game_time.h"
#include "console/item_type.h"
#include "console/privileges.h"
#include "console/shutdown.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

/// A row of what both generations get alike.
template <typename Send>
void SameRow(std::ostream& out, std::string_view control, std::string_view caption, const Send& send)
{
    CommandRow(out, {Code(control), Shown(caption)},
               [&](core::ServerGeneration, core::Outlet& outlet) { send(outlet); });
}

std::string PrivilegesEffect(const console::PrivilegeChecks& checks)
{
    return Effects([&](core::Outlet& outlet) { console::SetPrivileges(checks, Generation070, outlet); });
}

void WritePrivileges(std::ostream& out)
{
    out << "## Character privileges: `frmPrivs`\n\nThe last button with no box ticked.\n\n";
    Heading(out, "Control");
    CommandRow(out, {Code("cmdMakePlayer"), "Make Player"}, console::MakePlayer);
    CommandRow(out, {Code("cmdMakeCounselor"), "Make Counselor"}, console::MakeCounselor);
    CommandRow(out, {Code("cmdMakeGM"), "Make GM"}, console::MakeGM);
    CommandRow(out, {Code("cmdCharSetPrivs"), "Set Privileges"},
               [](core::ServerGeneration generation, core::Outlet& outlet) {
                   console::SetPrivileges({}, generation, outlet);
               });
    console::PrivilegeChecks all;
    all.fill(console::CheckValue::Ticked);
    out << "\nThe boxes are shown under 0.70.x alone. What \"Set Privileges\" sends there with one box ticked; the "
           "numbers of several boxes are added in hexadecimal, and all of them are "
        << PrivilegesEffect(all) << ".\n\n";
    Columns(out, {"Box", "Caption", "0.70.x"});
    for (const auto& privilege : console::Privileges()) {
        console::PrivilegeChecks one{};
        one[static_cast<std::size_t>(privilege.index)] = console::CheckValue::Ticked;
        Row(out, {Code("chkCharPrivs(" + std::to_string(privilege.index) + ')'), Shown(privilege.caption),
                  PrivilegesEffect(one)});
    }
    out << '\n';
}

void WriteItemTypes(std::ostream& out)
{
    out << "## Set type: `frmType`\n\nThe chosen option's number is in the hidden box `typetext`. The word `{enter}` "
           "behind it stands for no box: it is typed as it stands.\n\n";
    Heading(out, "Control");
    CommandRow(out, {Code("Command2"), "Set TYPE"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        console::SendItemType("{typetext}", generation, outlet);
    });
    SameRow(out, "Command3", "TypeInfo", console::ShowItemTypeHelp);
    out << "\nWhat `Command2` sends by the chosen option.\n\n";
    Heading(out, "Option");
    for (const auto& option : console::ItemTypeOptions()) {
        std::vector<std::string> cells{Code(option.name), Shown(option.caption)};
        for (const auto generation : {Generation09, Generation070}) {
            cells.push_back(console::ShowsItemType(option, generation) ? Effects([&](core::Outlet& outlet) {
                console::SendItemType(std::to_string(option.value), generation, outlet);
            })
                                                                       : "not shown");
        }
        Row(out, cells);
    }
    out << '\n';
}

/// What the button sends with a text that it takes, the box's name in place of that text.
std::string AreaEffect(const console::AreaCommand& command)
{
    constexpr std::string_view Typed = "0x21";
    auto       text = Effects([&](core::Outlet& outlet) { console::SendAreaCommand(command, Typed, outlet); });
    const auto at = text.rfind(Typed);
    return at == std::string::npos ? text : text.replace(at, Typed.size(), '{' + std::string(command.box) + '}');
}

void WriteAreaCommands(std::ostream& out)
{
    constexpr std::string_view Bare = "21";
    const auto                 commands = console::AreaCommands();
    out << "## Area commands: `frmAreaCommands`\n\nThe console opens the panel under 0.9x.x alone. A colour begins "
           "with "
           "`0x`: where `txtDye` has `"
        << Bare << "`, the first button "
        << Effects([&](core::Outlet& outlet) { console::SendAreaCommand(commands.front(), Bare, outlet); }) << ".\n\n";
    Heading(out, "Control");
    for (const auto& command : commands) {
        const auto effect = AreaEffect(command);
        Row(out,
            {Code("cmdAreaCmdArray(" + std::to_string(command.index) + ')'), Shown(command.caption), effect, effect});
    }
    for (const auto& syntax : console::AreaSyntaxes()) {
        const auto effect = syntax.message.empty()
                                ? "opens " + Code("frmType")
                                : Effects([&](core::Outlet& outlet) { console::TellSyntax(syntax, outlet); });
        Row(out, {Code(syntax.name), "?", effect, effect});
    }
    out << '\n';
}

void SendTime(std::string_view hours, std::string_view minutes, std::string_view half, core::Outlet& outlet)
{
    console::GameTimeState state;
    state.Hours = hours;
    state.Minutes = minutes;
    state.ampm = half;
    console::SetGameTime(state, outlet);
}

void WriteTime(std::ostream& out)
{
    out << "## Set time: `frmTime`\n\n`Command1` in the morning:\n\n";
    Heading(out, "Control");
    SameRow(out, "Command1", "SET TIME",
            [](core::Outlet& outlet) { SendTime("{Hours}", "{Minutes}", console::dayHalves.front().value, outlet); });
    SameRow(out, "Command2", "Show Time", console::ShowGameTime);
    SameRow(out, "Command3", "SET ", [](core::Outlet& outlet) {
        console::GameTimeState state;
        state.uoseconds = "{uoseconds}";
        console::SetSecondsPerMinute(state, outlet);
    });
    out << "\nWhat `Command1` sends by the chosen option, with 9 in `Hours` and 30 in `Minutes`:\n\n";
    Heading(out, "Option");
    for (const auto& half : console::dayHalves) {
        SameRow(out, half.name, half.caption, [&](core::Outlet& outlet) { SendTime("9", "30", half.value, outlet); });
    }
    out << "\nWhere something is missing, or in the evening the hours are no number:\n\n";
    Columns(out, {"Missing", "Effect"});
    const auto evening = console::dayHalves.back().value;
    Row(out, {Code("Hours"), Effects([&](core::Outlet& outlet) { SendTime("", "30", evening, outlet); })});
    Row(out, {Code("Minutes"), Effects([&](core::Outlet& outlet) { SendTime("9", "", evening, outlet); })});
    Row(out, {"the option", Effects([&](core::Outlet& outlet) { SendTime("9", "30", "", outlet); })});
    Row(out, {"a number in " + Code("Hours"),
              Effects([&](core::Outlet& outlet) { SendTime("nine", "30", evening, outlet); })});
    Row(out, {Code("uoseconds"), Effects([](core::Outlet& outlet) { console::SetSecondsPerMinute({}, outlet); })});
    out << '\n';
}

void WriteShutdown(std::ostream& out)
{
    out << "## Shutdown: `frmShutdown`\n\n";
    Heading(out, "Control");
    const auto rows = [&](std::span<const console::ShutdownButton> buttons) {
        for (const auto& button : buttons) {
            SameRow(out, button.name, button.caption,
                    [&](core::Outlet& outlet) { console::SendShutdown(button, outlet); });
        }
    };
    rows(console::DelayedShutdowns());
    rows(console::ImmediateShutdowns());
    out << '\n';
}

} // namespace

void WriteConsolePanels(std::ostream& out)
{
    WritePrivileges(out);
    WriteItemTypes(out);
    WriteAreaCommands(out);
    WriteTime(out);
    WriteShutdown(out);
}

} // namespace qf::commands
