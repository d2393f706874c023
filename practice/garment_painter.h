#pragma once

#include "practice/sprite_painter.h"
#include "practice/tile_kinds.h"

namespace qf::practice {

/// A point of the upright sheet that stands in the middle of the cell and faces the viewer: x to the right in
/// half cells, h upwards in height units.
constexpr CellPoint Facing(double x, double h)
{
    return {0.5 + x / 2.0, 0.5 - x / 2.0, h};
}

/// Paints a garment, hair or a beard; false where the look is none.
bool PaintGarment(SpritePainter& painter, const TileLook& look);

} // namespace qf::practice
