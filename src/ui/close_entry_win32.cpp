#include <QWidget>

#include <windows.h>

#include "ui/close_entry.h"

namespace qf::ui {

namespace {

// Restore, Move, Size, Minimize and Maximize come before them.
constexpr int SeparatorPosition = 5;
constexpr int ClosePosition = 6;

} // namespace

void RemoveCloseEntry(QWidget& window)
{
    // The menu belongs to the native window, which Qt makes anew when it changes the window's flags.
    auto*       native = reinterpret_cast<HWND>(window.winId());
    const HMENU menu = GetSystemMenu(native, FALSE);
    if (menu != nullptr && GetMenuItemID(menu, ClosePosition) == SC_CLOSE) {
        RemoveMenu(menu, ClosePosition, MF_BYPOSITION);
        RemoveMenu(menu, SeparatorPosition, MF_BYPOSITION);
        DrawMenuBar(native);
    }
}

} // namespace qf::ui
