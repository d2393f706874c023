#pragma once

#include "construction/construction_panel.h"
#include "construction/walls.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmWalls final : public ConstructionPanel {
  public:
    explicit frmWalls(ui::AppContext& context);

  private:
    QGroupBox* MakeTypeFrame();

    WallsState State() const;

    void MethodChosen(int method);
    void FormChosen(int form);
    void HeightChosen(int height);

    /// With a type selected: selects what is missing, then shows the tile.
    void ShowChosenTile();

    QGroupBox* fraDirection;
    QGroupBox* fraWallForm2;
    QGroupBox* fraHeight;

    ui::OptionArray optWallSelect;
    ui::OptionArray optWallForm2;
    ui::OptionArray optWallForm;
    ui::OptionArray optDirection;
    ui::OptionArray optWallType;
    ui::OptionArray optFloor;
};

} // namespace qf::construction
