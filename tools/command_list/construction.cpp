#include <span>
#include <string>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "construction/floors.h"
#include "construction/landscapes.h"
#include "construction/roof.h"
#include "construction/stairs.h"
#include "construction/walls.h"
#include "core/number_rules.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

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

constexpr construction::Area SampleArea{.x1 = 1000, .x2 = 1009, .y1 = 2000, .y2 = 2007};
constexpr std::int32_t       SampleHeight = 20;

void WriteShared(std::ostream& out)
{
    out << "## Construction panels\n\nThe steps that the construction panels share: `{id}` stands for a tile, and the "
           "box "
           "is that of X 1000 to 1009 and Y 2000 to 2007 at height 20.\n\n";
    Heading(out, "Step", false);
    CommandRow(out, {"Coordinates"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::SendArea(outlet, generation, "{id}", SampleArea, SampleHeight);
    });
    CommandRow(out, {"Point'n Click"},
               [](core::ServerGeneration, core::Outlet& outlet) { construction::SendPointAndClick(outlet, "{id}"); });
    CommandRow(out, {"One piece"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::SendDirectAdd(outlet, generation, "{id}");
    });
    CommandRow(out, {"Remove Item"}, [](core::ServerGeneration generation, core::Outlet& outlet) {
        construction::SendRemove(outlet, generation);
    });
    out << '\n';
}

construction::AreaTexts SampleTexts()
{
    using core::ToText;
    return {.x1 = ToText(SampleArea.x1),
            .y1 = ToText(SampleArea.y1),
            .x2 = ToText(SampleArea.x2),
            .y2 = ToText(SampleArea.y2),
            .currentHeight = ToText(SampleHeight)};
}

construction::RoofState SampleRoof(int tab, int material, int direction, core::ServerGeneration generation)
{
    construction::RoofState state;
    state.tab = tab;
    (tab == construction::FlatRoofs ? state.flatRoof : state.tileRoof) = material;
    state.direction = direction;
    state.area = SampleTexts();
    state.custom = state.area.currentHeight;
    state.tableForm = generation;
    return state;
}

void WriteTileRoofs(std::ostream& out, int direction)
{
    const bool northSouth = direction == construction::RoofNorthSouth;
    Columns(out, {northSouth ? "Tile, North/South" : "Tile, East/West", "0.9x.x: first", "ridge", "last",
                  "0.70.x: first", "ridge", "last"});
    const auto rows = construction::TileRoofRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        std::vector<std::string> cells{Shown(rows[index].caption)};
        for (const auto generation : {Generation09, Generation070}) {
            for (int piece = 0; piece < 3; ++piece) {
                cells.push_back(Effects([&](core::Outlet& outlet) {
                    construction::AddRoofTile(
                        SampleRoof(construction::TileRoofs, static_cast<int>(index), direction, generation), piece,
                        generation, outlet);
                }));
            }
        }
        Row(out, cells);
    }
    out << '\n';
}

void WriteRoofs(std::ostream& out)
{
    out << "## Roofs: `frmRoof`\n\nThe single tiles of a gable, then the flat roofs over the box above.\n\n";
    for (const int direction : {construction::RoofNorthSouth, construction::RoofEastWest}) {
        WriteTileRoofs(out, direction);
    }
    for (const int direction : {construction::RoofNorthSouth, construction::RoofEastWest}) {
        Heading(out, direction == construction::RoofNorthSouth ? "Flat, North/South" : "Flat, East/West", false);
        const auto rows = construction::FlatRoofRows();
        for (std::size_t index = 0; index < rows.size(); ++index) {
            CommandRow(out, {Shown(rows[index].caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
                construction::AddRoof(
                    SampleRoof(construction::FlatRoofs, static_cast<int>(index), direction, generation), generation,
                    outlet);
            });
        }
        out << '\n';
    }
    out << "A gable over that box, of the first material:\n\n";
    Heading(out, "Direction", false);
    for (const int direction : {construction::RoofNorthSouth, construction::RoofEastWest}) {
        CommandRow(out, {direction == construction::RoofNorthSouth ? "North/South" : "East/West"},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       construction::AddRoof(SampleRoof(construction::TileRoofs, 0, direction, generation), generation,
                                             outlet);
                   });
    }
    out << '\n';
}

} // namespace

void WriteConstruction(std::ostream& out)
{
    WriteShared(out);
    WriteFloors(out);
    WriteWalls(out);
    WriteStairs(out);
    WriteRoofs(out);
    WriteLandscapes(out);
}

} // namespace qf::commands
