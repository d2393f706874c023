#include "construction/walls.h"

#include "core/number_rules.h"
#include "core/tile_id.h"

namespace qf::construction {

namespace {

constexpr std::string_view InvalidCoordinatesText = "You need specify valid coordinates!";
constexpr std::string_view DirectionFirstText = "You need to select a direction first";
constexpr std::string_view HeightFirstText = "You need to select a wall height first";

constexpr std::int32_t SampleLines = 5;

void Tell(core::Outlet& outlet, std::string_view text)
{
    outlet.Show(core::InformationBox(std::string(text)));
}

const WallTiles& PieceOf(const WallRow& row, WallPiece piece)
{
    switch (piece) {
    case WallPiece::EastWest: return row.eastWest;
    case WallPiece::Post: return row.post;
    case WallPiece::Corner: return row.corner;
    default: return row.northSouth;
    }
}

/// The digits of a tile; empty where the selection does not name one.
std::string_view Digits(int form, int height, int direction, const WallRow& row, core::ServerGeneration tableForm)
{
    const auto of = [&](const WallTiles& tiles) { return tiles.Of(height).In(tableForm); };
    const bool directed = direction == WallNorthSouth || direction == WallEastWest;
    switch (form) {
    case NormalWall:
        return directed ? of(direction == WallNorthSouth ? row.northSouth : row.eastWest) : std::string_view();
    case NorthWestPost: return of(row.post);
    case SouthEastCorner: return of(row.corner);
    case WindowWall:
        if (!directed || height != LongWall) {
            return {};
        }
        return (direction == WallNorthSouth ? row.windowNorthSouth : row.windowEastWest).In(tableForm);
    default: return {};
    }
}

std::string ChosenTile(const WallsState& state)
{
    return WallTileId(state.form, state.height, state.direction, state.type, state.tableForm);
}

/// The checks of the Add button; false where it stops.
bool MayAdd(const WallsState& state, core::Outlet& outlet)
{
    if (state.method < 0) {
        Tell(outlet, "Please select a method of adding the wall!");
        return false;
    }
    const bool isDirected = state.form == NormalWall || state.form == WindowWall;
    if (isDirected && state.direction < 0 && state.method != WallBox) {
        Tell(outlet, DirectionFirstText);
        return false;
    }
    const bool isPiece = state.form == NorthWestPost || state.form == SouthEastCorner;
    if (isPiece && state.direction < 0 && state.method == WallLine) {
        // The press goes on; the line has no direction to run in and lays nothing.
        Tell(outlet, DirectionFirstText);
    }
    if (state.height < 0) {
        Tell(outlet, HeightFirstText);
        return false;
    }
    if (state.form < 0 && state.method != WallBox) {
        Tell(outlet, "You need to select a wall form first");
        return false;
    }
    if (state.type < 0) {
        Tell(outlet, "You need to select a wall type first");
        return false;
    }
    return true;
}

void AddLine(const WallsState& state, std::int32_t x1, std::int32_t y1, std::int32_t z,
             core::ServerGeneration generation, core::Outlet& outlet)
{
    if (state.direction == WallNorthSouth) {
        const auto y2 = core::ToInteger32(state.area.y2);
        SendArea(outlet, generation, ChosenTile(state), {x1, x1, y1, y2}, z);
    } else if (state.direction == WallEastWest) {
        const auto x2 = core::ToInteger32(state.area.x2);
        SendArea(outlet, generation, ChosenTile(state), {x1, x2, y1, y1}, z);
    }
}

void AddBox(const WallsState& state, std::int32_t x1, std::int32_t y1, std::int32_t z,
            core::ServerGeneration generation, core::Outlet& outlet)
{
    const Area  box{x1, core::ToInteger32(state.area.x2), y1, core::ToInteger32(state.area.y2)};
    const auto& row = WallRows()[static_cast<std::size_t>(state.type)];
    for (const auto& step : BoxSteps(state.type)) {
        const auto digits = PieceOf(row, step.piece).Of(state.height).In(state.tableForm);
        const auto strip = StripOf(box, step.x1, step.x2, step.y1, step.y2);
        SendArea(outlet, generation, core::TileIdText(digits, state.tableForm), strip, z);
    }
}

} // namespace

std::string WallTileId(int form, int height, int direction, int type, core::ServerGeneration tableForm)
{
    const auto rows = WallRows();
    if (type < 0 || static_cast<std::size_t>(type) >= rows.size() || (height != ShortWall && height != LongWall)) {
        return {};
    }
    return core::TileIdText(Digits(form, height, direction, rows[static_cast<std::size_t>(type)], tableForm),
                            tableForm);
}

std::string ShownWallTileId(const WallsState& state)
{
    const int form = state.method == WallBox ? NormalWall : state.form;
    return WallTileId(form, state.height, state.direction, state.type, state.tableForm);
}

void AddWall(const WallsState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (!MayAdd(state, outlet)) {
        return;
    }
    if (state.method == WallPointAndClick) {
        SendPointAndClick(outlet, ChosenTile(state));
        return;
    }
    RunTrapped(outlet, InvalidCoordinatesText, [&] {
        const auto x1 = core::ToInteger32(state.area.x1);
        const auto y1 = core::ToInteger32(state.area.y1);
        const auto z = core::ToInteger32(state.custom);
        (state.method == WallLine ? AddLine : AddBox)(state, x1, y1, z, generation, outlet);
    });
}

void AddWallPiece(const WallsState& state, int type, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (state.direction < 0) {
        Tell(outlet, DirectionFirstText);
        return;
    }
    if (state.height < 0) {
        Tell(outlet, HeightFirstText);
        return;
    }
    SendDirectAdd(outlet, generation, WallTileId(NormalWall, state.height, state.direction, type, state.tableForm));
}

void ShowWallSelection(const WallsState& state, core::Outlet& outlet)
{
    if (!outlet.Ask(
            core::QuestionBox("This will add examples of each Wall-type. Are you sure you want to continue?"))) {
        return;
    }
    RunTrapped(outlet, InvalidCoordinatesText, [&] {
        const auto x1 = core::ToInteger32(state.area.x1);
        const auto y1 = core::ToInteger32(state.area.y1);
        const auto z = core::ToText(core::ToInteger32(state.area.currentHeight));
        const auto sample = [&](int type, int height, std::int32_t line) {
            const auto x = core::ToText(core::Add32(x1, type));
            const auto y = core::ToText(line);
            outlet.Send("tile " + WallTileId(NormalWall, height, WallNorthSouth, type, state.tableForm) + " " + x +
                        " " + x + " " + y + " " + y + " " + z);
        };
        for (int type = 0; type < static_cast<int>(WallRows().size()); ++type) {
            sample(type, ShortWall, y1);
            sample(type, LongWall, core::Add32(y1, SampleLines));
        }
    });
}

bool WallTypeHasForm(int type, int form)
{
    // clang-format off
    constexpr bool has[][4] = {
        // normal post   corner window
        {true,   true,  true,  false}, // 13 Dungeon Wall
        {true,   false, true,  false}, // 14 Palisade Wall
        {true,   false, false, true},  // 15 Castle Walls 1
        {true,   false, false, false}, // 16 Castle Walls 2
    };
    // clang-format on
    if (type < FirstPartialWall || type > LastPartialWall || form < NormalWall || form > WindowWall) {
        return true;
    }
    return has[type - FirstPartialWall][form];
}

} // namespace qf::construction
