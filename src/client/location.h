#pragma once

#include <cstdint>

#include "client/platform.h"

namespace qf::client {

/// A place in the game world in the order in which the client's memory holds it: Z in height units,
/// Y and X in tiles. -1, -1, -1 means not known.
struct PlayerLocation {
    std::int32_t z = 0;
    std::int32_t y = 0;
    std::int32_t x = 0;

    friend bool operator==(const PlayerLocation&, const PlayerLocation&) = default;
};

inline constexpr PlayerLocation UnknownLocation{-1, -1, -1};

/// Reads the player's place: from the assist window where ClassicUO is in use and the window is there
/// (Z is then 0), otherwise from the client's memory at the calibrated address. A calibration of 0
/// touches no window. Throws RuntimeError 6 where the assist answer's high word does not fit.
PlayerLocation GetPlayerLocation(ClientPlatform& platform, std::int32_t calibration, bool usingClassicUO);

} // namespace qf::client
