#include "console/frmType.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/parts.h"

namespace qf::console {

namespace {

constexpr int Columns = 4;
constexpr int NumberDigits = 4;

/// The types by rising number.
std::vector<const ItemTypeOption*> TypesByNumber()
{
    std::vector<const ItemTypeOption*> types;
    for (const auto& type : ItemTypeOptions()) {
        types.push_back(&type);
    }
    std::ranges::sort(types, {}, &ItemTypeOption::value);
    return types;
}

} // namespace

frmType::frmType(ui::AppContext& context)
    : Panel(context, "frmType"),
      Frame1(ui::MakeFrame(this, "Frame1", "Type Settings")),
      columns_(new QGridLayout(Frame1)),
      types_(new QButtonGroup(this))
{
    setWindowTitle(QStringLiteral("Set Type"));
    MakeOptions(Frame1);
    auto* all = new QVBoxLayout(this);
    all->addWidget(Frame1, 1);
    all->addLayout(MakeBottomRow());
    ui::MakeTextBox(this, "typetext", NumberDigits)->hide();
}

void frmType::MakeOptions(QWidget* frame)
{
    for (const auto* type : TypesByNumber()) {
        auto* button = new QRadioButton(ui::Text(type->caption), frame);
        button->setObjectName(ui::Text(type->name));
        types_->addButton(button);
        buttons_.push_back({type, button});
        connect(button, &QRadioButton::toggled, this, [this, type](bool chosen) {
            if (chosen) {
                Box("typetext").setText(QString::number(type->value));
            }
        });
    }
}

void frmType::LayOutOptions()
{
    const auto shown =
        std::ranges::count_if(buttons_, [](const TypeButton& entry) { return !entry.button->isHidden(); });
    const int perColumn = (static_cast<int>(shown) + Columns - 1) / Columns;
    int       place = 0;
    for (const auto& entry : buttons_) {
        if (!entry.button->isHidden()) {
            columns_->addWidget(entry.button, place % perColumn, place / perColumn);
            ++place;
        }
    }
    columns_->setHorizontalSpacing(fontMetrics().height());
    columns_->setRowStretch(perColumn, 1);
}

QLayout* frmType::MakeBottomRow()
{
    auto* set = ui::MakeButton(this, "Command2", "Set TYPE", "Gives the chosen type to an item");
    auto* help = ui::MakeButton(this, "Command3", "TypeInfo", "Tells where the types are described");
    auto* leave = MakeExit(this, "Command1");
    OnClick(*set, [this] { SendItemType(ui::Utf8(Box("typetext").text()), Context().generation, Outlet()); });
    OnClick(*help, [this] { ShowItemTypeHelp(Outlet()); });

    auto* row = new QHBoxLayout;
    row->addWidget(set);
    row->addWidget(help);
    row->addStretch(1);
    row->addWidget(leave);
    return row;
}

void frmType::Load()
{
    ApplyStayOnTopRule();
    for (const auto& entry : buttons_) {
        entry.button->setVisible(ShowsItemType(*entry.type, Context().generation));
    }
    LayOutOptions();
}

} // namespace qf::console
