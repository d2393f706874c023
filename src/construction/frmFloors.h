#pragma once

#include <QCheckBox>
#include <QTabWidget>

#include "construction/construction_panel.h"
#include "construction/floors.h"

namespace qf::construction {

/// Floors, rugs and carpets.
class frmFloors final : public ConstructionPanel {
  public:
    explicit frmFloors(ui::AppContext& context);

  private:
    QTabWidget* MakeTabs();
    QWidget*    MakePage(std::span<const FloorRow> rows, int first, int count, ui::OptionArray& options,
                         std::string_view pieceButtons, int columns);

    FloorsState State() const;

    void TypeChosen();
    void RugOrCarpetChosen();
    void ShowChosenTile();
    void DirectionChosen();

    /// The ID text of the chosen type on the tab now shown; empty where there is none.
    std::string ChosenTile() const;
    void        MethodChosen(int method);
    bool        UsesZ() const;
    void        UseZChanged();

    QTabWidget*     tabFloor;
    ui::OptionArray optFloorType;
    ui::OptionArray optRugs;
    ui::OptionArray optCarpet;
    ui::OptionArray optDirection;
    ui::OptionArray optAddMethod;
    ui::OptionArray optHeightFloor;
    QCheckBox*      useZCheck;
};

} // namespace qf::construction
