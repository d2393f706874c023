#include "world/cover.h"

#include <algorithm>
#include <cstddef>

namespace qf::world {

namespace {

/// The cells of a set in reading order, and which of them are covered.
class Cells {
  public:
    explicit Cells(std::vector<Cell> cells) : cells_(std::move(cells))
    {
        // A query gives them in this order already.
        if (!std::is_sorted(cells_.begin(), cells_.end())) {
            std::sort(cells_.begin(), cells_.end());
        }
        cells_.erase(std::unique(cells_.begin(), cells_.end()), cells_.end());
        covered_.resize(cells_.size());
        for (std::size_t index = 0; index < cells_.size(); ++index) {
            if (index == 0 || cells_[index].y != cells_[index - 1].y) {
                rows_.push_back(index);
            }
        }
        rows_.push_back(cells_.size());
    }

    std::vector<Rectangle> Cover()
    {
        std::vector<Rectangle> rectangles;
        for (std::size_t row = 0; row + 1 < rows_.size(); ++row) {
            for (std::size_t index = rows_[row]; index < rows_[row + 1]; ++index) {
                if (covered_[index] == 0) {
                    rectangles.push_back(CoverFrom(row, index));
                }
            }
        }
        return rectangles;
    }

  private:
    Rectangle CoverFrom(std::size_t row, std::size_t first)
    {
        const auto& corner = cells_[first];
        const auto  width = RunAt(row, first);
        MarkCovered(first, width);

        auto last = corner.y;
        for (auto below = row + 1; below + 1 < rows_.size(); ++below) {
            // The difference of two numbers in rising order, which as such may not fit.
            if (std::int64_t{cells_[rows_[below]].y} - last != 1) {
                break;
            }
            const auto place = Find(below, corner.x);
            if (place == rows_[below + 1] || RunAt(below, place, width) < width) {
                break;
            }
            MarkCovered(place, width);
            ++last;
        }
        return {.x1 = corner.x, .y1 = corner.y, .x2 = cells_[first + width - 1].x, .y2 = last};
    }

    /// The length of the run of uncovered cells that begins with this one, as far as it matters.
    std::size_t RunAt(std::size_t row, std::size_t first, std::size_t most = static_cast<std::size_t>(-1)) const
    {
        std::size_t length = 0;
        for (auto index = first; index < rows_[row + 1] && length < most && covered_[index] == 0; ++index) {
            if (std::int64_t{cells_[index].x} - cells_[first].x != static_cast<std::int64_t>(length)) {
                break;
            }
            ++length;
        }
        return length;
    }

    /// The place of the cell with this x in a row, the row's end where it is not there.
    std::size_t Find(std::size_t row, std::int32_t x) const
    {
        const auto begin = cells_.begin() + static_cast<std::ptrdiff_t>(rows_[row]);
        const auto end = cells_.begin() + static_cast<std::ptrdiff_t>(rows_[row + 1]);
        const auto found = std::ranges::lower_bound(begin, end, x, {}, &Cell::x);
        return found != end && found->x == x ? static_cast<std::size_t>(found - cells_.begin()) : rows_[row + 1];
    }

    void MarkCovered(std::size_t first, std::size_t count)
    {
        std::fill_n(covered_.begin() + static_cast<std::ptrdiff_t>(first), count, std::uint8_t{1});
    }

    std::vector<Cell>         cells_;
    std::vector<std::uint8_t> covered_;

    /// Where each row begins, and the end of the last one.
    std::vector<std::size_t> rows_;
};

} // namespace

std::vector<Rectangle> CoverCells(std::vector<Cell> cells)
{
    return Cells(std::move(cells)).Cover();
}

} // namespace qf::world
