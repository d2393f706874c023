#pragma once

#include <QPixmap>

namespace qf::app {

/// The program's emblem, a quern seen from above at an angle, drawn at this size in pixels.
QPixmap QuernPicture(int size);

} // namespace qf::app
