#pragma once

#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::items {

/// The words of one command in either generation.
struct Words {
    std::string_view in070;
    std::string_view in09;
};

/// Sends the words of the generation with `argument` behind them. A generation that is neither sends nothing,
/// unless one text serves both.
void SendWords(const Words& words, std::string_view argument, core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::items
