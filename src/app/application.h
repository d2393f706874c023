#pragma once

#include <memory>
#include <span>

#include "ui/app_context.h"
#include "ui/environment.h"
#include "ui/panels.h"

namespace qf::world {
class Database;
}

namespace qf::app {

/// Every panel of the program.
std::span<const ui::PanelEntry> AllPanels();

/// One run of the program over an environment, from start-up to the end of the process.
class Application {
  public:
    explicit Application(ui::Environment& environment, std::span<const ui::PanelEntry> panels = AllPanels());
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// The start-up: refuses a second instance, reads the settings, opens the world database and shows the
    /// main panel. False where it ended the process, after one message where a step failed.
    bool Main();

    ui::AppContext& Context() { return context_; }

  private:
    void Start();
    void ShowSplash();

    ui::Environment&                 environment_;
    std::unique_ptr<world::Database> database_;
    ui::AppContext                   context_;
};

/// The box that tells of a failed start.
core::Message StartupErrorBox(const core::RuntimeError& error);

} // namespace qf::app
