#pragma once

#include <span>
#include <string_view>

namespace qf::construction {

/// A button that leads from one panel of the chain to its neighbour.
struct ChainStep {
    std::string_view from;
    std::string_view button;
    std::string_view caption;
    std::string_view to;

    /// Whether the step copies the two corners and the height into the panel that it shows.
    bool copiesArea;

    /// The panel that takes the place on the screen; the one that is shown where nothing is told.
    std::string_view moves = {};
};

/// All steps of the chain, in the order in which the panels stand in it.
std::span<const ChainStep> ChainSteps();

} // namespace qf::construction
