#include "console/wipe.h"

#include <array>

#include "core/number_rules.h"

namespace qf::console {

namespace {

constexpr std::string_view NotApplicable = "N/A";

constexpr std::string_view OutsideWarning =
    "WARNING! Using this option will wipe every item OUTSIDE the coordinates chosen!!";
constexpr std::string_view EverythingWarning = "WARNING! Using this option will wipe EVERY item in your worldfile!!!";

// clang-format off
constexpr std::array wipeOptions{
    //         name       caption           method                    coordinates  warning
    WipeOption{"Option1", "Point'n Click ", WipeInsideByClicks,       false,       ""},
    WipeOption{"Option2", "Coordinates",    WipeInsideByCoordinates,  true,        ""},
    WipeOption{"Option4", "Point'n Click ", WipeOutsideByClicks,      false,       OutsideWarning},
    WipeOption{"Option3", "Coordinates",    WipeOutsideByCoordinates, true,        OutsideWarning},
    WipeOption{"Option5", "WIPE ALL",       WipeEverything,           false,       EverythingWarning},
};
// clang-format on

/// The corners are compared as texts, byte by byte: "1000" stands before "999".
bool BoxPasses(const WipeState& state, core::Outlet& outlet)
{
    if (state.x2 < state.x1) {
        outlet.Show(core::PlainBox("Error: X2 is smaller than X1."));
        return false;
    }
    if (state.y2 < state.y1) {
        outlet.Show(core::PlainBox("Error: Y2 is smaller than Y1."));
        return false;
    }
    return true;
}

void WipeByCoordinates(std::string command, WipeState& state, core::Outlet& outlet)
{
    state.x1true = state.x1;
    state.y1true = state.y1;
    if (!BoxPasses(state, outlet)) {
        return;
    }
    for (const auto& text : {state.x1, state.y1, state.x2, state.y2}) {
        command += ' ';
        command += text;
    }
    outlet.Send(command);
}

} // namespace

std::span<const WipeOption> WipeOptions()
{
    return wipeOptions;
}

void ChooseWipeMethod(WipeState& state, const WipeOption& option, core::Outlet& outlet)
{
    if (!option.warning.empty()) {
        outlet.Show(core::PlainBox(std::string(option.warning)));
    }
    state.wmethod = core::ToText(static_cast<std::int32_t>(option.method));
    state.takesCoordinates = option.takesCoordinates;
    for (auto* text : {&state.x1, &state.y1, &state.x2, &state.y2}) {
        *text = option.takesCoordinates ? std::string_view() : NotApplicable;
    }
}

void Wipe(WipeState& state, core::Outlet& outlet)
{
    if (state.wmethod.empty()) {
        outlet.Show(core::PlainBox("You have to choose a method to Wipe with."));
        return;
    }
    const auto is = [number = core::ToDouble(state.wmethod)](WipeMethod method) {
        return number == static_cast<int>(method);
    };
    if (is(WipeInsideByCoordinates)) {
        WipeByCoordinates("wipe", state, outlet);
    } else if (is(WipeOutsideByClicks)) {
        outlet.Send("iwipe");
    } else if (is(WipeOutsideByCoordinates)) {
        WipeByCoordinates("iwipe", state, outlet);
    } else if (is(WipeEverything)) {
        state.confirming = true;
    } else {
        outlet.Send("wipe");
    }
}

void SendWipeAll(core::Outlet& outlet)
{
    outlet.Send("wipe all");
}

} // namespace qf::console
