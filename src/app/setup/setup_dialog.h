#pragma once

#include <QDialog>
#include <string_view>

#include "app/setup/setup_choice.h"
#include "core/settings.h"
#include "ui/option_array.h"

class QLineEdit;

namespace qf::app {

/// Asks for the server generation and the client folder. It is accepted once both are in the store. Where the
/// store has no folder, `practiceArt` (see InitialChoice) is offered.
class SetupDialog final : public QDialog {
  public:
    explicit SetupDialog(core::SettingsStore& store, std::string_view practiceArt = {});

  private:
    SetupChoice Choice() const;
    void        Browse();
    void        Save();

    core::SettingsStore& store_;
    ui::OptionArray      optZarnVer_;
    QLineEdit*           txtPathUO_ = nullptr;
};

} // namespace qf::app
