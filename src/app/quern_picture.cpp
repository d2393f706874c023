#include "app/quern_picture.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>

namespace qf::app {

namespace {

/// One millstone: a disc with a rim, in a square of side 1. `top` is the height of its upper face.
void DrawStone(QPainter& painter, double top, double thickness, double radius, const QColor& light, const QColor& dark)
{
    const double    flat = radius * 0.46;
    const QRectF    face(0.5 - radius, top - flat, 2 * radius, 2 * flat);
    QLinearGradient side(face.left(), 0, face.right(), 0);
    side.setColorAt(0, dark);
    side.setColorAt(0.35, light.darker(112));
    side.setColorAt(1, dark.darker(130));
    painter.setBrush(side);
    painter.drawEllipse(face.translated(0, thickness));
    painter.fillRect(QRectF(face.left(), top, face.width(), thickness), side);
    painter.drawLine(QPointF(face.left(), top), QPointF(face.left(), top + thickness));
    painter.drawLine(QPointF(face.right(), top), QPointF(face.right(), top + thickness));

    QLinearGradient upper(face.topLeft(), face.bottomRight());
    upper.setColorAt(0, light.lighter(112));
    upper.setColorAt(1, light.darker(110));
    painter.setBrush(upper);
    painter.drawEllipse(face);
}

} // namespace

QPixmap QuernPicture(int size)
{
    // As many pixels as the screen has for it.
    const double ratio = qGuiApp->devicePixelRatio();
    QPixmap      picture(qRound(size * ratio), qRound(size * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    painter.setPen(QPen(QColor(58, 52, 46), 0.012));

    DrawStone(painter, 0.66, 0.13, 0.45, QColor(150, 142, 130), QColor(104, 97, 88));
    DrawStone(painter, 0.46, 0.16, 0.37, QColor(188, 180, 166), QColor(128, 120, 109));

    painter.setBrush(QColor(70, 62, 54));
    painter.drawEllipse(QRectF(0.41, 0.42, 0.18, 0.083));
    painter.setPen(QPen(QColor(96, 62, 34), 0.07, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0.73, 0.47), QPointF(0.73, 0.14));
    painter.setPen(QPen(QColor(150, 102, 60), 0.03, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(0.722, 0.45), QPointF(0.722, 0.15));
    return picture;
}

} // namespace qf::app
