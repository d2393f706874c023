#pragma once

#include "construction/construction_panel.h"
#include "construction/landscapes.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmLandscapes final : public ConstructionPanel {
  public:
    explicit frmLandscapes(ui::AppContext& context);

  private:
    LandscapesState State() const;

    void TypeChosen(int type);

    ui::OptionArray optType;
    ui::OptionArray optAddMethod;
};

} // namespace qf::construction
