#pragma once

#include <QtCore/qnamespace.h>
#include <memory>

#include "client/location.h"
#include "core/file_numbers.h"
#include "core/generation.h"
#include "core/outlet.h"
#include "core/pixel_surface.h"
#include "core/settings.h"
#include "gamedata/hues.h"
#include "ui/environment.h"
#include "ui/panels.h"
#include "ui/shared_area.h"

namespace qf::world {
class Database;
}

namespace qf::ui {

class PictureSurface;

/// The modes of the item explorer, which outlive its panel.
struct ExplorerModes {
    bool hover = false;
    bool repeatAdd = false;
    bool tile = false;
};

/// What all panels share during one run. `Application` holds it, and it is passed by reference; there is no other
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
    world::Database*       database = nullptr;
    core::FileNumbers      fileNumbers;
    gamedata::HueTable     hues;
    ExplorerModes          explorerModes;

    /// The background of tile pictures; the main panel's load sets it.
    core::Rgb tileBackColour = 0;

    Panels panels;

    /// Where handlers send their effects: commands go through `SendCommand`, boxes to the user.
    core::Outlet& Outlet() { return *outlet_; }

    /// Reads the stored calibration and asks for the player's place.
    /// Throws RuntimeError 13 where no calibration was ever stored.
    client::PlayerLocation FetchLocation();

    /// The message that asks for a calibration.
    void ShowCalibrationNag();

    void CopyToClipboard(std::string_view text) { environment.clipboard.SetText(text); }

    /// Whether "Stay On Top" is ticked on the configuration panel now, saved or not. Loads that panel,
    /// invisibly, where it is not loaded.
    bool StayOnTopWanted();

    /// Whether "See Item Pics" is ticked (or grey) on the configuration panel now, saved or not. Loads that
    /// panel, invisibly, where it is not loaded.
    bool ItemPicsWanted();

    /// The path in a box of the configuration panel now, saved or not, in the program's form. Loads that panel,
    /// invisibly, where it is not loaded.
    std::string ConfiguredPath(std::string_view box);

    /// Draws the static tile of an item ID on a picture, where "See Item Pics" is on.
    /// Throws RuntimeError 6 for a number out of range, 63 for one below all records, 67 where no file number is free.
    void DrawStaticTile(std::int32_t id, PictureSurface& picture);

  private:
    /// The state of a check box of the configuration panel.
    Qt::CheckState OptionState(const char* box, bool saved);

    std::unique_ptr<core::Outlet> outlet_;
};

} // namespace qf::ui
