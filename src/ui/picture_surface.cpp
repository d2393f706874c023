#include "ui/picture_surface.h"

#include <QFrame>
#include <QPainter>
#include <QVBoxLayout>

namespace qf::ui {

namespace {

/// The surface's pixels seen as an image, not copied.
QImage View(const core::PixelSurface& surface)
{
    if (surface.Pixels().empty()) {
        return {};
    }
    return {reinterpret_cast<const uchar*>(surface.Pixels().data()), surface.Width(), surface.Height(),
            static_cast<qsizetype>(surface.Width()) * static_cast<qsizetype>(sizeof(std::uint32_t)),
            QImage::Format_RGB32};
}

} // namespace

void PictureSurface::Pixels::Refresh()
{
    owner_.repaint();
}

void PictureSurface::Pixels::Resized()
{
    owner_.setFixedSize(Width(), Height());
    owner_.update();
}

PictureSurface::PictureSurface(QWidget* parent, QSize size) : QWidget(parent), surface_(*this, size)
{
    setFixedSize(surface_.Width(), surface_.Height());
}

QImage PictureSurface::Image() const
{
    return View(surface_);
}

QSize PictureSurface::sizeHint() const
{
    return {surface_.Width(), surface_.Height()};
}

void PictureSurface::paintEvent(QPaintEvent*)
{
    QPainter(this).drawImage(0, 0, Image());
}

QWidget* MakePicturePlace(QWidget* parent, PictureSurface& picture)
{
    auto* place = new QFrame(parent);
    place->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    place->setAutoFillBackground(true);
    auto palette = place->palette();
    palette.setColor(place->backgroundRole(), Qt::white);
    place->setPalette(palette);
    auto* layout = new QVBoxLayout(place);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(&picture, 0, Qt::AlignTop | Qt::AlignLeft);
    const int frame = 2 * place->frameWidth();
    place->setFixedSize(core::PixelSurface::DefaultWidth + frame, core::PixelSurface::DefaultHeight + frame);
    return place;
}

} // namespace qf::ui
