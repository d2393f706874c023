#include "app/font_start.h"

#include <fontconfig/fontconfig.h>

namespace qf::app {

FontStart::FontStart() : reading_([] { FcInit(); }) {}

} // namespace qf::app
