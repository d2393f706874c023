#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/outlet.h"

namespace qf::console {

/// One of the options for the half of the day.
struct DayHalf {
    std::string_view name;
    std::string_view caption;

    /// What the panel keeps when the option is chosen.
    std::string_view value;
};

// clang-format off
inline constexpr std::array dayHalves{
    DayHalf{"Option1", "AM(morning)", "am"},
    DayHalf{"Option2", "PM(evening)", "pm"},
};
// clang-format on

/// The fields of the time panel. All boxes are texts.
struct GameTimeState {
    std::string Hours;
    std::string Minutes;

    /// The chosen half of the day, empty until one is chosen.
    std::string ampm;

    /// "1" while the hours hold twelve more than the user typed.
    std::string added;

    std::string uoseconds;
};

/// The "SET TIME" button: a message where a field is missing, otherwise one command. In the evening twelve is added
/// to the hours without a look at their range, and taken off again when the command is sent. Hours that are no
/// number are a message then; in the morning they go out as typed.
/// Throws RuntimeError 13 or 6 where `added` holds a text that is no number.
void SetGameTime(GameTimeState& state, core::Outlet& outlet);

/// The "Show Time" button.
void ShowGameTime(core::Outlet& outlet);

/// The "SET " button: how many seconds of real life a minute of the game takes, as typed.
void SetSecondsPerMinute(const GameTimeState& state, core::Outlet& outlet);

} // namespace qf::console
