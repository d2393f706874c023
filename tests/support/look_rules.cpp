#include "support/look_rules.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScrollArea>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>
#include <set>

#include "ui/click_label.h"
#include "ui/parts.h"

namespace qf::test {

namespace {

constexpr double LeastContrast = 4.5;

template <typename Kind>
const Kind* As(const QWidget& widget)
{
    return qobject_cast<const Kind*>(&widget);
}

/// Widgets in whose inside Qt places its own parts.
bool IsWhole(const QWidget& widget)
{
    return As<QComboBox>(widget) != nullptr || As<QLineEdit>(widget) != nullptr ||
           (As<QAbstractScrollArea>(widget) != nullptr && As<QScrollArea>(widget) == nullptr) ||
           As<QTabBar>(widget) != nullptr || As<QMenuBar>(widget) != nullptr;
}

std::string Told(const QWidget& widget)
{
    auto name = widget.objectName();
    if (const auto* label = As<QLabel>(widget); label != nullptr && name.isEmpty()) {
        name = QLatin1Char('"') + label->text() + QLatin1Char('"');
    } else if (const auto* frame = As<QGroupBox>(widget); frame != nullptr && name.isEmpty()) {
        name = QLatin1Char('"') + frame->title() + QLatin1Char('"');
    }
    return ui::Utf8(name.isEmpty() ? QLatin1String(widget.metaObject()->className()) : name);
}

std::string Told(const QRect& place)
{
    return '(' + std::to_string(place.x()) + ' ' + std::to_string(place.y()) + ' ' + std::to_string(place.width()) +
           'x' + std::to_string(place.height()) + ')';
}

std::vector<QWidget*> ShownChildren(const QWidget& parent)
{
    std::vector<QWidget*> shown;
    for (auto* child : parent.findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
        if (child->isVisible() && !child->isWindow()) {
            shown.push_back(child);
        }
    }
    return shown;
}

/// Calls `look` for each shown widget within, but not for Qt's own parts.
template <typename Look>
void ForEachShown(const QWidget& parent, Look look)
{
    for (auto* child : ShownChildren(parent)) {
        look(*child);
        if (!IsWhole(*child)) {
            ForEachShown(*child, look);
        }
    }
}

bool IsOperated(const QWidget& widget)
{
    return As<QAbstractButton>(widget) != nullptr || As<QLineEdit>(widget) != nullptr ||
           As<QComboBox>(widget) != nullptr || As<QTabBar>(widget) != nullptr ||
           As<QAbstractItemView>(widget) != nullptr || As<QPlainTextEdit>(widget) != nullptr ||
           dynamic_cast<const ui::ClickLabel*>(&widget) != nullptr ||
           (As<QAbstractSlider>(widget) != nullptr && widget.focusPolicy() != Qt::NoFocus);
}

/// How wide a caption is, without the mark of its access key.
int TextWidth(const QWidget& widget, const QString& text)
{
    return widget.fontMetrics().size(Qt::TextShowMnemonic, text).width();
}

Faults ButtonFaults(const QAbstractButton& button)
{
    Faults     faults;
    int        room = button.width();
    const bool isOption = As<QRadioButton>(button) != nullptr || As<QCheckBox>(button) != nullptr;
    if (isOption) {
        const auto mark =
            As<QRadioButton>(button) != nullptr ? QStyle::PM_ExclusiveIndicatorWidth : QStyle::PM_IndicatorWidth;
        room -= button.style()->pixelMetric(mark, nullptr, &button) +
                button.style()->pixelMetric(QStyle::PM_RadioButtonLabelSpacing, nullptr, &button);
    } else {
        room -= 2 * button.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &button);
    }
    const auto* tool = As<QToolButton>(button);
    const bool  showsText = tool == nullptr || tool->toolButtonStyle() != Qt::ToolButtonIconOnly;
    if (showsText && !button.text().isEmpty() && TextWidth(button, button.text()) > room) {
        faults.push_back(Told(button) + " cuts off \"" + ui::Utf8(button.text()) + '"');
    }
    if (!button.text().isEmpty() && button.height() < button.fontMetrics().height()) {
        faults.push_back(Told(button) + " is too low for its caption");
    }
    return faults;
}

bool LabelIsCut(const QLabel& label)
{
    if (label.text().isEmpty()) {
        return false;
    }
    const int height = label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height();
    const int width = label.wordWrap() ? label.minimumSizeHint().width() : label.sizeHint().width();
    return label.width() < width || label.height() < height;
}

bool ListIsCut(const QComboBox& list)
{
    QStyleOptionComboBox option;
    option.initFrom(&list);
    option.editable = list.isEditable();
    const auto field = list.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &list);
    return TextWidth(list, list.currentText()) > field.width() || list.height() < list.fontMetrics().height();
}

/// The widget that lies directly in `container` and holds `widget`.
const QWidget* UnitIn(const QWidget& container, const QWidget* widget)
{
    while (widget->parentWidget() != &container) {
        widget = widget->parentWidget();
    }
    return widget;
}

const QWidget& CommonContainer(const QWidget& one, const QWidget& other)
{
    const auto* container = one.parentWidget();
    while (!container->isAncestorOf(&other)) {
        container = container->parentWidget();
    }
    return *container;
}

bool GoesBack(const QRect& from, const QRect& to)
{
    const bool isAbove = to.bottom() < from.top();
    const bool isNextColumn = to.left() > from.right();
    const bool isLeft = to.right() < from.left();
    const bool isNextLine = to.top() > from.center().y();
    return (isAbove && !isNextColumn) || (isLeft && !isNextLine);
}

/// Where the Tab key comes to, from the first control until it is there again.
std::vector<QWidget*> TabWalk(QWidget& window)
{
    std::vector<QWidget*> walk;
    const auto            press = [&] {
        auto*     at = window.focusWidget() != nullptr ? window.focusWidget() : &window;
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QApplication::sendEvent(at, &tab);
    };
    // The first one is what follows the window itself.
    auto* first = window.nextInFocusChain();
    while (first != &window && !(first->isVisible() && first->isEnabled() && (first->focusPolicy() & Qt::TabFocus) &&
                                 first->focusProxy() == nullptr && window.isAncestorOf(first))) {
        first = first->nextInFocusChain();
    }
    if (first == &window) {
        return walk;
    }
    first->setFocus(Qt::TabFocusReason);
    auto* reached = window.focusWidget();
    while (reached != nullptr && std::ranges::find(walk, reached) == walk.end()) {
        walk.push_back(reached);
        press();
        reached = window.focusWidget();
    }
    return walk;
}

/// Whether the arrows lead to this option from another one that the Tab key comes to.
bool IsReachedInGroup(const QWidget& widget, const std::set<const QWidget*>& reached)
{
    const auto* button = As<QAbstractButton>(widget);
    if (button == nullptr || button->group() == nullptr || !button->group()->exclusive()) {
        return false;
    }
    const auto members = button->group()->buttons();
    return std::ranges::any_of(members, [&](const auto* member) { return reached.contains(member); });
}

const QWidget& GroundOf(const QWidget& widget)
{
    const auto* ground = &widget;
    while (!ground->isWindow() && !ground->autoFillBackground()) {
        ground = ground->parentWidget();
    }
    return *ground;
}

/// Whether this is a surface on which things are scrolled or bounce about.
bool IsMovedWithin(const QWidget& widget)
{
    const auto isSurface = [](const QWidget* surface) {
        return surface != nullptr && surface->objectName() == QLatin1String("Picture1");
    };
    return isSurface(&widget) || isSurface(widget.parentWidget());
}

} // namespace

Faults PlaceFaults(const QWidget& window)
{
    Faults     faults;
    const auto look = [&](const QWidget& parent) {
        const auto children = ShownChildren(parent);
        for (std::size_t index = 0; index < children.size(); ++index) {
            const auto& child = *children[index];
            if (!parent.rect().contains(child.geometry()) && !IsMovedWithin(parent)) {
                faults.push_back(Told(child) + ' ' + Told(child.geometry()) + " reaches out of " + Told(parent) + ' ' +
                                 Told(parent.rect()));
            }
            for (std::size_t other = index + 1; other < children.size(); ++other) {
                if (child.geometry().intersects(children[other]->geometry())) {
                    faults.push_back(Told(child) + " lies over " + Told(*children[other]));
                }
            }
        }
    };
    look(window);
    ForEachShown(window, [&](const QWidget& widget) {
        if (!IsWhole(widget) && As<QTabWidget>(widget) == nullptr) {
            look(widget);
        }
    });
    return faults;
}

Faults CutOffFaults(const QWidget& window)
{
    Faults faults;
    ForEachShown(window, [&](const QWidget& widget) {
        if (const auto* button = As<QAbstractButton>(widget)) {
            std::ranges::copy(ButtonFaults(*button), std::back_inserter(faults));
        } else if (const auto* label = As<QLabel>(widget)) {
            if (LabelIsCut(*label)) {
                faults.push_back(Told(widget) + " cuts off \"" + ui::Utf8(label->text()) + '"');
            }
        } else if (const auto* frame = As<QGroupBox>(widget)) {
            if (frame->minimumSizeHint().width() > frame->width()) {
                faults.push_back(Told(widget) + " cuts off its caption");
            }
        } else if (const auto* list = As<QComboBox>(widget)) {
            if (ListIsCut(*list)) {
                faults.push_back(Told(widget) + " cuts off \"" + ui::Utf8(list->currentText()) + '"');
            }
        } else if (const auto* box = As<QLineEdit>(widget)) {
            const int room = box->width() - 2 * box->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, box);
            if (box->height() < box->fontMetrics().height() ||
                (box->isReadOnly() && TextWidth(*box, box->text()) > room)) {
                faults.push_back(Told(widget) + " cuts off \"" + ui::Utf8(box->text()) + '"');
            }
        } else if (const auto* tabs = As<QTabBar>(widget)) {
            for (int tab = 0; tab < tabs->count(); ++tab) {
                const auto place = tabs->tabRect(tab);
                if (tabs->isTabVisible(tab) &&
                    (TextWidth(*tabs, tabs->tabText(tab)) > place.width() || !tabs->rect().contains(place))) {
                    faults.push_back("the tab \"" + ui::Utf8(tabs->tabText(tab)) + "\" is cut off");
                }
            }
        }
    });
    return faults;
}

Faults KeyboardFaults(QWidget& window, const std::vector<QWidget*>& alsoReached)
{
    Faults                         faults;
    const auto                     walk = TabWalk(window);
    const std::set<const QWidget*> reached(walk.begin(), walk.end());
    const auto                     mustReach = [&](const QWidget& widget) {
        if (widget.isVisible() && widget.isEnabled() && !reached.contains(&widget) &&
            !IsReachedInGroup(widget, reached)) {
            faults.push_back("the Tab key does not come to " + Told(widget));
        }
    };
    ForEachShown(window, [&](const QWidget& widget) {
        if (IsOperated(widget)) {
            mustReach(widget);
        }
    });
    std::ranges::for_each(alsoReached, [&](const auto* widget) { mustReach(*widget); });

    std::set<const QWidget*> left;
    for (std::size_t place = 1; place < walk.size(); ++place) {
        const auto& container = CommonContainer(*walk[place - 1], *walk[place]);
        const auto& from = *UnitIn(container, walk[place - 1]);
        const auto& to = *UnitIn(container, walk[place]);
        if (&from == &to) {
            continue;
        }
        if (GoesBack(from.geometry(), to.geometry())) {
            faults.push_back("the Tab key goes back from " + Told(*walk[place - 1]) + " to " + Told(*walk[place]));
        }
        left.insert(&from);
        if (left.contains(&to)) {
            faults.push_back("the Tab key comes back into " + Told(to) + " at " + Told(*walk[place]));
        }
    }
    return faults;
}

Faults NameFaults(const QWidget& window)
{
    Faults faults;
    ForEachShown(window, [&](QWidget& widget) {
        if (!IsOperated(widget)) {
            return;
        }
        auto*      spoken = QAccessible::queryAccessibleInterface(&widget);
        const auto name = spoken == nullptr ? QString() : spoken->text(QAccessible::Name);
        const bool hasWord = std::ranges::any_of(name, [](QChar letter) { return letter.isLetterOrNumber(); });
        const bool isShown = As<QAbstractButton>(widget) != nullptr && As<QAbstractButton>(widget)->text() == name;
        if (!hasWord || (name == widget.objectName() && !isShown)) {
            faults.push_back(Told(widget) + " is spoken of as \"" + ui::Utf8(name) + '"');
        }
    });
    return faults;
}

Faults ContrastFaults(const QWidget& window)
{
    Faults     faults;
    const auto check = [&](const QWidget& widget, QPalette::ColorRole text, const QColor& ground) {
        const auto   colour = widget.palette().color(QPalette::Active, text);
        const double contrast = ui::Contrast(colour, ground);
        if (widget.isEnabled() && contrast < LeastContrast) {
            faults.push_back(Told(widget) + " has " + ui::Utf8(colour.name()) + " on " + ui::Utf8(ground.name()) +
                             ", a contrast of " + std::to_string(contrast));
        }
    };
    const auto own = [](const QWidget& widget, QPalette::ColorRole role) {
        return widget.palette().color(QPalette::Active, role);
    };
    ForEachShown(window, [&](const QWidget& widget) {
        const auto& ground = GroundOf(widget);
        const auto  behind = own(ground, ground.backgroundRole());
        const auto* list = As<QComboBox>(widget);
        if (As<QLineEdit>(widget) != nullptr || As<QAbstractItemView>(widget) != nullptr ||
            As<QPlainTextEdit>(widget) != nullptr || (list != nullptr && list->isEditable())) {
            check(widget, QPalette::Text, own(widget, QPalette::Base));
        } else if (As<QRadioButton>(widget) != nullptr || As<QCheckBox>(widget) != nullptr ||
                   As<QGroupBox>(widget) != nullptr || As<QTabBar>(widget) != nullptr) {
            check(widget, QPalette::WindowText, behind);
        } else if (As<QAbstractButton>(widget) != nullptr || list != nullptr) {
            check(widget, QPalette::ButtonText, own(widget, QPalette::Button));
        } else if (As<QLabel>(widget) != nullptr) {
            check(widget, widget.foregroundRole(), behind);
        }
    });
    return faults;
}

Faults SizeFaults(const QWidget& window, QSize room)
{
    const auto size = window.size().expandedTo(window.minimumSizeHint());
    if (size.width() <= room.width() && size.height() <= room.height()) {
        return {};
    }
    return {Told(window) + " takes " + std::to_string(size.width()) + 'x' + std::to_string(size.height())};
}

} // namespace qf::test
