#pragma once

#include <QLabel>
#include <QTabWidget>
#include <array>
#include <memory>

#include "construction/construction_panel.h"
#include "construction/forests.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmForests final : public ConstructionPanel {
  public:
    explicit frmForests(ui::AppContext& context);

  private:
    void       MakeTabs();
    QWidget*   MakePage(int tab);
    QGroupBox* MakeSourceFrame();
    QGroupBox* MakeAmountFrame();
    QGroupBox* MakePictureFrame();

    ForestsState State() const;

    void ItemChosen(int tab, int item);
    void SourceChosen(int source);
    void FormChosen(int form);

    /// Adds the tile of the item with a button's index on the tab now shown.
    void AddPiece(int item, std::string TreeIds::*tile);

    QTabWidget* tabForest = nullptr;
    QGroupBox*  fraNumber = nullptr;
    QGroupBox*  fraDirection = nullptr;
    QLineEdit*  txtItemID = nullptr;
    QLabel*     Label1 = nullptr;

    std::array<std::unique_ptr<ui::OptionArray>, ForestTabs> optForest;
    ui::OptionArray                                          optAddFrom;
    ui::OptionArray                                          optTreeForm;
    ui::OptionArray                                          optNumber;
    ui::OptionArray                                          optDirection;
};

} // namespace qf::construction
