#include "construction/frmRoof.h"

#include <QHBoxLayout>
#include <array>

#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int TileRoofColumns = 2;

constexpr ConstructionTraits traits{.name = "frmRoof", .caption = "Roofs", .spacedTitle = "R O O F S"};

/// The captions of the single tiles, by direction.
constexpr std::array<std::array<const char*, 3>, 2> tileCaptions{{
    {"North", "Middle", "South"},
    {"West", "Middle", "East"},
}};

} // namespace

frmRoof::frmRoof(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optTileRoof(*this, "optTileRoof"),
      optFlatRoof(*this, "optFlatRoof"),
      optDirection(*this, "optDirection"),
      optFloor(*this, "optFloor")
{
    MakeTabs();
    auto* direction = MakeOptionFrame("fraDirection", "Direction", optDirection, {"North/South", "East/West"});

    auto* body = MakeBody({.kinds = tabRoof,
                           .choices = MakeColumn({direction, MakeSingleTileFrame()}),
                           .preview = MakePreviewFrame(),
                           .corners = MakeCoordinateFrame(),
                           .height = MakeHeightFrame(optFloor)});

    const CommandButton buttons[] = {
        {"cmdAddRoof", "Add Roof", [this] { AddRoof(State(), Generation(), Outlet()); }, "Covers the box"},
        WhereButton("Where am I?"),
        RemoveButton("cmdRemove"),
        WipeButton("Wipe"),
    };
    Compose(body, MakeBottomRow(buttons));

    optTileRoof.onSelect = [this](int) { Guard([this] { TileRoofChosen(); }); };
    optFlatRoof.onSelect = [this](int) { Guard([this] { ShowChosenTile(); }); };
    optDirection.onSelect = [this](int chosen) { Guard([this, chosen] { DirectionChosen(chosen); }); };
}

void frmRoof::MakeTabs()
{
    tabRoof = new QTabWidget(this);
    tabRoof->setObjectName(QStringLiteral("tabRoof"));
    const auto page = [this](ui::OptionArray& options, auto rows, int columns) {
        return MakeOptionPage(tabRoof, options,
                              {.first = 0, .count = static_cast<int>(rows.size()), .columns = columns},
                              [rows](int index) { return rows[static_cast<std::size_t>(index)].caption; }, {});
    };
    tabRoof->addTab(page(optTileRoof, TileRoofRows(), TileRoofColumns), QStringLiteral("Tile"));
    tabRoof->addTab(page(optFlatRoof, FlatRoofRows(), 1), QStringLiteral("Flat"));
}

QGroupBox* frmRoof::MakeSingleTileFrame()
{
    auto* frame = ui::MakeFrame(this, "fraSingleTiles", "Add Single Tiles");
    auto* layout = new QHBoxLayout(frame);
    int   piece = 0;
    for (const auto* caption : tileCaptions[RoofNorthSouth]) {
        auto* button = ui::MakeButton(frame, ui::Utf8(ui::MemberName("Command3", piece)), caption,
                                      "Adds one tile of the chosen roof");
        OnClick(*button, [this, piece] { AddRoofTile(State(), piece, Generation(), Outlet()); });
        layout->addWidget(button);
        ++piece;
    }
    return frame;
}

RoofState frmRoof::State() const
{
    return {.tab = tabRoof->currentIndex(),
            .tileRoof = optTileRoof.Selected(),
            .flatRoof = optFlatRoof.Selected(),
            .direction = optDirection.Selected(),
            .area = Area(),
            .custom = CustomHeight(),
            .tableForm = TableForm()};
}

void frmRoof::DirectionChosen(int direction)
{
    if (tabRoof->currentIndex() == TileRoofs) {
        int piece = 0;
        for (const auto* caption : tileCaptions[static_cast<std::size_t>(direction)]) {
            findChild<QPushButton*>(ui::MemberName("Command3", piece++))->setText(QLatin1String(caption));
        }
    }
    ShowChosenTile();
}

void frmRoof::TileRoofChosen()
{
    if (optDirection.Selected() < 0) {
        optDirection.Select(RoofNorthSouth);
    }
    ShowChosenTile();
}

void frmRoof::ShowChosenTile()
{
    if (const auto tile = ShownRoofTile(State())) {
        ShowTileNumber(*tile);
    }
}

} // namespace qf::construction
