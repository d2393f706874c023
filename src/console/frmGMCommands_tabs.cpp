// The tabs "Server", "Global" and "GM Commands" of the console.

#include <QGridLayout>
#include <QHBoxLayout>

#include "console/frmGMCommands.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int LightDigits = 5;

} // namespace

QWidget* frmGMCommands::MakeServerTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(MakeCommandGroup(page, Tab::Server, "Players", 2), 0, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::Server, "Server", 2), 1, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::Server, "Programs", 2), 2, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::Server, "Frame1", 2), 0, 1, 3, 1);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

QWidget* frmGMCommands::MakeGlobalTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(MakeCommandGroup(page, Tab::Global, "World", 2), 0, 0);

    auto* light = MakeGroup(page, "Light");
    auto* level = MakeBox(light, "txtLightLevel", LightDigits);
    auto* levelRow = new QHBoxLayout;
    levelRow->addWidget(ui::MakeLabelFor(level, "", "Light level"));
    levelRow->addWidget(level);
    levelRow->addStretch(1);
    static_cast<QGridLayout*>(light->layout())->addLayout(levelRow, 0, 0, 1, 2);
    AddCommands(*light, Tab::Global, "Light", 2);
    grid->addWidget(light, 0, 1);

    grid->addWidget(MakeSwitchGroup(page, Tab::Global), 1, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::Global, "fraMineCheck", 3), 1, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

QWidget* frmGMCommands::MakeGMCommandsTab()
{
    auto* page = new QWidget(TabMain);
    auto* grid = new QGridLayout(page);
    grid->addWidget(MakeCommandGroup(page, Tab::GMCommands, "Calls", 2), 0, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::GMCommands, "Players", 2), 0, 1);
    grid->addWidget(MakeCommandGroup(page, Tab::GMCommands, "Travel", 2), 1, 0);
    grid->addWidget(MakeCommandGroup(page, Tab::GMCommands, "Tools", 2), 1, 1);
    grid->addWidget(MakeSwitchGroup(page, Tab::GMCommands), 2, 0, 1, 2);
    grid->setRowStretch(3, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    return page;
}

} // namespace qf::console
