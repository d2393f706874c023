#include "items/frmItems.h"

#include <QVBoxLayout>
#include <utility>

#include "ui/parts.h"

namespace qf::items {

namespace {

constexpr int IdDigits = 8;
constexpr int MostRows = 14;

/// Where a facing stands in its frame, as the game looks at the world.
struct FacingPlace {
    const char* caption;
    int         row;
    int         column;
};

// clang-format off
constexpr std::array<FacingPlace, 4> facingPlaces{{
    {"N", 0, 1},
    {"W", 0, 0},
    {"S", 1, 0},
    {"E", 1, 1},
}};

/// A field of the record and the control that it shows or hides.
struct ShownControl {
    const char* name;
    bool ItemsState::*shown;
};

constexpr std::array shownControls{
    ShownControl{"fraDoorOpenEW",    &ItemsState::fraDoorOpenEW},
    ShownControl{"fraDoorOpenNS",    &ItemsState::fraDoorOpenNS},
    ShownControl{"cmdSetContainer",  &ItemsState::cmdSetContainer},
    ShownControl{"cmdSetDoor",       &ItemsState::cmdSetDoor},
    ShownControl{"cmdBasicLight",    &ItemsState::cmdBasicLight},
    ShownControl{"cmdAdvancedLight", &ItemsState::cmdAdvancedLight},
};

/// A button whose press is one command. Some belong to one tab.
struct CommandRow {
    const char*        name;
    const char*        caption;
    core::CommandWords words;
    int                tab;
    const char*        toolTip;
};

constexpr int AnyTab = -1;

constexpr std::array commandRows{
    CommandRow{"cmdRemove",       "Remove Item",      core::RemoveItemWords, AnyTab,       "Removes the picked item"},
    CommandRow{"cmdSetContainer", "Set as Container", SetContainer,          Containers,   "Makes the picked item a container"},
    CommandRow{"cmdBasicLight",   "Set Basic Light",  BasicLight,            Lightsources, "Makes the picked item a light"},
    CommandRow{"cmdSetDoor",      "Set As Door",      SetDoor,               Doors,        "Makes the picked item a door"},
};
// clang-format on

constexpr const char* RepeatExplanation =
    "If you've got Dobrin's Repeating Commmands-script for Zarn 0.9x, this allows you to add the selected item as many "
    "times in a row as you want (until you cancel targeting cursor).";

std::string SignFrameName(int page)
{
    return "fraSigns" + std::to_string(page + 1);
}

/// Sets the member with this index, or none for -1.
void SetMember(ui::OptionArray& group, int index)
{
    if (group.Selected() == index) {
        return;
    }
    if (index < 0) {
        group.Clear();
    } else {
        group.Select(index);
    }
}

} // namespace

frmItems::frmItems(ui::AppContext& context)
    : Panel(context, "frmItems"),
      optDirection{{{*this, "optDirection"}, {*this, "optDirection"}, {*this, "optDirection"}}}
{
    MakeTabs();
    auto* right = new QVBoxLayout;
    right->addWidget(MakePreviewFrame());
    right->addWidget(MakeDirectionFrame());
    right->addLayout(MakeOpenDirectionFrames());
    right->addStretch(1);
    right->addLayout(MakeAddRow());
    auto* body = new QHBoxLayout;
    body->addWidget(tabItems, 1);
    body->addLayout(right);

    auto* all = new QVBoxLayout(this);
    all->addWidget(ui::MakeTitle(this, "lblCaption", "I T E M S"));
    all->addLayout(body, 1);
    all->addLayout(MakeBottomRow());

    for (auto& group : optDirection) {
        OnOption(group, [this](ItemsState& state, int index) { ClickDirection(state, index, Desk()); });
    }
    Show(ItemsState());
}

void frmItems::MakeTabs()
{
    tabItems = new QTabWidget(this);
    tabItems->setObjectName(QStringLiteral("tabItems"));
    tabItems->setUsesScrollButtons(false);
    tabItems->setElideMode(Qt::ElideNone);
    for (int tab = 0; tab < TabCount; ++tab) {
        tabItems->addTab(tab == Signs ? MakeSignsPage() : MakePage(tab), ui::Text(TabInfo(tab).caption));
        for (const auto& group : options_[static_cast<std::size_t>(tab)]) {
            OnOption(*group, [this, tab](ItemsState& state, int index) { ClickOption(state, tab, index, Desk()); });
        }
    }
    connect(tabItems, &QTabWidget::currentChanged, this, [this](int tab) {
        Guard([this, tab] { Step([this, tab](ItemsState& state) { ChangeTab(state, tab, Context().generation); }); });
    });
}

QWidget* frmItems::MakePage(int tab)
{
    auto* page = new QWidget(tabItems);
    auto* grid = new QGridLayout;
    AddOptions(*grid, page, tab, 0, static_cast<int>(TabInfo(tab).rows.size()));
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(grid, 1);
    auto* buttons = new QHBoxLayout;
    AddCommands(*buttons, page, tab);
    if (tab == Lightsources) {
        buttons->addWidget(
            MakeOpener(page, "cmdAdvancedLight", "Set Advanced Light", "frmLightSource", "Sets each value of a light"));
    }
    buttons->addStretch(1);
    layout->addLayout(buttons);
    return page;
}

QWidget* frmItems::MakeSignsPage()
{
    auto* page = new QWidget(tabItems);
    auto* frames = new QGridLayout;
    auto* turns = new QHBoxLayout;
    for (int number = 0; number < SignPageCount; ++number) {
        const auto digit = std::to_string(number + 1);
        auto*      turn =
            ui::MakeButton(page, "cmdSigns" + digit, "Signs " + digit, "Shows these signs and clears the choice");
        OnClick(*turn, [this, number] { Step([number](ItemsState& state) { ShowSignPage(state, number); }); });
        turns->addWidget(turn);
    }
    turns->addStretch(1);
    for (int number = 0; number < SignPageCount; ++number) {
        auto* frame = ui::MakeFrame(page, SignFrameName(number), "Signs - Part " + std::to_string(number + 1));
        auto* grid = new QGridLayout(frame);
        AddOptions(*grid, frame, Signs, SignsOnPage(number).first, SignsOnPage(number).count);
        ui::KeepPlaceWhenHidden(*frame);
        frames->addWidget(frame, 0, 0);
    }
    auto* layout = new QVBoxLayout(page);
    layout->addLayout(turns);
    layout->addLayout(frames, 1);
    return page;
}

void frmItems::AddOptions(QGridLayout& layout, QWidget* parent, int tab, int first, int count)
{
    const auto& info = TabInfo(tab);
    auto&       group =
        *options_[static_cast<std::size_t>(tab)].emplace_back(std::make_unique<ui::OptionArray>(*this, info.options));
    const int columns = (count + MostRows - 1) / MostRows;
    const int perColumn = (count + columns - 1) / columns;
    for (int place = 0; place < count; ++place) {
        const int index = first + place;
        layout.addWidget(&group.Add(index, info.rows[static_cast<std::size_t>(index)].caption, parent),
                         place % perColumn, place / perColumn);
    }
    layout.setVerticalSpacing(2);
    for (int column = 0; column < columns; ++column) {
        layout.setColumnStretch(column, 1);
    }
    layout.setRowStretch(perColumn, 1);
}

void frmItems::AddCommands(QHBoxLayout& row, QWidget* parent, int tab)
{
    for (const auto& command : commandRows) {
        if (command.tab == tab) {
            auto* button = ui::MakeButton(parent, command.name, command.caption, command.toolTip);
            OnClick(*button, [this, &command] { SendWords(command.words, "", Context().generation, Outlet()); });
            row.addWidget(button);
        }
    }
}

QGroupBox* frmItems::MakePreviewFrame()
{
    auto* frame = ui::MakeFrame(this, "fraPreview", "Tile");
    pctMain = new ui::PictureSurface(frame);
    pctMain->setObjectName(QStringLiteral("pctMain"));
    pctMain->setAccessibleName(QStringLiteral("Picture of the item"));
    auto* place = ui::MakePicturePlace(frame, *pctMain);
    auto* id = ui::MakeTextBox(frame, "txtItemID", IdDigits);
    id->setToolTip(QStringLiteral("Click to copy ID"));
    id->setReadOnly(true);
    id->setAccessibleName(QStringLiteral("Item ID"));
    id->setAlignment(Qt::AlignCenter);
    id->setMaximumWidth(place->width());
    OnClick(*id, [this, id] {
        Context().CopyToClipboard(ui::Utf8(id->text()));
        Outlet().Show(core::InformationBox("Item ID copied to clipboard!"));
    });
    auto* layout = new QVBoxLayout(frame);
    layout->addWidget(place, 0, Qt::AlignCenter);
    layout->addWidget(id, 0, Qt::AlignCenter);
    return frame;
}

QGroupBox* frmItems::MakeDirectionFrame()
{
    auto* frame = ui::MakeFrame(this, "fraDirection", "Direction");
    auto* layout = new QGridLayout(frame);
    for (int facing = North; facing <= East; ++facing) {
        const auto& place = facingPlaces[static_cast<std::size_t>(facing)];
        layout->addWidget(&optDirection[0].Add(facing, place.caption, frame), place.row, place.column);
    }
    return frame;
}

QLayout* frmItems::MakeOpenDirectionFrames()
{
    auto*      places = new QGridLayout;
    const auto add = [&](ui::OptionArray& group, const char* name, int first, const char* one, const char* other) {
        auto* frame = ui::MakeFrame(this, name, "Open Direction");
        auto* layout = new QHBoxLayout(frame);
        layout->addWidget(&group.Add(first, one, frame));
        layout->addWidget(&group.Add(first + 1, other, frame));
        ui::KeepPlaceWhenHidden(*frame);
        places->addWidget(frame, 0, 0);
    };
    add(optDirection[1], "fraDoorOpenEW", OpenNorth, "N", "S");
    add(optDirection[2], "fraDoorOpenNS", OpenEast, "E", "W");
    return places;
}

QLayout* frmItems::MakeAddRow()
{
    repeatCheck = new QCheckBox(QStringLiteral("Use Repeat CMD"), this);
    repeatCheck->setObjectName(QStringLiteral("repeatCheck"));
    auto* explain = ui::MakeButton(this, "Command5", "?", "What this is");
    explain->setMaximumWidth(explain->fontMetrics().height() * 2);
    OnClick(*explain, [this] { Outlet().Show(core::InformationBox(RepeatExplanation)); });
    auto* add = ui::MakeButton(this, "cmdAdd", "Add", "Adds the chosen item at the place picked in the client");
    OnClick(*add, [this] { AddItem(State(), Outlet()); });

    auto* repeat = new QHBoxLayout;
    repeat->addWidget(repeatCheck);
    repeat->addStretch(1);
    repeat->addWidget(explain);
    auto* rows = new QVBoxLayout;
    rows->addLayout(repeat);
    rows->addWidget(add);
    return rows;
}

QLayout* frmItems::MakeBottomRow()
{
    auto* row = new QHBoxLayout;
    AddCommands(*row, this, AnyTab);
    row->addWidget(MakeOpener(this, "Command3", "Move Items", "frmItemPos", "Moves an item by small steps"));
    row->addWidget(MakeOpener(this, "Command1", "Wipe Menu", "frmWipe", "Removes the items of a whole box"));
    row->addWidget(MakeOpener(this, "Command2", "Clothing && Hairs", "frmClothing", "Adds clothes and hair"));
    row->addStretch(1);
    for (const auto& step : construction::ChainSteps()) {
        if (step.from == Name() && Context().panels.Has(step.to)) {
            row->addWidget(MakeStep(step));
        }
    }
    auto* leave = MakeExit(this, "cmdReturn", "Back to the main panel");
    row->addWidget(leave);
    return row;
}

QPushButton* frmItems::MakeOpener(QWidget* parent, std::string_view name, std::string_view caption, const char* panel,
                                  std::string_view toolTip)
{
    auto* button = ui::MakeButton(parent, name, caption, toolTip);
    button->setEnabled(Context().panels.Has(panel));
    OnClick(*button, [this, panel] { Context().panels.Show(panel); });
    return button;
}

QPushButton* frmItems::MakeStep(const construction::ChainStep& step)
{
    auto* button = ui::MakeButton(this, step.button, step.caption);
    OnClick(*button, [this, &step] {
        Context().panels.Touch(step.to).PlaceFrame(pos());
        hide();
        Context().panels.Show(step.to);
    });
    return button;
}

void frmItems::OnOption(ui::OptionArray& group, std::function<void(ItemsState&, int index)> handler)
{
    const auto run = [this, handler = std::move(handler)](int index) {
        Step([&handler, index](ItemsState& state) { handler(state, index); });
    };
    group.onSelect = [this, &group, run](int index) {
        if (!showing_) {
            justSet_ = &group.At(index);
            Guard([&] { run(index); });
        }
    };
    for (const auto& [index, option] : group.Members()) {
        OnClick(*option, [this, run, index = index, option = option] {
            if (std::exchange(justSet_, nullptr) != option) {
                run(index);
            }
        });
    }
}

void frmItems::Load()
{
    tableForm_ = Context().generation;
    setWindowTitle(ui::Text(Context().productTitle + " - Items"));
    ApplyStayOnTopRule();
}

void frmItems::Unload()
{
    ReturnToMainPanel();
}

ItemsState frmItems::State() const
{
    ItemsState state;
    state.tab = tab_;
    for (std::size_t tab = 0; tab < options_.size(); ++tab) {
        for (const auto& group : options_[tab]) {
            if (const int set = group->Selected(); set >= 0) {
                state.options[tab].set(static_cast<std::size_t>(set));
            }
        }
    }
    for (const auto& group : optDirection) {
        for (const auto& [index, option] : group.Members()) {
            state.directionSet[static_cast<std::size_t>(index)] = option->isChecked();
            state.directionEnabled[static_cast<std::size_t>(index)] = option->isEnabled();
        }
    }
    for (const auto& control : shownControls) {
        state.*control.shown = !Control(control.name).isHidden();
    }
    for (int page = 0; page < SignPageCount; ++page) {
        if (!Control(SignFrameName(page)).isHidden()) {
            state.signPage = page;
        }
    }
    state.repeatCheck = repeatCheck->checkState() == Qt::Unchecked ? 0
                        : repeatCheck->checkState() == Qt::Checked ? 1
                                                                   : 2;
    state.txtItemID = ui::Utf8(Box("txtItemID").text());
    state.tableForm = tableForm_;
    return state;
}

void frmItems::Show(const ItemsState& state)
{
    showing_ = true;
    tab_ = state.tab;
    const auto setOf = [](const ui::OptionArray& group, const auto& set) {
        int found = -1;
        for (const auto& [index, option] : group.Members()) {
            found = set[static_cast<std::size_t>(index)] ? index : found;
        }
        return found;
    };
    for (std::size_t tab = 0; tab < options_.size(); ++tab) {
        for (const auto& group : options_[tab]) {
            SetMember(*group, setOf(*group, state.options[tab]));
        }
    }
    for (auto& group : optDirection) {
        SetMember(group, setOf(group, state.directionSet));
        for (const auto& [index, option] : group.Members()) {
            option->setEnabled(state.directionEnabled[static_cast<std::size_t>(index)]);
        }
    }
    for (const auto& control : shownControls) {
        Control(control.name).setVisible(state.*control.shown);
    }
    for (int page = 0; page < SignPageCount; ++page) {
        Control(SignFrameName(page)).setVisible(page == state.signPage);
    }
    Box("txtItemID").setText(ui::Text(state.txtItemID));
    showing_ = false;
}

void frmItems::Step(const std::function<void(ItemsState&)>& step)
{
    auto state = State();
    step(state);
    Show(state);
}

ItemsDesk frmItems::Desk()
{
    return {Context().generation, [this](std::int32_t number) { Context().DrawStaticTile(number, *pctMain); }};
}

QWidget& frmItems::Control(std::string_view name) const
{
    return *findChild<QWidget*>(ui::Text(name));
}

} // namespace qf::items
