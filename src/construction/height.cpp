#include "construction/height.h"

#include "construction/commands.h"
#include "core/number_rules.h"
#include "core/text.h"

namespace qf::construction {

namespace {

constexpr int UnitsPerStorey = 20;

} // namespace

std::string BuildHeight(int storey, std::string_view currentHeight)
{
    return core::ToText(storey * static_cast<double>(UnitsPerStorey) + core::ToDouble(currentHeight));
}

std::optional<std::string> BuildHeightAfterChange(std::string_view currentHeight, int storey, LoneMinus loneMinus,
                                                  core::Outlet& outlet)
{
    if (core::TrimBlanks(currentHeight).empty()) {
        return "";
    }
    if (loneMinus == LoneMinus::StillTyping && currentHeight == "-") {
        return {};
    }
    std::optional<std::string> height;
    RunTrapped(outlet, InvalidHeightText, [&] {
        const auto text = BuildHeight(storey < 0 ? 0 : storey, currentHeight);
        if (storey >= 0) {
            height = text;
        }
    });
    return height;
}

} // namespace qf::construction
