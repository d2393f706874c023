#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// What a panel shows where no way of adding is selected.
inline constexpr std::string_view NoMethodText = "Please select an add method!";

/// The ways of adding cave tiles and shore tiles, by index of their option.
enum RandomTileMethod { RandomPointAndClick = 0, RandomCoordinates = 1, RandomSingleItem = 2 };

/// A box of map tiles as the user typed its corners: never swapped, clipped or checked for size.
struct Area {
    std::int32_t x1;
    std::int32_t x2;
    std::int32_t y1;
    std::int32_t y2;
};

/// The texts of the boxes in which a panel takes its corners and its base height.
struct AreaTexts {
    std::string x1;
    std::string y1;
    std::string x2;
    std::string y2;
    std::string currentHeight;
};

/// The corners as whole tile numbers. Throws RuntimeError 13 or 6.
Area ToArea(const AreaTexts& texts);

/// One end of a strip of a box: the first or second corner's coordinate, moved by so many tiles.
struct BoxEnd {
    int corner;
    int offset;
};

/// The strip of a box that lies between the given ends. Throws RuntimeError 6 where a number leaves 32 bits.
Area StripOf(const Area& box, BoxEnd x1, BoxEnd x2, BoxEnd y1, BoxEnd y2);

/// "<word> <id> <x1> <x2> <y1> <y2> <z>", the word by generation; nothing for a generation that is
/// neither. An empty ID goes out as it is, between two blanks.
void SendArea(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id, const Area& area,
              std::int32_t z);

/// Lays a tile over the corners and at the height that the boxes hold; a box without a number is told.
void SendTypedArea(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id,
                   const AreaTexts& corners, const std::string& height);

/// "tile <id>" in both generations: the server then asks for the corners in the client.
void SendPointAndClick(core::Outlet& outlet, std::string_view id);

/// "add <id>" under 0.70.x and "radd <id>" under 0.9x.x: the client then waits for one target.
void SendDirectAdd(core::Outlet& outlet, core::ServerGeneration generation, std::string_view id);

/// "remove" under 0.70.x and "rremove" under 0.9x.x.
void SendRemove(core::Outlet& outlet, core::ServerGeneration generation);

/// Runs what converts a panel's boxes and sends. A type error shows `typeError` as an information box; any
/// other run-time error shows its number and description. What was sent before stays sent.
void RunTrapped(core::Outlet& outlet, std::string_view typeError, const std::function<void()>& run);

} // namespace qf::construction
