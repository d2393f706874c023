#pragma once

#include <QWidget>

namespace qf::ui {

/// Gives each control of a panel that has no name of its own for a screen reader the name that the eye finds: its
/// label's, or its tool tip where its caption is a mark, or its frame's caption.
void NameForScreenReaders(QWidget& panel);

/// Tells screen readers what the program's own kinds of controls are: a label that is clicked is a button, a surface
/// is a picture. Once a run.
void InstallSpokenRoles();

} // namespace qf::ui
