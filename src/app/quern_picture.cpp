#include "app/quern_picture.h"

#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPixmapCache>
#include <algorithm>
#include <cmath>

namespace qf::app {

namespace {

/// The square of side 1 in which the emblem is drawn, with the pixels that it will have. Below 48 pixels outlines lie
/// on whole pixels and are one of them wide, or nothing of them would be left but a haze.
class Grid {
  public:
    explicit Grid(int size) : size_(size), coarse_(size < 48) {}

    double Pixel() const { return 1.0 / size_; }
    double Outline() const { return coarse_ ? Pixel() : std::max(0.012, 0.75 * Pixel()); }
    bool   IsCoarse() const { return coarse_; }

    /// Whether a stone has too few rows for an outline between its face and its rim.
    bool IsTiny() const { return size_ < 20; }

    /// The place of an outline.
    double Line(double place) const { return coarse_ ? (std::floor(place * size_) + 0.5) / size_ : place; }

    /// The place of an edge between two pixels, and a length of whole pixels.
    double Edge(double place) const { return coarse_ ? std::round(place * size_) / size_ : place; }

  private:
    int  size_;
    bool coarse_;
};

/// One millstone: a disc with a rim. `middle` is the height of its upper face.
void DrawStone(QPainter& painter, const Grid& grid, double middle, double thickness, double radius, const QColor& light,
               const QColor& dark)
{
    const double flat = radius * 0.46;
    const double left = grid.Line(0.5 - radius);
    const QRectF face(QPointF(left, grid.Line(middle - flat)), QPointF(1 - left, grid.Line(middle + flat)));
    const double height = grid.Edge(thickness);
    const double top = face.center().y();

    QLinearGradient side(face.left(), 0, face.right(), 0);
    side.setColorAt(0, dark);
    side.setColorAt(0.35, light.darker(112));
    side.setColorAt(1, dark.darker(130));
    painter.setBrush(side);
    painter.drawEllipse(face.translated(0, height));
    painter.fillRect(QRectF(face.left(), top, face.width(), height), side);
    painter.drawLine(QPointF(face.left(), top), QPointF(face.left(), top + height));
    painter.drawLine(QPointF(face.right(), top), QPointF(face.right(), top + height));

    QLinearGradient upper(face.topLeft(), face.bottomRight());
    upper.setColorAt(0, light.lighter(112));
    upper.setColorAt(1, light.darker(110));
    painter.setBrush(upper);
    painter.drawEllipse(face);
    if (grid.IsTiny()) {
        const double half = grid.Pixel() / 2;
        painter.save();
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(face.adjusted(half, half, -half, half));
        painter.restore();
    }
}

/// The handle, an upright line with a highlight on its left half.
void DrawHandle(QPainter& painter, const Grid& grid, double x, double top, double bottom)
{
    const QColor wood(96, 62, 34);
    const QColor highlight(150, 102, 60);
    if (grid.IsCoarse()) {
        const double width = std::max(2 * grid.Pixel(), grid.Edge(0.07));
        const QRectF handle(QPointF(grid.Edge(x) - grid.Pixel(), grid.Edge(top)),
                            QSizeF(width, grid.Edge(bottom) - grid.Edge(top)));
        painter.fillRect(handle, wood);
        painter.fillRect(QRectF(handle.topLeft(), QSizeF(grid.Pixel(), handle.height())), highlight);
        return;
    }
    painter.setPen(QPen(wood, 0.07, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, bottom), QPointF(x, top));
    painter.setPen(QPen(highlight, 0.03, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x - 0.008, bottom - 0.02), QPointF(x - 0.008, top + 0.01));
}

/// The emblem in as many pixels as the screen has for it.
QPixmap DrawPicture(int size, double ratio)
{
    const Grid grid(size);
    QPixmap    picture(qRound(size * ratio), qRound(size * ratio));
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(size, size);
    painter.setPen(QPen(QColor(58, 52, 46), grid.Outline()));

    DrawStone(painter, grid, 0.61, 0.14, 0.46, QColor(150, 142, 130), QColor(104, 97, 88));
    DrawStone(painter, grid, 0.40, 0.17, 0.37, QColor(196, 188, 174), QColor(134, 126, 114));

    painter.setBrush(QColor(70, 62, 54));
    if (grid.IsCoarse()) {
        painter.setPen(Qt::NoPen);
    }
    const double left = grid.Edge(0.40);
    painter.drawEllipse(QRectF(QPointF(left, grid.Edge(0.36)), QPointF(1 - left, grid.Edge(0.46))));
    DrawHandle(painter, grid, 0.73, 0.08, 0.42);
    return picture;
}

} // namespace

QPixmap QuernPicture(int size)
{
    const double ratio = qGuiApp->devicePixelRatio();
    const auto   key = QStringLiteral("quern %1 %2").arg(size).arg(ratio);
    QPixmap      picture;
    if (!QPixmapCache::find(key, &picture)) {
        picture = DrawPicture(size, ratio);
        QPixmapCache::insert(key, picture);
    }
    return picture;
}

QIcon QuernIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64}) {
        icon.addPixmap(QuernPicture(size));
    }
    return icon;
}

} // namespace qf::app
