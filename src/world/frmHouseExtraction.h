#pragma once

#include <QGroupBox>
#include <QLayout>
#include <QPushButton>
#include <QTableView>

#include "ui/panel.h"
#include "world/extraction.h"
#include "world/item_table_model.h"

namespace qf::world {

/// Turns a box of the loaded world into a template.
class frmHouseExtraction final : public ui::Panel {
  public:
    explicit frmHouseExtraction(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox*   MakeCornerFrame(std::string_view caption, std::string_view suffix, std::string_view digit);
    QGroupBox*   MakeMapFrame();
    QLayout*     MakeTexts();
    QPushButton* MakeExtractButton();
    QWidget*     MakeGrid();
    QLayout*     MakeBottomRow();

    ExtractionState State() const;
    void            Extract();

    ItemTableModel* items_;
    QTableView*     flxItems;
    QPushButton*    cmdBuildTemplate;
};

} // namespace qf::world
