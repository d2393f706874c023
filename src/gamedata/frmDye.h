#pragma once

#include <QLayout>
#include <QLineEdit>
#include <QScrollBar>

#include "ui/panel.h"

namespace qf::gamedata {

/// The hues of the client as a grid of colours; a click on one dyes what the user then clicks in the game.
class frmDye final : public ui::Panel {
  public:
    explicit frmDye(ui::AppContext& context);

    void Load() override;

  private:
    class Vat;

    QWidget* MakeColours();
    QLayout* MakeBottomRow();

    void LoadHues();
    void ShowGroup();
    void SendSelectedHue();

    Vat*        flxDyeVat = nullptr;
    QScrollBar* sclCurrentHue = nullptr;
    QLineEdit*  txtDyeVat = nullptr;
};

} // namespace qf::gamedata
