#include "client/platform/simulated/simulated_platform.h"

#include <array>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace qf::client {
namespace {

using Kind = PlatformCall::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<WindowHandle> Stacking(SimulatedPlatform& platform)
{
    std::vector<WindowHandle> handles;
    platform.EnumerateWindows([&handles](const WindowInfo& window) {
        handles.push_back(window.handle);
        return true;
    });
    return handles;
}

std::array<std::byte, 4> Bytes(std::uint32_t number)
{
    return {static_cast<std::byte>(number & 0xFF), static_cast<std::byte>(number >> 8 & 0xFF),
            static_cast<std::byte>(number >> 16 & 0xFF), static_cast<std::byte>(number >> 24)};
}

class SimulatedPlatformTest : public testing::Test {
  protected:
    bool Read(std::uint64_t address, std::size_t length)
    {
        buffer_.assign(length, std::byte{0xEE});
        const ProcessHandle handle = platform_.OpenProcess(process_);
        const bool          read = platform_.ReadMemory(handle, address, buffer_);
        platform_.CloseProcess(handle);
        return read;
    }

    SimulatedPlatform      platform_;
    ProcessId              process_ = platform_.AddProcess();
    std::vector<std::byte> buffer_;
};

TEST_F(SimulatedPlatformTest, WindowsAreAddedBelow)
{
    const WindowHandle first = platform_.AddWindow("A", "a");
    const WindowHandle second = platform_.AddWindow("B", "b");
    EXPECT_THAT(Stacking(platform_), ElementsAre(first, second));
    EXPECT_GT(first, 1U) << "a handle of 1 counts as none for the assist window";
}

TEST_F(SimulatedPlatformTest, VisitorEndsTheEnumeration)
{
    platform_.AddWindow("A", "a");
    platform_.AddWindow("B", "b");
    int visits = 0;
    platform_.EnumerateWindows([&visits](const WindowInfo&) { return ++visits < 1; });
    EXPECT_EQ(visits, 1);
}

TEST_F(SimulatedPlatformTest, VisitorMayChangeTheDesktop)
{
    const WindowHandle        first = platform_.AddWindow("A", "a");
    const WindowHandle        second = platform_.AddWindow("B", "b");
    const WindowHandle        third = platform_.AddWindow("C", "c");
    std::vector<WindowHandle> visited;
    platform_.EnumerateWindows([&](const WindowInfo& window) {
        visited.push_back(window.handle);
        if (window.handle == first) {
            platform_.RemoveWindow(first);
            platform_.RemoveWindow(second);
            for (int i = 0; i < 50; ++i) {
                platform_.AddWindow("D", "d");
            }
        }
        EXPECT_FALSE(window.className.empty());
        return true;
    });
    EXPECT_THAT(visited, ElementsAre(first, third));
}

TEST_F(SimulatedPlatformTest, RemovedWindowLosesTheForeground)
{
    const WindowHandle window = platform_.AddWindow("A", "a");
    platform_.SetForeground(window);
    EXPECT_EQ(platform_.ForegroundWindow(), window);
    platform_.RemoveWindow(window);
    EXPECT_EQ(platform_.ForegroundWindow(), 0U);
    EXPECT_FALSE(platform_.IsWindow(window));
}

TEST_F(SimulatedPlatformTest, BringingToTheForegroundNeedsAWindow)
{
    const WindowHandle window = platform_.AddWindow("A", "a");
    platform_.BringToForeground(window);
    EXPECT_EQ(platform_.ForegroundWindow(), window);
    platform_.BringToForeground(window + 1);
    EXPECT_EQ(platform_.ForegroundWindow(), window);
}

TEST_F(SimulatedPlatformTest, ActivationAloneIsNoForeground)
{
    platform_.ActivateWindow(platform_.AddWindow("A", "a"));
    EXPECT_EQ(platform_.ForegroundWindow(), 0U);
}

TEST_F(SimulatedPlatformTest, ClassIsFoundWithoutRegardToCase)
{
    const WindowHandle window = platform_.AddWindow("Ultima Online", "");
    platform_.AddWindow("ULTIMA ONLINE", "");
    EXPECT_EQ(platform_.FindWindowByClass("ultima ONLINE"), window);
    EXPECT_EQ(platform_.FindWindowByClass("Ultima Online 3D"), 0U);
}

TEST_F(SimulatedPlatformTest, PostsBecomeLines)
{
    const WindowHandle one = platform_.AddWindow("A", "a");
    const WindowHandle two = platform_.AddWindow("B", "b");
    EXPECT_TRUE(platform_.Post(one, message::Char, 'x', 0));
    EXPECT_TRUE(platform_.Post(two, message::Char, 'y', 0));
    EXPECT_TRUE(platform_.Post(one, message::Char, 0xE4, 0));
    EXPECT_THAT(platform_.TakeLines(), IsEmpty()) << "no line without Enter";
    EXPECT_TRUE(platform_.Post(two, message::KeyDown, 13, 0));
    EXPECT_TRUE(platform_.Post(one, message::KeyDown, 65, 0)) << "another key ends no line";
    EXPECT_TRUE(platform_.Post(one, message::KeyDown, 13, 0));
    EXPECT_TRUE(platform_.Post(one, message::KeyUp, 13, 0));
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("y", "x\xE4"));
    EXPECT_THAT(platform_.TakeLines(), IsEmpty());
}

TEST_F(SimulatedPlatformTest, PostAtAMissingWindowFails)
{
    EXPECT_FALSE(platform_.Post(99, message::Char, 'x', 0));
}

TEST_F(SimulatedPlatformTest, AnswersBelongToWindowAndMessage)
{
    const WindowHandle one = platform_.AddWindow("A", "a");
    const WindowHandle two = platform_.AddWindow("B", "b");
    platform_.SetAnswer(one, 1226, -5);
    EXPECT_EQ(platform_.Send(one, 1226), -5);
    EXPECT_EQ(platform_.Send(one, 1227), 0);
    EXPECT_EQ(platform_.Send(two, 1226), 0);
    EXPECT_EQ(platform_.Send(99, 1226), 0);
}

TEST_F(SimulatedPlatformTest, ProcessesAreOpenedAndClosed)
{
    const ProcessId refusing = platform_.AddProcess(true);
    EXPECT_EQ(platform_.ProcessOf(platform_.AddWindow("A", "", refusing)), refusing);
    EXPECT_EQ(platform_.ProcessOf(99), 0U);
    EXPECT_EQ(platform_.OpenProcess(refusing), 0U);
    EXPECT_EQ(platform_.OpenProcess(99), 0U);

    const ProcessHandle one = platform_.OpenProcess(process_);
    const ProcessHandle two = platform_.OpenProcess(process_);
    EXPECT_EQ(platform_.OpenHandles(), 2);
    platform_.CloseProcess(one);
    platform_.CloseProcess(one);
    EXPECT_EQ(platform_.OpenHandles(), 1);
    platform_.CloseProcess(two);
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(SimulatedPlatformTest, ClosedProcessCannotBeRead)
{
    platform_.MapMemory(process_, 0, 16);
    const ProcessHandle      handle = platform_.OpenProcess(process_);
    std::array<std::byte, 4> buffer{};
    EXPECT_TRUE(platform_.ReadMemory(handle, 0, buffer));
    platform_.CloseProcess(handle);
    EXPECT_FALSE(platform_.ReadMemory(handle, 0, buffer));
}

TEST_F(SimulatedPlatformTest, MemoryIsZeroUntilPoked)
{
    platform_.MapMemory(process_, 0x400000, 8);
    platform_.Poke(process_, 0x400004, -2);
    ASSERT_TRUE(Read(0x400000, 4));
    EXPECT_THAT(buffer_, testing::ElementsAreArray(Bytes(0)));
    ASSERT_TRUE(Read(0x400004, 4));
    EXPECT_THAT(buffer_, testing::ElementsAreArray(Bytes(0xFFFFFFFE)));
}

TEST_F(SimulatedPlatformTest, ReadFailsUnlessEveryByteIsReadable)
{
    platform_.MapMemory(process_, 0x1000, 12);
    EXPECT_TRUE(Read(0x1000, 12));
    EXPECT_FALSE(Read(0x1000, 13));
    EXPECT_FALSE(Read(0xFFF, 12));
    EXPECT_FALSE(Read(0x100C, 1));
    EXPECT_FALSE(Read(0, 1));
    EXPECT_FALSE(Read(std::numeric_limits<std::uint64_t>::max(), 4));
}

TEST_F(SimulatedPlatformTest, AdjacentRangesAreReadAsOne)
{
    platform_.MapMemory(process_, 0x1004, 4);
    platform_.MapMemory(process_, 0x1000, 4);
    platform_.MapMemory(process_, 0x1008, 4);
    platform_.Poke(process_, 0x1006, 0x01020304);
    EXPECT_TRUE(Read(0x1000, 12));
    ASSERT_TRUE(Read(0x1006, 4));
    EXPECT_THAT(buffer_, testing::ElementsAreArray(Bytes(0x01020304)));
}

TEST_F(SimulatedPlatformTest, GapBetweenRangesFails)
{
    platform_.MapMemory(process_, 0x1000, 4);
    platform_.MapMemory(process_, 0x1005, 4);
    EXPECT_FALSE(Read(0x1000, 8));
}

TEST_F(SimulatedPlatformTest, RangeMappedAgainIsZeroAndLeavesTheRest)
{
    platform_.MapMemory(process_, 0x1000, 16);
    for (std::uint64_t address = 0x1000; address < 0x1010; address += 4) {
        platform_.Poke(process_, address, -1);
    }
    platform_.MapMemory(process_, 0x1004, 8);
    ASSERT_TRUE(Read(0x1000, 16));
    for (std::size_t i = 0; i < buffer_.size(); ++i) {
        EXPECT_EQ(buffer_[i], i >= 4 && i < 12 ? std::byte{0} : std::byte{0xFF}) << i;
    }
}

TEST_F(SimulatedPlatformTest, RangeMayCoverSeveralOthers)
{
    platform_.MapMemory(process_, 0x1000, 4);
    platform_.MapMemory(process_, 0x1008, 4);
    platform_.MapMemory(process_, 0x0FFE, 0x20);
    EXPECT_TRUE(Read(0x0FFE, 0x20));
    EXPECT_FALSE(Read(0x0FFE, 0x21));
}

TEST_F(SimulatedPlatformTest, PokeOutsideOfTheMemoryIsLost)
{
    platform_.MapMemory(process_, 0x1000, 2);
    platform_.Poke(process_, 0x1000, -1);
    platform_.Poke(99, 0x1000, -1);
    EXPECT_TRUE(Read(0x1000, 2));
    EXPECT_FALSE(Read(0x1002, 1));
}

TEST_F(SimulatedPlatformTest, LogHoldsEveryCallWithItsArguments)
{
    const WindowHandle window = platform_.AddWindow("A", "a", process_);
    platform_.MapMemory(process_, 16, 4);
    std::array<std::byte, 4> buffer{};

    platform_.FindWindowByClass("A");
    platform_.IsWindow(window);
    platform_.ProcessOf(window);
    const ProcessHandle handle = platform_.OpenProcess(process_);
    platform_.ReadMemory(handle, 16, buffer);
    platform_.CloseProcess(handle);
    platform_.Send(window, 1226);
    platform_.Pause(std::chrono::milliseconds{50});

    const auto opened = static_cast<std::int64_t>(handle);
    EXPECT_THAT(platform_.Log(),
                ElementsAre(PlatformCall{Kind::FindByClass, 0, {}}, PlatformCall{Kind::IsWindow, window, {}},
                            PlatformCall{Kind::ProcessOf, window, {}}, PlatformCall{Kind::OpenProcess, 0, {process_}},
                            PlatformCall{Kind::ReadMemory, 0, {opened, 16, 4}},
                            PlatformCall{Kind::CloseProcess, 0, {opened}}, PlatformCall{Kind::Send, window, {1226}},
                            PlatformCall{Kind::Pause, 0, {50}}));
    platform_.ClearLog();
    platform_.KeepLog(false);
    platform_.IsWindow(window);
    EXPECT_THAT(platform_.Log(), IsEmpty());
}

TEST_F(SimulatedPlatformTest, ObserverHearsACallBeforeItTakesEffectAndMayStopIt)
{
    const WindowHandle window = platform_.AddWindow("A", "a");
    platform_.observer = [](const PlatformCall& call) {
        if (call.kind == Kind::Post) {
            throw std::runtime_error("enough");
        }
    };
    EXPECT_THROW(platform_.Post(window, message::KeyDown, 13, 0), std::runtime_error);
    EXPECT_THAT(platform_.TakeLines(), IsEmpty());
}

} // namespace
} // namespace qf::client
