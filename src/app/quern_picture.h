#pragma once

#include <QIcon>
#include <QPixmap>

namespace qf::app {

/// The program's emblem, a quern seen from above at an angle, drawn at this size in pixels.
QPixmap QuernPicture(int size);

/// The emblem as the icon of windows, drawn anew for each size at which desktops show one.
QIcon QuernIcon();

} // namespace qf::app
