#pragma once

#include "practice/canvas.h"
#include "practice/projection.h"
#include "practice/tile_kinds.h"

namespace qf::practice {

/// The picture of a look at a scale, relative to the north corner of its cell.
Sprite PaintTile(const TileLook& look, const Scale& scale);

} // namespace qf::practice
