#pragma once

#include <QApplication>
#include <QStyle>

namespace qf::ui {

/// Before the application is made: asks the desktop for its dark colours as well, which Windows gives on demand alone.
void AskForDesktopColours();

/// Draws with the desktop's colours, also when they change in the run. Windows' own style knows light ones alone, so
/// that dark ones are drawn by Qt's.
void FollowDesktopColours(QApplication& application);

/// Qt's own style, with outlines that are seen on dark grounds too. It belongs to whom it is set for.
QStyle* MakeOutlinedStyle();

} // namespace qf::ui
