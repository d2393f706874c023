#pragma once

#include <QApplication>
#include <QPalette>
#include <QStyle>

#include "ui/desktop_colours.h"

namespace qf::test {

enum class Theme { Light, Dark };

/// The colours of a desktop in its dark mode.
inline QPalette DarkPalette()
{
    const QColor text(0xF0, 0xF0, 0xF0);
    const QColor faded(0x8C, 0x8C, 0x8C);
    QPalette     palette(QColor(0x35, 0x35, 0x35), QColor(0x2B, 0x2B, 0x2B));
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3A, 0x3D, 0x41));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faded);
    palette.setColor(QPalette::Highlight, QColor(0x2A, 0x62, 0xA8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faded);
    }
    return palette;
}

/// Shows the program as a desktop in this mode does.
inline void ApplyTheme(Theme theme)
{
    QApplication::setStyle(ui::MakeOutlinedStyle());
    QApplication::setPalette(theme == Theme::Dark ? DarkPalette() : QApplication::style()->standardPalette());
    QApplication::processEvents();
}

} // namespace qf::test
