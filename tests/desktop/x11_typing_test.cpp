// What is typed arrives: whole, in order, and as written, whatever the keyboard is set to.

#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "client/delivery.h"
#include "client/platform/x11/x11_platform.h"
#include "core/ansi.h"
#include "desktop/x11_session.h"
#include "support/recording_outlet.h"

namespace qf::client {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

/// Every printed character of the ANSI code page, as UTF-8.
std::string EveryCharacter()
{
    std::string ansi;
    for (int code = 0x20; code <= 0xFF; ++code) {
        const auto character = static_cast<unsigned char>(code);
        if (core::AnsiToUnicode(character) > 0x9F || (code < 0x7F)) {
            ansi.push_back(static_cast<char>(character));
        }
    }
    return core::FromAnsi(ansi);
}

std::vector<std::string> NumberedLines(int count)
{
    std::vector<std::string> lines(static_cast<std::size_t>(count), "line ");
    int                      number = 0;
    for (std::string& line : lines) {
        line += std::to_string(number++);
    }
    return lines;
}

class X11Typing : public testing::Test {
  protected:
    void SetUp() override
    {
        if (std::getenv("DISPLAY") == nullptr) {
            GTEST_SKIP() << "no display";
        }
        test::HoldDisplay();
        UseLayout("us");
        platform_ = std::make_unique<X11Platform>();
    }

    void TearDown() override
    {
        EXPECT_THAT(boxes_.Messages(), IsEmpty());
        platform_.reset();
        receiver_.reset();
        if (std::getenv("DISPLAY") != nullptr) {
            UseLayout("us");
        }
    }

    static void UseLayout(const std::string& layout)
    {
        ASSERT_TRUE(test::RunTool({"setxkbmap", "-layout", layout, "-option", ""}));
    }

    void StartReceiver(const std::vector<std::string>& options = {})
    {
        receiver_ = std::make_unique<test::Receiver>(options);
        if (!test::Eventually([this] {
                test::NudgeWindowManager();
                return FindClientWindow(*platform_) != 0;
            })) {
            throw std::runtime_error("the receiver shows no window");
        }
    }

    void Send(const std::string& text) { SendCommand(*platform_, boxes_, "'", text); }

    /// Sends the lines and expects them back.
    void ExpectArrival(const std::vector<std::string>& lines)
    {
        std::vector<std::string> expected;
        for (const std::string& line : lines) {
            Send(line);
            expected.push_back("'" + line);
        }
        const std::size_t before = seen_;
        seen_ += lines.size();
        std::vector<std::string> received = receiver_->WaitForLines(seen_);
        received.erase(received.begin(),
                       received.begin() + static_cast<std::ptrdiff_t>(std::min(before, received.size())));
        EXPECT_THAT(received, ElementsAreArray(expected));
    }

    std::unique_ptr<X11Platform>    platform_;
    std::unique_ptr<test::Receiver> receiver_;
    test::RecordingOutlet           boxes_;
    std::size_t                     seen_ = 0;
};

/// With no window manager (false) and with one (true).
class X11TypingManaged : public X11Typing, public testing::WithParamInterface<bool> {
  protected:
    void SetUp() override
    {
        X11Typing::SetUp();
        if (!IsSkipped() && GetParam()) {
            manager_ = std::make_unique<test::WindowManager>();
        }
    }

    void TearDown() override
    {
        X11Typing::TearDown();
        manager_.reset();
    }

    std::unique_ptr<test::WindowManager> manager_;
};

INSTANTIATE_TEST_SUITE_P(Desktops, X11TypingManaged, testing::Bool(),
                         [](const auto& desktop) { return desktop.param ? "Managed" : "Bare"; });

TEST_P(X11TypingManaged, TenThousandCommandsArriveWholeAndInOrder)
{
    StartReceiver();
    std::vector<std::string> expected;
    const auto               start = std::chrono::steady_clock::now();
    for (int i = 0; i < 10'000; ++i) {
        const std::string command = "tile 0x050d " + std::to_string(i) + " 103 100 102 -5";
        Send(command);
        expected.push_back("'" + command);
    }
    const std::chrono::duration<double> typed = std::chrono::steady_clock::now() - start;
    const auto                          received = receiver_->WaitForLines(expected.size());
    ASSERT_EQ(received.size(), expected.size());
    EXPECT_TRUE(received == expected) << "lines differ";
    RecordProperty("lines_per_second", static_cast<int>(10'000 / typed.count()));
    std::cout << static_cast<int>(10'000 / typed.count()) << " lines a second\n";
}

TEST_P(X11TypingManaged, ClientBehindAnotherWindowComesToTheFront)
{
    StartReceiver();
    test::Receiver other({"--title", "Another window"});
    ASSERT_TRUE(test::Eventually([this] {
        bool there = false;
        platform_->EnumerateWindows([&there](const WindowInfo& window) {
            there = there || window.title == "Another window";
            return true;
        });
        return there;
    }));
    WindowHandle otherWindow = 0;
    platform_->EnumerateWindows([&otherWindow](const WindowInfo& window) {
        if (window.title == "Another window") {
            otherWindow = window.handle;
        }
        return otherWindow == 0;
    });
    platform_->BringToForeground(otherWindow);
    ASSERT_TRUE(test::Eventually([&] { return platform_->ForegroundWindow() == otherWindow; }));

    ExpectArrival({"go 1000 1000 0", "save"});
    EXPECT_TRUE(test::Eventually([&] { return platform_->ForegroundWindow() == FindClientWindow(*platform_); }));
    EXPECT_THAT(other.Lines(), IsEmpty());
}

TEST_P(X11TypingManaged, ClientThatDiesWhileTypedAtIsNoticed)
{
    StartReceiver();
    const WindowHandle window = FindClientWindow(*platform_);
    ExpectArrival({"one"});
    kill(receiver_->Process().Id(), SIGKILL);
    bool taken = true;
    for (int i = 0; i < 200'000 && taken; ++i) {
        taken = platform_->Post(window, message::Char, 'x', 0);
        if (i % 100 == 0) {
            taken = taken && platform_->Post(window, message::KeyUp, 13, 0);
        }
    }
    EXPECT_FALSE(taken);
    EXPECT_TRUE(test::Eventually([&] { return !platform_->IsWindow(window); }));
    EXPECT_FALSE(platform_->Post(window, message::Char, 'x', 0));
    EXPECT_FALSE(platform_->Post(window, message::KeyDown, 13, 0));

    SendCommand(*platform_, boxes_, "'", "two");
    EXPECT_EQ(boxes_.Messages().size(), 1U);
    boxes_.Clear();

    seen_ = 0;
    StartReceiver();
    ExpectArrival({"three"});
}

TEST_F(X11Typing, EveryCharacterArrivesOnTheUsLayout)
{
    StartReceiver();
    ExpectArrival({EveryCharacter(), "plain", EveryCharacter()});
}

TEST_F(X11Typing, EveryCharacterArrivesOnTheGermanLayout)
{
    UseLayout("de");
    StartReceiver();
    ExpectArrival({EveryCharacter(), "zy[]{}@\\~|<>", "\u00E4\u20AC\u00F1"});
}

TEST_F(X11Typing, EveryCharacterArrivesWithACyrillicGroupInFront)
{
    UseLayout("ru,us");
    StartReceiver();
    ExpectArrival({"tile 0x050d 100 103 100 102 0", EveryCharacter()});
}

TEST_F(X11Typing, EveryCharacterArrivesWithoutAnyLatinLetter)
{
    UseLayout("ru");
    StartReceiver();
    ExpectArrival({"tile 0x050d 100 103 100 102 0", EveryCharacter(), "The quick brown fox, 0123456789"});
}

TEST_F(X11Typing, LayoutThatChangesBetweenCommandsIsFollowed)
{
    StartReceiver();
    ExpectArrival({"xyz [1]"});
    for (const char* layout : {"de", "fr", "us", "ru,us", "us"}) {
        UseLayout(layout);
        ExpectArrival({"xyz [1] \u00E9", "'abc'"});
    }
}

TEST_F(X11Typing, CapsLockChangesNothing)
{
    StartReceiver();
    ASSERT_TRUE(test::RunTool({"xdotool", "key", "Caps_Lock"}));
    ExpectArrival({"Mixed CASE text 123 \u00E4\u00C4"});
    ASSERT_TRUE(test::RunTool({"xdotool", "key", "Caps_Lock"}));
    ExpectArrival({"Mixed CASE text 123 \u00E4\u00C4"});
}

TEST_F(X11Typing, NumLockChangesNothing)
{
    StartReceiver();
    ASSERT_TRUE(test::RunTool({"xdotool", "key", "Num_Lock"}));
    ExpectArrival({"0123456789 +-*/."});
    ASSERT_TRUE(test::RunTool({"xdotool", "key", "Num_Lock"}));
    ExpectArrival({"0123456789 +-*/."});
}

TEST_F(X11Typing, HeldModifiersChangeNothing)
{
    StartReceiver();
    for (const char* key : {"shift", "ISO_Level3_Shift"}) {
        ASSERT_TRUE(test::RunTool({"xdotool", "keydown", key}));
        ExpectArrival({"Mixed CASE text 123 \u00E4"});
        ASSERT_TRUE(test::RunTool({"xdotool", "keyup", key}));
    }
}

TEST_F(X11Typing, BorrowedKeysAreGivenBackAfterTheLine)
{
    StartReceiver();
    const auto before = test::KeyboardMapping();
    ASSERT_THAT(before, testing::Not(IsEmpty()));
    ExpectArrival({"\u00E4\u20AC\u00F1", EveryCharacter()});
    EXPECT_TRUE(test::KeyboardMapping() == before);
}

TEST_F(X11Typing, BorrowedKeysAreGivenBackAtTheEndOfThePlatform)
{
    StartReceiver();
    const WindowHandle window = FindClientWindow(*platform_);
    const auto         before = test::KeyboardMapping();
    EXPECT_TRUE(platform_->Post(window, message::Char, 0x80, 0));
    EXPECT_TRUE(platform_->IsWindow(window));
    EXPECT_FALSE(test::KeyboardMapping() == before) << "the line is not ended yet";
    platform_.reset();
    EXPECT_TRUE(test::KeyboardMapping() == before);
}

TEST_F(X11Typing, BorrowedKeysAreGivenBackWhenTheClientDies)
{
    StartReceiver();
    const WindowHandle window = FindClientWindow(*platform_);
    const auto         before = test::KeyboardMapping();
    EXPECT_TRUE(platform_->Post(window, message::Char, 0x80, 0));
    receiver_->Process().End(SIGKILL);
    ASSERT_TRUE(test::Eventually([&] { return !platform_->IsWindow(window); }));
    platform_->Post(window, message::KeyDown, 13, 0);
    platform_->Post(window, message::KeyUp, 13, 0);
    EXPECT_TRUE(test::KeyboardMapping() == before);
}

TEST_F(X11Typing, LongestLineArrivesWhole)
{
    StartReceiver();
    std::string line;
    while (line.size() < 32'766) {
        line.push_back(static_cast<char>('a' + line.size() % 26));
    }
    ExpectArrival({line, "short"});
}

TEST_F(X11Typing, ControlCharactersTypeNothing)
{
    StartReceiver();
    ExpectArrival({"ab"});
    SendCommand(*platform_, boxes_, "'",
                "a\t\r\n\x1B\x7F"
                "b");
    EXPECT_EQ(receiver_->WaitForLines(2).at(1), "'ab");
}

TEST_F(X11Typing, ClientThatIsBusyDrawingLosesNothing)
{
    StartReceiver({"--frame", "30"});
    ExpectArrival(NumberedLines(1'000));
}

TEST_F(X11Typing, ClientThatIsStoppedForAWhileLosesNothing)
{
    StartReceiver();
    ExpectArrival({"awake"});
    const pid_t id = receiver_->Process().Id();
    kill(id, SIGSTOP);
    const pid_t waker = fork();
    ASSERT_GE(waker, 0);
    if (waker == 0) {
        usleep(500'000);
        kill(id, SIGCONT);
        _exit(0);
    }
    ExpectArrival(NumberedLines(2'000));
    waitpid(waker, nullptr, 0);
}

TEST_F(X11Typing, ClientThatAnswersNoPingIsTypedAtAllTheSame)
{
    StartReceiver({"--without-ping"});
    ExpectArrival(NumberedLines(500));
}

TEST_F(X11Typing, EmptyLinesArrive)
{
    StartReceiver();
    SendCommand(*platform_, boxes_, "'", "", false);
    SendCommand(*platform_, boxes_, "'", "");
    EXPECT_THAT(receiver_->WaitForLines(2), ElementsAre("", "'"));
}

} // namespace
} // namespace qf::client
