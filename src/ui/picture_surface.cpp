#include "ui/picture_surface.h"

#include <QPainter>

namespace qf::ui {

PictureSurface::PictureSurface(QWidget* parent)
    : QWidget(parent), image_(DefaultWidth, DefaultHeight, QImage::Format_RGB32)
{
    image_.fill(backColour_);
    setFixedSize(image_.size());
}

void PictureSurface::SetBackColour(const QColor& colour)
{
    backColour_ = colour;
    image_.fill(colour);
    update();
}

void PictureSurface::SetSurfaceSize(int width, int height)
{
    if (image_.size() == QSize(width, height)) {
        return;
    }
    QImage resized(width, height, QImage::Format_RGB32);
    resized.fill(backColour_);
    QPainter(&resized).drawImage(0, 0, image_);
    image_ = resized;
    setFixedSize(image_.size());
    update();
}

void PictureSurface::Plot(int x, int y, QRgb colour)
{
    if (image_.valid(x, y)) {
        image_.setPixel(x, y, colour);
        update();
    }
}

QSize PictureSurface::sizeHint() const
{
    return image_.size();
}

void PictureSurface::paintEvent(QPaintEvent*)
{
    QPainter(this).drawImage(0, 0, image_);
}

} // namespace qf::ui
