#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"

namespace qf::test {

/// The box in which the walk looks for cells, all edges inclusive.
struct WalkBox {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
};

/// A row of the query: tile number and place.
struct WalkRow {
    int id = 0;
    int x = 0;
    int y = 0;
    int z = 0;
};

struct WalkRectangle {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;

    friend bool operator==(const WalkRectangle&, const WalkRectangle&) = default;
};

/// The greedy walk in its plainest form: every place of the box is looked at, and cells are texts in a set.
inline std::vector<WalkRectangle> WalkCells(std::set<std::string> cells, const WalkBox& box)
{
    const auto has = [&](int x, int y) { return cells.contains(std::to_string(x) + "," + std::to_string(y)); };
    std::vector<WalkRectangle> rectangles;
    for (int y = box.y1; y <= box.y2; ++y) {
        for (int x = box.x1; x <= box.x2; ++x) {
            if (!has(x, y)) {
                continue;
            }
            int w = 1;
            while (has(x + w, y)) {
                ++w;
            }
            const auto wholeRow = [&](int row) {
                for (int i = 0; i < w; ++i) {
                    if (!has(x + i, row)) {
                        return false;
                    }
                }
                return true;
            };
            int h = 1;
            while (y + h <= box.y2 && wholeRow(y + h)) {
                ++h;
            }
            rectangles.push_back({x, y, x + w - 1, y + h - 1});
            for (int i = 0; i < w; ++i) {
                for (int j = 0; j < h; ++j) {
                    cells.erase(std::to_string(x + i) + "," + std::to_string(y + j));
                }
            }
        }
    }
    return rectangles;
}

/// The template's lines behind its head for the rows of the query in their order.
inline std::vector<std::string> WalkLines(const std::vector<WalkRow>& rows, const WalkBox& box)
{
    std::vector<std::pair<int, int>>                     order;
    std::map<std::pair<int, int>, std::set<std::string>> cells;
    int                                                  minX = 0;
    int                                                  minY = 0;
    int                                                  minZ = 0;
    bool                                                 isFirst = true;
    for (const auto& row : rows) {
        if (isFirst || row.x < minX) {
            minX = row.x;
        }
        if (isFirst || row.y < minY) {
            minY = row.y;
        }
        if (isFirst || row.z < minZ) {
            minZ = row.z;
        }
        isFirst = false;
        const auto key = std::pair(row.id, row.z);
        if (!cells.contains(key)) {
            order.push_back(key);
        }
        cells[key].insert(std::to_string(row.x) + "," + std::to_string(row.y));
    }
    std::vector<std::string> lines;
    for (const auto& key : order) {
        for (const auto& rectangle : WalkCells(cells[key], box)) {
            std::string line = "TILEW " + core::HueHexPair(key.first);
            for (const int number : {rectangle.x1 - minX, rectangle.x2 - minX, rectangle.y1 - minY, rectangle.y2 - minY,
                                     key.second - minZ}) {
                line += " " + std::to_string(number);
            }
            lines.push_back(line);
        }
    }
    return lines;
}

} // namespace qf::test
