#include "ui/keyboard.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QComboBox>
#include <QLayout>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>
#include <vector>

namespace qf::ui {

namespace {

class ReadingOrder {
  public:
    std::vector<QWidget*> Of(QWidget& panel)
    {
        AddContentOf(panel);
        return order_;
    }

  private:
    void Add(QWidget& widget)
    {
        if (auto* tabs = qobject_cast<QTabWidget*>(&widget)) {
            order_.push_back(tabs->tabBar());
            for (int page = 0; page < tabs->count(); ++page) {
                Add(*tabs->widget(page));
            }
            return;
        }
        // An option without the Tab key is one of a group, and may be the one to get it.
        const bool takesKeys =
            (widget.focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QAbstractButton*>(&widget) != nullptr;
        if (takesKeys) {
            order_.push_back(&widget);
        }
        // What lies in these is Qt's own.
        const bool isWhole =
            qobject_cast<QComboBox*>(&widget) != nullptr || (qobject_cast<QAbstractScrollArea*>(&widget) != nullptr);
        if (auto* scrolled = qobject_cast<QScrollArea*>(&widget);
            scrolled != nullptr && scrolled->widget() != nullptr) {
            Add(*scrolled->widget());
        } else if (!isWhole) {
            AddContentOf(widget);
        }
    }

    void AddContentOf(QWidget& container)
    {
        if (auto* layout = container.layout()) {
            Add(*layout);
        }
        for (auto* child : container.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
            if (!child->isWindow() && (container.layout() == nullptr || !IsLaidOut(*container.layout(), *child))) {
                Add(*child);
            }
        }
    }

    void Add(QLayout& layout)
    {
        for (int place = 0; place < layout.count(); ++place) {
            auto* item = layout.itemAt(place);
            if (auto* widget = item->widget()) {
                Add(*widget);
            } else if (auto* inner = item->layout()) {
                Add(*inner);
            }
        }
    }

    static bool IsLaidOut(QLayout& layout, const QWidget& widget)
    {
        for (int place = 0; place < layout.count(); ++place) {
            auto* item = layout.itemAt(place);
            if (item->widget() == &widget || (item->layout() != nullptr && IsLaidOut(*item->layout(), widget))) {
                return true;
            }
        }
        return false;
    }

    std::vector<QWidget*> order_;
};

bool IsInReach(const QAbstractButton* option)
{
    return option->isVisible() && option->isEnabled();
}

} // namespace

void SetReadingOrder(QWidget& panel)
{
    const auto order = ReadingOrder().Of(panel);
    for (std::size_t place = 1; place < order.size(); ++place) {
        QWidget::setTabOrder(order[place - 1], order[place]);
    }
}

void KeepOptionsInReach(QWidget& panel)
{
    const auto takesTab = [](const QAbstractButton* option) { return (option->focusPolicy() & Qt::TabFocus) != 0; };
    for (const auto* group : panel.findChildren<QButtonGroup*>()) {
        const auto options = group->buttons();
        auto*      chosen = group->checkedButton();
        if (chosen != nullptr && IsInReach(chosen)) {
            for (auto* option : options) {
                option->setFocusPolicy(option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
            }
            continue;
        }
        const auto isStop = [&](const QAbstractButton* option) { return IsInReach(option) && takesTab(option); };
        if (std::ranges::none_of(options, isStop)) {
            if (const auto first = std::ranges::find_if(options, IsInReach); first != options.end()) {
                (*first)->setFocusPolicy(Qt::StrongFocus);
            }
        }
    }
}

} // namespace qf::ui
