#include "world/frmHouseTemplates.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QWindow>
#include <array>

#include "client/delivery.h"
#include "ui/parts.h"
#include "world/template_build.h"

namespace qf::world {

namespace {

constexpr int CoordinateDigits = 6;
constexpr int ListColumns = 30;

constexpr std::string_view HelpText =
    "Look in the file Quernfield Readme.txt that comes with Quernfield for closer information on how to make "
    "templates using the creator, and how to make templates manually(which are much better than the auto-created "
    "ones).";

struct PlaceBox {
    const char* name;
    const char* caption;
};

constexpr std::array placeBoxes{PlaceBox{"txtX", "X"}, PlaceBox{"txtY", "Y"}, PlaceBox{"txtCurrentHeight", "Z"}};

constexpr ui::PositionRow positionRow{"cmdwhere1", "txtX", "txtY", "txtCurrentHeight", "txtX"};

} // namespace

frmHouseTemplates::frmHouseTemplates(ui::AppContext& context) : Panel(context, "frmHouseTemplates")
{
    lblHouseTemplates = ui::MakeTitle(this, "lblHouseTemplates", "");

    auto* left = new QVBoxLayout;
    left->addWidget(MakeTemplateFrame());
    left->addWidget(MakePlaceFrame());
    auto* body = new QHBoxLayout;
    body->addLayout(left, 1);
    body->addWidget(MakeClientFrame());

    auto* all = new QVBoxLayout(this);
    all->addWidget(lblHouseTemplates);
    all->addLayout(body, 1);
    all->addLayout(MakeBottomRow());
}

QGroupBox* frmHouseTemplates::MakeTemplateFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Template");
    cmbHouseTemplate = new QComboBox(frame);
    cmbHouseTemplate->setObjectName(QStringLiteral("cmbHouseTemplate"));
    cmbHouseTemplate->setMinimumWidth(fontMetrics().averageCharWidth() * ListColumns);
    cmbHouseTemplate->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    cmbHouseTemplate->setPlaceholderText(QStringLiteral("Choose a house"));

    auto* info = ui::MakeButton(frame, "cmdTemplateInfo", "Template INFO", "Shows the description of the house");
    auto* creation =
        ui::MakeButton(frame, "cmdHouseExtraction", "Template Creation", "Makes a template out of the loaded world");
    creation->setEnabled(Context().panels.Has("frmHouseExtraction"));
    OnClick(*info, [this] { ShowInfo(); });
    OnClick(*creation, [this] { OpenExtraction(); });

    auto* buttons = new QHBoxLayout;
    buttons->addWidget(info);
    buttons->addWidget(creation);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(cmbHouseTemplate);
    layout->addLayout(buttons);
    return frame;
}

QGroupBox* frmHouseTemplates::MakePlaceFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Build point");
    auto* layout = new QGridLayout(frame);
    int   column = 0;
    for (const auto& place : placeBoxes) {
        auto* box = ui::MakeTextBox(frame, place.name, CoordinateDigits);
        OnFocus(*box, [box] { ui::SelectWhole(*box); });
        layout->addWidget(ui::MakeLabelFor(box, "", place.caption), 1, column++);
        layout->addWidget(box, 1, column);
        layout->setColumnStretch(column++, 1);
    }
    auto* where = ui::MakeButton(frame, "cmdwhere1", "X1    Y1     Z1", "Takes the place where you stand");
    layout->addWidget(ui::MakeLabel(frame, "", "Enter coords to build house at:"), 0, 0, 1, column);
    layout->addWidget(where, 2, 0, 1, column);
    layout->setRowStretch(3, 1);
    AddPositionControl(positionRow);
    return frame;
}

QGroupBox* frmHouseTemplates::MakeClientFrame()
{
    auto* frame = ui::MakeFrame(this, "", "In the game");
    auto* layout = new QVBoxLayout(frame);
    for (const auto& row : TemplateCommands()) {
        auto* button = ui::MakeButton(frame, row.button, row.caption, row.hint);
        OnClick(*button, [this, &row] { Outlet().Send(row.command); });
        layout->addWidget(button);
    }
    auto* wipe = ui::MakeButton(frame, "cmdWipeMenu", "Wipe Menu", "Opens the wipe panel");
    OnClick(*wipe, [this] { OpenWipe(); });
    layout->addWidget(wipe);
    layout->addStretch(1);
    return frame;
}

QLayout* frmHouseTemplates::MakeBottomRow()
{
    auto* add = ui::MakeButton(this, "cmdAddHouse", "Add House", "Builds the chosen house at the build point");
    auto* help = ui::MakeButton(this, "Command1", "HELP!");
    auto* leave = MakeExit(this, "cmdReturn", "Returns to the main panel");
    OnClick(*add, [this] { AddHouse(); });
    OnClick(*help, [this] { Outlet().Show(core::PlainBox(std::string(HelpText))); });

    lblHouseTemplate = ui::MakeLabel(this, "lblHouseTemplate", "Sending Template to Client...");
    lblHouseTemplate->setAlignment(Qt::AlignCenter);
    ui::KeepPlaceWhenHidden(*lblHouseTemplate);
    lblHouseTemplate->hide();

    auto* row = new QHBoxLayout;
    row->addWidget(add);
    row->addWidget(lblHouseTemplate, 1);
    row->addWidget(help);
    row->addWidget(leave);
    return row;
}

void frmHouseTemplates::Load()
{
    setWindowTitle(ui::Text(Context().productTitle + " - House Templates"));
    lblHouseTemplates->setText(QStringLiteral("House Templates"));
    FillList();
    ApplyStayOnTopRule();
}

void frmHouseTemplates::Unload()
{
    ReturnToMainPanel();
}

void frmHouseTemplates::FillList()
{
    files_ = ListTemplates(Folder());
    for (const auto& file : files_) {
        cmbHouseTemplate->addItem(ui::Text(file.text));
    }
    cmbHouseTemplate->setCurrentIndex(-1);
}

std::string frmHouseTemplates::Folder()
{
    return Context().environment.programFolder + "\\Templates\\";
}

const TemplateEntry* frmHouseTemplates::Chosen()
{
    const int row = cmbHouseTemplate->currentIndex();
    if (row < 0) {
        Outlet().Show(core::InformationBox("You have yet to select a house!"));
        return nullptr;
    }
    return &files_[static_cast<std::size_t>(row)];
}

void frmHouseTemplates::AddHouse()
{
    const auto* chosen = Chosen();
    if (chosen == nullptr) {
        return;
    }
    lblHouseTemplate->show();
    repaint();
    lblHouseTemplate->repaint();
    BuildTemplate(
        Folder() + chosen->fileName,
        {ui::Utf8(Box("txtX").text()), ui::Utf8(Box("txtY").text()), ui::Utf8(Box("txtCurrentHeight").text())},
        Context().generation, [this] { return client::FindClientWindow(Context().environment.platform) != 0; },
        Outlet());
    lblHouseTemplate->hide();
}

void frmHouseTemplates::ShowInfo()
{
    if (const auto* chosen = Chosen()) {
        ShowTemplateInfo(Folder() + chosen->fileName, chosen->text, Outlet());
    }
}

void frmHouseTemplates::OpenExtraction()
{
    if (Context().worldLoaded) {
        Context().panels.ShowModal("frmHouseExtraction");
    } else {
        Outlet().Show(core::UntitledInformationBox("You haven't yet loaded the world, please do!"));
    }
}

void frmHouseTemplates::OpenWipe()
{
    auto& wipe = Context().panels.Touch("frmWipe");
    wipe.winId();
    winId();
    wipe.windowHandle()->setTransientParent(windowHandle());
    Context().panels.Show("frmWipe");
}

} // namespace qf::world
