#include "console/frmShutdown.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/parts.h"

namespace qf::console {

frmShutdown::frmShutdown(ui::AppContext& context) : Panel(context, "frmShutdown")
{
    setWindowTitle(QStringLiteral("Shutdown Menu"));

    auto*     delays = new QGridLayout;
    const int perColumn = static_cast<int>(DelayedShutdowns().size() + 1) / 2;
    int       place = 0;
    for (const auto& row : DelayedShutdowns()) {
        delays->addWidget(MakeShutdownButton(row), place % perColumn, place / perColumn);
        ++place;
    }

    auto* line = new QFrame(this);
    line->setFrameStyle(QFrame::HLine | QFrame::Sunken);

    auto* immediate = new QHBoxLayout;
    for (const auto& row : ImmediateShutdowns()) {
        immediate->addWidget(MakeShutdownButton(row), 1);
    }

    auto* leave = MakeExit(this, "cmdReturn");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);

    auto* all = new QVBoxLayout(this);
    all->addLayout(delays);
    all->addWidget(line);
    all->addLayout(immediate);
    all->addStretch(1);
    all->addLayout(bottom);
}

QPushButton* frmShutdown::MakeShutdownButton(const ShutdownButton& row)
{
    auto* button = ui::MakeButton(this, row.name, row.caption);
    ui::GiveRoom(*button);
    OnClick(*button, [this, &row] { SendShutdown(row, Outlet()); });
    return button;
}

void frmShutdown::Load()
{
    ApplyStayOnTopRule();
}

} // namespace qf::console
