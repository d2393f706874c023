#pragma once

#include <QPushButton>

#include "console/shutdown.h"
#include "ui/panel.h"

namespace qf::console {

/// Takes the server down, now or after a delay.
class frmShutdown final : public ui::Panel {
  public:
    explicit frmShutdown(ui::AppContext& context);

    void Load() override;

  private:
    QPushButton* MakeShutdownButton(const ShutdownButton& row);
};

} // namespace qf::console
