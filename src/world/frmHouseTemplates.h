#pragma once

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <vector>

#include "ui/panel.h"
#include "world/template_list.h"

namespace qf::world {

/// Lists the templates beside the program and rebuilds a chosen one at a place that the user names.
class frmHouseTemplates final : public ui::Panel {
  public:
    explicit frmHouseTemplates(ui::AppContext& context);

    void Load() override;
    void Unload() override;

  private:
    QGroupBox* MakeTemplateFrame();
    QGroupBox* MakePlaceFrame();
    QGroupBox* MakeClientFrame();
    QLayout*   MakeBottomRow();

    void FillList();
    void AddHouse();
    void ShowInfo();
    void OpenExtraction();
    void OpenWipe();

    /// The folder of the templates in the program's form of a path, with the separator at its end.
    std::string Folder();

    /// The chosen template; nothing, after a message, where none is chosen.
    const TemplateEntry* Chosen();

    QComboBox* cmbHouseTemplate;
    QLabel*    lblHouseTemplates;
    QLabel*    lblHouseTemplate;

    /// The listed files, in the order of the list.
    std::vector<TemplateEntry> files_;
};

} // namespace qf::world
