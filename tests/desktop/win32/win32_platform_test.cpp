#include "client/platform/win32/win32_platform.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include "client/calibration.h"
#include "client/delivery.h"
#include "client/location.h"
#include "core/ansi.h"
#include "core/outlet.h"
#include "target_process.h"

namespace qf::client {
namespace {

using test::Patience;
using test::TargetProcess;
using test::WaitFor;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using PostResult = Win32Platform::PostResult;
using Clock = std::chrono::steady_clock;

constexpr std::size_t ReadableMemory = 0x10000;

std::int32_t CalibrationOf(const TargetProcess& target)
{
    return static_cast<std::int32_t>(target.PositionAddress());
}

/// Keeps the boxes that were shown.
class Boxes : public core::Outlet {
  public:
    void Send(std::string_view, bool) override { throw std::logic_error("nothing is sent here"); }
    void Show(const core::Message& message) override { shown.push_back(message); }
    bool Ask(const core::Message&) override { throw std::logic_error("nothing is asked here"); }

    std::vector<core::Message> shown;
};

/// The real desktop, with a note of what brings a window to the front.
class NotingPlatform : public Win32Platform {
  public:
    void ActivateWindow(WindowHandle window) override
    {
        notes.emplace_back("activate");
        Win32Platform::ActivateWindow(window);
    }
    void BringToForeground(WindowHandle window) override
    {
        notes.emplace_back("foreground");
        Win32Platform::BringToForeground(window);
    }
    void Pause(std::chrono::milliseconds time) override
    {
        notes.push_back("pause " + std::to_string(time.count()));
        Win32Platform::Pause(time);
    }

    std::vector<std::string> notes;
};

/// A window of this process, which stands in for the program's own panel.
class OwnWindow {
  public:
    OwnWindow()
        : window_(CreateWindowExA(0, "STATIC", "Panel", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 400, 300, 200, 100, nullptr,
                                  nullptr, nullptr, nullptr))
    {}
    ~OwnWindow() { DestroyWindow(window_); }

    OwnWindow(const OwnWindow&) = delete;
    OwnWindow& operator=(const OwnWindow&) = delete;

    bool TakeForeground() const
    {
        return WaitFor([this] {
            SetForegroundWindow(window_);
            return GetForegroundWindow() == window_;
        });
    }

  private:
    HWND window_;
};

std::string NumberedCommand(int number)
{
    return "tile 0x04a9 " + std::to_string(number) + " 1010 2000 2010 0";
}

double PerSecond(std::size_t count, Clock::duration time)
{
    return static_cast<double>(count) / std::chrono::duration<double>(time).count();
}

TEST(Win32Delivery, TypesACommandAsTheMessagesOfItsCharactersAndEnter)
{
    TargetProcess target("", true);
    Win32Platform platform;
    Boxes         boxes;
    SendCommand(platform, boxes, "'", "go 1 2 -3");
    ASSERT_TRUE(WaitFor([&] { return target.TracedMessages().size() >= 12; }));
    EXPECT_THAT(target.TracedMessages(),
                ElementsAre("258 39 0", "258 103 0", "258 111 0", "258 32 0", "258 49 0", "258 32 0", "258 50 0",
                            "258 32 0", "258 45 0", "258 51 0", "256 13 1835009", "257 13 3223060481"));
    EXPECT_THAT(target.Lines(), ElementsAre("'go 1 2 -3"));
    EXPECT_THAT(boxes.shown, IsEmpty());
}

TEST(Win32Delivery, TypesAsItStandsWithoutThePrefix)
{
    TargetProcess target;
    Win32Platform platform;
    Boxes         boxes;
    SendCommand(platform, boxes, "'", "save", false);
    SendCommand(platform, boxes, "'", "", false);
    SendCommand(platform, boxes, "'", "");
    ASSERT_TRUE(target.WaitForLines(3));
    EXPECT_THAT(target.Lines(), ElementsAre("save", "", "'"));
}

TEST(Win32Delivery, CharactersOfTheCodePageArriveAsThemselves)
{
    TargetProcess target;
    Win32Platform platform;
    Boxes         boxes;
    std::string   upperHalf;
    for (unsigned code = 0x80; code <= 0xFF; ++code) {
        const char byte = static_cast<char>(code);
        if (std::string_view("\x81\x8D\x8F\x90\x9D").find(byte) == std::string_view::npos) {
            upperHalf += core::FromAnsi(std::string_view(&byte, 1));
        }
    }
    SendCommand(platform, boxes, "'", "say \u00E4 \u20AC \u00F1 \u00FF");
    SendCommand(platform, boxes, "'", upperHalf);
    ASSERT_TRUE(target.WaitForLines(2));
    EXPECT_THAT(target.Lines(), ElementsAre("'say \u00E4 \u20AC \u00F1 \u00FF", "'" + upperHalf));
}

TEST(Win32Delivery, ASlowClientLosesNothingOfALongBuild)
{
    constexpr int Commands = 10000;
    TargetProcess target("--slow 2 --exit-after-lines " + std::to_string(Commands));
    std::size_t   refusals = 0;
    Win32Platform platform([&](WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam) {
        const PostResult result = Win32Platform::PostOnce(window, message, wParam, lParam);
        refusals += result == PostResult::QueueFull ? 1 : 0;
        return result;
    });
    Boxes         boxes;
    for (int number = 0; number < Commands; ++number) {
        SendCommand(platform, boxes, "'", NumberedCommand(number));
    }
    ASSERT_TRUE(target.WaitForExit());
    EXPECT_THAT(boxes.shown, IsEmpty());
    ASSERT_THAT(target.Lines(), SizeIs(Commands));
    for (int number = 0; number < Commands; ++number) {
        ASSERT_EQ(target.Lines()[static_cast<std::size_t>(number)], std::string("'").append(NumberedCommand(number)));
    }
    std::printf("slow client: %d commands arrived, its queue was full %zu times\n", Commands, refusals);
}

TEST(Win32Delivery, AMessageThatIsRefusedIsOfferedAgain)
{
    TargetProcess target;
    int           attempts = 0;
    Win32Platform platform([&](WindowHandle window, std::uint32_t message, std::uint32_t wParam, std::uint32_t lParam) {
        ++attempts;
        return attempts % 3 == 0 ? Win32Platform::PostOnce(window, message, wParam, lParam) : PostResult::QueueFull;
    });
    Boxes         boxes;
    for (int number = 0; number < 5; ++number) {
        SendCommand(platform, boxes, "'", "go " + std::to_string(number));
    }
    ASSERT_TRUE(target.WaitForLines(5));
    EXPECT_THAT(target.Lines(), ElementsAre("'go 0", "'go 1", "'go 2", "'go 3", "'go 4"));
    EXPECT_EQ(attempts, 5 * 7 * 3);
}

TEST(Win32Delivery, AWindowThatClosesInTheMiddleEndsThePosting)
{
    TargetProcess target("--exit-after-lines 3");
    Win32Platform platform;
    const auto    deadline = Clock::now() + Patience;
    while (platform.Post(target.Window(), message::KeyDown, 13, 1835009)) {
        ASSERT_LT(Clock::now(), deadline);
    }
    EXPECT_FALSE(platform.IsWindow(target.Window()));
    ASSERT_TRUE(target.WaitForExit());
    EXPECT_THAT(target.Lines(), SizeIs(3));

    Boxes boxes;
    SendCommand(platform, boxes, "'", "go 1 2 3");
    ASSERT_THAT(boxes.shown, SizeIs(1));
    EXPECT_EQ(boxes.shown[0].text, "Error: Could not find UO client window. Command not sent.");
    EXPECT_EQ(boxes.shown[0].style, core::MessageStyle::Critical);
}

TEST(Win32Delivery, AFullQueueIsNotWaitedForWhenItsWindowGoes)
{
    TargetProcess target;
    const auto    deadline = Clock::now() + Patience;
    int           attempts = 0;
    Win32Platform platform([&](WindowHandle, std::uint32_t, std::uint32_t, std::uint32_t) {
        if (Clock::now() > deadline) {
            throw std::runtime_error("still posting to a window that is gone");
        }
        if (++attempts == 3) {
            target.Close();
        }
        return PostResult::QueueFull;
    });
    EXPECT_FALSE(platform.Post(target.Window(), message::Char, 'a', 0));
    EXPECT_GE(attempts, 3);
}

TEST(Win32Delivery, NoWindowTakesNoMessage)
{
    Win32Platform platform;
    EXPECT_FALSE(platform.Post(0, message::Char, 'a', 0));
}

TEST(Win32Foreground, TheClientIsBroughtToTheFrontOnceForABurst)
{
    TargetProcess  target;
    OwnWindow      panel;
    NotingPlatform platform;
    Boxes          boxes;
    ASSERT_TRUE(panel.TakeForeground());

    SendCommand(platform, boxes, "'", "go 1 2 3");
    EXPECT_THAT(platform.notes, ElementsAre("activate", "foreground", "pause 50"));
    ASSERT_TRUE(WaitFor([&] { return platform.ForegroundWindow() == target.Window(); }));

    SendCommand(platform, boxes, "'", "go 4 5 6");
    EXPECT_THAT(platform.notes, SizeIs(3));
    ASSERT_TRUE(target.WaitForLines(2));
    EXPECT_THAT(target.Lines(), ElementsAre("'go 1 2 3", "'go 4 5 6"));
}

TEST(Win32Foreground, TheTopmostOfTwoClientsIsTaken)
{
    TargetProcess lower;
    TargetProcess upper;
    Win32Platform platform;
    for (const TargetProcess* wanted : {&lower, &upper, &lower}) {
        // The order of the windows follows the foreground in its own time, and a system may need telling twice.
        ASSERT_TRUE(WaitFor([&] {
            platform.BringToForeground(wanted->Window());
            return platform.ForegroundWindow() == wanted->Window() && FindClientWindow(platform) == wanted->Window();
        }));
    }
}

TEST(Win32Windows, TheEnumerationGivesClassAndTitleAndStopsWhenTold)
{
    TargetProcess target;
    Win32Platform platform;
    int           behind = 0;
    WindowInfo    found;
    platform.EnumerateWindows([&](const WindowInfo& window) {
        behind += found.handle != 0 ? 1 : 0;
        if (window.handle == target.Window()) {
            found = window;
        }
        return found.handle == 0;
    });
    EXPECT_EQ(found.className, "SDL_app");
    EXPECT_EQ(found.title, "ClassicUO - Target");
    EXPECT_EQ(behind, 0);
}

TEST(Win32Windows, AFailureOfTheVisitorReachesTheCaller)
{
    TargetProcess target;
    Win32Platform platform;
    EXPECT_THROW(
        platform.EnumerateWindows([](const WindowInfo&) -> bool { throw std::out_of_range("the visitor gave up"); }),
        std::out_of_range);
}

TEST(Win32Windows, AWindowIsFoundByItsClass)
{
    Win32Platform platform;
    EXPECT_EQ(platform.FindWindowByClass("SDL_app"), 0u);
    WindowHandle window = 0;
    {
        TargetProcess target;
        EXPECT_EQ(platform.FindWindowByClass("SDL_app"), target.Window());
        EXPECT_EQ(platform.FindWindowByClass("ClassicUO - Target"), 0u);
        window = platform.FindWindowByClass("Ultima Online");
        EXPECT_NE(window, 0u);
        EXPECT_NE(window, target.Window());
        EXPECT_TRUE(platform.IsWindow(window));
        EXPECT_EQ(platform.ProcessOf(window), target.Id());
        EXPECT_EQ(platform.FindWindowByClass("UOASSIST-TP-MSG-WND"), 0u);
    }
    EXPECT_FALSE(platform.IsWindow(window));
    EXPECT_EQ(platform.ProcessOf(window), 0u);
    EXPECT_EQ(platform.Send(window, message::AssistPosition), 0);
}

TEST(Win32Location, IsReadFromTheMemoryOfTheClient)
{
    TargetProcess target("--position 1000 2000 -5");
    Win32Platform platform;
    ASSERT_GE(target.PositionAddress(), 0x400000u);
    ASSERT_LT(target.PositionAddress(), 0x2400000u);
    EXPECT_EQ(GetPlayerLocation(platform, CalibrationOf(target), false), (PlayerLocation{-5, 2000, 1000}));
    EXPECT_EQ(GetPlayerLocation(platform, CalibrationOf(target), true), (PlayerLocation{-5, 2000, 1000}));
    EXPECT_EQ(GetPlayerLocation(platform, 4, false), UnknownLocation);
}

// What calibration relies on: the first block can be read whole, and the position stands in what can be read
// from there without a gap.
TEST(Win32Location, StandsInMemoryThatIsReadableFromTheStartOfTheClient)
{
    TargetProcess       target;
    Win32Platform       platform;
    const ProcessHandle process = platform.OpenProcess(target.Id());
    ASSERT_NE(process, 0u);
    std::vector<std::byte> memory(target.PositionAddress() + 12 - 0x400000);
    EXPECT_TRUE(platform.ReadMemory(process, 0x400000, memory));
    platform.CloseProcess(process);
}

TEST(Win32Location, IsAskedOfTheAssistWindow)
{
    TargetProcess target("--assist " + std::to_string(567 * 65536 + 1234));
    Win32Platform platform;
    EXPECT_EQ(GetPlayerLocation(platform, CalibrationOf(target), true), (PlayerLocation{0, 567, 1234}));
}

TEST(Win32Location, IsFoundByCalibrationInTheMemoryOfTheClient)
{
    const TargetProcess target("--position 12345 23456 -77");
    Win32Platform       platform;

    const auto address = CalibrateLocation(platform, 12345, 23456, -77, false);
    ASSERT_GT(address, 0);
    EXPECT_LE(static_cast<std::uint64_t>(address), target.PositionAddress());
    EXPECT_EQ(GetPlayerLocation(platform, address, false), (PlayerLocation{-77, 23456, 12345}));
    EXPECT_EQ(CalibrateLocation(platform, 12345, 23456, -78, false), 0);
}

TEST(Win32Location, CalibratesThroughTheAssistWindowWithItsRawAnswer)
{
    const std::int32_t  answer = 567 * 65536 + 1234;
    const TargetProcess target("--assist " + std::to_string(answer));
    Win32Platform       platform;

    EXPECT_EQ(CalibrateLocation(platform, 0, 0, 0, true), answer);
    EXPECT_EQ(GetPlayerLocation(platform, 7000, true), (PlayerLocation{0, 567, 1234}));
}

TEST(Win32Location, IsUnknownWithoutAClient)
{
    Win32Platform platform;
    EXPECT_EQ(GetPlayerLocation(platform, 0x400000, true), UnknownLocation);
}

TEST(Win32Memory, IsReadWholeOrNotAtAll)
{
    TargetProcess       target("--position 7 8 9");
    Win32Platform       platform;
    const ProcessHandle process = platform.OpenProcess(target.Id());
    ASSERT_NE(process, 0u);

    std::array<std::byte, 12>           bytes{};
    constexpr std::array<std::byte, 12> Expected{std::byte{9}, {}, {}, {}, std::byte{8}, {}, {}, {}, std::byte{7}};
    EXPECT_TRUE(platform.ReadMemory(process, target.PositionAddress(), bytes));
    EXPECT_EQ(bytes, Expected);

    const std::uint64_t end = target.MapMemoryWithAnEnd(ReadableMemory) + ReadableMemory;
    EXPECT_TRUE(platform.ReadMemory(process, end - bytes.size(), bytes));
    EXPECT_FALSE(platform.ReadMemory(process, end - 4, bytes));
    EXPECT_FALSE(platform.ReadMemory(process, end, bytes));
    platform.CloseProcess(process);
    EXPECT_FALSE(platform.ReadMemory(process, target.PositionAddress(), bytes));
}

TEST(Win32Memory, AProcessThatIsNotThereIsNotOpened)
{
    Win32Platform platform;
    EXPECT_EQ(platform.OpenProcess(0x7FFFFFFC), 0u);
    EXPECT_EQ(platform.OpenProcess(0), 0u);
}

// The rate of whole commands beside the bare posting of the same messages, turn by turn in one run.
TEST(Win32Delivery, TypingRate)
{
    constexpr int     Rounds = 3;
    constexpr int     Commands = 400;
    const std::string command = NumberedCommand(1000);
    const std::string typed = "'" + command;
    TargetProcess     target;
    Win32Platform     platform;
    Boxes             boxes;
    const auto        window = reinterpret_cast<HWND>(static_cast<std::uintptr_t>(target.Window()));
    SendCommand(platform, boxes, "'", command);
    std::size_t lines = 1;

    std::vector<double> whole;
    std::vector<double> bare;
    std::vector<double> delivered;
    for (int round = 0; round < Rounds; ++round) {
        auto start = Clock::now();
        for (int number = 0; number < Commands; ++number) {
            SendCommand(platform, boxes, "'", command);
        }
        whole.push_back(PerSecond(Commands, Clock::now() - start));
        lines += Commands;
        ASSERT_TRUE(target.WaitForLines(lines));
        delivered.push_back(PerSecond(Commands, Clock::now() - start));

        // Bare posting has no second try, so each of its turns stays below the length of a queue.
        Clock::duration time{};
        for (int number = 0; number < Commands; ++number) {
            start = Clock::now();
            BOOL taken = TRUE;
            for (const char character : typed) {
                taken &= PostMessageA(window, message::Char, static_cast<WPARAM>(character), 0);
            }
            taken &= PostMessageA(window, message::KeyDown, 13, 1835009);
            taken &= PostMessageA(window, message::KeyUp, 13, static_cast<LPARAM>(3223060481));
            time += Clock::now() - start;
            ASSERT_NE(taken, FALSE);
            if (number % 200 == 199) {
                ASSERT_TRUE(target.WaitForLines(lines + static_cast<std::size_t>(number) + 1));
            }
        }
        lines += Commands;
        bare.push_back(PerSecond(Commands, time));
    }
    for (const std::string& line : target.Lines()) {
        ASSERT_EQ(line, typed);
    }
    const auto median = [](std::vector<double> values) {
        std::sort(values.begin(), values.end());
        return values[values.size() / 2];
    };
    std::printf("typing %zu characters and Enter: SendCommand %.0f commands/s, bare posting %.0f commands/s (%.0f %%), "
                "until the client has read them %.0f commands/s\n",
                typed.size(), median(whole), median(bare), 100 * median(whole) / median(bare), median(delivered));
}

} // namespace
} // namespace qf::client
