#pragma once

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <vector>

#include "console/item_type.h"
#include "ui/panel.h"

namespace qf::console {

/// Gives an item one of the server's types.
class frmType final : public ui::Panel {
  public:
    explicit frmType(ui::AppContext& context);

    void Load() override;

  private:
    /// An option and what it stands for.
    struct TypeButton {
        const ItemTypeOption* type;
        QRadioButton*         button;
    };

    void     MakeOptions(QWidget* frame);
    void     LayOutOptions();
    QLayout* MakeBottomRow();

    QGroupBox*              Frame1;
    QGridLayout*            columns_;
    QButtonGroup*           types_;
    std::vector<TypeButton> buttons_;
};

} // namespace qf::console
