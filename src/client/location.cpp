#include "client/location.h"

#include <array>
#include <cstddef>

#include "client/client_process.h"
#include "core/little_endian.h"
#include "core/text.h"

namespace qf::client {

namespace {

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
    const auto number = [&buffer](std::size_t at) {
        return static_cast<std::int32_t>(core::ReadLittle32(buffer.data() + at));
    };
    return {number(0), number(4), number(8)};
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
