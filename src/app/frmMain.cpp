#include "app/frmMain.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <span>
#include <string>
#include <vector>

#include "core/number_rules.h"
#include "ui/parts.h"
#include "world/world_loader.h"

namespace qf::app {

namespace {

constexpr std::string_view Caption = "Dobrin's Quernfield 2025";

constexpr std::size_t MainPanelIndex = 0;

constexpr auto FirstSteps =
    "<p><b>1.</b> Start the game client, log in with your Game Master and leave the chat line empty. To try everything "
    "without a shard, start the practice client instead.</p>"
    "<p><b>2.</b> Open a tool, for instance <i>Floors</i>: pick a floor, a direction and <i>Coordinates</i>, type the "
    "two corners of a box and press <i>Add</i>. The commands are typed into the client.</p>"
    "<p><b>3.</b> The buttons <i>&gt;</i> and <i>&lt;</i> lead along the chain of construction tools and take the "
    "marked box with them. <i>Exit</i> leads back here.</p>";

/// The page of first steps. A text with markup is the dearest thing on the panel to lay out, so it is filled in for the
/// one who turns to it.
class FirstStepsText final : public QLabel {
  public:
    using QLabel::QLabel;

  protected:
    void showEvent(QShowEvent* event) override
    {
        if (text().isEmpty()) {
            setText(QString::fromUtf8(FirstSteps));
        }
        QLabel::showEvent(event);
    }
};

QPushButton* MakeLargeButton(QWidget* parent, std::string_view name, std::string_view caption, std::string_view hint)
{
    auto* button = ui::MakeButton(parent, name, caption, hint);
    button->setMinimumHeight(button->sizeHint().height() * 3 / 2);
    button->setMinimumWidth(button->sizeHint().width() + button->fontMetrics().height());
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    return button;
}

} // namespace

// clang-format off
const frmMain::Tool frmMain::constructionTools[] = {
    {"cmdFloors",         "Floors",                                     "frmFloors",         Opens::Beside,    "Floors, rugs and carpets"},
    {"cmdWalls",          "Walls",                                      "frmWalls",          Opens::Beside,    "Walls, posts and windows"},
    {"cmdRoofs",          "Roofs",                                      "frmRoof",           Opens::Beside,    "Gable and flat roofs"},
    {"cmdStairs",         "Stairs",                                     "frmStairs",         Opens::Beside,    "Flights of stairs"},
    {"cmdForests",        "Forests",                                    "frmForests",        Opens::Beside,    "Trees and plants"},
    {"cmdCaves",          "Caves",                                      "frmCaves",          Opens::Beside,    "Cave floors and rock"},
    {"cmdCoastlines",     "Coastlines",                                 "frmCoastlines",     Opens::Beside,    "Shores and water"},
    {"cmdLandscapes",     "Landscapes",                                 "frmLandscapes",     Opens::Beside,    "Ground of all kinds"},
};
const frmMain::Tool frmMain::placementTools[] = {
    {"cmdItems",          "Items",                                      "frmItems",          Opens::Beside,    "Single items by direction"},
    {"cmdSpecial",        "Special",                                    "frmSpecial",        Opens::Beside,    "Objects of several tiles"},
    {"cmdZarnExplorer",   "Item Explorer",                              "frmItemExplorer",   Opens::Beside,    "Items by category, with pictures"},
};
const frmMain::Tool frmMain::worldTools[] = {
    {"cmdHouses",         "House Templates",                            "frmHouseTemplates",  Opens::Beside,    "Rebuild a stored building"},
    {"cmdLoadWorldFiles", "Load World && Start House Extraction",       "frmHouseExtraction", Opens::AfterLoad, "Load the server's world files"},
    {"cmdGMMenu",         "GM Menu",                                    "frmGMCommands",      Opens::Minimised, "The server's administrative commands"},
};
const frmMain::Tool frmMain::programTools[] = {
    {"cmdConfig",         "Configuration",                              "frmOptions",        Opens::Modal,     "Paths, prefix, server generation and calibration"},
    {"cmdAbout",          "About",                                      "frmAbout",          Opens::Modal,     ""},
};
// clang-format on

frmMain::frmMain(ui::AppContext& context) : Panel(context, "frmMain")
{
    setWindowTitle(ui::Text(Caption));
    Layout();
}

void frmMain::Layout()
{
    const auto frameWithTools = [this](QWidget* parent, std::string_view caption, std::span<const Tool> tools,
                                       int columns) {
        auto* frame = ui::MakeFrame(parent, "", caption);
        auto* layout = new QGridLayout(frame);
        int   place = 0;
        for (const auto& tool : tools) {
            layout->addWidget(MakeToolButton(frame, tool), place / columns, place % columns);
            ++place;
        }
        return frame;
    };

    SSTab1 = new QTabWidget(this);
    SSTab1->setObjectName(QStringLiteral("SSTab1"));
    auto* tools = new QWidget(SSTab1);
    auto* toolsLayout = new QHBoxLayout(tools);
    toolsLayout->addWidget(frameWithTools(tools, "Construction", constructionTools, 4), 4);
    toolsLayout->addWidget(frameWithTools(tools, "Placement", placementTools, 1), 1);
    SSTab1->addTab(tools, QStringLiteral("Tools"));
    SSTab1->addTab(MakeFirstSteps(), QStringLiteral("First steps"));

    lblTitle = ui::MakeLabel(this, "lblTitle", Caption);
    lblTitle->setAlignment(Qt::AlignCenter);

    auto* lower = new QWidget(this);
    auto* groups = new QHBoxLayout;
    auto* lowerLayout = new QVBoxLayout(lower);
    lowerLayout->setContentsMargins(0, 0, 0, 0);
    groups->addWidget(frameWithTools(lower, "World and Game Master", worldTools, 1), 3);
    auto* program = frameWithTools(lower, "Program", programTools, 1);
    auto* exit = MakeLargeButton(program, "cmdExit", "E&xit", "Ends the program");
    OnClick(*exit, [this] { Context().panels.Unload(*this); });
    program->layout()->addWidget(exit);
    groups->addWidget(program, 2);
    lowerLayout->addLayout(groups, 1);

    barLoad = new QProgressBar(lower);
    barLoad->setObjectName(QStringLiteral("barLoad"));
    barLoad->setValue(0);
    barLoad->setTextVisible(false);
    ui::KeepPlaceWhenHidden(*barLoad);
    barLoad->hide();
    lowerLayout->addWidget(barLoad);

    // The title stands in the middle of the panel, so what is above it is as high as what is below.
    const int half = qMax(SSTab1->sizeHint().height(), lower->sizeHint().height());
    SSTab1->setMinimumHeight(half);
    lower->setMinimumHeight(half);

    auto* all = new QVBoxLayout(this);
    all->addWidget(SSTab1, 1);
    all->addWidget(lblTitle, 0, Qt::AlignCenter);
    all->addWidget(lower, 1);
}

QPushButton* frmMain::MakeToolButton(QWidget* parent, const Tool& tool)
{
    auto* button = MakeLargeButton(parent, tool.button, tool.caption, tool.hint);
    button->setEnabled(Context().panels.Has(tool.panel));
    OnClick(*button, [this, &tool] { OpenTool(tool); });
    if (tool.how == Opens::AfterLoad) {
        cmdLoadWorldFiles = button;
    }
    return button;
}

QWidget* frmMain::MakeFirstSteps()
{
    auto* page = new QWidget(SSTab1);
    auto* layout = new QVBoxLayout(page);
    auto* text = new FirstStepsText(page);
    text->setWordWrap(true);
    text->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    layout->addWidget(text);
    return page;
}

void frmMain::OpenTool(const Tool& tool)
{
    switch (tool.how) {
    case Opens::Beside:
        hide();
        Context().panels.Show(tool.panel);
        break;
    case Opens::Minimised:
        showMinimized();
        Context().panels.Show(tool.panel);
        break;
    case Opens::Modal: Context().panels.ShowModal(tool.panel); break;
    case Opens::AfterLoad: LoadWorldAndOpen(tool); break;
    }
}

void frmMain::LoadWorldAndOpen(const Tool& tool)
{
    auto& context = Context();
    cmdLoadWorldFiles->setEnabled(false);
    const auto question = core::QuestionBox("You have already loaded the world, do you wish to reload it?");
    if (!context.worldLoaded || Outlet().Ask(question)) {
        context.worldLoaded = false;
        LoadWorld();
    }
    const auto enable = [this] { cmdLoadWorldFiles->setEnabled(true); };
    if (context.worldLoaded) {
        context.panels.ShowModal(tool.panel, enable);
    } else {
        enable();
    }
}

void frmMain::LoadWorld()
{
    auto&      context = Context();
    const auto server = context.ConfiguredPath("txtPathZarn");
    barLoad->show();
    setCursor(Qt::WaitCursor);
    // The load does not yield, so what tells of it is drawn before.
    repaint();
    context.worldLoaded = world::LoadWorld(*context.database, Outlet(), context.generation, server);
    unsetCursor();
    barLoad->hide();
}

void frmMain::Load()
{
    RestorePosition();
    PlaceTitle();
    Context().tileBackColour = core::White;
    ApplyStayOnTopRule();
}

void frmMain::RestorePosition()
{
    auto& store = Context().environment.store;
    try {
        const int left = core::ToInteger32(store.Read(core::section::Startup, "QFMainPosX"));
        const int top = core::ToInteger32(store.Read(core::section::Startup, "QFMainPosY"));
        MoveToTwips(left, top);
    } catch (const core::RuntimeError&) {
        // Without a saved position, as at the first start, the panel stays where the desktop puts it.
        return;
    }
}

void frmMain::PlaceTitle()
{
    auto titleFont = font();
    titleFont.setPointSize(18);
    lblTitle->setFont(titleFont);
    const QFontMetrics metrics(titleFont);
    lblTitle->setFixedSize(metrics.horizontalAdvance(lblTitle->text()) + 4, metrics.height());
}

void frmMain::SavePosition()
{
    auto& store = Context().environment.store;
    store.Write(core::section::Startup, "QFMainposX", core::ToText(static_cast<float>(LeftTwips())));
    store.Write(core::section::Startup, "QFMainposY", core::ToText(static_cast<float>(TopTwips())));
}

void frmMain::Unload()
{
    if (!isMinimized()) {
        SavePosition();
    }
    auto&                    panels = Context().panels;
    std::vector<std::string> open;
    for (const auto* panel : panels.LoadOrder()) {
        open.emplace_back(panel->Name());
    }
    for (auto index = open.size(); index-- > MainPanelIndex + 1;) {
        if (auto* panel = panels.Loaded(open[index])) {
            panels.Unload(*panel);
        }
    }
    Context().environment.process.End();
}

} // namespace qf::app
