#pragma once

#include <QCheckBox>
#include <QGroupBox>
#include <array>

#include "console/privileges.h"
#include "ui/panel.h"

namespace qf::console {

/// Makes a character a player, counselor or Game Master, and sets its privileges one by one.
class frmPrivs final : public ui::Panel {
  public:
    explicit frmPrivs(ui::AppContext& context);

    void Load() override;

  private:
    QGroupBox*      MakePrivilegeFrame();
    PrivilegeChecks Checks() const;

    QGroupBox*                             privilegeFrame_;
    std::array<QCheckBox*, PrivilegeCount> chkCharPrivs;
};

} // namespace qf::console
