#include "world/frmHouseExtraction.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>
#include <array>

#include "ui/box_fields.h"
#include "ui/parts.h"

namespace qf::world {

namespace {

constexpr int CoordinateDigits = 6;
constexpr int NumberDigits = 4;
constexpr int RowsInSight = 12;

// clang-format off
constexpr ui::BoxField<ExtractionState> boxFields[] = {
    {"txtX",           &ExtractionState::txtX},
    {"txtY",           &ExtractionState::txtY},
    {"txtZ",           &ExtractionState::txtZ},
    {"txtX2",          &ExtractionState::txtX2},
    {"txtY2",          &ExtractionState::txtY2},
    {"txtZ2",          &ExtractionState::txtZ2},
    {"txtWorld",       &ExtractionState::txtWorld},
    {"txtInstance",    &ExtractionState::txtInstance},
    {"txtName",        &ExtractionState::txtName},
    {"txtDescription", &ExtractionState::txtDescription},
};

constexpr std::array positionRows{
    //              control       X        Y        Z        tested
    ui::PositionRow{"cmdGetXYZ",  "txtX",  "txtY",  "txtZ",  "txtX"},
    ui::PositionRow{"cmdGetXYZ2", "txtX2", "txtY2", "txtZ2", "txtX2"},
};
// clang-format on

} // namespace

frmHouseExtraction::frmHouseExtraction(ui::AppContext& context)
    : Panel(context, "frmHouseExtraction"), items_(new ItemTableModel(this))
{
    auto* corners = new QVBoxLayout;
    corners->addWidget(MakeCornerFrame("First corner", "", "1"));
    corners->addWidget(MakeCornerFrame("Second corner", "2", "2"));
    for (const auto& row : positionRows) {
        AddPositionControl(row);
    }
    auto* upper = new QHBoxLayout;
    upper->addLayout(corners, 1);
    upper->addWidget(MakeMapFrame());

    auto* all = new QVBoxLayout(this);
    all->addLayout(upper);
    all->addLayout(MakeTexts());
    all->addWidget(MakeExtractButton());
    all->addWidget(MakeGrid(), 1);
    all->addLayout(MakeBottomRow());
}

QGroupBox* frmHouseExtraction::MakeCornerFrame(std::string_view caption, std::string_view suffix,
                                               std::string_view digit)
{
    auto* frame = ui::MakeFrame(this, "", caption);
    auto* layout = new QHBoxLayout(frame);
    for (const std::string axis : {"X", "Y", "Z"}) {
        auto* box = ui::MakeTextBox(frame, "txt" + axis + std::string(suffix), CoordinateDigits);
        layout->addWidget(ui::MakeLabelFor(box, "", axis + std::string(digit)));
        layout->addWidget(box);
    }
    layout->addWidget(
        ui::MakeButton(frame, "cmdGetXYZ" + std::string(suffix), "GetXYZ", "Takes the place where you stand"));
    return frame;
}

QGroupBox* frmHouseExtraction::MakeMapFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Map");
    auto* layout = new QGridLayout(frame);
    auto* world = ui::MakeTextBox(frame, "txtWorld", NumberDigits);
    auto* instance = ui::MakeTextBox(frame, "txtInstance", NumberDigits);
    layout->addWidget(ui::MakeLabelFor(world, "", "Worldnumber:"), 0, 0);
    layout->addWidget(world, 0, 1);
    layout->addWidget(ui::MakeLabelFor(instance, "", "Instance ID:"), 1, 0);
    layout->addWidget(instance, 1, 1);
    return frame;
}

QLayout* frmHouseExtraction::MakeTexts()
{
    auto* layout = new QGridLayout;
    int   row = 0;
    for (const auto& [name, caption] :
         {std::pair("txtName", "Enter Name of House:"), std::pair("txtDescription", "Enter Description")}) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QLatin1String(name));
        layout->addWidget(ui::MakeLabelFor(box, "", caption), row, 0);
        layout->addWidget(box, row++, 1);
    }
    return layout;
}

QPushButton* frmHouseExtraction::MakeExtractButton()
{
    auto* extract = ui::MakeButton(this, "cmdExtractItems", "Extract Items from Coordinates",
                                   "Lists the items of the loaded world");
    OnClick(*extract, [this] { Extract(); });
    return extract;
}

QWidget* frmHouseExtraction::MakeGrid()
{
    auto* place = new QFrame(this);
    place->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    flxItems = new QTableView(place);
    flxItems->setObjectName(QStringLiteral("flxItems"));
    flxItems->setAccessibleName(QStringLiteral("Items of the world"));
    flxItems->setFrameShape(QFrame::NoFrame);
    flxItems->setSelectionBehavior(QAbstractItemView::SelectRows);
    flxItems->setSelectionMode(QAbstractItemView::SingleSelection);
    flxItems->setTabKeyNavigation(false);
    flxItems->setWordWrap(false);

    // Rows of one height are never measured: a world has a million of them.
    auto* rows = flxItems->verticalHeader();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setMinimumSectionSize(1);
    rows->setDefaultSectionSize(flxItems->fontMetrics().height() + 4);
    rows->hide();
    auto* headings = flxItems->horizontalHeader();
    headings->setHighlightSections(false);
    headings->setSectionResizeMode(QHeaderView::Stretch);
    flxItems->setModel(items_);

    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(flxItems);
    place->setMinimumHeight(headings->sizeHint().height() + rows->defaultSectionSize() * RowsInSight);
    return place;
}

QLayout* frmHouseExtraction::MakeBottomRow()
{
    cmdBuildTemplate = ui::MakeButton(this, "cmdBuildTemplate", "Build House Template",
                                      "Writes the items between the corners into a template");
    cmdBuildTemplate->setEnabled(false);
    auto* help = ui::MakeButton(this, "Command1", "HELP!");
    auto* leave = MakeExit(this, "cmdReturn");
    OnClick(*cmdBuildTemplate, [this] {
        WriteOptimizedTemplate(State(), Context().environment.programFolder, *Context().database, Outlet());
    });
    OnClick(*help, [this] { ShowExtractionHelp(Outlet()); });

    auto* row = new QHBoxLayout;
    row->addWidget(cmdBuildTemplate);
    row->addStretch(1);
    row->addWidget(help);
    row->addWidget(leave);
    return row;
}

void frmHouseExtraction::Load()
{
    setWindowTitle(ui::Text(Context().productTitle + " - House Extraction "));
    flxItems->hide();
    ApplyStayOnTopRule();
}

ExtractionState frmHouseExtraction::State() const
{
    ExtractionState state;
    ui::ReadBoxes(boxFields, *this, state);
    return state;
}

void frmHouseExtraction::Extract()
{
    auto& database = *Context().database;
    if (ExtractItems(State(), database, Outlet(), [&] { items_->Fill(database); })) {
        flxItems->show();
        cmdBuildTemplate->setEnabled(true);
    }
}

} // namespace qf::world
