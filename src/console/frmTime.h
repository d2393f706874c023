#pragma once

#include <QButtonGroup>
#include <QGroupBox>

#include "console/game_time.h"
#include "ui/panel.h"

namespace qf::console {

/// Sets the clock of the game world and the speed of that clock.
class frmTime final : public ui::Panel {
  public:
    explicit frmTime(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox* MakeTimeFrame();
    QGroupBox* MakeDayFrame(QWidget* parent);
    QGroupBox* MakeSpeedFrame();
    void       MakeHiddenBoxes();

    GameTimeState State() const;
    void          Show(const GameTimeState& state);

    QButtonGroup* halves_;
};

} // namespace qf::console
