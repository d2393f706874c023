#include "console/frmGMCommands.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

#include "client/external_tools.h"
#include "console/pick_list.h"
#include "console/spawn_page.h"
#include "console/travel_page.h"
#include "ui/parts.h"

namespace qf::console {

/// What the panel's own functions are to a tab that is a unit of its own.
class frmGMCommands::Host final : public ConsoleHost {
  public:
    explicit Host(frmGMCommands& panel) : panel_(panel) {}

    ui::AppContext& Context() override { return panel_.Context(); }
    core::Outlet&   Outlet() override { return panel_.Outlet(); }

    void OnClick(QWidget& control, std::function<void()> handler) override
    {
        panel_.OnClick(control, std::move(handler));
    }
    void OnFocus(QWidget& control, std::function<void()> handler) override
    {
        panel_.OnFocus(control, std::move(handler));
    }
    void OnChoose(QComboBox& list, std::function<void()> handler) override
    {
        panel_.OnChoose(list, std::move(handler));
    }
    void Guard(const std::function<void()>& handler) override { panel_.Guard(handler); }

  private:
    frmGMCommands& panel_;
};

frmGMCommands::frmGMCommands(ui::AppContext& context)
    : Panel(context, "frmGMCommands"),
      host_(std::make_unique<Host>(*this)),
      optItemVisible(*this, "optItemVisible"),
      optItemMovable(*this, "optItemMovable"),
      optNPCAI(*this, "optNPCAI")
{
    setWindowTitle(QStringLiteral("GM Commands - Quernfield 2025"));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::WindowMinMaxButtonsHint);

    TabMain = new QTabWidget(this);
    TabMain->setObjectName(QStringLiteral("TabMain"));
    TabMain->setUsesScrollButtons(false);
    const std::array pages{
        MakeServerTab(),   MakeGlobalTab(),         MakeGMCommandsTab(),
        MakeItemEditTab(), MakeCharacterEditTab(),  static_cast<QWidget*>(new TravelPage(*host_, TabMain)),
        MakeNPCsTab(),     MakeCustomCommandsTab(), static_cast<QWidget*>(new SpawnPage(*host_, TabMain)),
    };
    for (std::size_t index = 0; index < pages.size(); ++index) {
        TabMain->addTab(pages[index], ui::Text(TabCaptions()[index]));
    }

    auto* all = new QVBoxLayout(this);
    all->addWidget(TabMain, 1);
    all->addLayout(MakeButtonsOutside());
}

frmGMCommands::~frmGMCommands() = default;

QLayout* frmGMCommands::MakeButtonsOutside()
{
    auto* row = new QHBoxLayout;
    row->addWidget(MakeCommand(this, "cmdSaveWorld"));
    row->addWidget(MakeCommand(this, "cmdShutDownMenu"));
    row->addStretch(1);
    row->addWidget(MakeCommand(this, "cmdReturn"));
    return row;
}

QGroupBox* frmGMCommands::MakeGroup(QWidget* parent, std::string_view group)
{
    const auto frames = GMFrames();
    const auto found = std::ranges::find(frames, group, &GMFrame::name);
    auto*      frame =
        found != frames.end() ? ui::MakeFrame(parent, found->name, found->caption) : ui::MakeFrame(parent, "", group);
    new QGridLayout(frame);
    if (found != frames.end() && found->startsHidden) {
        ui::KeepPlaceWhenHidden(*frame);
        frame->hide();
    }
    return frame;
}

QGroupBox* frmGMCommands::MakeCommandGroup(QWidget* parent, Tab tab, std::string_view group, int columns)
{
    auto* frame = MakeGroup(parent, group);
    AddCommands(*frame, tab, group, columns);
    return frame;
}

void frmGMCommands::AddCommands(QGroupBox& frame, Tab tab, std::string_view group, int columns)
{
    auto*     grid = static_cast<QGridLayout*>(frame.layout());
    const int first = grid->isEmpty() ? 0 : grid->rowCount();
    int       place = 0;
    for (const auto& command : GMCommands()) {
        if (command.tab == tab && command.group == group) {
            grid->addWidget(MakeCommand(&frame, command), first + place / columns, place % columns);
            ++place;
        }
    }
    for (int column = 0; column < columns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    grid->setRowStretch(first + (place + columns - 1) / columns, 1);
}

QGroupBox* frmGMCommands::MakeSwitchGroup(QWidget* parent, Tab tab)
{
    auto* frame = MakeGroup(parent, "Switches");
    auto* grid = static_cast<QGridLayout*>(frame->layout());
    int   row = 0;
    for (const auto& pair : GMSwitches()) {
        if (FindGMCommand(pair.first)->tab == tab) {
            grid->addWidget(ui::MakeLabel(frame, pair.label, pair.caption), row, 0);
            grid->addWidget(MakeCommand(frame, pair.first), row, 1);
            grid->addWidget(MakeCommand(frame, pair.second), row, 2);
            ++row;
        }
    }
    grid->setRowStretch(row, 1);
    return frame;
}

QPushButton* frmGMCommands::MakeCommand(QWidget* parent, const GMCommand& command)
{
    auto* button = ui::MakeButton(parent, command.name, command.caption);
    button->setEnabled(IsAvailable(command));
    OnClick(*button, [this, &command] { Press(command); });
    return button;
}

QPushButton* frmGMCommands::MakeCommand(QWidget* parent, std::string_view name)
{
    return MakeCommand(parent, *FindGMCommand(name));
}

QLineEdit* frmGMCommands::MakeBox(QWidget* parent, std::string_view name, int digits)
{
    auto* box = ui::MakeTextBox(parent, name, digits);
    if (std::ranges::find(GMBoxes(), name, &GMBox::name)->selectsWhole) {
        OnFocus(*box, [box] { ui::SelectWhole(*box); });
    }
    return box;
}

bool frmGMCommands::IsAvailable(const GMCommand& command)
{
    const auto& effect = EffectIn(command, Context().generation);
    return effect.act != GMAct::Open || Context().panels.Has(effect.text);
}

GMFields frmGMCommands::Fields()
{
    GMFields fields;
    for (const auto& box : GMBoxes()) {
        fields.texts[std::string(box.name)] = ui::Utf8(Box(box.name).text());
    }
    fields.indices["optItemVisible"] = optItemVisible.Selected();
    fields.indices["optItemMovable"] = optItemMovable.Selected();
    fields.indices["optNPCAI"] = optNPCAI.Selected();
    for (const auto* list : {cmbSkills, cmbStats}) {
        fields.indices[ui::Utf8(list->objectName())] = list->currentIndex();
    }
    fields.uoPath = Context().settings.UOPath;
    return fields;
}

CustomCommands frmGMCommands::TypedCustomCommands() const
{
    CustomCommands commands;
    for (std::size_t index = 0; index < commands.size(); ++index) {
        commands[index] = ui::Utf8(Box("txtUseCommand(" + std::to_string(index) + ")").text());
    }
    return commands;
}

void frmGMCommands::Press(const GMCommand& command)
{
    CarryOut(PressGMCommand(command, Fields(), Context().generation, Outlet()));
}

void frmGMCommands::CarryOut(const GMWindowStep& step)
{
    switch (step.act) {
    case GMAct::Open:
        if (Context().panels.Has(step.target)) {
            Context().panels.Show(step.target);
        }
        break;
    case GMAct::Reveal: findChild<QGroupBox*>(ui::Text(step.target))->show(); break;
    case GMAct::StartZarn:
    case GMAct::StartInsideUO:
    case GMAct::StartUO: StartTool(step.act); break;
    case GMAct::Save: SaveCustomCommands(TypedCustomCommands(), Context().environment.store, Outlet()); break;
    case GMAct::Leave: Leave(); break;
    default: break;
    }
    if (!step.hides.empty()) {
        findChild<QGroupBox*>(ui::Text(step.hides))->hide();
    }
}

void frmGMCommands::StartTool(GMAct act)
{
    const client::ProgramStart start = [this](std::string_view program, std::string_view folder) {
        Context().environment.shell.StartProgram(program, folder);
    };
    auto& context = Context();
    switch (act) {
    case GMAct::StartZarn: client::StartZarn(context.ConfiguredPath("txtPathZarn"), start, Outlet()); break;
    case GMAct::StartInsideUO: client::StartInsideUO(context.ConfiguredPath("txtPathInsideUO"), start, Outlet()); break;
    default: client::StartUO(Outlet()); break;
    }
}

void frmGMCommands::Leave()
{
    SaveGMPosition(LeftTwips(), TopTwips(), Context().environment.store);
    auto& panels = Context().panels;
    panels.Unload(*this);
    if (panels.Has("frmMain")) {
        panels.Show("frmMain");
    }
}

void frmGMCommands::Load()
{
    try {
        RestoreState();
    } catch (const core::RuntimeError&) {
        // A console that was never left by its "Exit" keeps its captions and its empty boxes.
    }
    for (int tab = 0; tab < TabMain->count(); ++tab) {
        if (TabMain->tabText(tab) == QLatin1String("Unused")) {
            TabMain->setTabVisible(tab, false);
        }
    }
    ApplyStayOnTopRule();
}

void frmGMCommands::RestoreState()
{
    auto&      store = Context().environment.store;
    const auto position = ReadGMPosition(store);
    MoveToTwips(position.left, position.top);

    const auto* server = TabMain->widget(static_cast<int>(Tab::Server));
    const auto  captions = ReloadCaptions(Context().generation);
    for (std::size_t index = 0; index < captions.size(); ++index) {
        server->findChild<QPushButton*>(ui::MemberName("cmdReload", static_cast<int>(index)))
            ->setText(ui::Text(captions[index]));
    }
    const auto* custom = TabMain->widget(static_cast<int>(Tab::CustomCommands));
    const auto  commands = ReadCustomCommands(store);
    for (std::size_t index = 0; index < commands.size(); ++index) {
        custom->findChild<QLineEdit*>(ui::MemberName("txtUseCommand", static_cast<int>(index)))
            ->setText(ui::Text(commands[index]));
    }
}

} // namespace qf::console
