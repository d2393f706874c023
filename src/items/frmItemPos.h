#pragma once

#include <QGroupBox>

#include "items/item_pos.h"
#include "ui/panel.h"

namespace qf::items {

/// Shifts and places items that are there already.
class frmItemPos final : public ui::Panel {
  public:
    explicit frmItemPos(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox* MakeValueFrame(std::string_view name, std::string_view caption, std::string_view boxName);
};

} // namespace qf::items
