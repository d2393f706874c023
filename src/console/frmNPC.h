#pragma once

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QPushButton>
#include <QStatusBar>

#include "console/npc.h"
#include "ui/option_array.h"
#include "ui/panel.h"

namespace qf::console {

/// Makes a spawner of NPCs in the world step by step, or a single NPC at once. The NPC is chosen from a built-in
/// catalogue or from the list in the server's script, by the generation at its load.
class frmNPC final : public ui::Panel {
  public:
    explicit frmNPC(ui::AppContext& context);

    void Load() override;

  private:
    QLayout*    MakeSteps();
    void        MakeStep(const NpcStep& step, QGridLayout& steps, int row);
    QLabel*     MakeNumber(std::string_view number);
    QLayout*    MakeChoice();
    QGroupBox*  MakeCatalogue();
    QGroupBox*  MakeScriptList();
    QGroupBox*  MakeSpawnerType();
    QGroupBox*  MakeSpawnArea();
    QStatusBar* MakeStatusBar();

    void CategoryChosen();
    void NpcChosen();
    void LoadScriptList();
    void AddScriptEntry(const QString& entry);

    QPushButton* MakeStepButton(const NpcStep& step, QWidget* parent);

    ui::OptionArray optSpawnType;
    QGroupBox*      frm090x;
    QGroupBox*      frm070x;
    QGroupBox*      frmSpawnArea;
    QComboBox*      cmbNPCType;
    QComboBox*      cmbNPC;
    QComboBox*      cmbNPCLoad;
    QStatusBar*     sbStatusBar;
    QLabel*         firstStatus_;
};

} // namespace qf::console
