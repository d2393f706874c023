#pragma once

#include <QButtonGroup>
#include <QGroupBox>
#include <QLayout>
#include <functional>

#include "console/wipe.h"
#include "ui/panel.h"

namespace qf::console {

/// Removes the items inside or outside a box, or all items of the world.
class frmWipe final : public ui::Panel {
  public:
    explicit frmWipe(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox* MakeMethodFrame();
    QGroupBox* MakeCoordinateFrame();
    QGroupBox* MakeConfirmation();
    QLayout*   MakeBottomRow();
    void       MakeHiddenBoxes();

    WipeState State() const;
    void      Show(const WipeState& state);

    /// Runs a step on the fields as they are shown and shows what it makes of them.
    void Step(const std::function<void(WipeState&)>& step);

    QButtonGroup* methods_;
    QGroupBox*    Frame4;
};

} // namespace qf::console
