#include <algorithm>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "command_list/sample_box.h"
#include "construction/floors.h"
#include "construction/landscapes.h"

namespace qf::commands {

namespace {

using core::Generation09;

void WriteShared(std::ostream& out)
{
    out << "## Construction panels\n\nThe steps that the construction panels share: `{id}` stands for a tile, and the "
           "box is that of X 1000 to 1009 and Y 2000 to 2007 at height 20, here and in the examples below.\n\n";
    Heading(out, "Step", false);
    CommandRow(out, {"Coordinates"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::SendArea(outlet, generation, "{id}", SampleArea, SampleHeight);
    });
    CommandRow(out, {"Point'n Click"},
               [](core::ServerGeneration, core::Outlet& outlet) { construction::SendPointAndClick(outlet, "{id}"); });
    CommandRow(out, {"One piece (floors, walls, roofs, landscapes)"},
               [](core::ServerGeneration generation, core::Outlet& outlet) {
                   construction::SendDirectAdd(outlet, generation, "{id}");
               });
    CommandRow(out, {"Remove Item"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::SendRemove(outlet, generation);
    });
    CommandRow(out, {"Where am I?, Where?"},
               [](core::ServerGeneration, core::Outlet& outlet) { outlet.Send("where"); });
    out << "\nOne piece of stairs, forests, coastlines and caves has words of its own, which stand in their "
           "chapters.\n\n";
}

/// Calls `visit` with the tab, the index and the caption of every floor, rug and carpet.
template <typename Visit>
void ForEachFloor(const Visit& visit)
{
    for (const auto rows : {construction::FloorRows(), construction::RugRows(), construction::CarpetRows()}) {
        for (std::size_t index = 0; index < rows.size(); ++index) {
            visit(static_cast<int>(rows[index].tab), static_cast<int>(index), rows[index].caption);
        }
    }
}

construction::FloorsState SampleFloor(int tab, int index, int direction, core::ServerGeneration generation)
{
    construction::FloorsState state;
    state.tab = tab;
    (tab == construction::Rugs ? state.rug : tab == construction::Carpets ? state.carpet : state.floorType) = index;
    state.direction = direction;
    state.addMethod = construction::FloorCoordinates;
    state.area = SampleTexts();
    state.custom = state.area.currentHeight;
    state.tableForm = generation;
    return state;
}

void WriteFloorPieces(std::ostream& out)
{
    for (const auto direction : {construction::NorthSouth, construction::EastWest}) {
        Heading(out, direction == construction::NorthSouth ? "North/South" : "East/West", false);
        ForEachFloor([&](int tab, int index, std::string_view caption) {
            CommandRow(out, {Shown(caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
                construction::AddFloorPiece(SampleFloor(tab, index, direction, generation), tab, index, generation,
                                            outlet);
            });
        });
        out << '\n';
    }
}

/// The tile of a command that lays an area.
std::string TileOf(const std::string& command)
{
    const auto begin = command.find(' ') + 1;
    return Code(command.substr(begin, command.find(' ', begin) - begin));
}

/// The tiles that "Add" lays of a floor, in their order, as 0.9x.x has them.
std::vector<std::string> FloorTiles(int tab, int index, int direction)
{
    auto tiles = EffectList([&](core::Outlet& outlet) {
        construction::AddFloor(SampleFloor(tab, index, direction, Generation09), Generation09, outlet);
    });
    std::ranges::transform(tiles, tiles.begin(), TileOf);
    return tiles;
}

void WriteFloorBorders(std::ostream& out)
{
    out << "What has a border is laid in nine areas, the centre first. \"Wood (Dark)\", lying north to south:\n\n";
    StepTable(out, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::AddFloor(SampleFloor(construction::FloorsOne, 0, construction::NorthSouth, generation),
                               generation, outlet);
    });
    out << "All floors and carpets that have one, in the same order, with the tiles in the form of 0.9x.x:\n\n";
    Columns(out, {"Floor", "Direction", "Centre", "X1 Y1", "X2 Y1", "X2 Y2", "X1 Y2", "Edge Y1", "Edge Y2", "Edge X1",
                  "Edge X2"});
    ForEachFloor([&](int tab, int index, std::string_view caption) {
        const auto northSouth = FloorTiles(tab, index, construction::NorthSouth);
        const auto eastWest = FloorTiles(tab, index, construction::EastWest);
        const auto row = [&](const char* direction, const std::vector<std::string>& tiles) {
            std::vector<std::string> cells{Shown(caption), direction};
            cells.insert(cells.end(), tiles.begin(), tiles.end());
            Row(out, cells);
        };
        if (northSouth.size() == 1 && eastWest.size() == 1) {
            return;
        }
        if (northSouth == eastWest) {
            row("both", northSouth);
        } else {
            row("North/South", northSouth);
            row("East/West", eastWest);
        }
    });
    out << '\n';
}

void WriteFloors(std::ostream& out)
{
    out << "## Floors: `frmFloors`\n\nOne piece, by the button beside the option, lying north to south and east to "
           "west. \"Add\" lays the same tile over the area; for the point and click it takes what is in `txtItemID`, "
           "and "
           "with \"Use Current Z\" types "
        << Effects([](core::Outlet& outlet) {
               construction::FloorsState state;
               state.floorType = 0;
               state.direction = construction::NorthSouth;
               state.addMethod = construction::FloorPointAndClick;
               state.useZ = true;
               state.itemId = "{txtItemID}";
               construction::AddFloor(state, Generation09, outlet);
           })
        << ".\n\n";
    WriteFloorPieces(out);
    WriteFloorBorders(out);
}

void WriteLandscapes(std::ostream& out)
{
    out << "## Landscapes: `frmLandscapes`\n\nOne piece, by the button beside the ground.\n\n";
    Heading(out, "Ground", false);
    const auto rows = construction::LandscapeRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        CommandRow(out, {Shown(rows[index].caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::LandscapesState state;
            state.tableForm = generation;
            construction::AddLandscapePiece(state, static_cast<int>(index), generation, outlet);
        });
    }
    out << "\n\"Add\" lays the same tile; where none is chosen it is the first:\n\n";
    Heading(out, "Method", false);
    for (const auto method : {construction::LandscapePointAndClick, construction::LandscapeCoordinates}) {
        CommandRow(out, {method == construction::LandscapeCoordinates ? "Coordinates" : "Point'n Click"},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       construction::AddLandscape({.method = method, .area = SampleTexts(), .tableForm = generation},
                                                  generation, outlet);
                   });
    }
    out << '\n';
}

} // namespace

void WriteConstruction(std::ostream& out)
{
    WriteShared(out);
    WriteFloors(out);
    WriteBuilding(out);
    WriteLandscapes(out);
}

} // namespace qf::commands
