#include "scenario/input.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QRadioButton>
#include <QTabWidget>
#include <QTextCursor>
#include <QTimer>
#include <QWheelEvent>

#include "scenario/event_loop.h"

namespace qf::scenario {

namespace {

constexpr int WheelNotch = 120;

bool HasRow(const QAbstractItemView& view, int row)
{
    return view.model() != nullptr && row >= 0 && row < view.model()->rowCount();
}

void ClickIndex(QAbstractItemView& view, const QModelIndex& index)
{
    const QPersistentModelIndex kept = index;
    const QPointer              alive = &view;
    view.setCurrentIndex(index);
    if (alive && kept.isValid()) {
        Q_EMIT view.pressed(kept);
    }
    if (alive && kept.isValid()) {
        Q_EMIT view.clicked(kept);
    }
}

} // namespace

void GiveFocus(QWidget& widget)
{
    const QPointer alive = &widget;
    widget.window()->activateWindow();
    RunUntilIdle();
    if (!alive) {
        return;
    }
    widget.setFocus(Qt::MouseFocusReason);
    RunUntilIdle();
    if (!alive || QApplication::focusWidget() == &widget) {
        return;
    }
    // The window is hidden or lies behind a modal one: what the control does when it gets the focus is
    // all that can happen.
    QFocusEvent event(QEvent::FocusIn, Qt::MouseFocusReason);
    QCoreApplication::sendEvent(&widget, &event);
}

bool ReplaceText(QWidget& widget, const QString& text)
{
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) {
        if (!box->text().isEmpty() || !text.isEmpty()) {
            box->selectAll();
            box->insert(text);
        }
        return true;
    }
    if (auto* box = qobject_cast<QPlainTextEdit*>(&widget)) {
        QString lines = text;
        lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        QTextCursor cursor(box->document());
        cursor.select(QTextCursor::Document);
        cursor.insertText(lines);
        return true;
    }
    if (auto* list = qobject_cast<QComboBox*>(&widget); list != nullptr && list->isEditable()) {
        return ReplaceText(*list->lineEdit(), text);
    }
    return false;
}

bool ChooseRow(QWidget& widget, int row)
{
    if (auto* list = qobject_cast<QComboBox*>(&widget)) {
        if (row < 0 || row >= list->count()) {
            return false;
        }
        const QPointer alive = list;
        list->setCurrentIndex(row);
        if (alive && row < list->count()) {
            Q_EMIT list->activated(row);
        }
        return true;
    }
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    if (view == nullptr || !HasRow(*view, row)) {
        return false;
    }
    ClickIndex(*view, view->model()->index(row, 0));
    return true;
}

bool SetCheck(QObject& control, int state)
{
    if (auto* box = qobject_cast<QCheckBox*>(&control)) {
        box->setCheckState(state == 0 ? Qt::Unchecked : state == 1 ? Qt::Checked : Qt::PartiallyChecked);
        return true;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&control); button != nullptr && button->isCheckable()) {
        button->setChecked(state != 0);
        return true;
    }
    return false;
}

bool ToggleByClick(QObject& control)
{
    if (auto* option = qobject_cast<QRadioButton*>(&control)) {
        option->setChecked(true);
        return true;
    }
    if (auto* box = qobject_cast<QCheckBox*>(&control)) {
        box->setCheckState(box->checkState() == Qt::Unchecked ? Qt::Checked : Qt::Unchecked);
        return true;
    }
    if (auto* button = qobject_cast<QAbstractButton*>(&control); button != nullptr && button->isCheckable()) {
        button->setChecked(!button->isChecked());
        return true;
    }
    return false;
}

bool BringTabForward(QWidget& widget, int tab)
{
    auto* tabs = qobject_cast<QTabWidget*>(&widget);
    if (tabs == nullptr || tab < 0 || tab >= tabs->count()) {
        return false;
    }
    tabs->setCurrentIndex(tab);
    return true;
}

bool ClickCell(QWidget& widget, int row, int column)
{
    auto* view = qobject_cast<QAbstractItemView*>(&widget);
    if (view == nullptr || !HasRow(*view, row) || column < 0 || column >= view->model()->columnCount()) {
        return false;
    }
    ClickIndex(*view, view->model()->index(row, column));
    return true;
}

bool SetBar(QWidget& widget, int value)
{
    auto* bar = qobject_cast<QAbstractSlider*>(&widget);
    if (bar == nullptr) {
        return false;
    }
    bar->setValue(value);
    return true;
}

bool FireTimer(QObject& control)
{
    auto* timer = qobject_cast<QTimer*>(&control);
    if (timer == nullptr) {
        return false;
    }
    if (timer->isSingleShot()) {
        timer->stop();
    }
    return QMetaObject::invokeMethod(timer, "timeout", Qt::DirectConnection);
}

void ChooseEntry(QAction& entry)
{
    const QPointer alive = &entry;
    const bool     enabled = entry.isEnabled();
    if (!enabled) {
        entry.setEnabled(true);
    }
    entry.trigger();
    if (alive && !enabled) {
        entry.setEnabled(false);
    }
}

void TurnWheel(QWidget& widget, bool up)
{
    const QPointF place(widget.rect().center());
    QWheelEvent   event(place, widget.mapToGlobal(place), QPoint(), QPoint(0, up ? WheelNotch : -WheelNotch),
                        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void CloseByFrame(QWidget& window)
{
    const QPointer alive = &window;
    QCloseEvent    event;
    QCoreApplication::sendEvent(&window, &event);
    if (alive && event.isAccepted()) {
        window.hide();
    }
}

} // namespace qf::scenario
