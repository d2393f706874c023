#pragma once

#include <QLineEdit>
#include <QPushButton>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "app/application.h"
#include "client/delivery.h"
#include "client/platform/x11/x11_platform.h"
#include "core/host_path.h"
#include "desktop/x11_session.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "support/temp_folder.h"
#include "ui/panel.h"
#include "ui/parts.h"
#include "world/database.h"

namespace qf::test {

/// A run of the program on the real desktop, with its settings in memory.
class ProgramOnDesktop {
  public:
    /// `startup` are texts of the section "Startup", as an earlier run has left them.
    ProgramOnDesktop(int generation, const std::string& prefix,
                     const std::vector<std::pair<std::string, std::string>>& startup = {})
        : platform_(std::string())
    {
        world::CreateWorldDatabase(folder_.Path() / "qf.mdb");
        store_.Write(core::section::Configuration, "ZarnVer", std::to_string(generation));
        store_.Write(core::section::Configuration, "CommandPrefix", prefix);
        for (const auto& [key, text] : startup) {
            store_.Write(core::section::Startup, key, text);
        }
        environment_.emplace(ui::Environment{store_, platform_, services_, services_, services_, services_, services_,
                                             services_, uniform_, core::ProgramPath(folder_.Path())});
        run_.emplace(*environment_);
        EXPECT_TRUE(run_->Main());
    }

    ui::Panel&              Open(std::string_view name) { return run_->Context().panels.Show(name); }
    ui::AppContext&         Context() { return run_->Context(); }
    client::ClientPlatform& Platform() { return platform_; }

    bool WaitForClient()
    {
        return Eventually([this] { return client::FindClientWindow(platform_) != 0; });
    }

    const std::vector<std::string>& Boxes() const { return services_.boxes; }

  private:
    TempFolder                      folder_;
    MemoryStore                     store_;
    QuietServices                   services_;
    client::X11Platform             platform_;
    core::PseudoUniformGenerator    uniform_;
    std::optional<ui::Environment>  environment_;
    std::optional<app::Application> run_;
};

template <typename Control>
Control& Find(const ui::Panel& panel, const QString& name)
{
    auto* found = panel.findChild<Control*>(name);
    if (found == nullptr) {
        throw std::runtime_error("no control " + ui::Utf8(name));
    }
    return *found;
}

inline void Fill(const ui::Panel& panel, const char* box, const char* text)
{
    Find<QLineEdit>(panel, QLatin1String(box)).setText(QLatin1String(text));
}

inline void Press(const ui::Panel& panel, const char* button)
{
    Find<QPushButton>(panel, QLatin1String(button)).click();
}

} // namespace qf::test
