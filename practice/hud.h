#pragma once

#include <string_view>

#include "practice/canvas.h"
#include "practice/session.h"

namespace qf::practice {

/// The most pixels at the bottom of the canvas that the lines take.
int HudHeight();

/// Draws the last lines, the line that is being typed and the status line at the bottom of the canvas.
void DrawHud(Canvas& canvas, const Session& session, std::string_view typed, bool cutAway);

} // namespace qf::practice
