#include "client/location.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "client/platform/simulated/simulated_platform.h"
#include "support/expect_error.h"

namespace qf::client {
namespace {

using Kind = PlatformCall::Kind;

constexpr std::int32_t Address = 0x00512340;

class LocationTest : public testing::Test {
  protected:
    ProcessId AddClient(const std::string& className, PlayerLocation place, bool refuses = false)
    {
        const ProcessId process = platform_.AddProcess(refuses);
        platform_.MapMemory(process, Address, 12);
        platform_.Poke(process, Address, place.z);
        platform_.Poke(process, Address + 4, place.y);
        platform_.Poke(process, Address + 8, place.x);
        platform_.AddWindow(className, "", process);
        return process;
    }

    void AddAssist(std::int32_t answer)
    {
        const WindowHandle window = platform_.AddWindow("UOASSIST-TP-MSG-WND", "");
        platform_.SetAnswer(window, message::AssistPosition, answer);
    }

    std::ptrdiff_t Count(Kind kind) const
    {
        return std::count_if(platform_.Log().begin(), platform_.Log().end(),
                             [kind](const PlatformCall& call) { return call.kind == kind; });
    }

    SimulatedPlatform platform_;
};

TEST_F(LocationTest, CalibrationOfZeroTouchesNoWindow)
{
    AddClient("Ultima Online", {1, 2, 3});
    AddAssist(5);
    platform_.ClearLog();
    EXPECT_EQ(GetPlayerLocation(platform_, 0, false), UnknownLocation);
    EXPECT_EQ(GetPlayerLocation(platform_, 0, true), UnknownLocation);
    EXPECT_TRUE(platform_.Log().empty());
}

TEST_F(LocationTest, TripleIsReadInTheOrderOfTheMemory)
{
    AddClient("Ultima Online", {-15, 1600, 1433});
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false), (PlayerLocation{-15, 1600, 1433}));
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(LocationTest, NegativeNumbersSurvive)
{
    AddClient("Ultima Online", {-2147483647 - 1, -1, 2147483647});
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false), (PlayerLocation{-2147483647 - 1, -1, 2147483647}));
}

TEST_F(LocationTest, EveryClassicClassIsFound)
{
    for (const char* name : {"Ultima Online", "Ultima Online Third Dawn", "Ultima Online 3D"}) {
        platform_.RemoveAllWindows();
        AddClient(name, {1, 2, 3});
        EXPECT_EQ(GetPlayerLocation(platform_, Address, false), (PlayerLocation{1, 2, 3})) << name;
    }
}

TEST_F(LocationTest, ClassesAreTriedInTheirOrderWhateverTheStacking)
{
    AddClient("Ultima Online 3D", {3, 3, 3});
    AddClient("Ultima Online Third Dawn", {2, 2, 2});
    AddClient("Ultima Online", {1, 1, 1});
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false).z, 1);
}

TEST_F(LocationTest, WindowThatVanishesBetweenTheTestsIsPassedOver)
{
    AddClient("Ultima Online", {1, 1, 1});
    AddClient("Ultima Online 3D", {3, 3, 3});
    platform_.observer = [this](const PlatformCall& call) {
        if (call.kind == Kind::IsWindow) {
            const WindowHandle gone = call.window;
            platform_.observer = nullptr;
            platform_.RemoveWindow(gone);
        }
    };
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false).z, 3);
}

TEST_F(LocationTest, TitleIsNoClass)
{
    platform_.AddWindow("Notepad", "Ultima Online");
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false), UnknownLocation);
}

TEST_F(LocationTest, NoClientIsUnknown)
{
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false), UnknownLocation);
    EXPECT_EQ(Count(Kind::OpenProcess), 0);
}

TEST_F(LocationTest, ProcessThatRefusesIsUnknown)
{
    AddClient("Ultima Online", {1, 2, 3}, true);
    EXPECT_EQ(GetPlayerLocation(platform_, Address, false), UnknownLocation);
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(LocationTest, UnreadableAddressIsUnknownAndClosesTheProcess)
{
    AddClient("Ultima Online", {1, 2, 3});
    EXPECT_EQ(GetPlayerLocation(platform_, Address + 1, false), UnknownLocation);
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, false), UnknownLocation);
    EXPECT_EQ(GetPlayerLocation(platform_, -1, false), UnknownLocation);
    EXPECT_EQ(Count(Kind::OpenProcess), 3);
    EXPECT_EQ(Count(Kind::CloseProcess), 3);
    EXPECT_EQ(platform_.OpenHandles(), 0);
}

TEST_F(LocationTest, ProcessIsOpenedForEachCall)
{
    AddClient("Ultima Online", {1, 2, 3});
    GetPlayerLocation(platform_, Address, false);
    GetPlayerLocation(platform_, Address, false);
    EXPECT_EQ(Count(Kind::OpenProcess), 2);
    EXPECT_EQ(Count(Kind::ReadMemory), 2);
    EXPECT_EQ(Count(Kind::CloseProcess), 2);
}

TEST_F(LocationTest, NegativeCalibrationIsAnAddressInTheUpperHalf)
{
    const ProcessId process = platform_.AddProcess();
    platform_.AddWindow("Ultima Online", "", process);
    platform_.MapMemory(process, 0x80001000, 12);
    platform_.Poke(process, 0x80001000, 20);
    EXPECT_EQ(GetPlayerLocation(platform_, static_cast<std::int32_t>(0x80001000), false), (PlayerLocation{20, 0, 0}));
}

TEST_F(LocationTest, WrongCalibrationIntoReadableMemoryGivesItsNumbers)
{
    const ProcessId process = AddClient("Ultima Online", {1, 2, 3});
    platform_.MapMemory(process, Address + 12, 100);
    EXPECT_EQ(GetPlayerLocation(platform_, Address + 4, false), (PlayerLocation{2, 3, 0}));
}

TEST_F(LocationTest, AssistAnswerHoldsXBelowAndYAbove)
{
    AddAssist(567 << 16 | 1234);
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, true), (PlayerLocation{0, 567, 1234}));
    EXPECT_EQ(Count(Kind::OpenProcess), 0);
}

TEST_F(LocationTest, AssistIsAskedWithItsMessage)
{
    AddAssist(1);
    platform_.ClearLog();
    GetPlayerLocation(platform_, 7000, true);
    ASSERT_EQ(Count(Kind::Send), 1);
    const auto sent = std::find_if(platform_.Log().begin(), platform_.Log().end(),
                                   [](const PlatformCall& call) { return call.kind == Kind::Send; });
    EXPECT_EQ(sent->numbers, (std::vector<std::int64_t>{1226}));
}

TEST_F(LocationTest, AssistIsPreferredToAClassicClientAndNeverGivesAHeight)
{
    AddClient("Ultima Online", {40, 2, 3});
    AddAssist(7 << 16 | 9);
    EXPECT_EQ(GetPlayerLocation(platform_, Address, true), (PlayerLocation{0, 7, 9}));
}

TEST_F(LocationTest, AssistIsNotAskedWithoutClassicUO)
{
    AddAssist(7 << 16 | 9);
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, false), UnknownLocation);
    EXPECT_EQ(Count(Kind::Send), 0);
}

TEST_F(LocationTest, MissingAssistFallsBackToTheMemory)
{
    AddClient("Ultima Online", {40, 2, 3});
    EXPECT_EQ(GetPlayerLocation(platform_, Address, true), (PlayerLocation{40, 2, 3}));
}

TEST_F(LocationTest, MissingAssistAndClientIsUnknown)
{
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, true), UnknownLocation);
}

TEST_F(LocationTest, AssistAnswerOfMinusOneIsMinusOneTwice)
{
    AddAssist(-1);
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, true), (PlayerLocation{0, -1, -1}));
}

TEST_F(LocationTest, HighWordIsDividedByOneLess)
{
    // 65536 + 65534 is twice 65535: where the two words add up to 65535 the quotient is one more than the high word.
    AddAssist(1 << 16 | 0xFFFE);
    EXPECT_EQ(GetPlayerLocation(platform_, 7000, true), (PlayerLocation{0, 2, -2}));
}

TEST_F(LocationTest, HighWordThatDoesNotFitOverflows)
{
    AddAssist(0x7FFFFFFF);
    EXPECT_RUNTIME_ERROR(6, GetPlayerLocation(platform_, 7000, true));
}

/// A desktop whose windows have the handle 1, which counts as none for the assist window.
class HandleOne : public SimulatedPlatform {
  public:
    WindowHandle FindWindowByClass(std::string_view className) override
    {
        return className == "UOASSIST-TP-MSG-WND" ? 1 : SimulatedPlatform::FindWindowByClass(className);
    }
};

TEST_F(LocationTest, AssistHandleOfOneIsNoWindow)
{
    HandleOne desktop;
    EXPECT_EQ(GetPlayerLocation(desktop, 7000, true), UnknownLocation);
    for (const PlatformCall& call : desktop.Log()) {
        EXPECT_NE(call.kind, Kind::Send);
    }
}

} // namespace
} // namespace qf::client
