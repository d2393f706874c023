#pragma once

#include <vector>

#include "practice/canvas.h"
#include "practice/projection.h"
#include "practice/tile_kinds.h"

namespace qf::practice {

/// A point inside or around a cell: u along X and v along Y from 0 to 1, h in height units.
struct CellPoint {
    double u = 0.0;
    double v = 0.0;
    double h = 0.0;
};

/// Paints the solid that stands on one cell, and gives it as a sprite. Later shapes cover earlier ones,
/// so they are painted from the back to the front. It paints at twice the size and halves at the end.
class SpritePainter {
  public:
    explicit SpritePainter(const Scale& scale);

    /// A parallelogram, or the triangle of its first half: origin, origin + a, origin + b.
    struct Face {
        CellPoint origin;
        CellPoint a;
        CellPoint b;
        double    light = 1.0;
        bool      triangle = false;
    };
    void Paint(const Face& face, Argb colour, Pattern pattern);

    /// A box with its three visible sides.
    void Box(const CellPoint& low, const CellPoint& high, Argb colour, Pattern pattern);

    /// A rounded lump; radii in cells (across) and height units (up and down).
    void Lump(const CellPoint& centre, double across, double upright, Argb colour);

    /// A round stroke between two points whose width, in cells, runs from one value to another.
    void Stroke(const CellPoint& from, const CellPoint& to, double fromWidth, double toWidth, Argb colour);

    /// A soft shadow on the ground.
    void Shadow(double radius);

    /// The sprite, relative to the north corner of its cell. Soft edges are for shapes that stand alone;
    /// without them neighbours meet with no gap between them.
    Sprite Finish(bool softEdges) const;

  private:
    struct Flat {
        double x = 0.0;
        double y = 0.0;
    };
    Flat        Project(const CellPoint& point) const;
    std::size_t Index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x);
    }
    void Put(int x, int y, Argb colour);

    template <typename Visit>
    void ForEachSample(Flat low, Flat high, Visit visit);

    Scale             scale_;
    int               left_;
    int               top_;
    int               width_;  ///< in samples
    int               height_; ///< in samples
    std::vector<Argb> samples_;
};

} // namespace qf::practice
