#include "console/frmNPCWander.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/corner_row.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int CoordinateDigits = 6;

constexpr std::string_view BoxFrame = "Frame2";
constexpr std::string_view CircleFrame = "Frame1";

// clang-format off
constexpr std::array positionRows{
    //              control      X       Y       Z   tested
    ui::PositionRow{"cmdwhere1", "txtX1", "txtY1", "", "txtX1"},
    ui::PositionRow{"cmdwhere2", "txtX2", "txtY2", "", "txtX2"},
    ui::PositionRow{"cmdWhere3", "txtX",  "",      "", "txtX"},
    ui::PositionRow{"Command2",  "",      "txtY",  "", "txtY"},
};
// clang-format on

} // namespace

frmNPCWander::frmNPCWander(ui::AppContext& context) : Panel(context, "frmNPCWander")
{
    setWindowTitle(QStringLiteral("Set NPC Wander"));

    auto* frame = ui::MakeFrame(this, "fraNPCWander", "NPC Wander");
    auto* shapes = new QHBoxLayout;
    auto* plain = MakePlainCommands(frame);
    shapes->addWidget(MakeBoxFrame(frame), 1);
    shapes->addWidget(MakeCircleFrame(frame), 1);
    for (const auto& row : positionRows) {
        AddPositionControl(row);
    }

    auto* leave = MakeExit(frame, "cmdReturn");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);

    auto* layout = new QVBoxLayout(frame);
    layout->addLayout(plain);
    layout->addLayout(shapes, 1);
    layout->addLayout(bottom);
    auto* all = new QVBoxLayout(this);
    all->addWidget(frame);
}

QLayout* frmNPCWander::MakePlainCommands(QWidget* parent)
{
    auto* layout = new QGridLayout;
    int   place = 0;
    for (const auto& command : WanderCommands()) {
        if (command.group.empty()) {
            layout->addWidget(MakeCommandButton(parent, command), place / 2, place % 2);
            ++place;
        }
    }
    return layout;
}

QPushButton* frmNPCWander::MakeCommandButton(QWidget* parent, const WanderCommand& command)
{
    auto* button = ui::MakeButton(parent, command.name, command.caption, command.toolTip);
    OnClick(*button, [this, &command] { SendWander(command, Context().generation, Outlet()); });
    return button;
}

QPushButton* frmNPCWander::MakeModeButton(QWidget* frame, std::string_view group)
{
    const auto commands = WanderCommands();
    return MakeCommandButton(frame, *std::ranges::find(commands, group, &WanderCommand::group));
}

QGroupBox* frmNPCWander::MakeBoxFrame(QWidget* parent)
{
    auto* frame = ui::MakeFrame(parent, BoxFrame, "Wander in Box");
    auto* layout = new QGridLayout(frame);
    for (const int corner : {1, 2}) {
        const auto number = std::to_string(corner);
        const auto labelX = "X" + number;
        const auto labelY = "Y" + number;
        const auto boxX = "txtX" + number;
        const auto boxY = "txtY" + number;
        ui::AddCornerRow(frame, *layout, corner, {boxX, boxY, labelX, labelY}, CoordinateDigits, [&] {
            return ui::MakeButton(frame, "cmdwhere" + number, labelX + " " + labelY, "Takes the place where you stand");
        });
    }
    auto* set = ui::MakeButton(frame, "cmdSetBox", "Set Box", "Sets the box in which the NPC may wander");
    OnClick(*set, [this] {
        const auto x1 = TextOf("txtX1");
        const auto y1 = TextOf("txtY1");
        const auto x2 = TextOf("txtX2");
        const auto y2 = TextOf("txtY2");
        SendWanderBox({x1, y1, x2, y2}, Context().generation, Outlet());
    });
    auto* commands = new QHBoxLayout;
    commands->addWidget(set, 1);
    commands->addWidget(MakeModeButton(frame, BoxFrame), 1);
    layout->setRowStretch(3, 1);
    layout->addLayout(commands, 4, 0, 1, 5);
    return frame;
}

QGroupBox* frmNPCWander::MakeCircleFrame(QWidget* parent)
{
    auto* frame = ui::MakeFrame(parent, CircleFrame, "Wander in Circle");
    auto* x = ui::MakeTextBox(frame, "txtX", CoordinateDigits);
    auto* whereX = ui::MakeButton(frame, "cmdWhere3", "X", "Takes X of the place where you stand");
    auto* y = ui::MakeTextBox(frame, "txtY", CoordinateDigits);
    auto* whereY = ui::MakeButton(frame, "Command2", "Y", "Takes Y of the place where you stand");
    auto* radius = ui::MakeTextBox(frame, "txtRadius", CoordinateDigits);
    auto* set = ui::MakeButton(frame, "cmdCircleWander", "Set Circle", "Sets the circle in which the NPC may wander");
    OnClick(*set, [this] {
        const auto centreX = TextOf("txtX");
        const auto centreY = TextOf("txtY");
        const auto radiusText = TextOf("txtRadius");
        SendWanderCircle({centreX, centreY, radiusText}, Context().generation, Outlet());
    });

    auto* layout = new QGridLayout(frame);
    layout->addWidget(ui::MakeLabelFor(x, "", "X"), 0, 0);
    layout->addWidget(x, 0, 1);
    layout->addWidget(whereX, 0, 2);
    layout->addWidget(ui::MakeLabelFor(y, "", "Y"), 1, 0);
    layout->addWidget(y, 1, 1);
    layout->addWidget(whereY, 1, 2);
    layout->addWidget(ui::MakeLabelFor(radius, "Label3", "Radius"), 2, 0);
    layout->addWidget(radius, 2, 1);
    auto* commands = new QHBoxLayout;
    commands->addWidget(set, 1);
    commands->addWidget(MakeModeButton(frame, CircleFrame), 1);
    layout->setRowStretch(3, 1);
    layout->addLayout(commands, 4, 0, 1, 3);
    return frame;
}

std::string frmNPCWander::TextOf(std::string_view box) const
{
    return ui::Utf8(Box(box).text());
}

void frmNPCWander::Load()
{
    ApplyStayOnTopRule();
}

} // namespace qf::console
