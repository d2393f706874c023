// The list of what every control sends: `quernfield-commands FILE`. It is written from the tables of the panels
// themselves, so that it says what the program does.

#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "console/gm_commands.h"
#include "console/spawners.h"
#include "console/travel.h"
#include "console/wipe.h"
#include "construction/floors.h"
#include "construction/landscapes.h"
#include "construction/stairs.h"
#include "construction/walls.h"
#include "items/item_pos.h"
#include "items/light_source.h"

namespace {

using namespace qf;
using core::Generation070;
using core::Generation09;

/// The text as it stands in a cell of a table.
std::string Cell(std::string_view text)
{
    std::string cell;
    for (const char character : text) {
        switch (character) {
        case '\\':
        case '<':
        case '>':
        case '*':
        case '_':
        case '[':
        case '|': cell += '\\'; [[fallthrough]];
        default: cell += character;
        }
    }
    return cell;
}

/// A caption as the user sees it.
std::string Shown(std::string_view caption)
{
    std::string shown;
    for (std::size_t index = 0; index < caption.size(); ++index) {
        if (caption[index] == '&' && index + 1 < caption.size()) {
            ++index;
        }
        shown += caption[index];
    }
    return Cell(shown);
}

std::string Code(std::string_view text)
{
    return '`' + std::string(text) + '`';
}

/// What leaves the program, as a cell.
class CellOutlet final : public core::Outlet {
  public:
    void Send(std::string_view command, bool usePrefix) override
    {
        Add(Code(command) + (usePrefix ? "" : " without the prefix"));
    }
    void Show(const core::Message& message) override { Add("says \"" + Cell(message.text) + "\""); }
    bool Ask(const core::Message& message) override
    {
        Add("asks \"" + Cell(message.text) + "\"");
        return true;
    }

    std::string Text() const { return text_.empty() ? "nothing" : text_; }

  private:
    void Add(const std::string& effect) { text_ += (text_.empty() ? "" : ", then ") + effect; }

    std::string text_;
};

template <typename Run>
std::string Effects(const Run& run)
{
    CellOutlet outlet;
    run(outlet);
    return outlet.Text();
}

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

void Heading(std::ostream& out, std::string_view first, bool named = true)
{
    out << "| " << first << (named ? " | Caption" : "") << " | 0.9x.x | 0.70.x |\n| --- " << (named ? "| --- " : "")
        << "| --- | --- |\n";
}

void Row(std::ostream& out, const std::vector<std::string>& cells)
{
    for (const auto& cell : cells) {
        out << "| " << cell << ' ';
    }
    out << "|\n";
}

/// A row of what is sent in either generation; `send` is called with the generation and an outlet.
template <typename SendIn>
void CommandRow(std::ostream& out, std::vector<std::string> cells, const SendIn& send)
{
    for (const auto generation : {Generation09, Generation070}) {
        cells.push_back(Effects([&](core::Outlet& outlet) { send(generation, outlet); }));
    }
    Row(out, cells);
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

void WriteConsole(std::ostream& out)
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

void WriteFloors(std::ostream& out)
{
    out << "## Floors: `frmFloors`\n\nOne piece, lying north to south and east to west.\n\n";
    for (const auto direction : {construction::NorthSouth, construction::EastWest}) {
        Heading(out, direction == construction::NorthSouth ? "North/South" : "East/West", false);
        const auto rows = [&](int tab, std::span<const construction::FloorRow> floors) {
            for (std::size_t index = 0; index < floors.size(); ++index) {
                const int shownOn = tab < 0 ? floors[index].tab : tab;
                CommandRow(out, {Shown(floors[index].caption)},
                           [&](core::ServerGeneration generation, core::Outlet& outlet) {
                               construction::FloorsState state;
                               state.direction = direction;
                               state.tableForm = generation;
                               construction::AddFloorPiece(state, shownOn, static_cast<int>(index), generation, outlet);
                           });
            }
        };
        rows(-1, construction::FloorRows());
        rows(construction::Rugs, construction::RugRows());
        rows(construction::Carpets, construction::CarpetRows());
        out << '\n';
    }
}

void WriteWalls(std::ostream& out)
{
    out << "## Walls: `frmWalls`\n\nOne piece of the plain wall.\n\n";
    for (const auto height : {construction::ShortWall, construction::LongWall}) {
        for (const auto direction : {construction::WallNorthSouth, construction::WallEastWest}) {
            Heading(out,
                    std::string(height == construction::ShortWall ? "Short" : "Long") +
                        (direction == construction::WallNorthSouth ? ", North/South" : ", East/West"),
                    false);
            const auto rows = construction::WallRows();
            for (std::size_t index = 0; index < rows.size(); ++index) {
                CommandRow(out, {Shown(rows[index].caption)},
                           [&](core::ServerGeneration generation, core::Outlet& outlet) {
                               construction::WallsState state;
                               state.form = construction::NormalWall;
                               state.height = height;
                               state.direction = direction;
                               state.tableForm = generation;
                               construction::AddWallPiece(state, static_cast<int>(index), generation, outlet);
                           });
            }
            out << '\n';
        }
    }
}

void WriteStairs(std::ostream& out)
{
    out << "## Stairs: `frmStairs`\n\nOne block.\n\n";
    Heading(out, "Material", false);
    const auto rows = construction::StairRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        CommandRow(out, {Shown(rows[index].caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::StairsState state;
            state.tableForm = generation;
            construction::AddStairPiece(state, static_cast<int>(index), generation, outlet);
        });
    }
    out << '\n';
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
                       items::SendWords(button.words, "", generation, outlet);
                   });
    }
    out << '\n';
}

void WriteLandscapes(std::ostream& out)
{
    out << "## Landscapes: `frmLandscapes`\n\nOne piece.\n\n";
    Heading(out, "Ground", false);
    const auto rows = construction::LandscapeRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        CommandRow(out, {Shown(rows[index].caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::LandscapesState state;
            state.tableForm = generation;
            construction::AddLandscapePiece(state, static_cast<int>(index), generation, outlet);
        });
    }
    out << '\n';
}

void Write(std::ostream& out)
{
    out << "# Commands\n\n"
           "What the controls send, without the command prefix, in the dialect of either server generation. A name in "
           "braces stands for what is in that box or chosen in that list, as typed. This list is written by "
           "`quernfield-commands` from the tables of the program.\n\n";
    WriteConsole(out);
    WriteWipe(out);
    WriteItemPositioning(out);
    WriteLights(out);
    WriteFloors(out);
    WriteWalls(out);
    WriteStairs(out);
    WriteLandscapes(out);
}

} // namespace

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "quernfield-commands FILE\n";
        return 2;
    }
    std::ofstream file(arguments[1], std::ios::binary);
    Write(file);
    file.close();
    if (!file) {
        std::cerr << "cannot write " << arguments[1] << '\n';
        return 1;
    }
    return 0;
}
