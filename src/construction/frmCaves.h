#pragma once

#include <QCheckBox>
#include <QTabWidget>

#include "construction/caves.h"
#include "construction/construction_panel.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmCaves final : public ConstructionPanel {
  public:
    explicit frmCaves(ui::AppContext& context);

    void Load() override;

  private:
    void MakeTabs();

    CavesState State() const;

    /// The options of a tab.
    const ui::OptionArray& TypesOf(int tab) const;

    void TypeChosen(int tab, int type);
    void MethodChosen(int method);

    QTabWidget* tabFloor = nullptr;
    QGroupBox*  fraHeight = nullptr;
    QCheckBox*  repeatCheck = nullptr;

    ui::OptionArray optFloorType;
    ui::OptionArray optFloorType2;
    ui::OptionArray optWallType;
    ui::OptionArray optMiscType;
    ui::OptionArray optAddMethod;
    ui::OptionArray optFloor;
};

} // namespace qf::construction
