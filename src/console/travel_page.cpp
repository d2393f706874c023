#include "console/travel_page.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/box_fields.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int CoordinateDigits = 6;

/// A box of the tab with its label.
struct LabelledBox {
    std::string_view box;
    std::string_view label;
    std::string_view caption;
};

// clang-format off
constexpr LabelledBox labelledBoxes[] = {
    {"txtLocX", "lblLocX", "X"},
    {"txtLocY", "lblLocY", "Y"},
    {"txtLocZ", "lblLocZ", "Z"},
};

constexpr ui::BoxField<TravelState> boxFields[] = {
    {"txtLocX", &TravelState::txtLocX},
    {"txtLocY", &TravelState::txtLocY},
    {"txtLocZ", &TravelState::txtLocZ},
};
// clang-format on

QStringList Rows(const std::vector<std::string_view>& entries)
{
    QStringList rows;
    for (const auto entry : entries) {
        rows << ui::Text(entry);
    }
    return rows;
}

} // namespace

TravelPage::TravelPage(ConsoleHost& host, QWidget* parent) : ConsolePage(host, parent)
{
    auto* body = new QHBoxLayout;
    body->addWidget(MakePlaceFrame());
    body->addWidget(MakeCommandFrame());
    body->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body);
    layout->addStretch(1);
}

QGroupBox* TravelPage::MakePlaceFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Place");
    auto* layout = new QVBoxLayout(frame);
    layout->addLayout(MakeLists(frame));
    layout->addSpacing(fontMetrics().height() / 2);
    layout->addLayout(MakeCoordinates(frame));
    layout->addStretch(1);
    return frame;
}

QLayout* TravelPage::MakeLists(QWidget* parent)
{
    const auto                    groups = PlaceGroups();
    std::vector<std::string_view> entries;
    for (const auto& group : groups) {
        entries.push_back(group.entry);
    }
    auto* types = new PickList(parent, "comboLocType", "-Select Location-", Rows(entries));
    types->setAccessibleName(QStringLiteral("Kind of place"));
    Host().OnChoose(*types, [this, types] {
        Step([types](TravelState& state) { ChoosePlaceGroup(state, types->currentIndex()); });
    });

    // One list is shown at a time, all in one place, which is kept while none is shown.
    auto* layout = new QGridLayout;
    layout->addWidget(types, 0, 0);
    for (const auto& group : groups) {
        auto* list = new PickList(parent, group.list, group.initialText, Rows(ListEntries(group)));
        list->setAccessibleName(QStringLiteral("Place"));
        Host().OnChoose(*list, [this, list, &group] {
            Step([list, &group](TravelState& state) { ChoosePlace(state, group, list->currentIndex()); });
        });
        ui::KeepPlaceWhenHidden(*list);
        list->hide();
        lists_.push_back(list);
        layout->addWidget(list, 1, 0);
    }
    return layout;
}

QLayout* TravelPage::MakeCoordinates(QWidget* parent)
{
    auto* row = new QHBoxLayout;
    for (const auto& [name, label, caption] : labelledBoxes) {
        auto* box = ui::MakeTextBox(parent, name, CoordinateDigits);
        Host().OnFocus(*box, [box] { ui::SelectWhole(*box); });
        row->addWidget(ui::MakeLabelFor(box, label, caption));
        row->addWidget(box);
    }
    row->addStretch(1);
    return row;
}

QGroupBox* TravelPage::MakeCommandFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Commands");
    auto* layout = new QVBoxLayout(frame);
    bool  withPlace = true;
    for (const auto& command : TravelCommands()) {
        if (withPlace && !command.takesPlace) {
            layout->addSpacing(fontMetrics().height() / 2);
        }
        withPlace = command.takesPlace;
        auto* button = ui::MakeButton(frame, command.name, command.caption, command.toolTip);
        Host().OnClick(*button, [this, &command] { SendTravelCommand(command, State(), Host().Outlet()); });
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return frame;
}

TravelState TravelPage::State() const
{
    TravelState state;
    ui::ReadBoxes(boxFields, *this, state);
    for (std::size_t index = 0; index < lists_.size(); ++index) {
        if (!lists_[index]->isHidden()) {
            state.shownGroup = static_cast<int>(index);
        }
    }
    return state;
}

void TravelPage::Show(const TravelState& state)
{
    ui::ShowBoxes(boxFields, *this, state);
    for (std::size_t index = 0; index < lists_.size(); ++index) {
        lists_[index]->setHidden(static_cast<int>(index) != state.shownGroup);
    }
}

void TravelPage::Step(const std::function<void(TravelState&)>& step)
{
    auto state = State();
    step(state);
    Show(state);
}

} // namespace qf::console
