#include "practice/window_icon.h"

namespace qf::practice {

// Windows shows the icon of the program's file.
void SetIcon(SDL_Window&) {}

} // namespace qf::practice
