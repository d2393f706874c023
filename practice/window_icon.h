#pragma once

#include <SDL.h>

namespace qf::practice {

/// Gives a window the program's emblem where the desktop does not take it from the program's file.
void SetIcon(SDL_Window& window);

} // namespace qf::practice
