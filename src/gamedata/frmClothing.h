#pragma once

#include <QComboBox>
#include <QLayout>
#include <span>

#include "gamedata/clothing.h"
#include "ui/panel.h"
#include "ui/picture_surface.h"

namespace qf::gamedata {

/// Adds clothing, hairs and beards as items.
class frmClothing final : public ui::Panel {
  public:
    explicit frmClothing(ui::AppContext& context);

    void Load() override;

  private:
    QWidget* MakeClothing();
    QWidget* MakePicture();
    QLayout* MakeBottomRow();

    /// A framed list of hairs or beards with the button that adds the selected row.
    QWidget* MakeGroundList(std::string_view caption, QComboBox*& list, std::string_view listName,
                            std::span<const Garment> rows, std::string_view button, std::string_view buttonCaption);

    const Garment* ChosenGarment() const;
    void           CategoryChosen();
    void           DrawChosenGarment();

    QComboBox*          cmbClothing = nullptr;
    QComboBox*          cmbSubClothing = nullptr;
    QComboBox*          cmbHair = nullptr;
    QComboBox*          cmbBeard = nullptr;
    ui::PictureSurface* pctItem = nullptr;
};

} // namespace qf::gamedata
