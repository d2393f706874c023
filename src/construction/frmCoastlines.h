#pragma once

#include <QLabel>
#include <QStackedLayout>

#include "construction/coastlines.h"
#include "construction/construction_panel.h"
#include "ui/option_array.h"

namespace qf::construction {

class frmCoastlines final : public ConstructionPanel {
  public:
    explicit frmCoastlines(ui::AppContext& context);

  private:
    QWidget* MakeKinds();

    CoastlinesState State() const;

    /// Shows the frame of one kind in the place of the other.
    void ShowKind(CoastKind kind);
    void TypeChosen(CoastKind kind, int type);
    void AddPiece(CoastKind kind, int type);

    QStackedLayout* frames_ = nullptr;
    QGroupBox*      fraType = nullptr;
    QGroupBox*      fraType2 = nullptr;
    QLabel*         Label2 = nullptr;
    QLabel*         Label3 = nullptr;

    ui::OptionArray optType;
    ui::OptionArray optType2;
    ui::OptionArray optAddMethod;
};

} // namespace qf::construction
