#pragma once

#include <QGroupBox>

#include "console/shop.h"
#include "ui/panel.h"

namespace qf::console {

/// Turns an NPC into a shopkeeper and looks after its goods.
class frmShop final : public ui::Panel {
  public:
    explicit frmShop(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox* MakeGroup(std::string_view group);
    QLineEdit* MakeBox(QGroupBox& frame, const ShopCommand& command);
};

} // namespace qf::console
