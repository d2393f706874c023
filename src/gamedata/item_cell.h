#pragma once

#include <string>

#include "gamedata/explorer_layout.h"
#include "ui/picture_surface.h"

namespace qf::gamedata {

/// One cell of the item explorer's grid: an item's picture in its middle, framed in red while it is chosen.
/// The grey border around it is painted on the screen alone.
class ItemCell final : public ui::PictureSurface {
  public:
    ItemCell(int index, QWidget* parent);

    /// The cell's place in the control array.
    int Index() const { return index_; }

    /// Where it stands on the grid.
    CellPlace Place() const { return {x(), y()}; }

    /// The item's text.
    std::string tag;

    /// Shows nothing.
    void Clear();

    /// Shows a picture in the middle; what is larger than the cell is cut off.
    void ShowPicture(const core::PixelSurface& picture);

    /// Draws the frames of the chosen cell.
    void DrawFrames();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void DrawOutline(int inset);

    int  index_;
    bool blank_ = true;
    bool framed_ = false;
};

} // namespace qf::gamedata
