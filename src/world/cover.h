#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace qf::world {

/// One place of the map.
struct Cell {
    std::int32_t y = 0;
    std::int32_t x = 0;

    friend bool operator==(const Cell&, const Cell&) = default;

    /// Reading order: row by row.
    friend bool operator<(const Cell& a, const Cell& b) { return std::pair(a.y, a.x) < std::pair(b.y, b.x); }
};

/// A filled rectangle, all four edges inclusive.
struct Rectangle {
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t x2 = 0;
    std::int32_t y2 = 0;

    friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

/// Covers a set of cells with rectangles. Each begins at the first cell in reading order (row by row) that is
/// not covered yet, is as wide as the run of uncovered cells there, and goes down as far as that full width is
/// free. The order of the cells and cells given twice make no difference.
///
/// The cost depends on the number of cells alone and not on the area over which they lie.
std::vector<Rectangle> CoverCells(std::vector<Cell> cells);

} // namespace qf::world
