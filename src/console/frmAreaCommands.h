#pragma once

#include <QGroupBox>
#include <QPushButton>

#include "console/area_commands.h"
#include "ui/panel.h"

namespace qf::console {

/// Changes many items in one go.
class frmAreaCommands final : public ui::Panel {
  public:
    explicit frmAreaCommands(ui::AppContext& context);

  private:
    /// The rows of one group, each with its box, its button and its "?".
    QGroupBox*   MakeGroup(std::string_view group);
    QLineEdit*   MakeBox(QGroupBox& frame, const AreaCommand& command);
    QPushButton* MakeCommand(QGroupBox& frame, const AreaCommand& command);
    QPushButton* MakeSyntax(QGroupBox& frame, const AreaCommand& command, const AreaSyntax& syntax);
};

} // namespace qf::console
