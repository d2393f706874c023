#include "console/frmTime.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/box_fields.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int NumberDigits = 6;

// clang-format off
constexpr ui::BoxField<GameTimeState> boxFields[] = {
    {"Hours",     &GameTimeState::Hours},
    {"Minutes",   &GameTimeState::Minutes},
    {"ampm",      &GameTimeState::ampm},
    {"added",     &GameTimeState::added},
    {"uoseconds", &GameTimeState::uoseconds},
};
// clang-format on

} // namespace

frmTime::frmTime(ui::AppContext& context) : Panel(context, "frmTime"), halves_(new QButtonGroup(this))
{
    setWindowTitle(QStringLiteral("Set Time"));
    auto* time = MakeTimeFrame();
    auto* speed = MakeSpeedFrame();

    auto* show = ui::MakeButton(this, "Command2", "Show Time", "Asks the server for the time of the game world");
    auto* leave = MakeExit(this, "Command4");
    OnClick(*show, [this] { ShowGameTime(Outlet()); });
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(show);
    bottom->addStretch(1);
    bottom->addWidget(leave);

    auto* all = new QVBoxLayout(this);
    all->addWidget(time);
    all->addWidget(speed);
    all->addStretch(1);
    all->addLayout(bottom);
    MakeHiddenBoxes();
}

QGroupBox* frmTime::MakeTimeFrame()
{
    auto* frame = ui::MakeFrame(this, "Frame2", "Set Time");
    auto* hours = ui::MakeTextBox(frame, "Hours", NumberDigits);
    auto* minutes = ui::MakeTextBox(frame, "Minutes", NumberDigits);
    auto* day = MakeDayFrame(frame);
    auto* set = ui::MakeButton(frame, "Command1", "SET TIME", "Sets the clock of the game world");
    OnClick(*set, [this] {
        auto state = State();
        SetGameTime(state, Outlet());
        Show(state);
    });

    auto* layout = new QGridLayout(frame);
    layout->addWidget(ui::MakeLabelFor(hours, "", "Hours (0-12)"), 0, 0);
    layout->addWidget(hours, 0, 1);
    layout->addWidget(ui::MakeLabelFor(minutes, "", "Mins(0-59)"), 1, 0);
    layout->addWidget(minutes, 1, 1);
    layout->addWidget(day, 0, 2, 3, 1);
    layout->addWidget(set, 2, 0, 1, 2);
    layout->setColumnStretch(2, 1);
    return frame;
}

QGroupBox* frmTime::MakeDayFrame(QWidget* parent)
{
    auto* frame = ui::MakeFrame(parent, "Frame1", "Time of Day");
    auto* layout = new QVBoxLayout(frame);
    for (const auto& half : dayHalves) {
        auto* option = new QRadioButton(ui::Text(half.caption), frame);
        option->setObjectName(ui::Text(half.name));
        halves_->addButton(option);
        layout->addWidget(option);
        connect(option, &QRadioButton::toggled, this, [this, &half](bool chosen) {
            if (chosen) {
                Box("ampm").setText(ui::Text(half.value));
            }
        });
    }
    layout->addStretch(1);
    return frame;
}

QGroupBox* frmTime::MakeSpeedFrame()
{
    auto* frame = ui::MakeFrame(this, "Frame3", "Seconds pr Minute");
    auto* seconds = ui::MakeTextBox(frame, "uoseconds", NumberDigits);
    auto* set = ui::MakeButton(frame, "Command3", "SET ", "Sets how long a minute of the game world takes");
    OnClick(*set, [this] { SetSecondsPerMinute(State(), Outlet()); });

    auto* layout = new QHBoxLayout(frame);
    layout->addWidget(ui::MakeLabelFor(seconds, "", "RealLife seconds per UO Minute"));
    layout->addWidget(seconds);
    layout->addWidget(set);
    layout->addStretch(1);
    return frame;
}

void frmTime::MakeHiddenBoxes()
{
    for (const std::string_view name : {"ampm", "added"}) {
        ui::MakeTextBox(this, name, NumberDigits)->hide();
    }
}

void frmTime::Load()
{
    ApplyStayOnTopRule();
}

GameTimeState frmTime::State() const
{
    GameTimeState state;
    ui::ReadBoxes(boxFields, *this, state);
    return state;
}

void frmTime::Show(const GameTimeState& state)
{
    ui::ShowBoxes(boxFields, *this, state);
}

} // namespace qf::console
