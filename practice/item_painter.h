#pragma once

#include "practice/sprite_painter.h"
#include "practice/tile_kinds.h"

namespace qf::practice {

/// Paints furniture, single items, garments and hair. A form that is none of these becomes a chest.
void PaintItem(SpritePainter& painter, const TileLook& look);

} // namespace qf::practice
