#pragma once

#include <QLabel>
#include <QTimer>

#include "app/about_motion.h"
#include "ui/panel.h"

namespace qf::app {

/// Product name, version, home page and credits, with a small quern that bounces about.
class frmAbout final : public ui::Panel {
  public:
    explicit frmAbout(ui::AppContext& context);

    void Load() override;

  private:
    void Layout();
    void Tick();

    QLabel*     Picture1;
    QLabel*     Picture2;
    QLabel*     Label5;
    QTimer*     Timer2;
    AboutMotion motion_;
};

} // namespace qf::app
