#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace qf::core {

// Numbers whose lowest byte comes first, as the client's files and its memory hold them.

/// The number in the two, or the four, bytes that begin here.
inline std::uint16_t ReadLittle16(const std::byte* bytes)
{
    return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[0]) | std::to_integer<unsigned>(bytes[1]) << 8);
}

inline std::uint32_t ReadLittle32(const std::byte* bytes)
{
    return ReadLittle16(bytes) | static_cast<std::uint32_t>(ReadLittle16(bytes + 2)) << 16;
}

/// Fills the bytes with the number. One that is too large for them loses its highest bytes.
inline void StoreLittle(std::span<std::byte> bytes, std::uint32_t number)
{
    for (auto& byte : bytes) {
        byte = static_cast<std::byte>(number & 0xFF);
        number >>= 8;
    }
}

} // namespace qf::core
