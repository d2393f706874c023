#pragma once

#include <QImage>
#include <QWidget>

#include "core/pixel_surface.h"

namespace qf::ui {

/// A picture on a panel: it shows the pixels of a surface that tiles are drawn on, as large as that surface.
class PictureSurface : public QWidget {
  public:
    explicit PictureSurface(QWidget* parent = nullptr,
                            QSize    size = {core::PixelSurface::DefaultWidth, core::PixelSurface::DefaultHeight});

    /// What is drawn on. Shown by `Refresh` at once, otherwise by `update`.
    core::PixelSurface& Surface() { return surface_; }

    /// The pixels as they are; good until the surface is drawn on or resized.
    QImage Image() const;

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    class Pixels final : public core::PixelSurface {
      public:
        Pixels(PictureSurface& owner, QSize size) : PixelSurface(size.width(), size.height()), owner_(owner) {}
        void Refresh() override;

      private:
        void Resized() override;

        PictureSurface& owner_;
    };

    Pixels surface_;
};

/// A picture that changes its size, kept at the upper left of a place of the largest size, so that nothing
/// around it moves. The place is sunken and white.
QWidget* MakePicturePlace(QWidget* parent, PictureSurface& picture);

} // namespace qf::ui
