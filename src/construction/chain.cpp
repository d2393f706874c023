#include "construction/chain.h"

#include <array>

namespace qf::construction {

namespace {

// clang-format off
constexpr std::array steps{
    ChainStep{"frmFloors",     "Command6",  "> Walls",      "frmWalls",      true},
    ChainStep{"frmWalls",      "Command3",  "< Floors",     "frmFloors",     true},
    ChainStep{"frmWalls",      "Command6",  " > Roofs",     "frmRoof",       true},
    ChainStep{"frmRoof",       "Command6",  "< Walls",      "frmWalls",      true},
    ChainStep{"frmRoof",       "Command2",  "> Stairs",     "frmStairs",     true},
    ChainStep{"frmStairs",     "Command11", "< Roofs",      "frmRoof",       true},
    ChainStep{"frmStairs",     "Command2",  "> Forests",    "frmForests",    true},
    ChainStep{"frmForests",    "Command6",  "< Stairs",     "frmStairs",     true},
    ChainStep{"frmForests",    "Command8",  "> Landscapes", "frmLandscapes", false},
    ChainStep{"frmLandscapes", "Command6",  "< Forests",    "frmForests",    false},
    ChainStep{"frmLandscapes", "Command8",  "> Items",      "frmCoastlines", false, "frmItems"},
    ChainStep{"frmCoastlines", "Command6",  "< Landscapes", "frmLandscapes", false},
    ChainStep{"frmCoastlines", "Command8",  "> Caves",      "frmCaves",      false},
    ChainStep{"frmCaves",      "Command6",  "< Coastlines", "frmCoastlines", false},
    ChainStep{"frmCaves",      "Command8",  "> Items",      "frmItems",      false},
    ChainStep{"frmItems",      "Command11", "< Caves",      "frmCaves",      false},
    ChainStep{"frmItems",      "Command13", "> Special",    "frmSpecial",    false},
    ChainStep{"frmSpecial",    "Command6",  "< Items",      "frmItems",      false},
};
// clang-format on

} // namespace

std::span<const ChainStep> ChainSteps()
{
    return steps;
}

} // namespace qf::construction
