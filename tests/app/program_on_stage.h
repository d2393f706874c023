#pragma once

#include <functional>
#include <optional>
#include <string>

#include "app/application.h"
#include "client/platform/simulated/simulated_platform.h"
#include "core/host_path.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "support/temp_folder.h"
#include "world/database.h"

namespace qf::test {

/// The program on a simulated desktop with a client in front, its settings in memory.
class ProgramOnStage {
  public:
    explicit ProgramOnStage(int generation = 1)
    {
        world::CreateWorldDatabase(folder_.Path() / "qf.mdb");
        folder_.MakeFolder("Templates");
        store.Write(core::section::Configuration, "ZarnVer", std::to_string(generation));
        platform.SetForeground(platform.AddWindow("SDL_app", "ClassicUO"));
        environment_.emplace(ui::Environment{store, platform, services, services, services, services, services,
                                             services, uniform_, core::ProgramPath(folder_.Path())});
        application.emplace(*environment_);
    }

    const std::filesystem::path& Folder() const { return folder_.Path(); }

    MemoryStore                     store;
    client::SimulatedPlatform       platform;
    QuietServices                   services;
    std::optional<app::Application> application;

  private:
    TempFolder                     folder_;
    core::PseudoUniformGenerator   uniform_;
    std::optional<ui::Environment> environment_;
};

} // namespace qf::test
