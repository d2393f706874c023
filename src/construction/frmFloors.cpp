#include "construction/frmFloors.h"

#include <QVBoxLayout>

#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int FirstOfFloorsTwo = 19;

constexpr ConstructionTraits traits{
    .name = "frmFloors", .caption = "Floors", .spacedTitle = "F L O O R S", .loneMinus = LoneMinus::StillTyping};

} // namespace

frmFloors::frmFloors(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optFloorType(*this, "optFloorType"),
      optRugs(*this, "optRugs"),
      optCarpet(*this, "optCarpet"),
      optDirection(*this, "optDirection"),
      optAddMethod(*this, "optAddMethod"),
      optHeightFloor(*this, "optHeightFloor")
{
    tabFloor = MakeTabs();
    auto* direction = MakeOptionFrame("fraDirection", "Direction", optDirection, {"North/South", "East/West"});
    auto* method = MakeOptionFrame("fraAddMethod", "Add method", optAddMethod, {"Point n Click", "Coordinates"});
    useZCheck = new QCheckBox(QStringLiteral("Use Current Z"), method);
    useZCheck->setObjectName(QStringLiteral("useZCheck"));
    static_cast<QVBoxLayout*>(method->layout())->insertWidget(1, useZCheck);

    auto* body = MakeBody({.kinds = tabFloor,
                           .choices = MakeColumn({direction, method}),
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = MakeHeightFrame(optHeightFloor)});

    const CommandButton buttons[] = {
        {"cmdAddFloor", "Add", [this] { AddFloor(State(), Generation(), Outlet()); }, "Lays the chosen floor"},
        WhereButton("Where am I?"),
        RemoveButton("cmdRemove"),
        WipeButton("Wipe"),
    };
    Compose(body, MakeBottomRow(buttons));

    optFloorType.onSelect = [this](int) { Guard([this] { TypeChosen(); }); };
    optRugs.onSelect = [this](int) { Guard([this] { RugOrCarpetChosen(); }); };
    optCarpet.onSelect = [this](int) { Guard([this] { RugOrCarpetChosen(); }); };
    optDirection.onSelect = [this](int) { Guard([this] { DirectionChosen(); }); };
    optAddMethod.onSelect = [this](int method) { Guard([this, method] { MethodChosen(method); }); };
    OnCheck(*useZCheck, [this] { UseZChanged(); });
}

QTabWidget* frmFloors::MakeTabs()
{
    auto* tabs = new QTabWidget(this);
    tabs->setObjectName(QStringLiteral("tabFloor"));
    const auto floors = FloorRows();
    const int  count = static_cast<int>(floors.size());
    tabFloor = tabs;
    tabs->addTab(MakePage(floors, 0, FirstOfFloorsTwo, optFloorType, "cmdFloors", 2), QStringLiteral("Floors I"));
    tabs->addTab(MakePage(floors, FirstOfFloorsTwo, count - FirstOfFloorsTwo, optFloorType, "cmdFloors2", 1),
                 QStringLiteral("Floors II"));
    tabs->addTab(MakePage(RugRows(), 0, static_cast<int>(RugRows().size()), optRugs, "cmdRugs", 1),
                 QStringLiteral("Rugs"));
    tabs->addTab(MakePage(CarpetRows(), 0, static_cast<int>(CarpetRows().size()), optCarpet, "cmdCarpets", 1),
                 QStringLiteral("Carpets"));
    return tabs;
}

QWidget* frmFloors::MakePage(std::span<const FloorRow> rows, int first, int count, ui::OptionArray& options,
                             std::string_view pieceButtons, int columns)
{
    const auto row = [rows](int index) -> const FloorRow& { return rows[static_cast<std::size_t>(index)]; };
    return MakeOptionPage(
        tabFloor, options, {.first = first, .count = count, .columns = columns, .pieceButtons = pieceButtons},
        [row](int index) { return row(index).caption; },
        [this, row](int index) {
            AddFloorPiece(State(), static_cast<int>(row(index).tab), index, Generation(), Outlet());
        });
}

FloorsState frmFloors::State() const
{
    return {.tab = tabFloor->currentIndex(),
            .floorType = optFloorType.Selected(),
            .rug = optRugs.Selected(),
            .carpet = optCarpet.Selected(),
            .direction = optDirection.Selected(),
            .addMethod = optAddMethod.Selected(),
            .useZ = UsesZ(),
            .itemId = ItemId(),
            .area = Area(),
            .custom = CustomHeight(),
            .tableForm = TableForm()};
}

void frmFloors::TypeChosen()
{
    if (optDirection.Selected() < 0) {
        optDirection.Select(NorthSouth);
    }
    ShowChosenTile();
}

void frmFloors::RugOrCarpetChosen()
{
    if (optDirection.Selected() < 0) {
        Outlet().Show(core::InformationBox(std::string(FloorDirectionFirstText)));
        return;
    }
    ShowChosenTile();
}

void frmFloors::ShowChosenTile()
{
    const auto id = ChosenTile();
    ShowItemId(id);
    DrawTile(id);
}

void frmFloors::DirectionChosen()
{
    if (State().SelectedType() >= 0) {
        DrawTile(ChosenTile());
    }
}

std::string frmFloors::ChosenTile() const
{
    const auto state = State();
    return FloorTileId(state.tab, state.direction, state.SelectedType(), state.tableForm);
}

void frmFloors::MethodChosen(int method)
{
    useZCheck->setEnabled(method == FloorPointAndClick);
    if (method == FloorPointAndClick) {
        CloseBoxes();
    } else {
        OpenBoxes();
    }
}

bool frmFloors::UsesZ() const
{
    return useZCheck->checkState() == Qt::Checked;
}

void frmFloors::UseZChanged()
{
    auto& height = Box("txtCurrentHeight");
    height.setEnabled(UsesZ());
    ui::SetBackground(height, UsesZ() ? ui::BoxBackground::Info : ui::BoxBackground::ButtonFace);
}

} // namespace qf::construction
