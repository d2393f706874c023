#pragma once

#include <string>

namespace qf::tools {

/// The bytes of a `hues.mul` of 374 blocks: colours of our own around the circle, each block one colour in eight
/// strengths, and greys at the end. Each hue runs from dark to light.
std::string MakeHues();

} // namespace qf::tools
