#include "items/frmSpecial.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "ui/parts.h"

namespace qf::items {

namespace {

constexpr int CoordinateDigits = 6;
constexpr int OptionColumns = 2;

constexpr construction::ConstructionTraits traits{
    .name = "frmSpecial", .caption = "Specials", .spacedTitle = "S P E C I A L S", .sharesArea = false};

struct PlaceBox {
    std::string_view name;
    std::string_view caption;
};

constexpr std::array placeBoxes{PlaceBox{"txtX", "X"}, PlaceBox{"txtY", "Y"}, PlaceBox{"txtZ", "Z"}};

constexpr ui::PositionRow positionRow{"cmdwhere1", "txtX", "txtY", "txtZ", "txtX"};

/// The page with plates stands under a heading.
constexpr std::string_view PlatesPage = "optspecial5";

} // namespace

frmSpecial::frmSpecial(ui::AppContext& context) : ConstructionPanel(context, traits)
{
    tabSpecial = new QTabWidget(this);
    tabSpecial->setObjectName(QStringLiteral("tabSpecial"));
    tabSpecial->setUsesScrollButtons(false);
    for (const auto& menu : SpecialMenus()) {
        tabSpecial->addTab(MakePage(menu), ui::Text(menu.caption));
    }

    auto* right = new QVBoxLayout;
    right->addWidget(MakePlaceFrame());
    right->addStretch(1);
    auto* body = new QHBoxLayout;
    body->addWidget(tabSpecial, 1);
    body->addLayout(right);

    const CommandButton buttons[] = {
        {"cmdAdd", "Add", [this] { AddSpecial(State(), Generation(), Outlet()); }, "Lays the chosen object"},
        WhereButton("Where?"),
        WipeButton("Wipe"),
        {"cmdSpecialQuestion", "?", [this] { ShowSpecialHelp(Outlet()); }, "What special objects are"},
    };
    Compose(body, MakeBottomRow(buttons));
}

QWidget* frmSpecial::MakePage(const SpecialMenu& menu)
{
    auto& options = *options_.emplace_back(std::make_unique<ui::OptionArray>(*this, menu.options));
    auto* rows =
        MakeOptionPage(tabSpecial, options, {.count = static_cast<int>(menu.objects.size()), .columns = OptionColumns},
                       [&menu](int index) { return menu.objects[static_cast<std::size_t>(index)].name; }, {});
    if (menu.options != PlatesPage) {
        return rows;
    }
    auto* page = new QWidget(tabSpecial);
    auto* layout = new QVBoxLayout(page);
    auto* heading = ui::MakeLabel(page, "lblVirtuePlate", "-= Virtue Plates / Tiles =-");
    heading->setAlignment(Qt::AlignCenter);
    rows->layout()->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(heading);
    layout->addWidget(rows, 1);
    return page;
}

QGroupBox* frmSpecial::MakePlaceFrame()
{
    auto* frame = ui::MakeFrame(this, "fraPlace", "Base point");
    auto* layout = new QGridLayout(frame);
    int   line = 0;
    for (const auto& place : placeBoxes) {
        auto* box = ui::MakeTextBox(frame, place.name, CoordinateDigits);
        OnFocus(*box, [box] { ui::SelectWhole(*box); });
        layout->addWidget(ui::MakeLabelFor(box, "", place.caption), line, 0);
        layout->addWidget(box, line, 1);
        ++line;
    }
    layout->addWidget(ui::MakeButton(frame, positionRow.control, "GetXYZ", "Takes the place where you stand"), line, 0,
                      1, 2);
    layout->setColumnStretch(1, 1);
    AddPositionControl(positionRow);
    return frame;
}

void frmSpecial::Load()
{
    setWindowTitle(ui::Text(Context().productTitle + " - Specials"));
    ConstructionPanel::Load();
}

SpecialState frmSpecial::State() const
{
    const auto text = [this](std::string_view name) { return ui::Utf8(Box(name).text()); };
    const int  tab = tabSpecial->currentIndex();
    return {.tab = tab,
            .option = options_[static_cast<std::size_t>(tab)]->Selected(),
            .x = text("txtX"),
            .y = text("txtY"),
            .z = text("txtZ")};
}

} // namespace qf::items
