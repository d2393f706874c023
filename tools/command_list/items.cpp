#include <array>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "items/item_pos.h"
#include "items/items.h"
#include "items/light_source.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

/// A way in which an item stands: its facing, and a door's open direction, -1 for other items.
struct Stand {
    int         facing;
    int         open;
    const char* caption;
};

constexpr std::array<Stand, 4> Facings{
    {{items::North, -1, "North"}, {items::West, -1, "West"}, {items::South, -1, "South"}, {items::East, -1, "East"}}};

constexpr std::array<Stand, 8> DoorStands{{{items::North, items::OpenEast, "North, opens East"},
                                           {items::North, items::OpenWest, "North, opens West"},
                                           {items::West, items::OpenNorth, "West, opens North"},
                                           {items::West, items::OpenSouth, "West, opens South"},
                                           {items::South, items::OpenEast, "South, opens East"},
                                           {items::South, items::OpenWest, "South, opens West"},
                                           {items::East, items::OpenNorth, "East, opens North"},
                                           {items::East, items::OpenSouth, "East, opens South"}}};

/// What "Add" sends for an item that stands so; empty where the panel does not offer it.
std::string AddEffect(int tab, int option, const Stand& stand, core::ServerGeneration generation, bool repeat = false)
{
    items::ItemsState state;
    state.tab = tab;
    state.tableForm = generation;
    state.repeatCheck = repeat ? 1 : 0;
    for (const int facing : {items::North, items::West, items::South, items::East}) {
        state.directionSet[static_cast<std::size_t>(facing)] = facing == stand.facing;
    }
    const auto isEnabled = [&](int direction) { return state.directionEnabled[static_cast<std::size_t>(direction)]; };
    // Nothing is drawn here; a generation that is neither takes any text for a number.
    const items::ItemsDesk desk{core::ServerGeneration(2), [](std::int32_t) {}};
    bool                   offered = true;
    const auto             effects = Effects([&](core::Outlet& outlet) {
        items::ClickOption(state, tab, option, desk);
        if (!isEnabled(stand.facing)) {
            offered = false;
            return;
        }
        items::ClickDirection(state, stand.facing, desk);
        if (stand.open >= 0) {
            if (!isEnabled(stand.open)) {
                offered = false;
                return;
            }
            items::ClickDirection(state, stand.open, desk);
        }
        items::AddItem(state, outlet);
    });
    return offered ? effects : std::string();
}

void WriteItemTab(std::ostream& out, int tab)
{
    const auto& info = items::TabInfo(tab);
    const auto  stands = tab == items::Doors ? std::span<const Stand>(DoorStands) : std::span<const Stand>(Facings);
    out << Cell(info.caption) << ", " << Code(info.options) << ":\n\n";
    std::vector<std::string> head{"Index", "Caption"};
    for (const auto& stand : stands) {
        head.emplace_back(stand.caption);
    }
    Columns(out, head);
    for (std::size_t option = 0; option < info.rows.size(); ++option) {
        const auto&              row = info.rows[option];
        std::vector<std::string> cells{std::to_string(option), Shown(row.caption)};
        for (const auto& stand : stands) {
            const auto in = [&](core::ServerGeneration generation) {
                return AddEffect(tab, static_cast<int>(option), stand, generation);
            };
            const auto in09 = in(Generation09);
            cells.push_back(in09.empty() ? in09 : in09 + " / " + in(Generation070));
        }
        Row(out, cells);
    }
    out << '\n';
}

void WriteItemPanel(std::ostream& out)
{
    out << "## Items: `frmItems`\n\n";
    constexpr std::array<std::pair<std::string_view, core::CommandWords>, 4> Buttons{
        {{"Remove Item", core::RemoveItemWords},
         {"Set as Container", items::SetContainer},
         {"Set Basic Light", items::BasicLight},
         {"Set As Door", items::SetDoor}}};
    Heading(out, "Button", false);
    for (const auto& [caption, words] : Buttons) {
        CommandRow(out, {std::string(caption)},
                   [&words = words](core::ServerGeneration generation, core::Outlet& outlet) {
                       core::SendWords(words, "", generation, outlet);
                   });
    }
    // The stool faces south alone.
    const auto repeated = [](core::ServerGeneration generation) {
        return AddEffect(items::Chairs, 0, Facings[items::South], generation, true);
    };
    out << "\n\"Add\" by the direction, in the form of 0.9x.x / 0.70.x. An empty cell is a direction that the item "
           "does "
           "not have. With \"Use Repeat CMD\" the first is "
        << repeated(Generation09) << " / " << repeated(Generation070) << ", and the others follow it.\n\n";
    for (int tab = 0; tab < items::TabCount; ++tab) {
        WriteItemTab(out, tab);
    }
}

void WriteItemPositioning(std::ostream& out)
{
    out << "## Item positioning: `frmItemPos`\n\n";
    Heading(out, "Control");
    for (const auto& button : items::ValueButtons()) {
        const auto value = '{' + std::string(button.box) + '}';
        CommandRow(out, {Code(button.name), Shown(button.caption)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       items::SendValue(button, value, generation, outlet);
                   });
    }
    for (const auto& button : items::PlainButtons()) {
        CommandRow(out, {Code(button.name), Shown(button.caption)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       core::SendWords(button.words, "", generation, outlet);
                   });
    }
    out << '\n';
}

void WriteLights(std::ostream& out)
{
    out << "## Light sources: `frmLightSource`\n\n";
    Heading(out, "Index");
    for (const auto& button : items::LightButtons()) {
        CommandRow(out, {std::to_string(button.index), Shown(button.caption)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       items::SendLight(button.index, generation, outlet);
                   });
    }
    out << '\n';
}

} // namespace

void WriteItems(std::ostream& out)
{
    WriteItemPanel(out);
    WriteSpecial(out);
    WriteItemPositioning(out);
    WriteLights(out);
}

} // namespace qf::commands
