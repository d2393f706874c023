#include <string>
#include <string_view>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "console/gm_commands.h"
#include "console/spawners.h"
#include "console/travel.h"
#include "console/wipe.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

std::string Effect(const console::GMCommand& command, core::ServerGeneration generation)
{
    using console::GMAct;
    const auto& effect = console::EffectIn(command, generation);
    std::string text;
    switch (effect.act) {
    case GMAct::None:
    case GMAct::Same: break;
    case GMAct::Send: text = Code(effect.text); break;
    case GMAct::Type: text = Code(effect.text) + " without the prefix"; break;
    case GMAct::Tell: text = "says \"" + Cell(effect.more) + "\""; break;
    case GMAct::TellAndSend: text = "says \"" + Cell(effect.more) + "\", then " + Code(effect.text); break;
    case GMAct::Open: text = "opens " + Code(effect.text); break;
    case GMAct::OpenWithClient:
        text = "opens " + Code(effect.text) + "; without the client's folder says \"" + Cell(effect.more) + "\"";
        break;
    case GMAct::Reveal: text = "shows the frame " + Code(effect.text); break;
    case GMAct::StartZarn: text = "starts the server"; break;
    case GMAct::StartInsideUO: text = "starts the item tool"; break;
    case GMAct::StartUO: text = "says that the launcher cannot be started"; break;
    case GMAct::Save: text = "keeps the custom commands"; break;
    case GMAct::Leave: text = "closes the console"; break;
    }
    if (!command.hides.empty()) {
        text += (text.empty() ? "" : ", then ") + ("hides the frame " + Code(command.hides));
    }
    return text;
}

void WriteConsoleTab(std::ostream& out, console::Tab tab)
{
    Heading(out, "Control");
    for (const auto& command : console::GMCommands()) {
        if (command.tab == tab) {
            Row(out, {Code(command.name), Shown(command.caption), Effect(command, Generation09),
                      Effect(command, Generation070)});
        }
    }
    out << '\n';
}

void WriteReloadCaptions(std::ostream& out)
{
    out << "Under 0.70.x the first ten buttons of `cmdReload` are captioned: ";
    std::string_view separator;
    for (const auto caption : console::ReloadCaptions(Generation070)) {
        out << separator << caption;
        separator = ", ";
    }
    out << ".\n\n";
}

void WriteLists(std::ostream& out)
{
    out << "### Words of lists and options\n\nA list or an array of options stands for the word of what is chosen "
           "in it.\n\n";
    for (const auto& list : console::GMLists()) {
        out << Code(list.name) << "; where none is chosen "
            << (list.wordOfNone.empty() ? "nothing" : Code(list.wordOfNone)) << ":\n\n| Index | Caption | Word |\n"
            << "| --- | --- | --- |\n";
        for (std::size_t index = 0; index < list.choices.size(); ++index) {
            Row(out, {std::to_string(index), Cell(list.choices[index].caption), Code(list.choices[index].word)});
        }
        out << '\n';
    }
}

void WriteTravel(std::ostream& out)
{
    Heading(out, "Control");
    for (const auto& command : console::TravelCommands()) {
        CommandRow(out, {Code(command.name), Shown(command.caption)},
                   [&](core::ServerGeneration, core::Outlet& outlet) {
                       console::SendTravelCommand(
                           command, {.txtLocX = "{txtLocX}", .txtLocY = "{txtLocY}", .txtLocZ = "{txtLocZ}"}, outlet);
                   });
    }
    for (const auto& group : console::PlaceGroups()) {
        out << "\n"
            << Code(group.list) << ", " << Cell(group.entry) << ":\n\n| Index | Name | X | Y | Z |\n"
            << "| --- | --- | --- | --- | --- |\n";
        const auto entries = console::ListEntries(group);
        for (std::size_t index = 0; index < entries.size(); ++index) {
            const auto& place = group.places[index];
            Row(out, {std::to_string(index), Cell(entries[index]), std::string(place.x), std::string(place.y),
                      std::string(place.z)});
        }
    }
    out << '\n';
}

void WriteSpawners(std::ostream& out)
{
    for (const auto& spawner : console::Spawners()) {
        out << Cell(spawner.caption) << ", " << Code(spawner.frame) << ":\n\n";
        Heading(out, "Control");
        for (const auto& step : spawner.steps) {
            if (step.OpensContainers()) {
                Row(out, {Code(step.control), Shown(step.caption), "opens `frmItems` on its containers",
                          "opens `frmItems` on its containers"});
                continue;
            }
            const auto value = step.box.empty() ? std::string() : '{' + std::string(step.box) + '}';
            CommandRow(out, {Code(step.control), Shown(step.caption)},
                       [&](core::ServerGeneration generation, core::Outlet& outlet) {
                           console::SendSpawnStep(step, value, generation, outlet);
                       });
        }
        CommandRow(out, {Code(spawner.helpButton), "?"}, console::ShowSpawnHelp);
        Row(out, {Code(spawner.returnButton), Cell("<<----- Return"), "back to the choice", "back to the choice"});
        out << '\n';
    }
}

void WriteConsoleTabs(std::ostream& out)
{
    using console::Tab;
    out << "## GM console: `frmGMCommands`\n\n";
    const auto captions = console::TabCaptions();
    for (std::size_t index = 0; index < captions.size(); ++index) {
        const auto tab = static_cast<Tab>(index);
        out << "### " << captions[index] << "\n\n";
        if (tab == Tab::Travel) {
            WriteTravel(out);
        } else if (tab == Tab::ItemSpawning) {
            WriteSpawners(out);
        } else {
            WriteConsoleTab(out, tab);
        }
        if (tab == Tab::Server) {
            WriteReloadCaptions(out);
        }
    }
    out << "### Beside the tabs\n\n";
    WriteConsoleTab(out, Tab::Outside);
    WriteLists(out);
}

void WriteWipe(std::ostream& out)
{
    out << "## Wipe: `frmWipe`\n\nWhat `Command1` does by the chosen method; `WIPE ALL` asks once more before it sends "
           "`wipe all`.\n\n";
    Heading(out, "Option");
    for (const auto& option : console::WipeOptions()) {
        if (option.method == console::WipeEverything) {
            CommandRow(out, {Code(option.name), Shown(option.caption)},
                       [](core::ServerGeneration, core::Outlet& outlet) { console::SendWipeAll(outlet); });
            continue;
        }
        CommandRow(out, {Code(option.name), Shown(option.caption)}, [&](core::ServerGeneration, core::Outlet& outlet) {
            console::WipeState state{.wmethod = std::to_string(option.method),
                                     .x1 = "{x1}",
                                     .y1 = "{y1}",
                                     .x2 = "{x2}",
                                     .y2 = "{y2}",
                                     .x1true = {},
                                     .y1true = {}};
            console::Wipe(state, outlet);
        });
    }
    out << '\n';
}

} // namespace

void WriteConsole(std::ostream& out)
{
    WriteConsoleTabs(out);
    WriteNpcPanels(out);
    WriteConsolePanels(out);
    WriteWipe(out);
}

} // namespace qf::commands
