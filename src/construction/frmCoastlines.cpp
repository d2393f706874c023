#include "construction/frmCoastlines.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/tile_id.h"
#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr ConstructionTraits traits{
    .name = "frmCoastlines", .caption = "Coastlines", .spacedTitle = "C O A S T L I N E S", .fetchesByLabels = true};

} // namespace

frmCoastlines::frmCoastlines(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optType(*this, "optType"),
      optType2(*this, "optType2"),
      optAddMethod(*this, "optAddMethod")
{
    auto* kinds = MakeKinds();
    auto* method =
        MakeOptionFrame("fraAddMethod", "Add method", optAddMethod, {"Point'n Click", "Coordinates", "Single Item"});

    auto* body = MakeBody({.kinds = kinds,
                           .choices = MakeColumn({method}),
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = MakeBaseHeightFrame()});

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddCoast(State(), Generation(), Context().environment.uniform, Outlet()); },
         "Adds the chosen shore tile"},
        RemoveButton("cmdRemoveItem"),
        WipeButton("Wipe Menu"),
    };
    Compose(body, MakeBottomRow(buttons));

    optAddMethod.onSelect = [this](int chosen) { Guard([this, chosen] { TakePlace(chosen == RandomCoordinates); }); };
}

QWidget* frmCoastlines::MakeKinds()
{
    Label2 = ui::MakeClickLabel(this, "Label2", "Water", "Shows the water tiles");
    Label3 = ui::MakeClickLabel(this, "Label3", "Plants", "Shows the water plants");
    OnClick(*Label2, [this] { ShowKind(CoastKind::Water); });
    OnClick(*Label3, [this] { ShowKind(CoastKind::Plants); });
    auto* choice = new QHBoxLayout;
    choice->addWidget(Label2, 1);
    choice->addWidget(Label3, 1);

    fraType = MakeOptionGroup(
        "fraType", "Water-tiles", optType,
        {.first = 0, .count = static_cast<int>(WaterRows().size()), .pieceButtons = "cmdType"},
        [](int index) { return WaterRows()[static_cast<std::size_t>(index)].caption; },
        [this](int index) { AddPiece(CoastKind::Water, index); });
    fraType2 = MakeOptionGroup(
        "fraType2", "Plants and Misc.", optType2,
        {.first = 0, .count = static_cast<int>(PlantRows().size()), .pieceButtons = "cmdType2"},
        [](int index) { return PlantRows()[static_cast<std::size_t>(index)].caption; },
        [this](int index) { AddPiece(CoastKind::Plants, index); });
    optType.onSelect = [this](int type) { Guard([this, type] { TypeChosen(CoastKind::Water, type); }); };
    optType2.onSelect = [this](int type) { Guard([this, type] { TypeChosen(CoastKind::Plants, type); }); };

    frames_ = new QStackedLayout;
    frames_->addWidget(fraType);
    frames_->addWidget(fraType2);
    auto* kinds = new QWidget(this);
    auto* layout = new QVBoxLayout(kinds);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(choice);
    layout->addLayout(frames_, 1);
    ShowKind(CoastKind::Water);
    return kinds;
}

CoastlinesState frmCoastlines::State() const
{
    const bool water = !fraType->isHidden();
    return {.kind = water ? CoastKind::Water : CoastKind::Plants,
            .type = (water ? optType : optType2).Selected(),
            .method = optAddMethod.Selected(),
            .area = Area(),
            .tableForm = TableForm()};
}

void frmCoastlines::ShowKind(CoastKind kind)
{
    const bool water = kind == CoastKind::Water;
    frames_->setCurrentWidget(water ? fraType : fraType2);
    // The one that is seen looks pressed.
    Label2->setFrameShadow(water ? QFrame::Sunken : QFrame::Raised);
    Label3->setFrameShadow(water ? QFrame::Raised : QFrame::Sunken);
}

void frmCoastlines::TypeChosen(CoastKind kind, int type)
{
    if (Context().settings.ItemPic) {
        const auto id = core::TileIdText(ShownCoastTile(kind, type), TableForm());
        ShowItemId(id);
        DrawTile(id);
    }
}

void frmCoastlines::AddPiece(CoastKind kind, int type)
{
    AddCoastPiece(kind, type, TableForm(), Context().environment.uniform, Outlet());
}

} // namespace qf::construction
