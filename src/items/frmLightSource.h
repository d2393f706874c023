#pragma once

#include <QGroupBox>
#include <QLayout>
#include <span>

#include "items/light_source.h"
#include "ui/panel.h"

namespace qf::items {

/// A wall of buttons, one for each kind of light.
class frmLightSource final : public ui::Panel {
  public:
    explicit frmLightSource(ui::AppContext& context);

    void Load() override;

  private:
    /// The buttons, those whose indices follow one another in one group.
    QLayout*   MakeGroups();
    QGroupBox* MakeGroup(std::span<const LightButton> rows);
};

} // namespace qf::items
