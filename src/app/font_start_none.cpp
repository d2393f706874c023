#include "app/font_start.h"

namespace qf::app {

FontStart::FontStart() = default;

} // namespace qf::app
