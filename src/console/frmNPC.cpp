#include "console/frmNPC.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "console/npc_script.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

/// Where the choice of an NPC stands among the steps.
constexpr int ChoiceRow = 4;

constexpr int BoxDigits = 14;
constexpr int OffsetDigits = 5;
constexpr int ListColumns = 24;

constexpr std::array<std::string_view, 3> spawnTypeCaptions{"Normal NPC Spawner", "Area NPC Spawner", "Escortable NPC"};

QComboBox* MakeList(QWidget* parent, std::string_view name, std::string_view accessibleName)
{
    auto* list = new QComboBox(parent);
    list->setObjectName(ui::Text(name));
    list->setAccessibleName(ui::Text(accessibleName));
    list->setMinimumContentsLength(ListColumns);
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMaxVisibleItems(16);
    return list;
}

} // namespace

frmNPC::frmNPC(ui::AppContext& context) : Panel(context, "frmNPC"), optSpawnType(*this, "optSpawnType")
{
    setWindowTitle(QStringLiteral("Spawn NPCs"));

    auto* body = new QHBoxLayout;
    body->addLayout(MakeSteps(), 1);
    auto* right = new QVBoxLayout;
    right->addWidget(MakeSpawnerType());
    right->addWidget(MakeSpawnArea());
    right->addStretch(1);
    body->addLayout(right);

    auto* leave = MakeExit(this, "cmdReturn");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);
    right->addLayout(bottom);

    auto* all = new QVBoxLayout(this);
    all->addLayout(body, 1);
    all->addWidget(MakeStatusBar());
}

QLayout* frmNPC::MakeSteps()
{
    auto* steps = new QGridLayout;
    int   row = 0;
    for (const auto& step : NpcSteps()) {
        if (row == ChoiceRow) {
            steps->addWidget(MakeNumber(NpcChoiceNumber), row, 0);
            steps->addLayout(MakeChoice(), row++, 1, 1, 2);
        }
        MakeStep(step, *steps, row++);
    }
    steps->setColumnStretch(2, 1);
    steps->setRowStretch(row, 1);
    return steps;
}

QLabel* frmNPC::MakeNumber(std::string_view number)
{
    auto* label = ui::MakeLabel(this, ui::Utf8(ui::MemberName("Label3", number.front() - '1')), number);
    auto  bold = label->font();
    bold.setBold(true);
    label->setFont(bold);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    return label;
}

void frmNPC::MakeStep(const NpcStep& step, QGridLayout& steps, int row)
{
    steps.addWidget(MakeNumber(step.number), row, 0);
    steps.addWidget(MakeStepButton(step, this), row, 1);
    if (!step.box.empty()) {
        auto* box = ui::MakeTextBox(this, step.box, BoxDigits);
        box->setMaximumWidth(QWIDGETSIZE_MAX);
        box->setAccessibleName(ui::Text(step.caption));
        steps.addWidget(box, row, 2);
    }
}

QPushButton* frmNPC::MakeStepButton(const NpcStep& step, QWidget* parent)
{
    auto* button = ui::MakeButton(parent, step.name, step.caption, step.toolTip);
    OnClick(*button, [this, &step] {
        const auto text = step.box.empty() ? std::string() : ui::Utf8(Box(step.box).text());
        SendNpcStep(step, text, Context().generation, Outlet());
    });
    return button;
}

QLayout* frmNPC::MakeChoice()
{
    auto* choice = new QVBoxLayout;
    choice->addWidget(MakeCatalogue());
    choice->addWidget(MakeScriptList());
    return choice;
}

QGroupBox* frmNPC::MakeCatalogue()
{
    frm090x = ui::MakeFrame(this, "frm090x", "Select NPC To Spawn");
    cmbNPCType = MakeList(frm090x, "cmbNPCType", "Category");
    cmbNPC = MakeList(frm090x, "cmbNPC", "NPC");
    OnChoose(*cmbNPCType, [this] { CategoryChosen(); });
    OnChoose(*cmbNPC, [this] { NpcChosen(); });

    auto* layout = new QVBoxLayout(frm090x);
    layout->addWidget(cmbNPCType);
    layout->addWidget(cmbNPC);
    layout->addWidget(MakeStepButton(SingleNpc(), frm090x));
    return frm090x;
}

QGroupBox* frmNPC::MakeScriptList()
{
    frm070x = ui::MakeFrame(this, "frm070x", "5. Select NPC To Spawn");
    auto* load = ui::MakeButton(frm070x, "cmdLoadNPC", "Load NPC-list", "Reads the list of NPCs of your server");
    OnClick(*load, [this] { LoadScriptList(); });

    cmbNPCLoad = MakeList(frm070x, "cmbNPCLoad", "NPC");
    cmbNPCLoad->setEditable(true);
    cmbNPCLoad->lineEdit()->setObjectName(QStringLiteral("cmbNPCLoadText"));
    cmbNPCLoad->lineEdit()->setReadOnly(true);
    cmbNPCLoad->setEditText(QStringLiteral("Choose NPC to Spawn"));
    ui::KeepPlaceWhenHidden(*cmbNPCLoad);
    cmbNPCLoad->hide();
    OnChoose(*cmbNPCLoad, [this] {
        const auto entry = ui::Utf8(cmbNPCLoad->currentText());
        Box("txtNPCNumber").setText(ui::Text(NumberOfNpcEntry(entry)));
    });

    auto* layout = new QVBoxLayout(frm070x);
    layout->addWidget(load);
    layout->addWidget(cmbNPCLoad);
    return frm070x;
}

QGroupBox* frmNPC::MakeSpawnerType()
{
    auto* frame = ui::MakeFrame(this, "Frame1", "Spawner Type");
    auto* layout = new QVBoxLayout(frame);
    int   index = 0;
    for (const auto caption : spawnTypeCaptions) {
        layout->addWidget(&optSpawnType.Add(index++, caption, frame));
    }
    optSpawnType.onSelect = [this](int selected) {
        Guard([&] { frmSpawnArea->setHidden(!ShowsSpawnArea(selected, !frmSpawnArea->isHidden())); });
    };
    auto* set =
        ui::MakeButton(frame, "cmdItemVisibilitySet", "Set Spawner Type", "Makes the spawner of the chosen type");
    OnClick(*set, [this] { SendSpawnType(optSpawnType.Selected(), Context().generation, Outlet()); });
    layout->addWidget(set);
    return frame;
}

QGroupBox* frmNPC::MakeSpawnArea()
{
    frmSpawnArea = ui::MakeFrame(this, "frmSpawnArea", "8 1/2 - Spawn Area:");
    auto* x = ui::MakeTextBox(frmSpawnArea, "txtAreaMore3", OffsetDigits);
    auto* y = ui::MakeTextBox(frmSpawnArea, "txtAreaMore4", OffsetDigits);
    auto* set = ui::MakeButton(frmSpawnArea, "cmdMore3More4", "X/Y Offset from Spawner",
                               "Sets how far from the spawner the NPCs appear");
    OnClick(*set,
            [this, x, y] { SendSpawnArea(ui::Utf8(x->text()), ui::Utf8(y->text()), Context().generation, Outlet()); });
    auto* layout = new QGridLayout(frmSpawnArea);
    layout->addWidget(ui::MakeLabelFor(x, "", "X Offset"), 0, 0);
    layout->addWidget(x, 0, 1);
    layout->addWidget(ui::MakeLabelFor(y, "", "Y Offset"), 1, 0);
    layout->addWidget(y, 1, 1);
    layout->addWidget(set, 2, 0, 1, 2);
    layout->setColumnStretch(1, 1);
    ui::KeepPlaceWhenHidden(*frmSpawnArea);
    frmSpawnArea->hide();
    return frmSpawnArea;
}

QStatusBar* frmNPC::MakeStatusBar()
{
    sbStatusBar = new QStatusBar(this);
    sbStatusBar->setObjectName(QStringLiteral("sbStatusBar"));
    sbStatusBar->setSizeGripEnabled(false);
    firstStatus_ = ui::MakeLabel(sbStatusBar, "sbStatusBar(1)", "");
    firstStatus_->setTextFormat(Qt::PlainText);
    firstStatus_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    // A long path is cut off and does not widen the panel.
    firstStatus_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    firstStatus_->setMinimumWidth(fontMetrics().averageCharWidth() * ListColumns);
    firstStatus_->setMinimumHeight(fontMetrics().height() + 2 * firstStatus_->frameWidth());
    sbStatusBar->addWidget(firstStatus_);
    return sbStatusBar;
}

void frmNPC::Load()
{
    const auto generation = Context().generation;
    if (generation.Is070()) {
        frm090x->hide();
        sbStatusBar->removeWidget(firstStatus_);
        sbStatusBar->addWidget(firstStatus_, 1);
        firstStatus_->show();
    } else if (generation.Is09()) {
        frm070x->hide();
        for (const auto& category : NpcCategories()) {
            cmbNPCType->addItem(ui::Text(category.name));
        }
        Choose(*cmbNPCType, 0);
    }
    ApplyStayOnTopRule();
}

void frmNPC::CategoryChosen()
{
    cmbNPC->clear();
    for (const auto name : NpcNames(cmbNPCType->currentIndex())) {
        cmbNPC->addItem(ui::Text(name));
    }
    if (cmbNPC->count() > 0) {
        Choose(*cmbNPC, 0);
    }
}

void frmNPC::NpcChosen()
{
    if (const auto section = NpcSection(cmbNPCType->currentIndex(), cmbNPC->currentIndex())) {
        Box("txtNPCNumber").setText(ui::Text(*section));
    }
}

void frmNPC::LoadScriptList()
{
    const NpcListLoad load{
        .serverPath = [this] { return Context().ConfiguredPath("txtPathZarn"); },
        .enterFolder = [this](std::string_view folder) { Context().environment.shell.EnterFolder(folder); },
        .showStatus =
            [this](std::string_view text) {
                firstStatus_->setText(ui::Text(text));
                firstStatus_->setToolTip(ui::Text(text));
                // The load does not yield, so what tells of it is drawn before.
                firstStatus_->repaint();
            },
        .addEntry = [this](std::string_view entry) { AddScriptEntry(ui::Text(entry)); },
        .showList = [this] { cmbNPCLoad->show(); },
    };
    LoadNpcList(load, Context().generation, Context().fileNumbers, Outlet());
}

void frmNPC::AddScriptEntry(const QString& entry)
{
    const auto shown = cmbNPCLoad->currentText();
    const int  row = cmbNPCLoad->currentIndex();
    cmbNPCLoad->addItem(entry);
    if (row < 0) {
        // The list takes its first row for chosen, which is the user's to do.
        cmbNPCLoad->setCurrentIndex(-1);
        cmbNPCLoad->setEditText(shown);
    }
}

} // namespace qf::console
