#include "items/frmLightSource.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/option_array.h"
#include "ui/parts.h"

namespace qf::items {

namespace {

constexpr int MostInColumn = 10;

} // namespace

frmLightSource::frmLightSource(ui::AppContext& context) : Panel(context, "frmLightSource")
{
    setWindowTitle(QStringLiteral("LightSource Type - QF 2025"));

    auto* format = ui::MakeLabel(this, "lblFormat", "Format: Direction, Degrees, Radius of Light");
    auto* groups = MakeGroups();
    auto* leave = MakeExit(this, "Command1", "Closes this panel", "EXIT");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);

    auto* all = new QVBoxLayout(this);
    all->addWidget(format);
    all->addLayout(groups, 1);
    all->addLayout(bottom);
}

QLayout* frmLightSource::MakeGroups()
{
    auto*      groups = new QHBoxLayout;
    const auto rows = LightButtons();
    for (auto first = rows.begin(); first != rows.end();) {
        const auto behind = std::adjacent_find(first, rows.end(), [](const LightButton& row, const LightButton& next) {
            return next.index != row.index + 1;
        });
        const auto end = behind == rows.end() ? behind : behind + 1;
        groups->addWidget(MakeGroup({first, end}), 1);
        first = end;
    }
    return groups;
}

QGroupBox* frmLightSource::MakeGroup(std::span<const LightButton> rows)
{
    auto*     frame = ui::MakeFrame(this, "", "");
    auto*     layout = new QGridLayout(frame);
    const int count = static_cast<int>(rows.size());
    const int columns = count > MostInColumn ? 2 : 1;
    const int perColumn = (count + columns - 1) / columns;
    layout->setVerticalSpacing(2);
    int place = 0;
    for (const auto& row : rows) {
        const auto hint = "Direction value " + std::to_string(LightValue(row.index));
        auto* button = ui::MakeButton(frame, ui::Utf8(ui::MemberName("cmdLightSource", row.index)), row.caption, hint);
        ui::GiveRoom(*button);
        OnClick(*button, [this, index = row.index] { SendLight(index, Context().generation, Outlet()); });
        layout->addWidget(button, place % perColumn, place / perColumn);
        ++place;
    }
    layout->setRowStretch(perColumn, 1);
    return frame;
}

void frmLightSource::Load()
{
    ApplyStayOnTopRule();
}

} // namespace qf::items
