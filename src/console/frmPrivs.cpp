#include "console/frmPrivs.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/option_array.h"
#include "ui/parts.h"

namespace qf::console {

namespace {

CheckValue ValueOf(const QCheckBox& box)
{
    switch (box.checkState()) {
    case Qt::Checked: return CheckValue::Ticked;
    case Qt::PartiallyChecked: return CheckValue::Grey;
    default: return CheckValue::Clear;
    }
}

} // namespace

frmPrivs::frmPrivs(ui::AppContext& context) : Panel(context, "frmPrivs"), chkCharPrivs{}
{
    setWindowTitle(QStringLiteral("Character Privileges"));

    auto* player = ui::MakeButton(this, "cmdMakePlayer", "Make Player");
    auto* counselor = ui::MakeButton(this, "cmdMakeCounselor", "Make Counselor");
    auto* gm = ui::MakeButton(this, "cmdMakeGM", "Make GM");
    privilegeFrame_ = MakePrivilegeFrame();
    auto* set = ui::MakeButton(this, "cmdCharSetPrivs", "Set Privileges");
    auto* leave = MakeExit(this, "cmdExit");
    OnClick(*player, [this] { MakePlayer(Context().generation, Outlet()); });
    OnClick(*counselor, [this] { MakeCounselor(Context().generation, Outlet()); });
    OnClick(*gm, [this] { MakeGM(Context().generation, Outlet()); });
    OnClick(*set, [this] { SetPrivileges(Checks(), Context().generation, Outlet()); });

    auto* ranks = new QHBoxLayout;
    for (auto* button : {player, counselor, gm}) {
        button->setMinimumWidth(counselor->sizeHint().width() + fontMetrics().height());
        ranks->addWidget(button, 1);
    }
    ui::GiveRoom(*set);
    auto* bottom = new QHBoxLayout;
    bottom->addWidget(set);
    bottom->addStretch(1);
    bottom->addWidget(leave);
    auto* all = new QVBoxLayout(this);
    all->addLayout(ranks);
    all->addWidget(privilegeFrame_);
    all->addStretch(1);
    all->addLayout(bottom);
}

QGroupBox* frmPrivs::MakePrivilegeFrame()
{
    auto* frame = ui::MakeFrame(this, "", "Privileges");
    auto* layout = new QGridLayout(frame);
    int   rows[] = {0, 0};
    for (const auto& privilege : Privileges()) {
        auto* box = new QCheckBox(ui::Text(privilege.caption), frame);
        box->setObjectName(ui::MemberName("chkCharPrivs", privilege.index));
        chkCharPrivs[static_cast<std::size_t>(privilege.index)] = box;
        const int column = privilege.byte == PrivilegeByte::First ? 0 : 1;
        layout->addWidget(box, rows[column]++, column);
    }
    return frame;
}

PrivilegeChecks frmPrivs::Checks() const
{
    PrivilegeChecks checks{};
    for (std::size_t index = 0; index < checks.size(); ++index) {
        checks[index] = ValueOf(*chkCharPrivs[index]);
    }
    return checks;
}

void frmPrivs::Load()
{
    const bool shown = ShowsPrivileges(Context().generation);
    for (auto* box : chkCharPrivs) {
        box->setVisible(shown);
    }
    // An empty frame would be left over.
    privilegeFrame_->setVisible(shown);
}

} // namespace qf::console
