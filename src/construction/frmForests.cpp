#include "construction/frmForests.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/number_rules.h"
#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int ItemIdDigits = 8;
constexpr int CountDigits = 6;

constexpr ConstructionTraits traits{.name = "frmForests",
                                    .caption = "Forests",
                                    .spacedTitle = "F O R E S T S",
                                    .heightBox = "txtHeight",
                                    .sharesArea = false};

} // namespace

frmForests::frmForests(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optAddFrom(*this, "optAddFrom"),
      optTreeForm(*this, "optTreeForm"),
      optNumber(*this, "optNumber"),
      optDirection(*this, "optDirection")
{
    MakeTabs();
    auto* source = MakeSourceFrame();
    auto* form = MakeOptionFrame("fraTreeForm", "Add-Method:", optTreeForm, {"Single", "Box", "Line"});
    fraDirection = MakeOptionFrame("fraDirection", "Direction", optDirection, {"N/S", "E/W"});
    fraNumber = MakeAmountFrame();

    auto* choices = new QGridLayout;
    choices->addWidget(source, 0, 0, 1, 2);
    choices->addWidget(form, 1, 0);
    choices->addWidget(fraNumber, 1, 1, 2, 1);
    choices->addWidget(fraDirection, 2, 0);
    choices->setRowStretch(3, 1);
    auto* body = MakeBody({.kinds = tabForest,
                           .choices = choices,
                           .preview = MakePictureFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = MakeBaseHeightFrame()});

    const auto add = [this] {
        AddForest(State(), Generation(), Context().environment.uniform, Outlet(),
                  [this](std::int32_t count) { Box("txtNumber").setText(ui::Text(core::ToText(count))); });
    };
    const CommandButton buttons[] = {
        {"cmdAdd", "Add", add, "Plants what is chosen"},
        WhereButton("Where?"),
        WipeButton("Wipe Menu"),
    };
    Compose(body, MakeBottomRow(buttons));

    optAddFrom.onSelect = [this](int chosen) { Guard([this, chosen] { SourceChosen(chosen); }); };
    optTreeForm.onSelect = [this](int chosen) { Guard([this, chosen] { FormChosen(chosen); }); };
}

void frmForests::MakeTabs()
{
    tabForest = new QTabWidget(this);
    tabForest->setObjectName(QStringLiteral("tabForest"));
    for (int tab = 0; tab < ForestTabs; ++tab) {
        tabForest->addTab(MakePage(tab), QString::number(tab + 1));
    }
}

QWidget* frmForests::MakePage(int tab)
{
    const auto number = std::to_string(tab + 1);
    auto&      options = optForest[static_cast<std::size_t>(tab)];
    options = std::make_unique<ui::OptionArray>(*this, "optForest" + number);
    options->onSelect = [this, tab](int item) { Guard([this, tab, item] { ItemChosen(tab, item); }); };

    auto*      page = new QWidget(tabForest);
    auto*      layout = new QGridLayout(page);
    const auto addPieceButton = [&](int line, int column, const std::string& array, const ForestRow& row,
                                    const char* what, std::string TreeIds::*tile) {
        auto* button = ui::MakeAddButton(page, ui::MemberName(array, row.index), row.caption);
        button->setToolTip(QLatin1String(what) + ui::Text(row.caption));
        button->setAccessibleName(button->toolTip());
        OnClick(*button, [this, item = row.index, tile] { AddPiece(item, tile); });
        layout->addWidget(button, line, column);
        return button;
    };
    layout->setVerticalSpacing(2);
    int line = 0;
    for (const auto& row : ForestRows()) {
        if (row.tab != tab) {
            continue;
        }
        layout->addWidget(&options->Add(row.index, row.caption, page), line, 0);
        const bool isTree = !row.canopy.empty();
        addPieceButton(line, 1, "cmdTree" + number, row,
                       isTree ? "Add one trunk: " : "Add one piece: ", &TreeIds::trunk);
        if (isTree) {
            // The leaves have a mark of their own beside the trunk's.
            addPieceButton(line, 2, "cmdLeaf" + number, row, "Add the leaves: ", &TreeIds::canopy)
                ->setText(QStringLiteral("\u2663"));
        }
        ++line;
    }
    layout->setColumnStretch(3, 1);
    layout->setRowStretch(line, 1);
    return page;
}

QGroupBox* frmForests::MakeSourceFrame()
{
    auto* frame = MakeOptionFrame("fraAddFrom", "Add From:", optAddFrom, {"List", "Item ID"});
    txtItemID = ui::MakeTextBox(frame, "txtItemID", ItemIdDigits);
    Label1 = ui::MakeLabelFor(txtItemID, "Label1", "ID");
    txtItemID->setEnabled(false);
    Label1->setEnabled(false);
    auto* id = new QHBoxLayout;
    id->addWidget(Label1);
    id->addWidget(txtItemID, 1);
    static_cast<QVBoxLayout*>(frame->layout())->insertLayout(static_cast<int>(optAddFrom.Members().size()), id);
    return frame;
}

QGroupBox* frmForests::MakeAmountFrame()
{
    auto* frame =
        MakeOptionFrame("fraNumber", "Amount to add:", optNumber, {"Few", "Sparse", "Dense", "Heavy", "Solid"});
    auto* count = ui::MakeTextBox(frame, "txtNumber", CountDigits);
    count->setReadOnly(true);
    auto* added = new QHBoxLayout;
    added->addWidget(ui::MakeLabelFor(count, "lblNumber", "Added:"));
    added->addWidget(count, 1);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(added);
    return frame;
}

QGroupBox* frmForests::MakePictureFrame()
{
    auto* frame = ui::MakeFrame(this, "fraPreview", "Tile");
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(MakePicture(frame), 0, Qt::AlignCenter);
    layout->addStretch(1);
    return frame;
}

ForestsState frmForests::State() const
{
    const int tab = tabForest->currentIndex();
    return {.source = optAddFrom.Selected(),
            .tab = tab,
            .item = optForest[static_cast<std::size_t>(tab)]->Selected(),
            .form = optTreeForm.Selected(),
            .density = optNumber.Selected(),
            .direction = optDirection.Selected(),
            .itemId = ItemId(),
            .area = Area(),
            .tableForm = TableForm()};
}

void frmForests::ItemChosen(int tab, int item)
{
    const auto tree = ForestTree(tab, item, TableForm());
    DrawTile(tree.trunk);
    DrawTile(tree.canopy);
}

void frmForests::SourceChosen(int source)
{
    txtItemID->setEnabled(source == FromItemId);
    Label1->setEnabled(source == FromItemId);
}

void frmForests::FormChosen(int form)
{
    fraNumber->setEnabled(form != ForestSingle);
    fraDirection->setEnabled(form == ForestLine);
    // A line leaves the boxes as they are.
    for (const auto* box : {"txtX2", "txtY2"}) {
        if (form == ForestSingle) {
            Box(box).clear();
            CloseBox(Box(box));
        } else if (form == ForestBox) {
            OpenBox(Box(box));
        }
    }
}

void frmForests::AddPiece(int item, std::string TreeIds::*tile)
{
    AddForestPiece(ForestTree(tabForest->currentIndex(), item, TableForm()).*tile, Outlet());
}

} // namespace qf::construction
