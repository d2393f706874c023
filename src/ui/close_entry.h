#pragma once

class QWidget;

namespace qf::ui {

/// Takes the Close entry and the separator above it out of the menu of a shown window's frame. Nothing where
/// windows have no such menu, and nothing when it is done already.
void RemoveCloseEntry(QWidget& window);

} // namespace qf::ui
