#include "core/little_endian.h"

#include <gtest/gtest.h>

#include <array>

namespace qf::core {
namespace {

TEST(LittleEndian, TheLowestByteComesFirst)
{
    constexpr std::array bytes{std::byte{0x12}, std::byte{0xA4}, std::byte{0}, std::byte{0xFF}};
    EXPECT_EQ(ReadLittle16(bytes.data()), 0xA412);
    EXPECT_EQ(ReadLittle16(bytes.data() + 2), 0xFF00);
    EXPECT_EQ(ReadLittle32(bytes.data()), 0xFF00A412);
}

TEST(LittleEndian, WhatIsStoredIsRead)
{
    for (const std::uint32_t number : {0U, 1U, 0x80U, 0xFF00U, 0x12345678U, 0xFFFFFFFFU}) {
        std::array<std::byte, 4> bytes{};
        StoreLittle(bytes, number);
        EXPECT_EQ(ReadLittle32(bytes.data()), number);
    }
}

TEST(LittleEndian, StoresAsManyBytesAsThereAre)
{
    std::array<std::byte, 4> bytes{};
    StoreLittle(std::span(bytes).first(2), 0x12345678);
    EXPECT_EQ(ReadLittle32(bytes.data()), 0x5678U);
}

} // namespace
} // namespace qf::core
