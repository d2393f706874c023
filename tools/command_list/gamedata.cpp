#include <span>
#include <string>
#include <string_view>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "gamedata/clothing.h"
#include "gamedata/dye.h"
#include "gamedata/explorer.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

void WriteGarments(std::ostream& out, std::string_view title, std::span<const gamedata::Garment> garments)
{
    out << Cell(title) << ":\n\n";
    Heading(out, "Row");
    for (std::size_t row = 0; row < garments.size(); ++row) {
        CommandRow(out, {std::to_string(row), Cell(garments[row].name)},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       gamedata::AddGarment(&garments[row], generation, outlet);
                   });
    }
    out << '\n';
}

void WriteClothing(std::ostream& out)
{
    out << "## Clothing: `frmClothing`\n\n";
    for (const auto& category : gamedata::GarmentCategories()) {
        WriteGarments(out, category.name, category.garments);
    }
    WriteGarments(out, "Hair", gamedata::Hairs());
    WriteGarments(out, "Beard", gamedata::Beards());
}

void WriteDye(std::ostream& out)
{
    constexpr int LastGroup = gamedata::HueTable::Groups - 1;
    constexpr int LastRow = gamedata::HueGroup::Entries - 1;
    out << "## Dye: `frmDye`\n\nA press on a colour, by its group from 0 to " << LastGroup << " and its row from 0 to "
        << LastRow << "; the hue is " << gamedata::HueGroup::Entries
        << " times the group and the row, and both generations get one text. The first and the last of them, and those "
           "where the first digits change:\n\n";
    Columns(out, {"Group", "Row", "Hue", "Command"});
    const auto write = [&out](int group, int row) {
        const auto hue = gamedata::HueNumber(group, row);
        Row(out, {std::to_string(group), std::to_string(row), std::to_string(hue), Code(gamedata::DyeCommand(hue))});
    };
    const auto firstDigits = [](std::int32_t hue) {
        const auto command = gamedata::DyeCommand(hue);
        return command.substr(0, command.rfind(' '));
    };
    for (int group = 0; group <= LastGroup; ++group) {
        for (int row = 0; row <= LastRow; ++row) {
            const auto hue = gamedata::HueNumber(group, row);
            const bool last = group == LastGroup && row == LastRow;
            if (hue == 0 || last || firstDigits(hue - 1) != firstDigits(hue)) {
                write(group, row);
            }
        }
    }
    out << "\n\"Help!\" " << Effects(gamedata::ShowDyeHelp) << ".\n\n";
}

void WriteExplorer(std::ostream& out)
{
    out << "## Item explorer: `frmItemExplorer`\n\nA chosen item, here that of number 5899, by what is checked in the "
           "menu.\n\n";
    Heading(out, "Checked", false);
    for (const bool repeatAdd : {false, true}) {
        for (const bool tile : {false, true}) {
            const std::string checked = std::string(repeatAdd ? "Repeat Add" : "") +
                                        (repeatAdd && tile ? " and " : "") + (tile ? "Tile Mode" : "");
            CommandRow(out, {checked.empty() ? "none" : checked},
                       [&](core::ServerGeneration generation, core::Outlet& outlet) {
                           gamedata::AddItem("5899", {.repeatAdd = repeatAdd, .tile = tile}, generation, outlet);
                       });
        }
    }
    CommandRow(out, {"Remove Item"}, gamedata::RemoveItem);
    out << '\n';
}

} // namespace

void WriteGameData(std::ostream& out)
{
    WriteClothing(out);
    WriteDye(out);
    WriteExplorer(out);
}

} // namespace qf::commands
