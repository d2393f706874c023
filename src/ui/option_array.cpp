#include "ui/option_array.h"

#include "ui/parts.h"

namespace qf::ui {

OptionArray::OptionArray(QWidget& owner, std::string_view name) : name_(name), group_(new QButtonGroup(&owner)) {}

QRadioButton& OptionArray::Add(int index, std::string_view caption, QWidget* parent)
{
    auto* option = new QRadioButton(Text(caption), parent);
    option->setObjectName(MemberName(name_, index));
    group_->addButton(option);
    members_[index] = option;
    QObject::connect(option, &QRadioButton::toggled, group_, [this, index](bool selected) {
        if (selected && onSelect) {
            onSelect(index);
        }
    });
    return *option;
}

int OptionArray::Selected() const
{
    for (const auto& [index, option] : members_) {
        if (option->isChecked()) {
            return index;
        }
    }
    return -1;
}

void OptionArray::Select(int index)
{
    members_.at(index)->setChecked(true);
}

void OptionArray::Clear()
{
    group_->setExclusive(false);
    for (const auto& [index, option] : members_) {
        option->setChecked(false);
    }
    group_->setExclusive(true);
}

void OptionArray::SetEnabled(bool enabled)
{
    for (const auto& [index, option] : members_) {
        option->setEnabled(enabled);
    }
}

QString MemberName(std::string_view array, int index)
{
    return Text(array) + QLatin1Char('(') + QString::number(index) + QLatin1Char(')');
}

} // namespace qf::ui
