#include "ui/spoken.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessibleWidget>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <algorithm>
#include <map>

#include "ui/click_label.h"
#include "ui/picture_surface.h"

namespace qf::ui {

namespace {

/// A label that is clicked, as a button.
class SpokenClickLabel final : public QAccessibleWidget {
  public:
    explicit SpokenClickLabel(ClickLabel& label) : QAccessibleWidget(&label, QAccessible::Button) {}

    QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }

    void doAction(const QString& action) override
    {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
        QApplication::sendEvent(widget(), &press);
    }
};

QAccessibleInterface* MakeSpoken(const QString&, QObject* object)
{
    if (auto* label = dynamic_cast<ClickLabel*>(object)) {
        return new SpokenClickLabel(*label);
    }
    if (auto* picture = dynamic_cast<PictureSurface*>(object)) {
        return new QAccessibleWidget(picture, QAccessible::Graphic);
    }
    return nullptr;
}

/// A caption without its access key and what stands around its words.
QString Words(QString caption)
{
    caption.remove(QLatin1Char('&'));
    while (caption.endsWith(QLatin1Char(':')) || caption.endsWith(QLatin1Char(' '))) {
        caption.chop(1);
    }
    return caption;
}

bool HasWords(const QString& caption)
{
    return std::ranges::any_of(caption, [](QChar letter) { return letter.isLetterOrNumber(); });
}

QString CaptionOfFrame(const QWidget& control)
{
    for (const auto* parent = control.parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        const auto* frame = qobject_cast<const QGroupBox*>(parent);
        if (frame != nullptr && HasWords(frame->title())) {
            return Words(frame->title());
        }
    }
    return {};
}

/// Whether the control is one that tells nothing of itself.
bool NeedsName(const QWidget& control)
{
    return qobject_cast<const QLineEdit*>(&control) != nullptr || qobject_cast<const QComboBox*>(&control) != nullptr ||
           qobject_cast<const QAbstractSlider*>(&control) != nullptr ||
           qobject_cast<const QAbstractItemView*>(&control) != nullptr ||
           qobject_cast<const QPlainTextEdit*>(&control) != nullptr ||
           dynamic_cast<const PictureSurface*>(&control) != nullptr;
}

QString NameOf(const QWidget& control, const std::map<const QWidget*, const QLabel*>& labels)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control)) {
        return HasWords(button->text()) ? QString() : button->toolTip();
    }
    if (qobject_cast<const QTabBar*>(&control) != nullptr) {
        return QStringLiteral("Pages");
    }
    if (const auto* label = dynamic_cast<const ClickLabel*>(&control)) {
        return HasWords(label->text()) ? Words(label->text()) : label->toolTip();
    }
    if (!NeedsName(control)) {
        return {};
    }
    if (const auto label = labels.find(&control); label != labels.end()) {
        return Words(label->second->text());
    }
    const auto frame = CaptionOfFrame(control);
    return frame.isEmpty() ? control.toolTip() : frame;
}

} // namespace

void NameForScreenReaders(QWidget& panel)
{
    const auto                              controls = panel.findChildren<QWidget*>();
    std::map<const QWidget*, const QLabel*> labels;
    for (const auto* control : controls) {
        if (const auto* label = qobject_cast<const QLabel*>(control); label != nullptr && label->buddy() != nullptr) {
            labels[label->buddy()] = label;
        }
    }
    for (auto* control : controls) {
        if (control->accessibleName().isEmpty()) {
            if (const auto name = NameOf(*control, labels); !name.isEmpty()) {
                control->setAccessibleName(name);
            }
        }
    }
}

void InstallSpokenRoles()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeSpoken);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace qf::ui
