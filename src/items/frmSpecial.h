#pragma once

#include <QTabWidget>
#include <memory>
#include <vector>

#include "construction/construction_panel.h"
#include "items/special.h"

namespace qf::items {

/// Objects of several tiles, laid around a base point.
class frmSpecial final : public construction::ConstructionPanel {
  public:
    explicit frmSpecial(ui::AppContext& context);

    void Load() override;

  private:
    QWidget*   MakePage(const SpecialMenu& menu);
    QGroupBox* MakePlaceFrame();

    SpecialState State() const;

    std::vector<std::unique_ptr<ui::OptionArray>> options_;
    QTabWidget*                                   tabSpecial;
};

} // namespace qf::items
