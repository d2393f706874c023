#pragma once

#include <memory>

#include "client/location.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/settings.h"
#include "ui/environment.h"
#include "ui/panels.h"
#include "ui/shared_area.h"

namespace qf::world {
class Database;
}

namespace qf::ui {

/// What all panels share during one run. Made by `Main` and passed by reference; there is no other
/// shared state.
class AppContext {
  public:
    AppContext(Environment& environment, std::span<const PanelEntry> panelList);
    ~AppContext();
    AppContext(const AppContext&) = delete;
    AppContext& operator=(const AppContext&) = delete;

    Environment&           environment;
    core::Settings         settings;
    core::ServerGeneration generation;
    std::string            productTitle;
    bool                   worldLoaded = false;
    SharedArea             sharedArea;
    client::PlayerLocation locationResult;
    world::Database*       database = nullptr;
    Panels                 panels;

    /// Where handlers send their effects: commands go through `SendCommand`, boxes to the user.
    core::Outlet& Outlet() { return *outlet_; }

    /// Reads the stored calibration, asks for the player's place and keeps the answer in `locationResult`.
    /// Throws RuntimeError 13 where no calibration was ever stored.
    const client::PlayerLocation& FetchLocation();

    /// The message that asks for a calibration.
    void ShowCalibrationNag();

    void CopyToClipboard(std::string_view text) { environment.clipboard.SetText(text); }

    /// Whether "Stay On Top" is ticked on the configuration panel now, saved or not. Loads that panel,
    /// invisibly, where it is not loaded.
    bool StayOnTopWanted();

  private:
    std::unique_ptr<core::Outlet> outlet_;
};

} // namespace qf::ui
