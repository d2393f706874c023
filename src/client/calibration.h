#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>

#include "client/client_process.h"
#include "client/platform.h"

namespace qf::client {

// The part of the client's memory that is searched: 32 MiB in blocks, each read with as many bytes of the
// next one as a triple that straddles the two needs.
inline constexpr std::uint64_t SearchStart = 0x400000;
inline constexpr std::size_t   SearchBlock = 0x8000;
inline constexpr int           SearchBlocks = 1024;
inline constexpr std::size_t   SearchRead = SearchBlock + TripleSize - 1;

/// The first offset at which the 12 bytes stand in the bytes, or their number where they stand nowhere.
std::size_t FindTriple(std::span<const std::byte> bytes, std::span<const std::byte, TripleSize> triple);

/// Searches the client's memory for the player's place and gives its lowest address, 0 where it is not
/// found before the first byte that cannot be read, -1 where no client is there. With ClassicUO and an
/// assist window it is the window's answer as it stands. `yieldEvents` runs before each block is read.
std::int32_t CalibrateLocation(ClientPlatform& platform, std::int32_t x, std::int32_t y, std::int32_t z,
                               bool usingClassicUO, const std::function<void()>& yieldEvents = {});

} // namespace qf::client
