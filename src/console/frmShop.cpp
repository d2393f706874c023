#include "console/frmShop.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int BoxDigits = 6;

} // namespace

frmShop::frmShop(ui::AppContext& context) : Panel(context, "frmShop")
{
    setWindowTitle(QStringLiteral("NPC Shopkeepers"));

    auto* all = new QVBoxLayout(this);
    for (const std::string_view group : {"Packs", "Restocking", "Prices"}) {
        all->addWidget(MakeGroup(group));
    }
    all->addStretch(1);

    auto* leave = MakeExit(this, "Command4");
    auto* bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(leave);
    all->addLayout(bottom);
}

QGroupBox* frmShop::MakeGroup(std::string_view group)
{
    auto* frame = ui::MakeFrame(this, "", group);
    auto* layout = new QGridLayout(frame);
    int   row = 0;
    for (const auto& command : ShopCommands()) {
        if (command.group != group) {
            continue;
        }
        QLineEdit* box = nullptr;
        if (!command.box.empty()) {
            box = MakeBox(*frame, command);
            layout->addWidget(box, row, 0);
        }
        auto* button = ui::MakeButton(frame, command.name, command.caption);
        ui::GiveRoom(*button);
        OnClick(*button, [this, box, &command] {
            const auto text = box != nullptr ? ui::Utf8(box->text()) : std::string();
            SendShopCommand(command, text, Context().generation, Outlet());
        });
        const int firstColumn = box != nullptr ? 1 : 0;
        layout->addWidget(button, row, firstColumn, 1, 2 - firstColumn);
        ++row;
    }
    layout->setColumnStretch(1, 1);
    return frame;
}

QLineEdit* frmShop::MakeBox(QGroupBox& frame, const ShopCommand& command)
{
    auto* box = ui::MakeTextBox(&frame, command.box, BoxDigits);
    box->setMaximumWidth(box->minimumWidth());
    box->setAccessibleName(ui::Text(command.caption));
    OnFocus(*box, [box] { ui::SelectWhole(*box); });
    return box;
}

void frmShop::Load()
{
    ApplyStayOnTopRule();
}

} // namespace qf::console
