#include "ui/app_context.h"

#include <QCheckBox>

#include "client/delivery.h"
#include "core/number_rules.h"
#include "gamedata/art.h"
#include "ui/panel.h"
#include "ui/parts.h"
#include "ui/path_box.h"
#include "ui/picture_surface.h"

namespace qf::ui {

namespace {

/// The outlet of the running program: commands are typed into the client, boxes are shown to the user.
/// After a failure or the end of the process nothing leaves it any more, however deep the handler that is
/// unwinding.
class ProgramOutlet final : public core::Outlet {
  public:
    explicit ProgramOutlet(AppContext& context) : context_(context) {}

    void Send(std::string_view command, bool usePrefix) override
    {
        context_.environment.process.ThrowIfStopped();
        client::SendCommand(context_.environment.platform, *this, context_.settings.CommandPrefix, command, usePrefix);
    }

    void Show(const core::Message& message) override
    {
        context_.environment.process.ThrowIfStopped();
        context_.environment.boxes.Show(message);
    }

    bool Ask(const core::Message& message) override
    {
        context_.environment.process.ThrowIfStopped();
        return context_.environment.boxes.Ask(message);
    }

  private:
    AppContext& context_;
};

} // namespace

AppContext::AppContext(Environment& environmentOfRun, std::span<const PanelEntry> panelList)
    : environment(environmentOfRun), panels(*this, panelList), outlet_(std::make_unique<ProgramOutlet>(*this))
{}

AppContext::~AppContext() = default;

client::PlayerLocation AppContext::FetchLocation()
{
    const auto calibration = core::ToInteger32(environment.store.Read(core::section::Configuration, "Calibration"));
    return client::GetPlayerLocation(environment.platform, calibration, settings.UsingClassicUO);
}

void AppContext::ShowCalibrationNag()
{
    Outlet().Show(core::PlainBox("You need to properly calibrate QF to your current ingame location for this to work. "
                                 "Check the configuration menu."));
}

bool AppContext::StayOnTopWanted()
{
    return OptionState("ChkStayOnTop", settings.StayOnTop) == Qt::Checked;
}

bool AppContext::ItemPicsWanted()
{
    return OptionState("chkItemPics", settings.ItemPic) != Qt::Unchecked;
}

std::string AppContext::ConfiguredPath(std::string_view box)
{
    const auto& options = panels.Touch("frmOptions");
    return dynamic_cast<const PathBox&>(*options.findChild<QLineEdit*>(Text(box))).ProgramText();
}

Qt::CheckState AppContext::OptionState(const char* box, bool saved)
{
    const auto* found =
        panels.Has("frmOptions") ? panels.Touch("frmOptions").findChild<QCheckBox*>(QLatin1String(box)) : nullptr;
    if (found == nullptr) {
        return saved ? Qt::Checked : Qt::Unchecked;
    }
    return found->checkState();
}

void AppContext::DrawStaticTile(std::int32_t id, PictureSurface& picture)
{
    gamedata::DrawStaticTile(id, picture.Surface(), {ItemPicsWanted(), settings.UOPath, tileBackColour}, fileNumbers);
    picture.update();
}

} // namespace qf::ui
