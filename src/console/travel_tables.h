#pragma once

#include <span>
#include <string_view>

namespace qf::console {

/// A named place of the game world. Its coordinates are texts, since that is what the boxes take.
struct Place {
    /// The entry of its list; empty where the list has none for it.
    std::string_view name;

    std::string_view x;
    std::string_view y;
    std::string_view z;
};

std::span<const Place> Towns();
std::span<const Place> Dungeons();
std::span<const Place> Moongates();
std::span<const Place> Shrines();
std::span<const Place> SpecialLocations();

} // namespace qf::console
