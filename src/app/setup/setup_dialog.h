#pragma once

#include <QDialog>

#include "app/setup/setup_choice.h"
#include "core/settings.h"
#include "ui/option_array.h"

class QLineEdit;

namespace qf::app {

/// Asks for the server generation and the client folder. It is accepted once both are in the store. Where the
/// store has no folder, that with the practice art (see InitialChoice) is offered.
class SetupDialog final : public QDialog {
  public:
    explicit SetupDialog(core::SettingsStore& store, SetupPlaces places = {});

  private:
    SetupChoice Choice() const;
    void        Browse();
    void        Save();
    bool        IsMeant(const SetupChoice& choice);

    core::SettingsStore& store_;
    SetupPlaces          places_;
    ui::OptionArray      optZarnVer_;
    QLineEdit*           txtPathUO_ = nullptr;
};

} // namespace qf::app
