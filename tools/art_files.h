#pragma once

#include <string>

#include "practice/canvas.h"

namespace qf::tools {

/// The bytes of a client folder's `art.mul` and `artidx.mul`.
struct ArtFiles {
    std::string art;
    std::string index;
};

/// A picture in the run layout. The sprite lies relative to the north corner of a cell of 44 by 44 pixels; the
/// picture is as wide to the left of that corner as to its right, and ends at the cell's bottom. Faint
/// pixels are left out.
/// Throws std::length_error where the picture is too large for the layout.
std::string EncodeRunTile(const practice::Sprite& sprite);

/// A static tile for every number of a known family, painted as the practice client paints it. All other
/// numbers, those of land tiles included, have no tile. Tiles that look the same share their bytes.
ArtFiles MakeArt();

} // namespace qf::tools
