#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "command_list/cells.h"
#include "command_list/chapters.h"
#include "command_list/sample_box.h"
#include "construction/roof.h"
#include "construction/stairs.h"
#include "construction/walls.h"

namespace qf::commands {

namespace {

using core::Generation070;
using core::Generation09;

construction::WallsState SampleWall(int type, core::ServerGeneration generation)
{
    construction::WallsState state;
    state.form = construction::NormalWall;
    state.height = construction::LongWall;
    state.direction = construction::WallNorthSouth;
    state.type = type;
    state.area = SampleTexts();
    state.custom = state.area.currentHeight;
    state.tableForm = generation;
    return state;
}

void WriteWallPieces(std::ostream& out)
{
    for (const auto height : {construction::ShortWall, construction::LongWall}) {
        for (const auto direction : {construction::WallNorthSouth, construction::WallEastWest}) {
            Heading(out,
                    std::string(height == construction::ShortWall ? "Short" : "Long") +
                        (direction == construction::WallNorthSouth ? ", North/South" : ", East/West"),
                    false);
            const auto rows = construction::WallRows();
            for (std::size_t index = 0; index < rows.size(); ++index) {
                const auto type = static_cast<int>(index);
                CommandRow(out, {Shown(rows[index].caption)},
                           [&](core::ServerGeneration generation, core::Outlet& outlet) {
                               auto state = SampleWall(type, generation);
                               state.height = height;
                               state.direction = direction;
                               construction::AddWallPiece(state, type, generation, outlet);
                           });
            }
            out << '\n';
        }
    }
}

/// A form of a wall that has no button of its own.
struct FormColumn {
    const char* caption;
    int         form;
    int         height;
    int         direction;
};

constexpr std::array<FormColumn, 6> FormColumns{{
    {"NW Post, short", construction::NorthWestPost, construction::ShortWall, construction::WallNorthSouth},
    {"long", construction::NorthWestPost, construction::LongWall, construction::WallNorthSouth},
    {"SE Corner, short", construction::SouthEastCorner, construction::ShortWall, construction::WallNorthSouth},
    {"long", construction::SouthEastCorner, construction::LongWall, construction::WallNorthSouth},
    {"Window, North/South", construction::WindowWall, construction::LongWall, construction::WallNorthSouth},
    {"East/West", construction::WindowWall, construction::LongWall, construction::WallEastWest},
}};

std::string FormEffect(const FormColumn& column, int type)
{
    if (!construction::WallTypeHasForm(type, column.form)) {
        return {};
    }
    const auto in = [&](core::ServerGeneration generation) {
        return Effects([&](core::Outlet& outlet) {
            auto state = SampleWall(type, generation);
            state.method = construction::WallPointAndClick;
            state.form = column.form;
            state.height = column.height;
            state.direction = column.direction;
            construction::AddWall(state, generation, outlet);
        });
    };
    return in(Generation09) + " / " + in(Generation070);
}

void WriteWallForms(std::ostream& out)
{
    out << "\"Add\" by \"Point n Click\", in the other forms, 0.9x.x / 0.70.x. An empty cell is a form that the wall "
           "does not have.\n\n";
    std::vector<std::string> head{"Wall"};
    for (const auto& column : FormColumns) {
        head.emplace_back(column.caption);
    }
    Columns(out, head);
    const auto rows = construction::WallRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        std::vector<std::string> cells{Shown(rows[index].caption)};
        for (const auto& column : FormColumns) {
            cells.push_back(FormEffect(column, static_cast<int>(index)));
        }
        Row(out, cells);
    }
    out << '\n';
}

void WriteWallLines(std::ostream& out)
{
    out << "\"Line(Coords)\", the first wall, long:\n\n";
    Heading(out, "Direction", false);
    for (const auto direction : {construction::WallNorthSouth, construction::WallEastWest}) {
        CommandRow(out, {direction == construction::WallNorthSouth ? "North/South" : "East/West"},
                   [&](core::ServerGeneration generation, core::Outlet& outlet) {
                       auto state = SampleWall(0, generation);
                       state.method = construction::WallLine;
                       state.direction = direction;
                       construction::AddWall(state, generation, outlet);
                   });
    }
    out << '\n';
}

/// One box of each kind, with the walls that are laid in the same steps.
void WriteWallBoxes(std::ostream& out)
{
    const auto                    rows = construction::WallRows();
    std::vector<std::vector<int>> kinds;
    for (int type = 0; type < static_cast<int>(rows.size()); ++type) {
        const auto steps = construction::BoxSteps(type);
        auto       kind = kinds.begin();
        while (kind != kinds.end() && construction::BoxSteps(kind->front()).data() != steps.data()) {
            ++kind;
        }
        (kind == kinds.end() ? kinds.emplace_back() : *kind).push_back(type);
    }
    const auto caption = [&](int type) { return '"' + Shown(rows[static_cast<std::size_t>(type)].caption) + '"'; };
    for (const auto& kind : kinds) {
        out << "\"Box (Coords)\", " << caption(kind.front()) << ", long";
        for (std::size_t other = 1; other < kind.size(); ++other) {
            out << (other == 1 ? "; in the same steps " : ", ") << caption(kind[other]);
        }
        out << ":\n\n";
        StepTable(out, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            auto state = SampleWall(kind.front(), generation);
            state.method = construction::WallBox;
            construction::AddWall(state, generation, outlet);
        });
    }
}

void WriteWallSelection(std::ostream& out)
{
    // The question and two walls.
    constexpr std::size_t FirstSteps = 5;
    const auto            in = [](core::ServerGeneration generation) {
        return EffectList(
            [&](core::Outlet& outlet) { construction::ShowWallSelection(SampleWall(0, generation), outlet); });
    };
    auto in09 = in(Generation09);
    auto in070 = in(Generation070);
    out << "\"Show Available Selection\" asks first, then lays a short and a long piece of each wall by "
        << in09.size() - 1 << " commands. It begins so:\n\n";
    in09.resize(FirstSteps);
    in070.resize(FirstSteps);
    WriteSteps(out, in09, in070);
}

void WriteWalls(std::ostream& out)
{
    out << "## Walls: `frmWalls`\n\nOne piece of the plain wall, by the button beside the option.\n\n";
    WriteWallPieces(out);
    WriteWallForms(out);
    WriteWallLines(out);
    WriteWallBoxes(out);
    WriteWallSelection(out);
}

constexpr std::array<std::string_view, 4> StairDirections{"north", "west", "south", "east"};

std::string StairPiece(int material, bool repeat, core::ServerGeneration generation)
{
    construction::StairsState state;
    state.repeat = repeat;
    state.tableForm = generation;
    return Effects([&](core::Outlet& outlet) { construction::AddStairPiece(state, material, generation, outlet); });
}

construction::StairsState SampleStairs(int material, int direction, core::ServerGeneration generation)
{
    construction::StairsState state;
    state.material = material;
    state.direction = direction;
    state.area = SampleTexts();
    state.customStart = core::ToText(SampleHeight);
    state.customEnd = core::ToText(SampleHeight + 20);
    state.tableForm = generation;
    return state;
}

/// "Add" with "Single Item".
std::string SingleStep(int material, int direction, bool repeat, core::ServerGeneration generation)
{
    auto state = SampleStairs(material, direction, generation);
    state.singleItem = true;
    state.repeat = repeat;
    return Effects([&](core::Outlet& outlet) { construction::AddStairs(state, generation, outlet); });
}

void WriteSingleSteps(std::ostream& out)
{
    out << "One step tile, by \"Add\" with \"Single Item\", 0.9x.x / 0.70.x. With \"Repeat CMD\", which 0.70.x does "
           "not offer, the first is "
        << SingleStep(0, 0, true, Generation09) << ", and the others follow it.\n\n";
    std::vector<std::string> head{"Material"};
    for (const auto direction : StairDirections) {
        head.push_back("Descends to the " + std::string(direction));
    }
    Columns(out, head);
    const auto rows = construction::StairRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        std::vector<std::string> cells{Shown(rows[index].caption)};
        for (int direction = 0; direction < static_cast<int>(StairDirections.size()); ++direction) {
            const auto in = [&](core::ServerGeneration generation) {
                return SingleStep(static_cast<int>(index), direction, false, generation);
            };
            cells.push_back(in(Generation09) + " / " + in(Generation070));
        }
        Row(out, cells);
    }
    out << '\n';
}

void WriteFlights(std::ostream& out)
{
    out << "A flight of the first material by \"Add\", from height 20 to 40, which takes its width from one side of "
           "the "
           "box:\n\n";
    for (std::size_t direction = 0; direction < StairDirections.size(); ++direction) {
        out << "Descends to the " << StairDirections[direction] << ":\n\n";
        StepTable(out, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::AddStairs(SampleStairs(0, static_cast<int>(direction), generation), generation, outlet);
        });
    }
}

void WriteStairs(std::ostream& out)
{
    out << "## Stairs: `frmStairs`\n\nOne block, by the button beside the material. With \"Repeat CMD\", which 0.70.x "
           "does not offer, the first is "
        << StairPiece(0, true, Generation09) << ", and the others follow it.\n\n";
    Columns(out, {"Material", "0.9x.x", "0.70.x"});
    const auto rows = construction::StairRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        const auto material = static_cast<int>(index);
        Row(out, {Shown(rows[index].caption), StairPiece(material, false, Generation09),
                  StairPiece(material, false, Generation070)});
    }
    out << '\n';
    WriteSingleSteps(out);
    WriteFlights(out);
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

void WriteFlatRoofs(std::ostream& out, int direction)
{
    Heading(out, direction == construction::RoofNorthSouth ? "Flat, North/South" : "Flat, East/West", false);
    const auto rows = construction::FlatRoofRows();
    for (std::size_t index = 0; index < rows.size(); ++index) {
        CommandRow(out, {Shown(rows[index].caption)}, [&](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::AddRoof(SampleRoof(construction::FlatRoofs, static_cast<int>(index), direction, generation),
                                  generation, outlet);
        });
    }
    out << '\n';
}

void WriteRoofs(std::ostream& out)
{
    constexpr std::array<std::pair<int, std::string_view>, 2> Directions{
        {{construction::RoofNorthSouth, "North/South"}, {construction::RoofEastWest, "East/West"}}};
    out << "## Roofs: `frmRoof`\n\nThe single tiles of a gable, by the buttons of \"Add Single Tiles\", then the flat "
           "roofs over "
           "the box.\n\n";
    for (const auto& [direction, caption] : Directions) {
        WriteTileRoofs(out, direction);
    }
    for (const auto& [direction, caption] : Directions) {
        WriteFlatRoofs(out, direction);
    }
    for (const auto& [direction, caption] : Directions) {
        out << "A gable over the box, of the first tile, " << caption << ":\n\n";
        StepTable(out, [&, direction = direction](core::ServerGeneration generation, core::Outlet& outlet) {
            construction::AddRoof(SampleRoof(construction::TileRoofs, 0, direction, generation), generation, outlet);
        });
    }
}

} // namespace

void WriteBuilding(std::ostream& out)
{
    WriteWalls(out);
    WriteStairs(out);
    WriteRoofs(out);
}

} // namespace qf::commands
