#pragma once

#include <QGroupBox>
#include <QLayout>
#include <QPushButton>

#include "console/npc_wander.h"
#include "ui/panel.h"

namespace qf::console {

/// Sets how an NPC moves about: not at all, after a target, freely, within a box or within a circle.
class frmNPCWander final : public ui::Panel {
  public:
    explicit frmNPCWander(ui::AppContext& context);

    void Load() override;

  private:
    QLayout*   MakePlainCommands(QWidget* parent);
    QGroupBox* MakeBoxFrame(QWidget* parent);
    QGroupBox* MakeCircleFrame(QWidget* parent);

    /// The button of a frame that sets its mode.
    QPushButton* MakeModeButton(QWidget* frame, std::string_view group);
    QPushButton* MakeCommandButton(QWidget* parent, const WanderCommand& command);
    std::string  TextOf(std::string_view box) const;
};

} // namespace qf::console
