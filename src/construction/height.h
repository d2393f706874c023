#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/outlet.h"

namespace qf::construction {

inline constexpr std::string_view InvalidHeightText = "Not a valid height!";

/// The build Z of a storey (0, 1, 2) above the current height, both in height units, as text: 20 a storey
/// and the number in the box. Throws RuntimeError 13 where the box holds no number, 6 where that number is out of
/// range.
std::string BuildHeight(int storey, std::string_view currentHeight);

/// What a lone "-" in the current height means: a number that is still being typed, or no number.
enum class LoneMinus { StillTyping, NoNumber };

/// The text of the build Z after the current height changed to `currentHeight` with this storey selected
/// (-1 for none); nothing where the build Z keeps its text. Text that is no number shows a box.
std::optional<std::string> BuildHeightAfterChange(std::string_view currentHeight, int storey, LoneMinus loneMinus,
                                                  core::Outlet& outlet);

} // namespace qf::construction
