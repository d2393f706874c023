#include <array>
#include <string>
#include <string_view>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "console/npc.h"
#include "console/npc_script.h"
#include "console/npc_wander.h"
#include "console/shop.h"

namespace qf::commands {

namespace {

using core::Generation09;

/// The box's name as the text that is in it; nothing for a button without a box.
std::string TextIn(std::string_view box)
{
    return box.empty() ? std::string() : '{' + std::string(box) + '}';
}

void WriteNpcStep(std::ostream& out, const console::NpcStep& step)
{
    CommandRow(out, {Code(step.name), Shown(step.caption)},
               [&](core::ServerGeneration generation, core::Outlet& outlet) {
                   console::SendNpcStep(step, TextIn(step.box), generation, outlet);
               });
}

void WriteSpawnTypes(std::ostream& out)
{
    constexpr std::array<std::string_view, 3> Captions{"Normal NPC Spawner", "Area NPC Spawner", "Escortable NPC"};
    out << "What `cmdItemVisibilitySet`, \"Set Spawner Type\", sends by the chosen option; where none is chosen it "
           "sends nothing.\n\n";
    Heading(out, "Option");
    for (std::size_t index = 0; index < Captions.size(); ++index) {
        const auto option = static_cast<int>(index);
        CommandRow(out, {Code("optSpawnType(" + std::to_string(option) + ')'), Shown(Captions[index])},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       console::SendSpawnType(option, generation, outlet);
                   });
    }
    out << '\n';
}

void WriteNpcSections(std::ostream& out)
{
    constexpr std::string_view Entry = "94 - Basic Male";
    out << "What an NPC puts into `txtNPCNumber` when it is chosen. Under 0.70.x it is the number of the entry in "
           "`cmbNPCLoad`, the blank behind it included: \""
        << Entry << "\" is " << Code(console::NumberOfNpcEntry(Entry))
        << ". Under 0.9x.x it is the text beside the name in `cmbNPC`; an empty cell leaves the box as it is.\n\n";
    const auto categories = console::NpcCategories();
    for (std::size_t category = 0; category < categories.size(); ++category) {
        out << Cell(categories[category].name) << ":\n\n";
        Columns(out, {"Index", "NPC", "`txtNPCNumber`"});
        const auto names = console::NpcNames(static_cast<int>(category));
        for (std::size_t entry = 0; entry < names.size(); ++entry) {
            const auto section = console::NpcSection(static_cast<int>(category), static_cast<int>(entry));
            Row(out, {std::to_string(entry), Cell(names[entry]), section ? Code(*section) : std::string()});
        }
        out << '\n';
    }
}

void WriteNpcs(std::ostream& out)
{
    out << "## Spawn NPCs: `frmNPC`\n\nUnder 0.70.x `cmdAddNPC` is not shown, under 0.9x.x `cmdLoadNPC` is not.\n\n";
    Heading(out, "Control");
    for (const auto& step : console::NpcSteps()) {
        WriteNpcStep(out, step);
    }
    WriteNpcStep(out, console::SingleNpc());
    core::FileNumbers numbers;
    Row(out, {Code("cmdLoadNPC"), "Load NPC-list",
              Effects([&](core::Outlet& outlet) { console::LoadNpcList({}, Generation09, numbers, outlet); }),
              "fills `cmbNPCLoad` from the server's `npc.scp`"});
    CommandRow(out, {Code("cmdMore3More4"), "X/Y Offset from Spawner"},
               [](core::ServerGeneration generation, core::Outlet& outlet) {
                   console::SendSpawnArea(TextIn("txtAreaMore3"), TextIn("txtAreaMore4"), generation, outlet);
               });
    out << '\n';
    WriteSpawnTypes(out);
    WriteNpcSections(out);
}

void WriteWander(std::ostream& out)
{
    out << "## NPC wander: `frmNPCWander`\n\n";
    Heading(out, "Control");
    for (const auto& command : console::WanderCommands()) {
        CommandRow(out, {Code(command.name), Shown(command.caption)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       console::SendWander(command, generation, outlet);
                   });
    }
    CommandRow(out, {Code("cmdSetBox"), "Set Box"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        console::SendWanderBox({"{txtX1}", "{txtY1}", "{txtX2}", "{txtY2}"}, generation, outlet);
    });
    CommandRow(out, {Code("cmdCircleWander"), "Set Circle"},
               [](core::ServerGeneration generation, core::Outlet& outlet) {
                   console::SendWanderCircle({"{txtX}", "{txtY}", "{txtRadius}"}, generation, outlet);
               });
    out << '\n';
}

void WriteShop(std::ostream& out)
{
    out << "## NPC shopkeepers: `frmShop`\n\n";
    Heading(out, "Control");
    for (const auto& command : console::ShopCommands()) {
        CommandRow(out, {Code(command.name), Shown(command.caption)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       console::SendShopCommand(command, TextIn(command.box), generation, outlet);
                   });
    }
    out << '\n';
}

} // namespace

void WriteNpcPanels(std::ostream& out)
{
    WriteNpcs(out);
    WriteWander(out);
    WriteShop(out);
}

} // namespace qf::commands
