#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qf::world {

/// The name of an item type, "Unknown" for a number that has none. Blanks at the end of a name are part of it.
std::string_view GetTypeFromNum(std::int32_t number);

/// A tile number as two byte-pairs, "1B 4D"; of more than four digits the first two and the last two.
std::string GetHexIDFromNum(std::int32_t number);

} // namespace qf::world
