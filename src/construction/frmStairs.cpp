#include "construction/frmStairs.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "ui/parts.h"

namespace qf::construction {

namespace {

constexpr int HeightDigits = 6;

constexpr ConstructionTraits traits{.name = "frmStairs", .caption = "Stairs", .spacedTitle = "S T A I R S"};

/// Where a direction's option stands in its frame, as the game looks at the world, and what tells it apart.
struct DirectionMark {
    int         row;
    int         column;
    const char* arrow;
    const char* hint;
};

// clang-format off
constexpr std::array<DirectionMark, 4> directionMarks{{
    {0, 1, "\u2197", "Descends to the north: Y falls from row to row"},
    {0, 0, "\u2196", "Descends to the west: X falls from row to row"},
    {1, 0, "\u2199", "Descends to the south: Y rises from row to row"},
    {1, 1, "\u2198", "Descends to the east: X rises from row to row"},
}};
// clang-format on

} // namespace

frmStairs::frmStairs(ui::AppContext& context)
    : ConstructionPanel(context, traits),
      optMaterial(*this, "optMaterial"),
      optDir(*this, "optDir"),
      optStairStart(*this, "optStairStart"),
      optStairEnd(*this, "optStairEnd")
{
    auto* middle = new QHBoxLayout;
    middle->addWidget(MakeMaterialFrame(), 1);
    middle->addLayout(MakeColumn({MakeDirectionFrame(), MakeModeFrame()}));
    middle->addWidget(MakePreviewFrame());

    auto* places = MakeColumn({MakeCoordinateFrame(), MakeBaseHeightFrame()});
    fraStairStart = MakeFlightEndFrame({"fraStairStart",
                                        "Stairs Start at",
                                        {"1st Floor", "2nd Floor", "3rd Floor", "4th Floor"},
                                        "lblCustomStairStart",
                                        "Custom",
                                        "txtCustomStart",
                                        0},
                                       optStairStart);
    fraCustomEnd = MakeFlightEndFrame({"fraCustomEnd",
                                       "Stairs End at",
                                       {"2nd Floor", "3rd Floor", "4th Floor", "5th Floor"},
                                       "lblCustomEnd",
                                       "Custom:",
                                       "txtCustomEnd",
                                       1},
                                      optStairEnd);
    auto* lower = new QHBoxLayout;
    lower->addLayout(places, 1);
    lower->addWidget(fraStairStart);
    lower->addWidget(fraCustomEnd);

    auto* body = new QVBoxLayout;
    body->addLayout(middle, 1);
    body->addLayout(lower);

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddStairs(State(), Generation(), Outlet()); }, "Builds the flight of stairs"},
        RemoveButton("cmdRemove"),
        WipeButton("Wipe"),
    };
    Compose(body, MakeBottomRow(buttons));

    optMaterial.onSelect = [this](int) { Guard([this] { ShowChosenTile(false); }); };
    optDir.onSelect = [this](int) { Guard([this] { ShowChosenTile(true); }); };
    OnChange(Box("txtCurrentHeight"), [this] { CurrentHeightChanged(); });
    OnCheck(*singleCheck, [this] { SingleItemChanged(); });
}

QGroupBox* frmStairs::MakeMaterialFrame()
{
    const OptionPage page{.first = 0,
                          .count = static_cast<int>(StairRows().size()),
                          .columns = 1,
                          .pieceButtons = "cmdStairType",
                          .pieceCaption = "Add single item"};
    return MakeOptionGroup(
        "fraMaterial", "Material", optMaterial, page,
        [](int index) { return StairRows()[static_cast<std::size_t>(index)].caption; },
        [this](int index) { AddPiece(index); });
}

QGroupBox* frmStairs::MakeDirectionFrame()
{
    auto* frame = ui::MakeFrame(this, "fraDir", "Descends to:");
    auto* layout = new QGridLayout(frame);
    int   direction = 0;
    for (const auto& mark : directionMarks) {
        auto& option = optDir.Add(direction++, "", frame);
        option.setToolTip(QLatin1String(mark.hint));
        option.setAccessibleName(QLatin1String(mark.hint));
        auto* arrow = ui::MakeLabelFor(&option, "", mark.arrow);
        arrow->setToolTip(option.toolTip());
        auto* cell = new QHBoxLayout;
        cell->addWidget(&option);
        cell->addWidget(arrow);
        cell->addStretch(1);
        layout->addLayout(cell, mark.row, mark.column);
    }
    return frame;
}

QGroupBox* frmStairs::MakeFlightEndFrame(const FlightEnd& end, ui::OptionArray& options)
{
    auto* frame = MakeOptionFrame(end.frame, end.caption, options, end.options);
    auto* box = ui::MakeTextBox(frame, end.box, HeightDigits);
    auto* custom = new QHBoxLayout;
    custom->addWidget(ui::MakeLabelFor(box, end.label, end.labelCaption));
    custom->addWidget(box, 1);
    static_cast<QVBoxLayout*>(frame->layout())->addLayout(custom);

    options.onSelect = [this, name = end.box, first = end.firstStorey](int storey) {
        Guard([this, name, storey, first] { SetHeight(name, first + storey); });
    };
    OnFocus(*box, [&options] { options.Clear(); });
    return frame;
}

QGroupBox* frmStairs::MakeModeFrame()
{
    auto*      frame = ui::MakeFrame(this, "fraMode", "Add");
    auto*      layout = new QVBoxLayout(frame);
    const auto add = [&](const char* name, const char* caption) {
        auto* box = new QCheckBox(QLatin1String(caption), frame);
        box->setObjectName(QLatin1String(name));
        layout->addWidget(box);
        return box;
    };
    singleCheck = add("singleCheck", "Single Item");
    repeatCheck = add("repeatCheck", "Repeat CMD");
    return frame;
}

void frmStairs::Load()
{
    ConstructionPanel::Load();
    repeatCheck->setEnabled(!Generation().Is070());
}

StairsState frmStairs::State() const
{
    return {.material = optMaterial.Selected(),
            .direction = optDir.Selected(),
            .singleItem = singleCheck->isChecked(),
            .repeat = repeatCheck->isChecked(),
            .area = Area(),
            .customStart = ui::Utf8(Box("txtCustomStart").text()),
            .customEnd = ui::Utf8(Box("txtCustomEnd").text()),
            .tableForm = TableForm()};
}

void frmStairs::ShowChosenTile(bool needsMaterial)
{
    if (!Context().settings.ItemPic) {
        return;
    }
    const auto state = State();
    if (needsMaterial && state.material < 0) {
        Outlet().Show(core::InformationBox(std::string(NoMaterialText)));
        return;
    }
    if (const auto tile = ShownStep(state)) {
        ShowTileNumber(*tile);
    }
}

void frmStairs::AddPiece(int material)
{
    const auto state = State();
    ShowItemId(StairPieceId(material, state.tableForm));
    AddStairPiece(state, material, Generation(), Outlet());
}

void frmStairs::SetHeight(std::string_view box, int storey)
{
    RunTrapped(Outlet(), InvalidHeightText,
               [&] { Box(box).setText(ui::Text(BuildHeight(storey, ui::Utf8(Box("txtCurrentHeight").text())))); });
}

void frmStairs::CurrentHeightChanged()
{
    if (Box("txtCurrentHeight").text().isEmpty()) {
        Box("txtCustomStart").clear();
        Box("txtCustomEnd").clear();
        return;
    }
    // Both ends follow the storey at which the stairs start, one storey apart.
    if (const int storey = optStairStart.Selected(); storey >= 0) {
        RunTrapped(Outlet(), InvalidHeightText, [&] {
            const auto height = ui::Utf8(Box("txtCurrentHeight").text());
            Box("txtCustomStart").setText(ui::Text(BuildHeight(storey, height)));
            Box("txtCustomEnd").setText(ui::Text(BuildHeight(storey + 1, height)));
        });
    }
}

void frmStairs::SingleItemChanged()
{
    const bool flight = !singleCheck->isChecked();
    fraStairStart->setEnabled(flight);
    fraCustomEnd->setEnabled(flight);
    for (const auto* control :
         {"cmdwhere1", "cmdwhere2", "cmdCurrZ", "txtX1", "txtY1", "txtX2", "txtY2", "txtCurrentHeight"}) {
        findChild<QWidget*>(QLatin1String(control))->setEnabled(flight);
    }
}

} // namespace qf::construction
