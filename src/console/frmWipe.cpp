#include "console/frmWipe.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>
#include <array>

#include "ui/box_fields.h"
#include "ui/corner_row.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int CoordinateDigits = 6;
constexpr int ConfirmationColumns = 34;

// clang-format off
constexpr ui::BoxField<WipeState> boxFields[] = {
    {"wmethod", &WipeState::wmethod},
    {"x1",      &WipeState::x1},
    {"y1",      &WipeState::y1},
    {"x2",      &WipeState::x2},
    {"y2",      &WipeState::y2},
    {"x1true",  &WipeState::x1true},
    {"y1true",  &WipeState::y1true},
};

constexpr std::array positionRows{
    //              control      X     Y     Z   tested
    ui::PositionRow{"cmdwhere1", "x1", "y1", "", "y1"},
    ui::PositionRow{"cmdwhere2", "x2", "y2", "", "y1"},
};
// clang-format on

constexpr std::array<std::string_view, 4> cornerBoxes{"x1", "y1", "x2", "y2"};

void SetBold(QWidget& widget, bool bold)
{
    auto font = widget.font();
    font.setBold(bold);
    widget.setFont(font);
}

QLabel* MakeHeading(QWidget* parent, std::string_view name, std::string_view caption)
{
    auto* heading = ui::MakeLabel(parent, name, caption);
    SetBold(*heading, true);
    return heading;
}

} // namespace

frmWipe::frmWipe(ui::AppContext& context) : Panel(context, "frmWipe"), methods_(new QButtonGroup(this))
{
    setWindowTitle(QStringLiteral("Wipe"));

    auto* right = new QVBoxLayout;
    auto* body = new QHBoxLayout;
    body->addWidget(MakeMethodFrame());
    right->addWidget(MakeCoordinateFrame());
    right->addWidget(MakeConfirmation());
    right->addStretch(1);
    body->addLayout(right, 1);

    auto* all = new QVBoxLayout(this);
    all->addWidget(ui::MakeTitle(this, "Label1", "W I P E"));
    all->addLayout(body, 1);
    all->addLayout(MakeBottomRow());
    MakeHiddenBoxes();
}

QGroupBox* frmWipe::MakeMethodFrame()
{
    auto* frame = ui::MakeFrame(this, "Frame1", "Wipe Method");
    auto* layout = new QGridLayout(frame);
    int   row = 0;
    for (const auto& option : WipeOptions()) {
        if (option.method == WipeInsideByClicks) {
            layout->addWidget(MakeHeading(frame, "Label3", "Wipe INSIDE Box"), row++, 0, 1, 2);
        } else if (option.method == WipeOutsideByClicks) {
            layout->setRowMinimumHeight(row++, fontMetrics().height() / 2);
            layout->addWidget(MakeHeading(frame, "Label6", "Wipe OUTSIDE Box"), row++, 0, 1, 2);
        } else if (option.method == WipeEverything) {
            layout->setRowMinimumHeight(row++, fontMetrics().height() / 2);
        }
        auto* button = new QRadioButton(ui::Text(option.caption), frame);
        button->setObjectName(ui::Text(option.name));
        methods_->addButton(button);
        if (option.method == WipeEverything) {
            SetBold(*button, true);
            layout->addWidget(button, row++, 0, 1, 2);
        } else {
            layout->addWidget(button, row++, 1);
        }
        connect(button, &QRadioButton::toggled, this, [this, &option](bool chosen) {
            if (chosen) {
                Guard([&] { Step([&](WipeState& state) { ChooseWipeMethod(state, option, Outlet()); }); });
            }
        });
    }
    layout->setColumnMinimumWidth(0, fontMetrics().height() / 2);
    layout->setColumnStretch(1, 1);
    layout->setRowStretch(row, 1);
    return frame;
}

QGroupBox* frmWipe::MakeCoordinateFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Box");
    auto* layout = new QGridLayout(frame);
    layout->addWidget(ui::MakeLabel(frame, "Label11", "Enter coordinates:"), 0, 0, 1, 5);
    for (const int corner : {1, 2}) {
        const auto number = std::to_string(corner);
        const auto labelX = "X" + number;
        const auto labelY = "Y" + number;
        const auto boxX = "x" + number;
        const auto boxY = "y" + number;
        ui::AddCornerRow(frame, *layout, corner, {boxX, boxY, labelX, labelY}, CoordinateDigits, [&] {
            return ui::MakeButton(frame, "cmdwhere" + number, labelX + " " + labelY, "Takes the place where you stand");
        });
    }
    for (const auto& row : positionRows) {
        AddPositionControl(row);
    }
    return frame;
}

QGroupBox* frmWipe::MakeConfirmation()
{
    Frame4 = ui::MakeFrame(this, "Frame4", "WARNING!!!!!!!");
    SetBold(*Frame4, true);

    auto*     icon = ui::MakeLabel(Frame4, "", "");
    const int side = style()->pixelMetric(QStyle::PM_LargeIconSize, nullptr, this);
    icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(side));

    auto* question = ui::MakeLabel(
        Frame4, "Label2", "Doing this will wipe out EVERY item on your world. Are you sure you want to do that? ");
    SetBold(*question, false);
    question->setWordWrap(true);
    question->setMinimumWidth(question->fontMetrics().averageCharWidth() * ConfirmationColumns);
    question->setMinimumHeight(question->heightForWidth(question->minimumWidth()));

    auto* yes = ui::MakeButton(Frame4, "Command3", "YES", "Removes every item of the world");
    auto* no = ui::MakeButton(Frame4, "Command5", "NO!!", "Leaves the world as it is");
    OnClick(*yes, [this] { SendWipeAll(Outlet()); });
    OnClick(*no, [this] { Frame4->hide(); });

    auto* text = new QHBoxLayout;
    text->addWidget(icon, 0, Qt::AlignTop);
    text->addWidget(question, 1);
    auto* answers = new QHBoxLayout;
    answers->addStretch(1);
    answers->addWidget(yes);
    answers->addWidget(no);
    auto* layout = new QVBoxLayout(Frame4);
    layout->addLayout(text, 1);
    layout->addLayout(answers);

    ui::KeepPlaceWhenHidden(*Frame4);
    Frame4->hide();
    return Frame4;
}

QLayout* frmWipe::MakeBottomRow()
{
    auto* wipe = ui::MakeButton(this, "Command1", "WIPE", "Wipes by the chosen method");
    auto* about = ui::MakeButton(this, "Command4", "About");
    auto* leave = MakeExit(this, "Exitbutton");
    OnClick(*wipe, [this] { Step([this](WipeState& state) { Wipe(state, Outlet()); }); });
    OnClick(*about, [this] { Context().panels.ShowModal("frmAbout"); });

    auto* row = new QHBoxLayout;
    row->addWidget(wipe);
    row->addStretch(1);
    row->addWidget(about);
    row->addWidget(leave);
    return row;
}

void frmWipe::MakeHiddenBoxes()
{
    for (const std::string_view name : {"wmethod", "x1true", "y1true"}) {
        ui::MakeTextBox(this, name, CoordinateDigits)->hide();
    }
}

void frmWipe::Load()
{
    ApplyStayOnTopRule();
}

WipeState frmWipe::State() const
{
    WipeState state;
    ui::ReadBoxes(boxFields, *this, state);
    state.takesCoordinates = Box(cornerBoxes.front()).isEnabled();
    state.confirming = !Frame4->isHidden();
    return state;
}

void frmWipe::Show(const WipeState& state)
{
    ui::ShowBoxes(boxFields, *this, state);
    for (const auto box : cornerBoxes) {
        Box(box).setEnabled(state.takesCoordinates);
    }
    Frame4->setHidden(!state.confirming);
}

void frmWipe::Step(const std::function<void(WipeState&)>& step)
{
    auto state = State();
    step(state);
    Show(state);
}

} // namespace qf::console
