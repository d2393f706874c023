#include "construction/frmCaves.h"

#include <QVBoxLayout>

namespace qf::construction {

namespace {

constexpr ConstructionTraits traits{.name = "frmCaves",
                                    .caption = "Caves",
                                    .spacedTitle = "C A V E S",
                                    .fetchesEmptyHeight = false,
                                    .heightFollows = false};

} // namespace

frmCaves::frmCaves(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optFloorType(*this, "optFloorType"),
      optFloorType2(*this, "optFloorType2"),
      optWallType(*this, "optWallType"),
      optMiscType(*this, "optMiscType"),
      optAddMethod(*this, "optAddMethod"),
      optFloor(*this, "optFloor")
{
    MakeTabs();
    auto* method =
        MakeOptionFrame("fraAddMethod", "Add method", optAddMethod, {"Point'n Click", "Coordinates", "Single Item"});
    repeatCheck = new QCheckBox(QStringLiteral("Use Repeat CMD"), method);
    repeatCheck->setObjectName(QStringLiteral("repeatCheck"));
    repeatCheck->setEnabled(false);
    static_cast<QVBoxLayout*>(method->layout())
        ->insertWidget(static_cast<int>(optAddMethod.Members().size()), repeatCheck);

    auto* body = MakeBody({.kinds = tabFloor,
                           .choices = MakeColumn({method}),
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = (fraHeight = MakeHeightFrame(optFloor))});

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddCave(State(), Generation(), Context().environment.uniform, Outlet()); },
         "Adds the chosen cave tile"},
        RemoveButton("cmdRemoveItem"),
        WipeButton("Wipe Menu"),
    };
    Compose(body, MakeBottomRow(buttons));
    optAddMethod.onSelect = [this](int chosen) { Guard([this, chosen] { MethodChosen(chosen); }); };
}

void frmCaves::MakeTabs()
{
    tabFloor = new QTabWidget(this);
    tabFloor->setObjectName(QStringLiteral("tabFloor"));
    tabFloor->setUsesScrollButtons(false);
    tabFloor->setElideMode(Qt::ElideNone);
    const auto add = [this](int tab, ui::OptionArray& options, const char* caption) {
        const auto rows = CaveRows(tab);
        tabFloor->addTab(MakeOptionPage(tabFloor, options, {.first = 0, .count = static_cast<int>(rows.size())},
                                        [rows](int index) { return rows[static_cast<std::size_t>(index)].caption; },
                                        {}),
                         QLatin1String(caption));
        options.onSelect = [this, tab](int type) { Guard([this, tab, type] { TypeChosen(tab, type); }); };
    };
    add(CaveFloors, optFloorType, "Cavefloor");
    add(CaveDirt, optFloorType2, "Dirt");
    add(CaveWalls, optWallType, "Walls");
    add(CaveMisc, optMiscType, "Misc");
}

void frmCaves::Load()
{
    ConstructionPanel::Load();
    repeatCheck->setVisible(!Generation().Is070());
}

const ui::OptionArray& frmCaves::TypesOf(int tab) const
{
    switch (tab) {
    case CaveDirt: return optFloorType2;
    case CaveWalls: return optWallType;
    case CaveMisc: return optMiscType;
    default: return optFloorType;
    }
}

CavesState frmCaves::State() const
{
    const int tab = tabFloor->currentIndex();
    return {.tab = tab,
            .type = TypesOf(tab).Selected(),
            .method = optAddMethod.Selected(),
            .repeat = repeatCheck->isChecked(),
            .area = Area(),
            .custom = CustomHeight(),
            .tableForm = TableForm()};
}

void frmCaves::TypeChosen(int tab, int type)
{
    if (!Context().settings.ItemPic) {
        return;
    }
    const auto id = CaveTileId(tab, type, {}, TableForm());
    ShowItemId(id);
    if (!id.empty()) {
        DrawTile(ShownCaveTile(tab, type));
    }
}

void frmCaves::MethodChosen(int method)
{
    TakePlace(method == RandomCoordinates);
    fraHeight->setEnabled(method == RandomCoordinates);
    repeatCheck->setEnabled(method == RandomSingleItem);
}

} // namespace qf::construction
