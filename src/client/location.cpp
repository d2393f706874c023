#include "client/location.h"

#include <array>
#include <cstddef>
#include <span>

#include "client/client_process.h"
#include "core/text.h"

namespace qf::client {

namespace {

std::int32_t LittleEndian32(std::span<const std::byte, 4> bytes)
{
    std::uint32_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;) {
        number = number << 8 | std::to_integer<std::uint32_t>(bytes[i]);
    }
    return static_cast<std::int32_t>(number);
}

PlayerLocation ReadTriple(ClientPlatform& platform, std::int32_t calibration)
{
    const WindowHandle client = FindClassicClient(platform);
    if (client == 0) {
        return UnknownLocation;
    }
    OpenedProcess process(platform, client);

    // A calibration is a 32-bit address: one in the upper half is stored as a negative number.
    const auto                        address = static_cast<std::uint32_t>(calibration);
    std::array<std::byte, TripleSize> buffer{};
    if (!process.Read(address, buffer)) {
        return UnknownLocation;
    }
    const std::span<const std::byte, TripleSize> triple(buffer);
    return {LittleEndian32(triple.subspan<0, 4>()), LittleEndian32(triple.subspan<4, 4>()),
            LittleEndian32(triple.subspan<8, 4>())};
}

} // namespace

PlayerLocation GetPlayerLocation(ClientPlatform& platform, std::int32_t calibration, bool usingClassicUO)
{
    if (calibration == 0) {
        return UnknownLocation;
    }
    if (usingClassicUO) {
        if (const auto answer = AskAssist(platform)) {
            return {0, core::HiWord(*answer), core::LoWord(*answer)};
        }
    }
    return ReadTriple(platform, calibration);
}

} // namespace qf::client
