#pragma once

#include <cmath>

#include "practice/world.h"

namespace qf::practice {

struct ScreenPoint {
    int x = 0;
    int y = 0;
};

/// A cell twice as wide as high, or one as high as wide, which is the shape of the game's own art.
enum class CellShape { Flat, Square };

/// How large the world is drawn: half a cell's width and height and one height unit, in pixels.
struct Scale {
    int    halfWidth = 22;
    int    halfHeight = 11;
    double unit = 4.0;

    /// The scale of one of the zoom steps; both halves are whole so that neighbouring cells meet exactly.
    static Scale OfStep(int step, CellShape shape)
    {
        constexpr int HalfWidths[] = {6, 10, 16, 22, 32, 44, 66};
        const int     half = HalfWidths[step];
        return {half, shape == CellShape::Square ? half : half / 2, 4.0 * half / 22.0};
    }
    static constexpr int Steps = 7;
    static constexpr int NormalStep = 3;
};

/// Where cells lie in the window. X runs to the lower right, Y to the lower left, Z upwards.
struct Projection {
    Scale scale;
    int   originX = 0; ///< the pixel of the north corner of cell 0, 0 at height 0
    int   originY = 0;

    /// The north corner of a cell.
    ScreenPoint Corner(int x, int y, int z) const
    {
        return {originX + (x - y) * scale.halfWidth,
                originY + (x + y) * scale.halfHeight - static_cast<int>(std::lround(z * scale.unit))};
    }

    /// The cell whose ground lies under a pixel, at the given height; it may lie off the map.
    Position CellAt(int pixelX, int pixelY, int z) const
    {
        const double across = static_cast<double>(pixelX - originX) / scale.halfWidth;
        const double down = (pixelY - originY + z * scale.unit) / scale.halfHeight;
        return {static_cast<int>(std::floor((down + across) / 2.0)),
                static_cast<int>(std::floor((down - across) / 2.0)), z};
    }
};

} // namespace qf::practice
