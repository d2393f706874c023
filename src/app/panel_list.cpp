#include <array>

#include "app/application.h"
#include "app/frmAbout.h"
#include "app/frmMain.h"
#include "app/frmOptions.h"
#include "app/frmSplash.h"
#include "console/frmAreaCommands.h"
#include "console/frmGMCommands.h"
#include "console/frmNPC.h"
#include "console/frmNPCWander.h"
#include "console/frmPrivs.h"
#include "console/frmShop.h"
#include "console/frmShutdown.h"
#include "console/frmTime.h"
#include "console/frmType.h"
#include "console/frmWipe.h"
#include "construction/frmCaves.h"
#include "construction/frmCoastlines.h"
#include "construction/frmFloors.h"
#include "construction/frmForests.h"
#include "construction/frmLandscapes.h"
#include "construction/frmRoof.h"
#include "construction/frmStairs.h"
#include "construction/frmWalls.h"
#include "gamedata/frmClothing.h"
#include "gamedata/frmDye.h"
#include "gamedata/frmItemExplorer.h"
#include "gamedata/frmPicture.h"
#include "items/frmItemPos.h"
#include "items/frmItems.h"
#include "items/frmLightSource.h"
#include "items/frmSpecial.h"
#include "world/frmHouseExtraction.h"
#include "world/frmHouseTemplates.h"

namespace qf::app {

namespace {

template <typename PanelClass>
std::unique_ptr<ui::Panel> Make(ui::AppContext& context)
{
    return std::make_unique<PanelClass>(context);
}

// clang-format off
constexpr std::array panelList{
    ui::PanelEntry{"frmSplash",          Make<frmSplash>},
    ui::PanelEntry{"frmMain",            Make<frmMain>},
    ui::PanelEntry{"frmAbout",           Make<frmAbout>},
    ui::PanelEntry{"frmOptions",         Make<frmOptions>},
    ui::PanelEntry{"frmFloors",          Make<construction::frmFloors>},
    ui::PanelEntry{"frmWalls",           Make<construction::frmWalls>},
    ui::PanelEntry{"frmRoof",            Make<construction::frmRoof>},
    ui::PanelEntry{"frmStairs",          Make<construction::frmStairs>},
    ui::PanelEntry{"frmForests",         Make<construction::frmForests>},
    ui::PanelEntry{"frmLandscapes",      Make<construction::frmLandscapes>},
    ui::PanelEntry{"frmCoastlines",      Make<construction::frmCoastlines>},
    ui::PanelEntry{"frmCaves",           Make<construction::frmCaves>},
    ui::PanelEntry{"frmItems",           Make<items::frmItems>},
    ui::PanelEntry{"frmSpecial",         Make<items::frmSpecial>},
    ui::PanelEntry{"frmItemPos",         Make<items::frmItemPos>},
    ui::PanelEntry{"frmLightSource",     Make<items::frmLightSource>},
    ui::PanelEntry{"frmGMCommands",      Make<console::frmGMCommands>},
    ui::PanelEntry{"frmShutdown",        Make<console::frmShutdown>},
    ui::PanelEntry{"frmTime",            Make<console::frmTime>},
    ui::PanelEntry{"frmType",            Make<console::frmType>},
    ui::PanelEntry{"frmPrivs",           Make<console::frmPrivs>},
    ui::PanelEntry{"frmAreaCommands",    Make<console::frmAreaCommands>},
    ui::PanelEntry{"frmShop",            Make<console::frmShop>},
    ui::PanelEntry{"frmWipe",            Make<console::frmWipe>},
    ui::PanelEntry{"frmNPC",             Make<console::frmNPC>},
    ui::PanelEntry{"frmNPCWander",       Make<console::frmNPCWander>},
    ui::PanelEntry{"frmHouseExtraction", Make<world::frmHouseExtraction>},
    ui::PanelEntry{"frmHouseTemplates",  Make<world::frmHouseTemplates>},
    ui::PanelEntry{"frmDye",             Make<gamedata::frmDye>},
    ui::PanelEntry{"frmClothing",        Make<gamedata::frmClothing>},
    ui::PanelEntry{"frmPicture",         Make<gamedata::frmPicture>},
    ui::PanelEntry{"frmItemExplorer",    Make<gamedata::frmItemExplorer>},
};
// clang-format on

} // namespace

std::span<const ui::PanelEntry> AllPanels()
{
    return panelList;
}

} // namespace qf::app
