#include "client/calibration.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "client/location.h"
#include "client/platform/simulated/simulated_platform.h"
#include "core/text.h"

namespace qf::client {
namespace {

using Kind = PlatformCall::Kind;

constexpr auto Start = static_cast<std::int32_t>(SearchStart);
constexpr auto Block = static_cast<std::int32_t>(SearchBlock);

class CalibrationTest : public testing::Test {
  protected:
    ProcessId AddClient(std::uint64_t length, const std::string& className = "Ultima Online", bool refuses = false)
    {
        const ProcessId process = platform_.AddProcess(refuses);
        platform_.MapMemory(process, SearchStart, length);
        platform_.AddWindow(className, "", process);
        return process;
    }

    void Place(ProcessId process, std::int32_t address, PlayerLocation place)
    {
        platform_.Poke(process, static_cast<std::uint64_t>(address), place.z);
        platform_.Poke(process, static_cast<std::uint64_t>(address) + 4, place.y);
        platform_.Poke(process, static_cast<std::uint64_t>(address) + 8, place.x);
    }

    void AddAssist(std::int32_t answer)
    {
        platform_.SetAnswer(platform_.AddWindow("UOASSIST-TP-MSG-WND", ""), message::AssistPosition, answer);
    }

    std::int32_t Search(PlayerLocation place, bool usingClassicUO = false)
    {
        return CalibrateLocation(platform_, place.x, place.y, place.z, usingClassicUO);
    }

    std::vector<PlatformCall> Calls(Kind kind) const
    {
        std::vector<PlatformCall> calls;
        std::ranges::copy_if(platform_.Log(), std::back_inserter(calls),
                             [kind](const PlatformCall& call) { return call.kind == kind; });
        return calls;
    }

    SimulatedPlatform platform_;
};

constexpr PlayerLocation Somewhere{-5, 2000, 1000};

TEST_F(CalibrationTest, TripleAtTheVeryStartIsFound)
{
    Place(AddClient(SearchRead), Start, Somewhere);
    EXPECT_EQ(Search(Somewhere), 0x400000);
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(CalibrationTest, TripleNeedNotBeAligned)
{
    Place(AddClient(SearchRead), Start + 12347, Somewhere);
    EXPECT_EQ(Search(Somewhere), Start + 12347);
}

TEST_F(CalibrationTest, TripleThatStraddlesTwoBlocksIsFoundThroughTheExtraBytes)
{
    for (std::int32_t before = 1; before < static_cast<std::int32_t>(TripleSize); ++before) {
        platform_.RemoveAllWindows();
        Place(AddClient(SearchRead), Start + Block - before, Somewhere);
        EXPECT_EQ(Search(Somewhere), Start + Block - before);
    }
}

TEST_F(CalibrationTest, TripleExactlyAtTheEndOfABlockIsFound)
{
    Place(AddClient(SearchRead), Start + Block - static_cast<std::int32_t>(TripleSize), Somewhere);
    EXPECT_EQ(Search(Somewhere), Start + Block - static_cast<std::int32_t>(TripleSize));
}

TEST_F(CalibrationTest, TripleAtTheStartOfTheSecondBlockIsFoundThere)
{
    Place(AddClient(2 * SearchBlock + TripleSize - 1), Start + Block, Somewhere);
    EXPECT_EQ(Search(Somewhere), Start + Block);
    EXPECT_EQ(Calls(Kind::ReadMemory).size(), 2U);
}

TEST_F(CalibrationTest, OfTwoPlacesTheLowerAddressIsGiven)
{
    const auto process = AddClient(3 * SearchBlock);
    Place(process, Start + Block + 100, Somewhere);
    Place(process, Start + 900, Somewhere);
    Place(process, Start + 500, Somewhere);
    EXPECT_EQ(Search(Somewhere), Start + 500);
}

TEST_F(CalibrationTest, OrderInTheMemoryIsZYX)
{
    const auto process = AddClient(SearchRead);
    Place(process, Start + 40, {Somewhere.z, Somewhere.x, Somewhere.y});
    EXPECT_EQ(Search(Somewhere), 0);
}

TEST_F(CalibrationTest, EachReadIsElevenBytesLongerThanItsBlock)
{
    AddClient(2 * SearchBlock + TripleSize - 1);
    EXPECT_EQ(Search(Somewhere), 0);
    const auto reads = Calls(Kind::ReadMemory);
    ASSERT_EQ(reads.size(), 3U);
    for (std::size_t block = 0; block < reads.size(); ++block) {
        EXPECT_EQ(reads[block].numbers[1], 0x400000 + static_cast<std::int64_t>(block) * 0x8000);
        EXPECT_EQ(reads[block].numbers[2], 32779);
    }
}

TEST_F(CalibrationTest, OneFailedReadEndsTheSearchHoweverMuchLiesBeyond)
{
    const auto process = AddClient(SearchRead);
    platform_.MapMemory(process, SearchStart + 4 * SearchBlock, 4 * SearchBlock);
    Place(process, Start + 5 * Block, Somewhere);
    EXPECT_EQ(Search(Somewhere), 0);
    EXPECT_EQ(Calls(Kind::ReadMemory).size(), 2U);
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(CalibrationTest, BlockThatIsShortByOneByteIsNotSearched)
{
    Place(AddClient(SearchRead - 1), Start, Somewhere);
    EXPECT_EQ(Search(Somewhere), 0);
}

TEST_F(CalibrationTest, SearchEndsAfter1024Blocks)
{
    const auto process = AddClient(static_cast<std::uint64_t>(SearchBlocks + 2) * SearchBlock);
    Place(process, 0x2400000, Somewhere);
    int yields = 0;
    EXPECT_EQ(CalibrateLocation(platform_, 1000, 2000, -5, false, [&yields] { ++yields; }), 0);
    EXPECT_EQ(yields, 1024);
    EXPECT_EQ(Calls(Kind::ReadMemory).size(), 1024U);
    Place(process, 0x2400000 - 1, Somewhere);
    EXPECT_EQ(Search(Somewhere), 0x2400000 - 1);
}

TEST_F(CalibrationTest, EventsAreYieldedBeforeEachRead)
{
    AddClient(2 * SearchBlock + TripleSize - 1);
    std::vector<std::size_t> readsAtYield;
    CalibrateLocation(platform_, 1, 2, 3, false, [&] { readsAtYield.push_back(Calls(Kind::ReadMemory).size()); });
    EXPECT_EQ(readsAtYield, (std::vector<std::size_t>{0, 1, 2}));
}

TEST_F(CalibrationTest, NoClientIsMinusOne)
{
    EXPECT_EQ(Search(Somewhere), -1);
    EXPECT_TRUE(Calls(Kind::OpenProcess).empty());
}

TEST_F(CalibrationTest, ProcessThatRefusesIsZero)
{
    AddClient(SearchRead, "Ultima Online 3D", true);
    EXPECT_EQ(Search(Somewhere), 0);
}

TEST_F(CalibrationTest, AssistAnswerIsGivenAsItStands)
{
    Place(AddClient(SearchRead), Start, Somewhere);
    AddAssist(567 << 16 | 1234);
    EXPECT_EQ(Search(Somewhere, true), 567 << 16 | 1234);
    EXPECT_TRUE(Calls(Kind::OpenProcess).empty());
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, true), (PlayerLocation{0, 567, 1234}));
}

TEST_F(CalibrationTest, AssistAnswerWithAnXOfZeroHasAnEmptyLowWord)
{
    AddAssist(567 << 16);
    EXPECT_EQ(core::LoWord(Search({}, true)), 0);
}

TEST_F(CalibrationTest, AssistIsNotAskedWithoutClassicUO)
{
    AddAssist(7);
    EXPECT_EQ(Search(Somewhere), -1);
    EXPECT_TRUE(Calls(Kind::Send).empty());
}

TEST_F(CalibrationTest, MissingAssistLeadsToTheMemory)
{
    const auto process = AddClient(SearchRead);
    for (std::int32_t address = Start; address < Start + 96; address += 4) {
        platform_.Poke(process, static_cast<std::uint64_t>(address), -1);
    }
    EXPECT_EQ(Search({}, true), Start + 96);
}

TEST_F(CalibrationTest, MissingAssistAndClientIsMinusOneWhoseLowWordIsNotZero)
{
    EXPECT_EQ(Search({}, true), -1);
    EXPECT_EQ(core::LoWord(-1), -1);
    EXPECT_EQ(core::HiWord(-1), -1);
    EXPECT_EQ(core::LoWord(0x8000), -32768);
}

TEST_F(CalibrationTest, WhatWasFoundIsWhatTheLocationIsReadFrom)
{
    const auto process = AddClient(2 * SearchBlock + TripleSize - 1);
    Place(process, Start + 40000, Somewhere);
    const auto calibration = Search(Somewhere);
    Place(process, Start + 40000, {20, 1, 2});
    EXPECT_EQ(GetPlayerLocation(platform_, calibration, false), (PlayerLocation{20, 1, 2}));
}

/// The search as it would be written without a thought for speed.
std::size_t FindByteByByte(std::span<const std::byte> bytes, std::span<const std::byte, TripleSize> triple)
{
    for (std::size_t offset = 0; offset + TripleSize <= bytes.size(); ++offset) {
        std::size_t same = 0;
        while (same < TripleSize && bytes[offset + same] == triple[same]) {
            ++same;
        }
        if (same == TripleSize) {
            return offset;
        }
    }
    return bytes.size();
}

TEST(FindTriple, AgreesWithTheSearchByteByByte)
{
    std::mt19937 draw(20250); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    const auto   below = [&draw](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(draw);
    };
    int found = 0;
    for (int round = 0; round < 3000; ++round) {
        // Few different bytes make near misses and several places common.
        const std::size_t                 kinds = 1 + below(round % 3 == 0 ? 256 : 3);
        std::vector<std::byte>            bytes(below(round % 10 == 0 ? SearchRead + 1 : 1200));
        std::array<std::byte, TripleSize> triple{};
        std::ranges::generate(bytes, [&] { return static_cast<std::byte>(below(kinds)); });
        std::ranges::generate(triple, [&] { return static_cast<std::byte>(below(kinds)); });
        if (bytes.size() >= TripleSize) {
            for (std::size_t places = below(3); places > 0; --places) {
                std::memcpy(bytes.data() + below(bytes.size() - TripleSize + 1), triple.data(), TripleSize);
            }
        }
        const auto expected = FindByteByByte(bytes, triple);
        ASSERT_EQ(FindTriple(bytes, triple), expected) << "round " << round;
        found += expected < bytes.size();
    }
    EXPECT_GT(found, 500);
    EXPECT_LT(found, 2900);
}

TEST(FindTriple, EveryOffsetOfABlockIsSeen)
{
    const std::array<std::byte, TripleSize> triple{std::byte{1}, std::byte{2},  std::byte{3},  std::byte{4},
                                                   std::byte{5}, std::byte{6},  std::byte{7},  std::byte{8},
                                                   std::byte{9}, std::byte{10}, std::byte{11}, std::byte{12}};
    for (std::size_t size = TripleSize; size < 1100; size += 61) {
        for (std::size_t offset = 0; offset + TripleSize <= size; ++offset) {
            std::vector<std::byte> bytes(size);
            std::memcpy(bytes.data() + offset, triple.data(), TripleSize);
            ASSERT_EQ(FindTriple(bytes, triple), offset) << size;
        }
    }
}

} // namespace
} // namespace qf::client
