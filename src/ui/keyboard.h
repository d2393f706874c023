#pragma once

#include <QWidget>

namespace qf::ui {

/// Lets the Tab key go through a panel as it is read: in the order in which its layouts were filled, frame by frame
/// and page by page. Parts without a layout keep the order in which they were made.
void SetReadingOrder(QWidget& panel);

/// The Tab key comes to one option of a group and the arrows lead on from there. Makes sure that this one can be seen
/// and used, and that it is the chosen one where one is chosen.
void KeepOptionsInReach(QWidget& panel);

} // namespace qf::ui
