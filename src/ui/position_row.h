#pragma once

#include <string_view>

namespace qf::ui {

/// A control that fills boxes from the player's place when it is clicked. An empty name is no box; where
/// a box is to be tested and reads "-1" afterwards, the message about the calibration is shown.
struct PositionRow {
    std::string_view control;
    std::string_view boxX;
    std::string_view boxY;
    std::string_view boxZ;
    std::string_view tested;
};

} // namespace qf::ui
