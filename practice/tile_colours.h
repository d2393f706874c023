#pragma once

#include <cstdint>

namespace qf::practice::colours {

inline constexpr std::uint32_t DarkWood = 0x7A5230;
inline constexpr std::uint32_t LightWood = 0xB98A55;
inline constexpr std::uint32_t GreyWood = 0x8F8778;
inline constexpr std::uint32_t RedWood = 0x8E4A35;
inline constexpr std::uint32_t Stone = 0x9A9A96;
inline constexpr std::uint32_t DarkStone = 0x6E6E72;
inline constexpr std::uint32_t Marble = 0xE6E4DE;
inline constexpr std::uint32_t Sandstone = 0xD8BC82;
inline constexpr std::uint32_t Brick = 0xA85F48;
inline constexpr std::uint32_t Plaster = 0xDCCFB0;
inline constexpr std::uint32_t Straw = 0xCDB264;
inline constexpr std::uint32_t Leaf = 0x4E8A3A;
inline constexpr std::uint32_t Autumn = 0xC07A2C;
inline constexpr std::uint32_t Bark = 0x6B4A2E;
inline constexpr std::uint32_t Earth = 0x6F5A45;
inline constexpr std::uint32_t DeepWater = 0x3C78B4;
inline constexpr std::uint32_t Gold = 0xE0B83C;
inline constexpr std::uint32_t Metal = 0x84898F;

} // namespace qf::practice::colours
