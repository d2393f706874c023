#pragma once

#include "ui/panel.h"

namespace qf::app {

/// What is seen while the program starts.
class frmSplash final : public ui::Panel {
  public:
    explicit frmSplash(ui::AppContext& context);

    void Load() override;
};

} // namespace qf::app
