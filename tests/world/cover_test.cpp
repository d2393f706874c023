#include "world/cover.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>

#include "plain_walk.h"

namespace qf::world {
namespace {

using Rectangles = std::vector<Rectangle>;

/// The cells that a drawing marks with "#", its upper left corner at (0, 0).
std::vector<Cell> Drawn(const std::vector<std::string>& rows)
{
    std::vector<Cell> cells;
    for (std::size_t y = 0; y < rows.size(); ++y) {
        for (std::size_t x = 0; x < rows[y].size(); ++x) {
            if (rows[y][x] == '#') {
                cells.push_back({.y = static_cast<std::int32_t>(y), .x = static_cast<std::int32_t>(x)});
            }
        }
    }
    return cells;
}

Rectangles Walked(const std::vector<Cell>& cells, const test::WalkBox& box)
{
    std::set<std::string> texts;
    for (const auto& cell : cells) {
        texts.insert(std::to_string(cell.x) + "," + std::to_string(cell.y));
    }
    Rectangles rectangles;
    for (const auto& rectangle : test::WalkCells(texts, box)) {
        rectangles.push_back({rectangle.x1, rectangle.y1, rectangle.x2, rectangle.y2});
    }
    return rectangles;
}

TEST(Cover, NothingAndOneCell)
{
    EXPECT_EQ(CoverCells({}), Rectangles{});
    EXPECT_EQ(CoverCells({{.y = 7, .x = -3}}), (Rectangles{{-3, 7, -3, 7}}));
}

TEST(Cover, FloorIsOneRectangle)
{
    EXPECT_EQ(CoverCells(Drawn({"###", "###"})), (Rectangles{{0, 0, 2, 1}}));
}

TEST(Cover, WidthOfTheFirstRowDecides)
{
    EXPECT_EQ(CoverCells(Drawn({"##", "# "})), (Rectangles{{0, 0, 1, 0}, {0, 1, 0, 1}}));
    EXPECT_EQ(CoverCells(Drawn({"# ", "##"})), (Rectangles{{0, 0, 0, 1}, {1, 1, 1, 1}}));
    EXPECT_EQ(CoverCells(Drawn({" ##", "###", "###"})), (Rectangles{{1, 0, 2, 2}, {0, 1, 0, 2}}));
}

TEST(Cover, RunsAndHoles)
{
    EXPECT_EQ(CoverCells(Drawn({"## ## #"})), (Rectangles{{0, 0, 1, 0}, {3, 0, 4, 0}, {6, 0, 6, 0}}));
    EXPECT_EQ(CoverCells(Drawn({"#", "#", " ", "#"})), (Rectangles{{0, 0, 0, 1}, {0, 3, 0, 3}}));
    EXPECT_EQ(CoverCells(Drawn({"###", "# #", "###"})),
              (Rectangles{{0, 0, 2, 0}, {0, 1, 0, 2}, {2, 1, 2, 2}, {1, 2, 1, 2}}));
}

TEST(Cover, RunStopsAtWhatIsCovered)
{
    // The column at the right is taken by the first rectangle, so the run below ends before it.
    EXPECT_EQ(CoverCells(Drawn({"  #", "###", "###"})), (Rectangles{{2, 0, 2, 2}, {0, 1, 1, 2}}));
    EXPECT_EQ(CoverCells(Drawn({" # ", "###"})), (Rectangles{{1, 0, 1, 1}, {0, 1, 0, 1}, {2, 1, 2, 1}}));
}

TEST(Cover, OrderAndRepetitionMakeNoDifference)
{
    EXPECT_EQ(CoverCells({{1, 1}, {0, 0}, {1, 0}, {0, 1}, {0, 0}, {1, 1}}), (Rectangles{{0, 0, 1, 1}}));
}

TEST(Cover, EdgesOfTheNumbers)
{
    constexpr auto Low = std::numeric_limits<std::int32_t>::min();
    constexpr auto High = std::numeric_limits<std::int32_t>::max();
    EXPECT_EQ(
        CoverCells({{Low, Low}, {Low, High}, {High, Low}, {High, High}}),
        (Rectangles{{Low, Low, Low, Low}, {High, Low, High, Low}, {Low, High, Low, High}, {High, High, High, High}}));
    EXPECT_EQ(CoverCells({{High - 1, High - 1}, {High - 1, High}, {High, High - 1}, {High, High}}),
              (Rectangles{{High - 1, High - 1, High, High}}));
}

TEST(Cover, EqualsTheWalkOverTheWholeBox)
{
    std::mt19937 draw(4); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    for (int round = 0; round < 1000; ++round) {
        const auto        width = static_cast<int>(draw() % 12) + 1;
        const auto        height = static_cast<int>(draw() % 12) + 1;
        const auto        outOf10 = draw() % 10 + 1;
        const auto        left = static_cast<int>(draw() % 41) - 20;
        const auto        top = static_cast<int>(draw() % 41) - 20;
        std::vector<Cell> cells;
        for (int y = top; y < top + height; ++y) {
            for (int x = left; x < left + width; ++x) {
                if (draw() % 10 < outOf10) {
                    cells.push_back({.y = y, .x = x});
                }
            }
        }
        std::ranges::shuffle(cells, draw);
        ASSERT_EQ(CoverCells(cells), Walked(cells, {left - 1, top - 1, left + width, top + height})) << round;
    }
}

TEST(Cover, CostsNothingForTheEmptySpaceBetween)
{
    std::vector<Cell> cells;
    for (std::int32_t i = 0; i < 100'000; ++i) {
        cells.push_back({.y = i * 20'000, .x = -i * 20'000});
    }
    EXPECT_EQ(CoverCells(cells).size(), cells.size());
}

} // namespace
} // namespace qf::world
