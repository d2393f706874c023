#include "construction/construction_panel.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "core/number_rules.h"
#include "core/tile_id.h"
#include "ui/corner_row.h"
#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int CoordinateDigits = 6;

/// A control that takes the player's place or height: a button, or a label that does its work.
struct FetchRow {
    std::string_view button;
    std::string_view label;
    std::string_view caption;
    std::string_view toolTip;
};

// clang-format off
constexpr std::array corners{
    ui::CornerRow{"txtX1", "txtY1", "X1", "Y1"},
    ui::CornerRow{"txtX2", "txtY2", "X2", "Y2"},
};

constexpr std::array fetchRows{
    FetchRow{"cmdwhere1", "lblWhere1", "X1 Y1",     "Takes the place where you stand"},
    FetchRow{"cmdwhere2", "lblWhere2", "X2 Y2",     "Takes the place where you stand"},
    FetchRow{"cmdCurrZ",  "lblWhere3", "Current Z", "Takes the height at which you stand"},
};
// clang-format on

} // namespace

ConstructionPanel::ConstructionPanel(ui::AppContext& context, const ConstructionTraits& traits)
    : Panel(context, traits.name), traits_(traits), tableForm_(context.generation)
{
    setWindowTitle(ui::Text(traits.caption));
}

void ConstructionPanel::Compose(QLayout* body, QLayout* bottomRow)
{
    auto* all = new QVBoxLayout(this);
    all->addWidget(ui::MakeTitle(this, "lblCaption", traits_.spacedTitle));
    all->addLayout(body, 1);
    all->addLayout(bottomRow);
}

QLayout* ConstructionPanel::MakeBody(const Body& body)
{
    auto* upper = new QHBoxLayout;
    upper->addLayout(body.choices, 1);
    upper->addWidget(body.preview);
    auto* right = new QVBoxLayout;
    right->addLayout(upper, 1);
    right->addWidget(body.corners);
    right->addWidget(body.height);
    auto* all = new QHBoxLayout;
    all->addWidget(body.kinds, 1);
    all->addLayout(right);
    return all;
}

QLayout* ConstructionPanel::MakeColumn(std::initializer_list<QWidget*> frames)
{
    auto* column = new QVBoxLayout;
    for (auto* frame : frames) {
        column->addWidget(frame);
    }
    column->addStretch(1);
    return column;
}

QGroupBox* ConstructionPanel::MakeCoordinateFrame()
{
    auto* frame = ui::MakeFrame(this, "fraCoordinates", "Coordinates");
    auto* layout = new QGridLayout(frame);
    int   line = 0;
    for (const auto& corner : corners) {
        const auto fetch = line == 0 ? Fetch::Corner1 : Fetch::Corner2;
        ui::AddCornerRow(frame, *layout, line, corner, CoordinateDigits, [&] { return MakeFetch(frame, fetch); });
        AddPositionControl(
            {FetchName(fetch), corner.boxX, corner.boxY, "", traits_.testsY ? corner.boxY : corner.boxX});
        ++line;
    }
    return frame;
}

std::string_view ConstructionPanel::FetchName(Fetch fetch) const
{
    const auto& row = fetchRows[static_cast<std::size_t>(fetch)];
    return traits_.fetchesByLabels ? row.label : row.button;
}

QWidget* ConstructionPanel::MakeFetch(QWidget* parent, Fetch fetch)
{
    const auto& row = fetchRows[static_cast<std::size_t>(fetch)];
    if (!traits_.fetchesByLabels) {
        return ui::MakeButton(parent, row.button, row.caption, row.toolTip);
    }
    return ui::MakeClickLabel(parent, row.label, row.caption, row.toolTip);
}

QGroupBox* ConstructionPanel::MakeBaseHeightFrame()
{
    auto* frame = ui::MakeFrame(this, "fraHeight", "Height");
    auto* layout = new QGridLayout(frame);
    AddBaseHeight(frame, *layout);
    return frame;
}

QLineEdit& ConstructionPanel::AddBaseHeight(QWidget* frame, QGridLayout& layout)
{
    auto* current = ui::MakeTextBox(frame, traits_.heightBox, CoordinateDigits);
    auto* fetch = MakeFetch(frame, Fetch::Height);
    layout.addWidget(ui::MakeLabelFor(current, "", "Current height"), 0, 0);
    layout.addWidget(current, 0, 1);
    layout.addWidget(fetch, 0, 2);
    layout.setColumnStretch(2, 1);
    AddPositionControl({FetchName(Fetch::Height), "", "", traits_.heightBox, ""});
    return *current;
}

QGroupBox* ConstructionPanel::MakeHeightFrame(ui::OptionArray& storeys)
{
    auto* frame = ui::MakeFrame(this, "fraHeight", "Height");
    auto* layout = new QGridLayout(frame);
    auto& current = AddBaseHeight(frame, *layout);

    auto* floors = new QHBoxLayout;
    int   index = 0;
    for (const auto* caption : {"1st Floor", "2nd Floor", "3rd Floor"}) {
        floors->addWidget(&storeys.Add(index++, caption, frame));
    }
    layout->addLayout(floors, 1, 0, 1, 3);

    auto* custom = ui::MakeTextBox(frame, "txtCustom", CoordinateDigits);
    layout->addWidget(ui::MakeLabelFor(custom, "lblCustom", "Custom"), 2, 0);
    layout->addWidget(custom, 2, 1);

    storeys_ = &storeys;
    storeys.onSelect = [this](int storey) { Guard([this, storey] { ApplyStorey(storey); }); };
    if (traits_.heightFollows) {
        OnChange(current, [this] { HeightChanged(); });
    }
    OnFocus(*custom, [this] { storeys_->Clear(); });
    return frame;
}

QWidget* ConstructionPanel::MakePicture(QWidget* parent)
{
    pctMain_ = new ui::PictureSurface(parent);
    pctMain_->setObjectName(QStringLiteral("pctMain"));
    pctMain_->setAccessibleName(QStringLiteral("Picture of the tile"));
    return ui::MakePicturePlace(parent, *pctMain_);
}

QGroupBox* ConstructionPanel::MakePreviewFrame()
{
    auto* frame = ui::MakeFrame(this, "fraPreview", "Tile");
    auto* layout = new QVBoxLayout(frame);
    auto* id = ui::MakeTextBox(frame, "txtItemID", 8);
    id->setToolTip(QStringLiteral("Click to copy ID"));
    id->setReadOnly(true);
    id->setAccessibleName(QStringLiteral("Item ID"));
    id->setAlignment(Qt::AlignCenter);
    auto* place = MakePicture(frame);
    id->setMaximumWidth(place->width());
    OnClick(*id, [this] { CopyItemId(); });
    layout->addWidget(place, 0, Qt::AlignCenter);
    layout->addWidget(id, 0, Qt::AlignCenter);
    layout->addStretch(1);
    return frame;
}

QGroupBox* ConstructionPanel::MakeOptionFrame(std::string_view name, std::string_view caption, ui::OptionArray& options,
                                              std::initializer_list<std::string_view> captions)
{
    auto* frame = ui::MakeFrame(this, name, caption);
    auto* layout = new QVBoxLayout(frame);
    int   index = 0;
    for (const auto option : captions) {
        layout->addWidget(&options.Add(index++, option, frame));
    }
    layout->addStretch(1);
    return frame;
}

QWidget* ConstructionPanel::MakeOptionPage(QWidget* parent, ui::OptionArray& options, const OptionPage& page,
                                           const std::function<std::string_view(int index)>& caption,
                                           const std::function<void(int index)>&             addPiece)
{
    constexpr int GridColumnsEach = 3;
    auto*         widget = new QWidget(parent);
    auto*         layout = new QGridLayout(widget);
    const int     perLine = (page.count + page.columns - 1) / page.columns;
    layout->setVerticalSpacing(2);
    for (int place = 0; place < page.count; ++place) {
        const int index = page.first + place;
        const int column = place / perLine * GridColumnsEach;
        layout->addWidget(&options.Add(index, caption(index), widget), place % perLine, column);
        if (!page.pieceButtons.empty()) {
            auto* piece =
                ui::MakeAddButton(widget, ui::MemberName(page.pieceButtons, index), caption(index), page.pieceCaption);
            OnClick(*piece, [addPiece, index] { addPiece(index); });
            layout->addWidget(piece, place % perLine, column + 1);
        }
    }
    for (int column = 0; column < page.columns; ++column) {
        layout->setColumnStretch(column * GridColumnsEach + 2, 1);
    }
    layout->setRowStretch(perLine, 1);
    return widget;
}

QGroupBox* ConstructionPanel::MakeOptionGroup(std::string_view name, std::string_view caption, ui::OptionArray& options,
                                              const OptionPage&                                 page,
                                              const std::function<std::string_view(int index)>& captionOf,
                                              const std::function<void(int index)>&             addPiece)
{
    auto* frame = ui::MakeFrame(this, name, caption);
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(MakeOptionPage(frame, options, page, captionOf, addPiece));
    return frame;
}

QLayout* ConstructionPanel::MakeBottomRow(std::span<const CommandButton> buttons)
{
    auto* row = new QHBoxLayout;
    for (const auto& button : buttons) {
        auto* made = ui::MakeButton(this, button.name, button.caption, button.toolTip);
        if (button.handler) {
            OnClick(*made, button.handler);
        } else {
            made->setEnabled(false);
        }
        row->addWidget(made);
    }
    row->addStretch(1);
    for (const auto& step : ChainSteps()) {
        if (step.from == traits_.name && Context().panels.Has(step.to)) {
            auto* made = ui::MakeButton(this, step.button, step.caption);
            OnClick(*made, [this, &step] { Step(step); });
            row->addWidget(made);
        }
    }
    auto* leave = MakeExit(this, "cmdReturn", "Back to the main panel");
    row->addWidget(leave);
    return row;
}

ConstructionPanel::CommandButton ConstructionPanel::WhereButton(std::string_view caption)
{
    return {"cmdWhere", caption, [this] { Outlet().Send("where"); }, "Asks the server where you stand"};
}

ConstructionPanel::CommandButton ConstructionPanel::RemoveButton(std::string_view name)
{
    return {name, "Remove Item", [this] { SendRemove(Outlet(), Generation()); },
            "Removes the item picked in the client"};
}

ConstructionPanel::CommandButton ConstructionPanel::WipeButton(std::string_view caption)
{
    std::function<void()> open;
    if (Context().panels.Has("frmWipe")) {
        open = [this] { Context().panels.Show("frmWipe"); };
    }
    return {"Command1", caption, open, "Removes the items of a whole box"};
}

void ConstructionPanel::Load()
{
    tableForm_ = Generation();
    if (traits_.sharesArea) {
        const auto& shared = Context().sharedArea;
        SetArea({shared.txtX1Main, shared.txtY1Main, shared.txtX2Main, shared.txtY2Main, shared.txtZMain});
    }
    ApplyStayOnTopRule();
}

void ConstructionPanel::Unload()
{
    if (traits_.sharesArea) {
        const auto texts = Area();
        Context().sharedArea = {texts.x1, texts.y1, texts.x2, texts.y2, texts.currentHeight};
    }
    ReturnToMainPanel();
}

QLineEdit* ConstructionPanel::FindBox(std::string_view name) const
{
    return findChild<QLineEdit*>(ui::Text(name));
}

AreaTexts ConstructionPanel::Area() const
{
    const auto text = [this](std::string_view name) {
        const auto* box = FindBox(name);
        return box == nullptr ? std::string() : ui::Utf8(box->text());
    };
    return {text("txtX1"), text("txtY1"), text("txtX2"), text("txtY2"), text(traits_.heightBox)};
}

void ConstructionPanel::SetArea(const AreaTexts& texts)
{
    const auto fill = [this](std::string_view name, const std::string& text) {
        if (auto* box = FindBox(name)) {
            box->setText(ui::Text(text));
        }
    };
    fill("txtX1", texts.x1);
    fill("txtX2", texts.x2);
    fill("txtY1", texts.y1);
    fill("txtY2", texts.y2);
    fill(traits_.heightBox, texts.currentHeight);
}

std::vector<QLineEdit*> ConstructionPanel::AreaBoxes() const
{
    std::vector<QLineEdit*> boxes;
    for (const std::string_view name : {"txtX1", "txtY1", "txtX2", "txtY2", "txtCustom"}) {
        if (auto* box = FindBox(name)) {
            boxes.push_back(box);
        }
    }
    return boxes;
}

void ConstructionPanel::OpenBox(QLineEdit& box)
{
    box.setEnabled(true);
    ui::SetBackground(box, ui::BoxBackground::Info);
    if (box.text() == QLatin1String(NotApplicable)) {
        box.clear();
    }
}

void ConstructionPanel::CloseBox(QLineEdit& box, const char* placeholder)
{
    box.setEnabled(false);
    ui::SetBackground(box, ui::BoxBackground::ButtonFace);
    if (box.text().isEmpty()) {
        box.setText(QLatin1String(placeholder));
    }
}

void ConstructionPanel::OpenBoxes()
{
    for (auto* box : AreaBoxes()) {
        OpenBox(*box);
    }
    OpenBox(Box(traits_.heightBox));
    if (storeys_ != nullptr) {
        storeys_->SetEnabled(true);
    }
}

void ConstructionPanel::CloseBoxes()
{
    CloseBox(Box(traits_.heightBox), "0");
    for (auto* box : AreaBoxes()) {
        CloseBox(*box);
    }
    if (storeys_ != nullptr) {
        storeys_->SetEnabled(false);
    }
}

void ConstructionPanel::ApplyStorey(int storey)
{
    auto& height = Box(traits_.heightBox);
    if (traits_.fetchesEmptyHeight && height.text().isEmpty()) {
        height.setText(ui::Text(core::ToText(Context().FetchLocation().z)));
    }
    RunTrapped(Outlet(), InvalidHeightText,
               [&] { Box("txtCustom").setText(ui::Text(BuildHeight(storey, ui::Utf8(height.text())))); });
}

void ConstructionPanel::HeightChanged()
{
    const auto text = ui::Utf8(Box(traits_.heightBox).text());
    const auto custom = BuildHeightAfterChange(text, storeys_->Selected(), traits_.loneMinus, Outlet());
    if (custom) {
        Box("txtCustom").setText(ui::Text(*custom));
    }
}

void ConstructionPanel::EnableFetch(Fetch fetch, bool enabled)
{
    findChild<QWidget*>(ui::Text(FetchName(fetch)))->setEnabled(enabled);
}

void ConstructionPanel::TakePlace(bool takesPlace)
{
    if (takesPlace) {
        OpenBoxes();
    } else {
        CloseBoxes();
    }
    for (const auto fetch : {Fetch::Corner1, Fetch::Corner2, Fetch::Height}) {
        EnableFetch(fetch, takesPlace);
    }
}

void ConstructionPanel::ShowItemId(const std::string& idText)
{
    Box("txtItemID").setText(ui::Text(idText));
}

void ConstructionPanel::DrawTile(const std::string& idText)
{
    if (!idText.empty()) {
        Context().DrawStaticTile(core::TileNumber(idText, tableForm_), *pctMain_);
    }
}

void ConstructionPanel::DrawTile(std::int32_t number)
{
    Context().DrawStaticTile(number, *pctMain_);
}

void ConstructionPanel::ShowTileNumber(std::int32_t number)
{
    ShowItemId(core::HexNumberText(number));
    DrawTile(number);
}

std::string ConstructionPanel::ItemId() const
{
    return ui::Utf8(Box("txtItemID").text());
}

std::string ConstructionPanel::CustomHeight() const
{
    return ui::Utf8(Box("txtCustom").text());
}

void ConstructionPanel::CopyItemId()
{
    Context().CopyToClipboard(ItemId());
    Outlet().Show(core::PlainBox("Item ID copied to clipboard!"));
}

void ConstructionPanel::Step(const ChainStep& step)
{
    auto& panels = Context().panels;
    auto& next = panels.Touch(step.to);
    if (auto* neighbour = dynamic_cast<ConstructionPanel*>(&next); neighbour != nullptr && step.copiesArea) {
        neighbour->SetArea(Area());
    }
    if (const auto moved = step.moves.empty() ? step.to : step.moves; panels.Has(moved)) {
        panels.Touch(moved).PlaceFrame(pos());
    }
    hide();
    panels.Show(step.to);
}

} // namespace qf::construction
