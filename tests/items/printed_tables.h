#pragma once

#include <array>
#include <string>
#include <vector>

namespace qf::items {

/// A row of the tables as they are printed.
struct PrintedRow {
    std::string                name;
    std::string                directions;
    std::array<std::string, 4> tiles;  ///< N, W, S, E
    std::array<std::string, 4> second; ///< the other layer of a door
};

/// The thirteen tables by tab, written down apart from those of the program.
const std::vector<std::vector<PrintedRow>>& PrintedTables();

} // namespace qf::items
