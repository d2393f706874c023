#include "app/application.h"

#include <QCoreApplication>
#include <QEventLoop>

#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/product.h"
#include "ui/panel.h"
#include "world/database.h"

namespace qf::app {

namespace {

core::ServerGeneration ReadGeneration(core::SettingsStore& store)
{
    return core::ServerGeneration(core::ToInteger16(store.Read(core::section::Configuration, "ZarnVer")));
}

} // namespace

core::Message StartupErrorBox(const core::RuntimeError& error)
{
    const auto  homePage = std::string(core::HomePage);
    std::string text;
    switch (error.Number()) {
    case core::error::ComponentMissing:
        text = "Error: A required component (Quern Runtimes) is missing or not registered.\r\nPlease visit " +
               homePage + " to download and install the required files.";
        break;
    case core::error::ComponentUnsuited:
        text = "Error: Windows Scripting Host (WSH) is missing or disabled.\r\nPlease visit " + homePage +
               " to download and install it.";
        break;
    default:
        text = "An unexpected error occurred during startup:\r\n\r\nError " + std::to_string(error.Number()) + ": " +
               error.Description();
    }
    return {text, core::MessageStyle::Critical, "Startup Error"};
}

Application::Application(ui::Environment& environment, std::span<const ui::PanelEntry> panels)
    : environment_(environment), context_(environment, panels)
{
    environment_.process.beforeFailure = [this] {
        if (database_) {
            database_->Commit();
        }
    };
}

Application::~Application()
{
    environment_.process.beforeFailure = {};
}

bool Application::Main()
{
    if (environment_.components.AnotherInstanceRuns()) {
        environment_.process.End();
        return false;
    }
    environment_.process.Run([this] { Start(); },
                             [this](const core::RuntimeError& error) {
                                 environment_.boxes.Show(StartupErrorBox(error));
                                 environment_.process.End();
                             });
    return !environment_.process.HasEnded();
}

void Application::Start()
{
    environment_.components.Check();
    ShowSplash();

    context_.settings = core::ReadSettings(environment_.store);
    context_.generation = ReadGeneration(environment_.store);
    context_.productTitle = core::ProductTitle();
    context_.worldLoaded = false;

    database_ = world::Database::Open(core::HostPath(environment_.programFolder + "\\qf.mdb"));
    context_.database = database_.get();
    world::UpgradeDatabase(*database_);

    context_.panels.Touch("frmMain");
    context_.panels.Unload(context_.panels.Touch("frmSplash"));
    context_.panels.Show("frmMain");
}

void Application::ShowSplash()
{
    context_.panels.Show("frmSplash");
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace qf::app
