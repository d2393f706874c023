#include "console/game_time.h"

#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::console {

namespace {

constexpr double HalfADay = 12.0;

/// Adds to the hours as a number and writes the result back. False, with a message, where they are no number.
bool AddToHours(GameTimeState& state, double hours, core::Outlet& outlet)
{
    try {
        state.Hours = core::ToText(core::ToDouble(state.Hours) + hours);
        return true;
    } catch (const core::RuntimeError&) {
        outlet.Show(core::PlainBox("You have to enter a number as the Hour value!"));
        return false;
    }
}

} // namespace

void SetGameTime(GameTimeState& state, core::Outlet& outlet)
{
    if (state.Hours.empty()) {
        outlet.Show(core::PlainBox("You have to enter the Hour value first!"));
        return;
    }
    if (state.Minutes.empty()) {
        outlet.Show(core::PlainBox("You have to enter the Minutes value first!"));
        return;
    }
    if (state.ampm.empty()) {
        outlet.Show(core::PlainBox("You have to enter the AM/PM value first!"));
        return;
    }
    if (state.ampm == "pm") {
        if (!AddToHours(state, HalfADay, outlet)) {
            return;
        }
        state.added = "1";
    }
    outlet.Send("settime " + state.Hours + " " + state.Minutes);
    if (!state.added.empty() && core::ToDouble(state.added) == 1 && AddToHours(state, -HalfADay, outlet)) {
        state.added = "0";
    }
}

void ShowGameTime(core::Outlet& outlet)
{
    outlet.Send("time");
}

void SetSecondsPerMinute(const GameTimeState& state, core::Outlet& outlet)
{
    if (state.uoseconds.empty()) {
        outlet.Show(core::PlainBox("Enter the value first!"));
        return;
    }
    outlet.Send("secondsperuominute " + state.uoseconds);
}

} // namespace qf::console
