#pragma once

#include <QTabWidget>

#include "construction/construction_panel.h"
#include "construction/roof.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmRoof final : public ConstructionPanel {
  public:
    explicit frmRoof(ui::AppContext& context);

  private:
    void       MakeTabs();
    QGroupBox* MakeSingleTileFrame();

    RoofState State() const;

    void DirectionChosen(int direction);
    void TileRoofChosen();
    void ShowChosenTile();

    QTabWidget* tabRoof = nullptr;

    ui::OptionArray optTileRoof;
    ui::OptionArray optFlatRoof;
    ui::OptionArray optDirection;
    ui::OptionArray optFloor;
};

} // namespace qf::construction
