#include "client/calibration.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

#include "core/little_endian.h"

namespace qf::client {

namespace {

/// How many offsets are tested at a time.
constexpr std::size_t Stride = 256;

std::array<std::byte, TripleSize> TripleOf(std::int32_t x, std::int32_t y, std::int32_t z)
{
    std::array<std::byte, TripleSize> triple{};
    const std::span<std::byte>        bytes(triple);
    core::StoreLittle(bytes.subspan(0, 4), static_cast<std::uint32_t>(z));
    core::StoreLittle(bytes.subspan(4, 4), static_cast<std::uint32_t>(y));
    core::StoreLittle(bytes.subspan(8, 4), static_cast<std::uint32_t>(x));
    return triple;
}

/// Whether the triple may begin at one of `Stride` offsets, told by the low halves of Y and X. Each offset
/// costs the same, whatever the memory holds: a client's memory is full of runs of one byte, on which a search
/// that leaps from byte to byte would crawl.
bool MayHold(const std::byte* bytes, std::span<const std::byte, TripleSize> triple)
{
    const auto    y0 = triple[4];
    const auto    y1 = triple[5];
    const auto    x0 = triple[8];
    const auto    x1 = triple[9];
    unsigned char least = 0xFF;
    for (std::size_t i = 0; i < Stride; ++i) {
        const auto differs = (bytes[i + 4] ^ y0) | (bytes[i + 5] ^ y1) | (bytes[i + 8] ^ x0) | (bytes[i + 9] ^ x1);
        least = std::min(least, static_cast<unsigned char>(differs));
    }
    return least == 0;
}

} // namespace

std::size_t FindTriple(std::span<const std::byte> bytes, std::span<const std::byte, TripleSize> triple)
{
    std::size_t offset = 0;
    while (offset + TripleSize <= bytes.size()) {
        const bool whole = offset + Stride + TripleSize - 1 <= bytes.size();
        if (!whole || MayHold(bytes.data() + offset, triple)) {
            const std::size_t stop = whole ? offset + Stride : bytes.size() - TripleSize + 1;
            for (std::size_t start = offset; start < stop; ++start) {
                if (std::memcmp(bytes.data() + start, triple.data(), TripleSize) == 0) {
                    return start;
                }
            }
        }
        offset += Stride;
    }
    return bytes.size();
}

std::int32_t CalibrateLocation(ClientPlatform& platform, std::int32_t x, std::int32_t y, std::int32_t z,
                               bool usingClassicUO, const std::function<void()>& yieldEvents)
{
    if (usingClassicUO) {
        if (const auto answer = AskAssist(platform)) {
            return *answer;
        }
    }
    const auto         triple = TripleOf(x, y, z);
    const WindowHandle client = FindClassicClient(platform);
    if (client == 0) {
        return -1;
    }
    OpenedProcess          process(platform, client);
    std::vector<std::byte> buffer(SearchRead);
    for (int block = 0; block < SearchBlocks; ++block) {
        if (yieldEvents) {
            yieldEvents();
        }
        const std::uint64_t address = SearchStart + static_cast<std::uint64_t>(block) * SearchBlock;
        if (!process.Read(address, buffer)) {
            break;
        }
        if (const std::size_t offset = FindTriple(buffer, triple); offset < buffer.size()) {
            return static_cast<std::int32_t>(address + offset);
        }
    }
    return 0;
}

} // namespace qf::client
