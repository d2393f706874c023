#pragma once

#include <QComboBox>
#include <string_view>

namespace qf::console {

/// A drop-down list that shows a text of its own until a row is picked. A click anywhere on it drops it down;
/// typing a part of an entry offers the entries that hold it, and what leads to none is forgotten.
class PickList final : public QComboBox {
  public:
    PickList(QWidget* parent, std::string_view name, std::string_view initialText, const QStringList& rows);

  protected:
    bool eventFilter(QObject* object, QEvent* event) override;

  private:
    QString initialText_;
    bool    pressed_ = false;
};

} // namespace qf::console
