#pragma once

#include <cstdint>

#include "construction/commands.h"
#include "core/number_rules.h"

namespace qf::commands {

// The box over which the construction panels' examples lie.
inline constexpr construction::Area SampleArea{.x1 = 1000, .x2 = 1009, .y1 = 2000, .y2 = 2007};
inline constexpr std::int32_t       SampleHeight = 20;

/// The same as a panel has it in its boxes.
inline construction::AreaTexts SampleTexts()
{
    using core::ToText;
    return {.x1 = ToText(SampleArea.x1),
            .y1 = ToText(SampleArea.y1),
            .x2 = ToText(SampleArea.x2),
            .y2 = ToText(SampleArea.y2),
            .currentHeight = ToText(SampleHeight)};
}

} // namespace qf::commands
