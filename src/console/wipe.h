#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/outlet.h"

namespace qf::console {

/// The ways of wiping, by the number that the panel keeps for them.
enum WipeMethod {
    WipeInsideByClicks = 1,
    WipeInsideByCoordinates = 2,
    WipeOutsideByClicks = 3,
    WipeOutsideByCoordinates = 4,
    WipeEverything = 5,
};

/// One of the options between which the user chooses.
struct WipeOption {
    std::string_view name;
    std::string_view caption;
    WipeMethod       method;
    bool             takesCoordinates;

    /// What is shown when the option is chosen; empty where nothing is.
    std::string_view warning;
};

/// The five options in the order in which they stand on the panel.
std::span<const WipeOption> WipeOptions();

/// The fields of the wipe panel. All boxes are texts and go out as typed.
struct WipeState {
    /// The chosen method as a digit, empty until one is chosen.
    std::string wmethod;

    std::string x1;
    std::string y1;
    std::string x2;
    std::string y2;

    /// The first corner as it was at the last wipe by coordinates.
    std::string x1true;
    std::string y1true;

    /// Whether the boxes of the corners are enabled.
    bool takesCoordinates = true;

    /// Whether the last confirmation of a wipe of everything is shown.
    bool confirming = false;
};

/// The user's choice of an option: the warning where there is one, then the method and the boxes.
void ChooseWipeMethod(WipeState& state, const WipeOption& option, core::Outlet& outlet);

/// The "WIPE" button: one message, one command, or the confirmation opened.
/// Throws RuntimeError 13 or 6 where the method's text is no number.
void Wipe(WipeState& state, core::Outlet& outlet);

/// The confirmation's "YES", which leaves the confirmation open.
void SendWipeAll(core::Outlet& outlet);

} // namespace qf::console
