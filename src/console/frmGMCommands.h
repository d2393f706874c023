#pragma once

#include <QGroupBox>
#include <QLayout>
#include <QPushButton>
#include <QTabWidget>
#include <memory>

#include "console/console_page.h"
#include "console/gm_commands.h"
#include "console/pick_list.h"
#include "ui/option_array.h"
#include "ui/panel.h"

namespace qf::console {

/// The Game Master's console: nine tabs of buttons, nearly each of which sends one command of the server.
class frmGMCommands final : public ui::Panel {
  public:
    explicit frmGMCommands(ui::AppContext& context);
    ~frmGMCommands() override;

    void Load() override;

    /// The console is left by its "Exit" alone.
    bool HasCloseEntry() const override { return false; }

  private:
    class Host;

    QWidget* MakeServerTab();
    QWidget* MakeGlobalTab();
    QWidget* MakeGMCommandsTab();
    QWidget* MakeItemEditTab();
    QWidget* MakeCharacterEditTab();
    QWidget* MakeNPCsTab();
    QWidget* MakeCustomCommandsTab();
    QLayout* MakeButtonsOutside();

    PickList*  MakeList(QWidget* parent, std::string_view name);
    QGroupBox* MakeSkillsFrame(QWidget* parent);
    QGroupBox* MakeFameFrame(QWidget* parent);
    QGroupBox* MakeChoiceFrame(QWidget* parent, Tab tab, std::string_view frame, ui::OptionArray& options, int columns);

    /// A frame of the tables, hidden where they say so, or a group without a name of its own. Its layout is a grid.
    QGroupBox* MakeGroup(QWidget* parent, std::string_view group);

    /// A group with all its buttons.
    QGroupBox* MakeCommandGroup(QWidget* parent, Tab tab, std::string_view group, int columns);

    /// Adds the buttons of a group below what its frame holds already.
    void AddCommands(QGroupBox& frame, Tab tab, std::string_view group, int columns);

    /// Puts a text box beside the button that sends it.
    void PutBoxBeside(QGroupBox& frame, std::string_view button, std::string_view name, std::string_view meaning);

    /// The group of the buttons that lie in pairs beside their label.
    QGroupBox* MakeSwitchGroup(QWidget* parent, Tab tab);

    QPushButton* MakeCommand(QWidget* parent, const GMCommand& command);
    QPushButton* MakeCommand(QWidget* parent, std::string_view name);
    QLineEdit*   MakeBox(QWidget* parent, std::string_view name, int digits);
    bool         IsAvailable(const GMCommand& command);

    GMFields       Fields();
    CustomCommands TypedCustomCommands() const;
    void           Press(const GMCommand& command);
    void           CarryOut(const GMWindowStep& step);
    void           StartTool(GMAct act);
    void           Leave();

    void RestoreState();

    std::unique_ptr<Host> host_;
    QTabWidget*           TabMain = nullptr;
    PickList*             cmbSkills = nullptr;
    PickList*             cmbStats = nullptr;
    ui::OptionArray       optItemVisible;
    ui::OptionArray       optItemMovable;
    ui::OptionArray       optNPCAI;
};

} // namespace qf::console
