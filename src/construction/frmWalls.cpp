#include "construction/frmWalls.h"

#include <QVBoxLayout>

#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int TypeColumns = 2;
constexpr int FirstType = 0;

constexpr ConstructionTraits traits{.name = "frmWalls", .caption = "Walls", .spacedTitle = "W A L L S", .testsY = true};

} // namespace

frmWalls::frmWalls(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optWallSelect(*this, "optWallSelect"),
      optWallForm2(*this, "optWallForm2"),
      optWallForm(*this, "optWallForm"),
      optDirection(*this, "optDirection"),
      optWallType(*this, "optWallType"),
      optFloor(*this, "optFloor")
{
    auto* types = MakeTypeFrame();
    auto* method = MakeOptionFrame("fraWallSelect", "Add method", optWallSelect,
                                   {"Point n Click", "Box (Coords)", "Line(Coords)"});
    fraWallForm2 =
        MakeOptionFrame("fraWallForm2", "Wall form", optWallForm2, {"Normal Wall", "NW Post", "SE Corner", "Window"});
    auto* wallHeight = MakeOptionFrame("fraWallForm", "Wall height", optWallForm, {"SHORT", "LONG"});
    fraDirection = MakeOptionFrame("fraDirection", "Direction", optDirection, {"North/South", "East/West"});

    auto* choices = new QGridLayout;
    choices->addWidget(method, 0, 0);
    choices->addWidget(fraWallForm2, 0, 1);
    choices->addWidget(fraDirection, 1, 0);
    choices->addWidget(wallHeight, 1, 1);
    choices->setRowStretch(2, 1);
    auto* body = MakeBody({.kinds = types,
                           .choices = choices,
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = (fraHeight = MakeHeightFrame(optFloor))});

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddWall(State(), Generation(), Outlet()); }, "Builds the chosen wall"},
        WhereButton("Where am I?"),
        RemoveButton("cmdRemove"),
        WipeButton("Wipe"),
    };
    Compose(body, MakeBottomRow(buttons));

    optWallSelect.onSelect = [this](int chosen) { Guard([this, chosen] { MethodChosen(chosen); }); };
    optWallForm2.onSelect = [this](int form) { Guard([this, form] { FormChosen(form); }); };
    optWallForm.onSelect = [this](int height) { Guard([this, height] { HeightChosen(height); }); };
    optWallType.onSelect = [this](int) { Guard([this] { ShowChosenTile(); }); };
    optDirection.onSelect = [this](int) { Guard([this] { ShowChosenTile(); }); };
}

QGroupBox* frmWalls::MakeTypeFrame()
{
    auto*     frame = ui::MakeFrame(this, "fraWallType", "Wall type");
    const int count = static_cast<int>(WallRows().size());
    auto*     page = MakeOptionPage(
            frame, optWallType, {.first = 0, .count = count, .columns = TypeColumns, .pieceButtons = "cmdWallType"},
            [](int index) { return WallRows()[static_cast<std::size_t>(index)].caption; },
            [this](int index) { AddWallPiece(State(), index, Generation(), Outlet()); });
    auto* samples = ui::MakeButton(frame, "cmdShowSelection", "Show Available Selection",
                                   "Adds an example of each wall along a line from the first corner");
    OnClick(*samples, [this] { ShowWallSelection(State(), Outlet()); });

    page->layout()->setContentsMargins(0, 0, 0, 0);
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(page, 1);
    layout->addWidget(samples, 0, Qt::AlignLeft);
    return frame;
}

WallsState frmWalls::State() const
{
    return {.method = optWallSelect.Selected(),
            .form = optWallForm2.Selected(),
            .height = optWallForm.Selected(),
            .direction = optDirection.Selected(),
            .type = optWallType.Selected(),
            .area = Area(),
            .custom = CustomHeight(),
            .tableForm = TableForm()};
}

void frmWalls::MethodChosen(int method)
{
    const bool takesForm = method != WallBox;
    const bool takesPlace = method != WallPointAndClick;
    fraDirection->setEnabled(takesForm);
    fraWallForm2->setEnabled(takesForm);
    if (!takesForm) {
        optDirection.Clear();
        optWallForm2.Clear();
    }
    if (takesPlace) {
        OpenBoxes();
    } else {
        CloseBoxes();
    }
    fraHeight->setEnabled(takesPlace);
    EnableFetch(Fetch::Corner2, takesPlace);
    EnableFetch(Fetch::Height, takesPlace);
}

void frmWalls::FormChosen(int form)
{
    if (optWallForm.Selected() < 0) {
        optWallForm.Select(LongWall);
    }
    for (int type = FirstPartialWall; type <= LastPartialWall; ++type) {
        optWallType.At(type).setEnabled(WallTypeHasForm(type, form));
    }
    if (const int type = optWallType.Selected(); type >= 0 && !WallTypeHasForm(type, form)) {
        optWallType.Select(FirstType);
    }
    ShowChosenTile();
}

void frmWalls::HeightChosen(int height)
{
    optWallForm2.At(WindowWall).setEnabled(height == LongWall);
    if (height == ShortWall && optWallForm2.Selected() == WindowWall) {
        optWallForm2.Select(NormalWall);
    }
    ShowChosenTile();
}

void frmWalls::ShowChosenTile()
{
    if (optWallType.Selected() < 0) {
        return;
    }
    const auto fill = [](ui::OptionArray& options, int choice) {
        if (options.Selected() < 0) {
            options.Select(choice);
        }
    };
    fill(optWallForm, LongWall);
    fill(optWallForm2, NormalWall);
    fill(optDirection, WallNorthSouth);
    fill(optWallSelect, WallPointAndClick);

    const auto id = ShownWallTileId(State());
    ShowItemId(id);
    DrawTile(id);
}

} // namespace qf::construction
