#pragma once

#include <QLabel>

namespace qf::ui {

/// A label or a picture that is clicked like a button. The Tab key comes to it, which is seen, and Space and Enter
/// click it.
class ClickLabel : public QLabel {
  public:
    explicit ClickLabel(const QString& text, QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
};

} // namespace qf::ui
