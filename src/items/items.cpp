#include "items/items.h"

#include <algorithm>
#include <cctype>

#include "core/runtime_error.h"
#include "core/tile_id.h"

namespace qf::items {

namespace {

constexpr std::string_view FacingLetters = "NWSE";
constexpr int              FacingCount = 4;

/// The last of the signs keeps its choice when a page is shown.
constexpr int KeptSign = 72;

constexpr std::array<int, SignPageCount + 1> firstSigns{0, 19, 37, 55, 73};

/// The directions of which one is set at a time: the facings, and the open directions of either frame.
constexpr std::array<std::array<int, 2>, 3> directionGroups{
    {{North, East}, {OpenNorth, OpenSouth}, {OpenEast, OpenWest}}};

std::size_t Place(int index)
{
    return static_cast<std::size_t>(index);
}

const ItemRow& RowOf(int tab, int option)
{
    return TabInfo(tab).rows[Place(option)];
}

/// The last set option of the tab in front, or -1.
int LastOption(const ItemsState& state)
{
    const auto& options = state.options[Place(state.tab)];
    for (std::size_t option = options.size(); option-- > 0;) {
        if (options[option]) {
            return static_cast<int>(option);
        }
    }
    return -1;
}

/// In the older generation some doors have their two layers the other way round.
bool LayersChangePlaces(int direction, int option)
{
    return (direction == West && option <= 2) || (direction == East && option == 4);
}

/// Tables with a cloth do not exist in the older generation.
bool IsMissingIn070(int tab, int option)
{
    return tab == Tables && option >= 20;
}

std::string CellText(int tab, int layer, int direction, int option, core::ServerGeneration form)
{
    if (direction < 0 || direction >= TabInfo(tab).columns) {
        throw core::RuntimeError(core::error::SubscriptRange);
    }
    if (direction >= FacingCount || (form.Is070() && IsMissingIn070(tab, option))) {
        return {};
    }
    if (tab == Doors && form.Is070() && LayersChangePlaces(direction, option)) {
        layer = 1 - layer;
    }
    const auto& row = RowOf(tab, option);
    const auto  tile = (layer == 0 ? row.tiles : row.otherTiles)[Place(direction)];
    const bool  isParted = tile.find(' ') != std::string_view::npos;
    return isParted && form.Is070() ? std::string(tile) : core::TileIdText(tile, form);
}

int LayerOf(const ItemsState& state)
{
    const auto& set = state.directionSet;
    return !set[OpenNorth] && !set[OpenEast] && (set[OpenSouth] || set[OpenWest]) ? 1 : 0;
}

void ShowCell(ItemsState& state, const std::string& cell, const ItemsDesk& desk)
{
    desk.drawTile(PictureNumber(cell, desk.generation));
    state.txtItemID = cell;
}

void SetOption(ItemsState& state, int tab, int option)
{
    auto&      options = state.options[Place(tab)];
    const bool keeps = tab == Signs && options[Place(KeptSign)] && PageOfSign(option) != PageOfSign(KeptSign);
    options.reset();
    options.set(Place(KeptSign), keeps);
    options.set(Place(option));
}

void SetDirection(ItemsState& state, int direction)
{
    for (const auto& [first, last] : directionGroups) {
        if (direction >= first && direction <= last) {
            for (int other = first; other <= last; ++other) {
                state.directionSet[Place(other)] = other == direction;
            }
        }
    }
}

/// What the user's click on a direction does, where the direction is not set already.
void ChooseDirection(ItemsState& state, int direction, const ItemsDesk& desk)
{
    if (!state.directionSet[Place(direction)]) {
        ClickDirection(state, direction, desk);
    }
}

void EnableFacings(ItemsState& state, const ItemRow& row)
{
    for (int facing = North; facing <= East; ++facing) {
        state.directionEnabled[Place(facing)] = row.Faces(FacingLetters[Place(facing)]);
    }
}

/// A door that faces all ways opens both ways.
void EnableOpenDirections(ItemsState& state, const ItemRow& row)
{
    state.directionEnabled[OpenSouth] = row.Faces('S');
    state.directionEnabled[OpenWest] = row.Faces('S');
}

/// Shows the frame of the open directions that belong to a facing and closes those of the other.
void ShowOpenDirections(ItemsState& state, int facing)
{
    if (facing < 0) {
        return;
    }
    const bool facesNorthOrSouth = facing == North || facing == South;
    state.fraDoorOpenNS = facesNorthOrSouth;
    state.fraDoorOpenEW = !facesNorthOrSouth;
    for (const int open : {OpenNorth, OpenSouth, OpenEast, OpenWest}) {
        const bool belongs = (open >= OpenEast) == facesNorthOrSouth;
        state.directionEnabled[Place(open)] = belongs;
        if (!belongs) {
            state.directionSet[Place(open)] = false;
        }
    }
}

/// Moves the choice to a facing that the item has. The two groups that do this know only one way to go.
void FixFacing(ItemsState& state, int tab, const ItemRow& row, const ItemsDesk& desk)
{
    if (tab == Chairs && !row.Faces('N') && !state.directionSet[East]) {
        ChooseDirection(state, South, desk);
    }
    if (tab == Doors) {
        if (!row.Faces('S') && !state.directionSet[West]) {
            ChooseDirection(state, North, desk);
        }
        ChooseDirection(state, OpenEast, desk);
        EnableOpenDirections(state, row);
    }
}

/// The text that is shown for an item while no direction is chosen.
std::string UndirectedCell(int tab, int option, core::ServerGeneration form)
{
    switch (tab) {
    case Chairs:
    case Benches:
    case Tables:
    case Beds:
    case Containers:
    case Plants: return CellText(tab, 0, South, option, form);
    case WallDecor: return CellText(tab, 0, RowOf(tab, option).Faces('N') ? North : West, option, form);
    default: return CellText(tab, 0, North, option, form);
    }
}

} // namespace

SignPage SignsOnPage(int page)
{
    return {firstSigns[Place(page)], firstSigns[Place(page) + 1] - firstSigns[Place(page)]};
}

int PageOfSign(int sign)
{
    const auto next = std::upper_bound(firstSigns.begin(), firstSigns.end(), sign);
    return static_cast<int>(next - firstSigns.begin()) - 1;
}

int GetDirection(const ItemsState& state)
{
    for (int facing = North; facing <= East; ++facing) {
        if (state.directionSet[Place(facing)] && state.directionEnabled[Place(facing)]) {
            return facing;
        }
    }
    return -1;
}

int GetOption(const ItemsState& state, int tab)
{
    if (tab < 0 || tab >= TabCount) {
        return -1;
    }
    const auto& options = state.options[Place(tab)];
    for (std::size_t option = 0; option < options.size(); ++option) {
        if (options[option]) {
            return static_cast<int>(option);
        }
    }
    return -1;
}

std::string GetItemString(const ItemsState& state, int tab, int direction, int option)
{
    switch (tab) {
    case Plants: return CellText(tab, 0, South, option, state.tableForm);
    case Doors: return CellText(tab, LayerOf(state), direction, option, state.tableForm);
    case Signs:
        if (direction != North && direction != West) {
            return {};
        }
        [[fallthrough]];
    default: return CellText(tab, 0, direction, option, state.tableForm);
    }
}

std::int32_t PictureNumber(std::string_view idText, core::ServerGeneration generation)
{
    constexpr std::size_t CutIn09 = 2;
    constexpr std::size_t MostShortDigits = 4;
    if (generation.Is09()) {
        if (idText.size() < CutIn09) {
            throw core::RuntimeError(core::error::InvalidCall);
        }
        idText.remove_prefix(CutIn09);
    } else if (!generation.Is070()) {
        return 0;
    }
    std::uint32_t number = 0;
    std::size_t   digits = 0;
    for (const char character : idText) {
        if (character == ' ') {
            continue;
        }
        const int  lower = std::tolower(static_cast<unsigned char>(character));
        const auto digit = std::string_view("0123456789abcdef").find(static_cast<char>(lower));
        if (digit == std::string_view::npos) {
            break;
        }
        number = number << 4 | static_cast<std::uint32_t>(digit);
        ++digits;
    }
    if (generation.Is070() && digits <= MostShortDigits) {
        return static_cast<std::int16_t>(number);
    }
    return static_cast<std::int32_t>(number);
}

void ClickOption(ItemsState& state, int tab, int option, const ItemsDesk& desk)
{
    const auto& row = RowOf(tab, option);
    SetOption(state, tab, option);
    EnableFacings(state, row);
    FixFacing(state, tab, row, desk);
    const int direction = GetDirection(state);
    ShowCell(state,
             direction < 0 ? UndirectedCell(tab, option, state.tableForm)
                           : GetItemString(state, tab, direction, option),
             desk);
}

void ClickDirection(ItemsState& state, int direction, const ItemsDesk& desk)
{
    SetDirection(state, direction);
    const int facing = GetDirection(state);
    if (state.tab == Doors) {
        ShowOpenDirections(state, facing);
    }
    const int option = LastOption(state);
    if (option < 0) {
        return;
    }
    if (state.tab != Doors) {
        ShowCell(state, GetItemString(state, state.tab, facing, option), desk);
        return;
    }
    const auto& row = RowOf(Doors, option);
    EnableFacings(state, row);
    EnableOpenDirections(state, row);
    // A facing shows the door as it opens the first way, whatever open direction is set.
    const int layer = direction == OpenSouth || direction == OpenWest ? 1 : 0;
    ShowCell(state, CellText(Doors, layer, facing, option, state.tableForm), desk);
}

void ChangeTab(ItemsState& state, int tab, core::ServerGeneration generation)
{
    switch (state.tab) {
    case Containers: state.cmdSetContainer = false; break;
    case Lightsources: state.cmdAdvancedLight = state.cmdBasicLight = false; break;
    case Doors: state.fraDoorOpenNS = state.fraDoorOpenEW = false; break;
    default: break;
    }
    state.tab = tab;
    switch (tab) {
    case Containers: state.cmdSetContainer = true; break;
    case Lightsources: state.cmdAdvancedLight = state.cmdBasicLight = true; break;
    case Doors:
        if (generation.Is070() || generation.Is09()) {
            state.cmdSetDoor = generation.Is070();
        }
        break;
    default: break;
    }
}

void ShowSignPage(ItemsState& state, int page)
{
    auto&      signs = state.options[Signs];
    const bool kept = signs[Place(KeptSign)];
    signs.reset();
    signs.set(Place(KeptSign), kept);
    state.signPage = page;
}

void AddItem(const ItemsState& state, core::Outlet& outlet)
{
    AddItem(state, GetDirection(state), outlet);
}

void AddItem(const ItemsState& state, int direction, core::Outlet& outlet)
{
    const auto refuse = [&outlet](const char* why) { outlet.Show(core::InformationBox(why)); };
    if (direction < 0) {
        refuse("You must specify a direction");
        return;
    }
    if (!state.directionEnabled[Place(direction)]) {
        refuse("You must choose a valid direction!");
        return;
    }
    const auto& set = state.directionSet;
    if (state.tab == Doors && !set[OpenNorth] && !set[OpenSouth] && !set[OpenEast] && !set[OpenWest]) {
        refuse("You must choose a valid open direction for the door!");
        return;
    }
    const int option = GetOption(state, state.tab);
    if (option < 0) {
        refuse("Please select a valid item!");
        return;
    }
    const auto idText = GetItemString(state, state.tab, direction, option);
    if (state.repeatCheck == 0) {
        outlet.Send("add " + idText);
    } else if (state.repeatCheck == 1) {
        outlet.Send("radd " + idText);
    }
}

} // namespace qf::items
