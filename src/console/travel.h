#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "console/travel_tables.h"
#include "core/outlet.h"

namespace qf::console {

/// A group of places: its entry in the list of groups and the list that it brings up.
struct PlaceGroup {
    std::string_view entry;
    std::string_view list;

    /// What its list shows before a place is chosen.
    std::string_view initialText;

    std::span<const Place> places;
};

/// The five groups in the order of their entries.
std::span<const PlaceGroup> PlaceGroups();

/// The entries of a group's list; they stand at the same index as their places.
std::vector<std::string_view> ListEntries(const PlaceGroup& group);

/// The fields of the travel tab. The boxes are texts and go out as typed.
struct TravelState {
    std::string txtLocX;
    std::string txtLocY;
    std::string txtLocZ;

    /// The group whose list is shown, -1 before one is chosen.
    int shownGroup = -1;
};

/// The choice of a group: its list is shown in place of the others. A number that is no group changes nothing.
void ChoosePlaceGroup(TravelState& state, int group);

/// The choice in a group's list: the boxes take the coordinates. An index without a place changes nothing.
void ChoosePlace(TravelState& state, const PlaceGroup& group, int index);

/// A button of the tab, the same in both generations.
struct TravelCommand {
    std::string_view name;
    std::string_view caption;
    std::string_view words;

    /// Whether the three boxes follow the words, each behind a blank.
    bool takesPlace;

    std::string_view toolTip;
};

std::span<const TravelCommand> TravelCommands();

/// The press of one of these buttons: its words, and behind them the place as typed where it takes one.
void SendTravelCommand(const TravelCommand& command, const TravelState& state, core::Outlet& outlet);

} // namespace qf::console
