#include "console/travel.h"

#include <array>

namespace qf::console {

namespace {

// clang-format off
constexpr TravelCommand travelCommands[] = {
    // name            caption                                 words        place  tool tip
    {"cmdGoPlace",     "Teleport",                              "go",        true,  "Takes you to X, Y, Z"},
    {"cmdXGoPlace",    "Teleport Other",                        "xgo",       true,  "Takes a target to X, Y, Z"},
    {"cmdCharTele",    "Teleport to target location",           "rtele",     false, "Takes you to a place you click"},
    {"cmdXTele",       "Teleport char/item to target location", "telestuff", false, "Takes what you click to a place"},
    {"cmdTravelWhere", "Where am I?",                           "where",     false, "Tells the place where you stand"},
};
// clang-format on

} // namespace

std::span<const PlaceGroup> PlaceGroups()
{
    // clang-format off
    static const std::array groups{
        PlaceGroup{"-TOWNS-",             "comboTowns",     "[Towns]",             Towns()},
        PlaceGroup{"-DUNGEONS-",          "comboDungeons",  "[Dungeons]",          Dungeons()},
        PlaceGroup{"-MOONGATES-",         "comboMoongates", "[MOONGATES]",         Moongates()},
        PlaceGroup{"-SHRINES-",           "comboShrines",   "[Shrines]",           Shrines()},
        PlaceGroup{"-SPECIAL LOCATIONS-", "comboSpecials",  "[Special Locations]", SpecialLocations()},
    };
    // clang-format on
    return groups;
}

std::vector<std::string_view> ListEntries(const PlaceGroup& group)
{
    std::vector<std::string_view> entries;
    for (const auto& place : group.places) {
        if (!place.name.empty()) {
            entries.push_back(place.name);
        }
    }
    return entries;
}

void ChoosePlaceGroup(TravelState& state, int group)
{
    if (group >= 0 && group < std::ssize(PlaceGroups())) {
        state.shownGroup = group;
    }
}

void ChoosePlace(TravelState& state, const PlaceGroup& group, int index)
{
    if (index < 0 || index >= std::ssize(group.places)) {
        return;
    }
    const auto& place = group.places[static_cast<std::size_t>(index)];
    state.txtLocX = place.x;
    state.txtLocY = place.y;
    state.txtLocZ = place.z;
}

std::span<const TravelCommand> TravelCommands()
{
    return travelCommands;
}

void SendTravelCommand(const TravelCommand& command, const TravelState& state, core::Outlet& outlet)
{
    std::string text(command.words);
    if (command.takesPlace) {
        for (const auto* coordinate : {&state.txtLocX, &state.txtLocY, &state.txtLocZ}) {
            text += ' ';
            text += *coordinate;
        }
    }
    outlet.Send(text);
}

} // namespace qf::console
