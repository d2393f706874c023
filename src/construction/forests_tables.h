#pragma once

#include <span>
#include <string_view>

namespace qf::construction {

inline constexpr int ForestTabs = 7;

/// A tree, plant or rock: its tab from 0, its index there, its caption, and its two tiles as hex digits. What has
/// no canopy has an empty one.
struct ForestRow {
    int              tab;
    int              index;
    std::string_view caption;
    std::string_view trunk;
    std::string_view canopy;

    /// The server of 0.70.x does not know it: both tiles are empty there.
    bool only09 = false;
};

/// All rows, tab by tab.
std::span<const ForestRow> ForestRows();

/// The row of an index on a tab, or null.
const ForestRow* FindForestRow(int tab, int index);

} // namespace qf::construction
