#pragma once

#include <cstdint>

#include "ui/panel.h"
#include "ui/picture_surface.h"

namespace qf::gamedata {

/// One tile in a window of its own.
class frmPicture final : public ui::Panel {
  public:
    explicit frmPicture(ui::AppContext& context);

    void Load() override;

    /// Draws the static tile of an item ID and fits the panel to the picture.
    void Draw(std::int32_t id);

  private:
    ui::PictureSurface* pctMain;
};

} // namespace qf::gamedata
