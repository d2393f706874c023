#pragma once

#include <QImage>
#include <QWidget>

namespace qf::ui {

/// A picture that tiles are drawn on: plain pixels, no scaling. A new one is 121 by 173 pixels, white.
class PictureSurface : public QWidget {
  public:
    static constexpr int DefaultWidth = 121;
    static constexpr int DefaultHeight = 173;

    explicit PictureSurface(QWidget* parent = nullptr);

    const QImage& Image() const { return image_; }

    /// Sets the background colour, which erases what the surface shows.
    void SetBackColour(const QColor& colour);

    /// Makes the surface this large, in pixels; what it shows stays at the upper left.
    void SetSurfaceSize(int width, int height);

    /// Plots one pixel; one that lies outside is left out. Shown at the next repaint.
    void Plot(int x, int y, QRgb colour);

    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QImage image_;
    QColor backColour_ = Qt::white;
};

} // namespace qf::ui
