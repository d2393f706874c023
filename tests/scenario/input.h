#pragma once

#include <QObject>
#include <QString>

class QAction;
class QWidget;

namespace qf::scenario {

// What a user's hand does to one control, without the question whether a user could reach it. Each gives
// false where the control is of a kind that does not take such input.

/// Gives the control the keyboard focus, also where its window could not have it.
void GiveFocus(QWidget& widget);

/// Replaces the whole text; its change is signalled once, unless it was and is empty.
bool ReplaceText(QWidget& widget, const QString& text);

/// Picks a row of a list.
bool ChooseRow(QWidget& widget, int row);

/// Sets a check box (2 is the grey state), an option or a checkable menu entry.
bool SetCheck(QObject& control, int state);

/// Changes an option or a check box as a click does.
bool ToggleByClick(QObject& control);

bool BringTabForward(QWidget& widget, int tab);
bool ClickCell(QWidget& widget, int row, int column);
bool SetBar(QWidget& widget, int value);
bool FireTimer(QObject& control);

/// Chooses a menu entry, also a disabled one.
void ChooseEntry(QAction& entry);

void TurnWheel(QWidget& widget, bool up);

/// Closes a window by its frame.
void CloseByFrame(QWidget& window);

} // namespace qf::scenario
