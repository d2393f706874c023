#include "ui/click_label.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace qf::ui {

ClickLabel::ClickLabel(const QString& text, QWidget* parent) : QLabel(text, parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void ClickLabel::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = rect().adjusted(1, 1, -1, -1);
        option.state |= QStyle::State_KeyboardFocusChange;
        option.backgroundColor = palette().color(backgroundRole());
        QPainter painter(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ClickLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    update();
}

void ClickLabel::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    update();
}

} // namespace qf::ui
