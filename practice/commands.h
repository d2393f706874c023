#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "practice/world.h"

namespace qf::practice {

enum class Verb {
    Unknown,         ///< no command of the practice world
    Flawed,          ///< a known word with fields that make no sense
    PlaceArea,       ///< tile, tilew with a box
    PickArea,        ///< tile, rndtile without a box: two clicks
    PickTile,        ///< add, radd: one click places one tile
    PickRemove,      ///< remove, rremove
    WipeInside,      ///< wipe with a box
    WipeOutside,     ///< iwipe with a box
    WipeAll,         ///< wipe all
    PickWipeInside,  ///< wipe: two clicks
    PickWipeOutside, ///< iwipe: two clicks
    Go,
    Where,
};

/// One command line, understood. Which fields count depends on the verb; `Go` uses `box.x1`, `box.y1` and `z`.
struct Command {
    Verb          verb = Verb::Unknown;
    std::uint16_t id = 0;
    Box           box;
    int           z = 0;
    bool          repeats = false; ///< radd, rremove: stays until it is cancelled
    std::string   flaw;            ///< for `Flawed`: what is wrong, a sentence for the user
};

/// Reads a command without its prefix, in either dialect. Words are told apart by blanks of any number,
/// and their case does not count. A tile number is "0x04a9", "04 a9" (also "4 a9") or "0x04 a9".
Command ParseCommand(std::string_view text);

} // namespace qf::practice
