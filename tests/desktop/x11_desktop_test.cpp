// What the platform tells about the windows and the processes of a real desktop.

#include <array>
#include <csignal>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "client/delivery.h"
#include "client/location.h"
#include "client/platform/x11/x11_platform.h"
#include "desktop/x11_session.h"
#include "support/expect_error.h"

namespace qf::client {
namespace {

/// A window without any library: of the test's own process, with the class and title that it is given.
class PlainWindow {
  public:
    enum class Title { Latin1, Utf8 };

    PlainWindow(const std::string& className, const std::string& title, Title kind = Title::Latin1)
    {
        const std::string both = std::string("instance") + '\0' + className + '\0';
        const auto        number = static_cast<std::uint32_t>(getpid());
        window_ = xcb_generate_id(connection_.Raw());
        xcb_create_window(connection_.Raw(), XCB_COPY_FROM_PARENT, window_, connection_.Root(), 0, 0, 50, 50, 0,
                          XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
        Set(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, both.data(), both.size());
        if (kind == Title::Latin1) {
            Set(XCB_ATOM_WM_NAME, XCB_ATOM_STRING, 8, title.data(), title.size());
        } else {
            Set(connection_.Atoms().netWmName, connection_.Atoms().utf8String, 8, title.data(), title.size());
        }
        Set(connection_.Atoms().netWmPid, XCB_ATOM_CARDINAL, 32, &number, 1);
        xcb_map_window(connection_.Raw(), window_);
        connection_.Settle();
    }

    xcb_window_t Window() const { return window_; }

    void Close()
    {
        xcb_destroy_window(connection_.Raw(), window_);
        connection_.Settle();
    }

  private:
    void Set(xcb_atom_t property, xcb_atom_t type, std::uint8_t format, const void* data, std::size_t count)
    {
        xcb_change_property(connection_.Raw(), XCB_PROP_MODE_REPLACE, window_, property, type, format,
                            static_cast<std::uint32_t>(count), data);
    }

    X11Connection connection_{std::string{}};
    xcb_window_t  window_ = XCB_WINDOW_NONE;
};

class X11Desktops : public testing::TestWithParam<bool> {
  protected:
    void SetUp() override
    {
        if (std::getenv("DISPLAY") == nullptr) {
            GTEST_SKIP() << "no display";
        }
        test::HoldDisplay();
        if (GetParam()) {
            manager_ = std::make_unique<test::WindowManager>();
        }
        platform_ = std::make_unique<X11Platform>();
    }

    std::vector<WindowInfo> Windows()
    {
        std::vector<WindowInfo> windows;
        platform_->EnumerateWindows([&windows](const WindowInfo& window) {
            windows.push_back(window);
            return true;
        });
        return windows;
    }

    bool WaitForWindows(std::size_t count)
    {
        return test::Eventually([&] {
            test::NudgeWindowManager();
            return Windows().size() == count;
        });
    }

    std::unique_ptr<test::WindowManager> manager_;
    std::unique_ptr<X11Platform>         platform_;
};

INSTANTIATE_TEST_SUITE_P(Desktops, X11Desktops, testing::Bool(),
                         [](const auto& desktop) { return desktop.param ? "Managed" : "Bare"; });

TEST_P(X11Desktops, WindowsAreListedTopmostFirst)
{
    PlainWindow first("First", "one");
    ASSERT_TRUE(WaitForWindows(1));
    PlainWindow second("Second", "two");
    ASSERT_TRUE(WaitForWindows(2));
    platform_->BringToForeground(first.Window());
    ASSERT_TRUE(test::Eventually([&] { return Windows().front().handle == first.Window(); }));
    platform_->BringToForeground(second.Window());
    EXPECT_TRUE(test::Eventually([&] { return Windows().front().handle == second.Window(); }));
    EXPECT_EQ(Windows().back().handle, first.Window());
    EXPECT_TRUE(test::Eventually([&] { return platform_->ForegroundWindow() == second.Window(); }));

    int visits = 0;
    platform_->EnumerateWindows([&visits](const WindowInfo&) {
        ++visits;
        return false;
    });
    EXPECT_EQ(visits, 1);
}

TEST_P(X11Desktops, ClassAndTitleAreThoseOfTheWindow)
{
    PlainWindow latin("Latin", "na\xEFve");
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(Windows().front().className, "Latin");
    EXPECT_EQ(Windows().front().title, "na\xEFve");
    latin.Close();
    ASSERT_TRUE(WaitForWindows(0));
    PlainWindow utf8("Utf8", "5 \u20AC", PlainWindow::Title::Utf8);
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(Windows().front().title, "5 \x80");
}

TEST_P(X11Desktops, WindowOfTheLibraryHasItsClass)
{
    test::Receiver receiver;
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(Windows().front().className, "SDL_app");
    EXPECT_EQ(Windows().front().title, "ClassicUO - Receiver");
    EXPECT_EQ(FindClientWindow(*platform_), Windows().front().handle);
    EXPECT_EQ(platform_->ProcessOf(Windows().front().handle), static_cast<ProcessId>(receiver.Process().Id()));
}

TEST_P(X11Desktops, DocumentedClassIsKeptInAProcessWithTheLibrary)
{
    setenv("SDL_VIDEO_X11_WMCLASS", "Ultima Online", 1);
    test::Receiver receiver;
    unsetenv("SDL_VIDEO_X11_WMCLASS");
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(Windows().front().className, "Ultima Online");
    EXPECT_EQ(FindClientWindow(*platform_), 0U);
    EXPECT_EQ(platform_->FindWindowByClass("Ultima Online"), Windows().front().handle);
}

TEST_P(X11Desktops, LiteralClassIsTakenWithoutTheLibrary)
{
    PlainWindow window("SDL_app", "ClassicUO");
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(FindClientWindow(*platform_), window.Window());
}

TEST_P(X11Desktops, ClassIsFoundAsItIsWritten)
{
    PlainWindow window("Ultima Online", "");
    ASSERT_TRUE(WaitForWindows(1));
    EXPECT_EQ(platform_->FindWindowByClass("Ultima Online"), window.Window());
    EXPECT_EQ(platform_->FindWindowByClass("ultima online"), 0U);
    EXPECT_TRUE(platform_->IsWindow(window.Window()));
    window.Close();
    EXPECT_FALSE(platform_->IsWindow(window.Window()));
    EXPECT_EQ(platform_->FindWindowByClass("Ultima Online"), 0U);
}

TEST_P(X11Desktops, PositionIsReadFromTheMemoryOfAClassicClient)
{
    static const std::array<std::int32_t, 3> Triple{20, 1600, 1433};
    PlainWindow                              window("Ultima Online 3D", "");
    ASSERT_TRUE(WaitForWindows(1));
    const ProcessHandle process = platform_->OpenProcess(platform_->ProcessOf(window.Window()));
    ASSERT_GT(process, 1U);
    std::array<std::int32_t, 3> read{};
    EXPECT_TRUE(platform_->ReadMemory(process, reinterpret_cast<std::uintptr_t>(Triple.data()),
                                      std::as_writable_bytes(std::span(read))));
    EXPECT_EQ(read, Triple);
    platform_->CloseProcess(process);
    EXPECT_EQ(GetPlayerLocation(*platform_, 16, false), UnknownLocation) << "no program has memory there";
}

TEST_P(X11Desktops, HandlesThatAreNoWindowsDoNoHarm)
{
    for (const WindowHandle window : {WindowHandle{0}, WindowHandle{0x7FFFFFF}, ~WindowHandle{0}}) {
        EXPECT_FALSE(platform_->IsWindow(window));
        EXPECT_EQ(platform_->ProcessOf(window), 0U);
        EXPECT_FALSE(platform_->Post(window, message::Char, 'x', 0));
        EXPECT_FALSE(platform_->Post(window, message::KeyDown, 13, 0));
        platform_->BringToForeground(window);
        platform_->ActivateWindow(window);
    }
    EXPECT_EQ(platform_->ForegroundWindow(), 0U);
}

TEST_P(X11Desktops, OtherMessagesAreRefused)
{
    PlainWindow window("A", "a");
    EXPECT_FALSE(platform_->Post(window.Window(), 0x10, 0, 0));
    EXPECT_FALSE(platform_->Post(window.Window(), message::KeyDown, 65, 0));
    EXPECT_FALSE(platform_->Post(window.Window(), message::AssistPosition, 0, 0));
    EXPECT_EQ(platform_->Send(window.Window(), message::AssistPosition), 0);
    EXPECT_TRUE(platform_->Post(window.Window(), message::KeyDown, 13, 0));
}

TEST_P(X11Desktops, ListThatAManagerLeftBehindIsNotTrusted)
{
    if (!manager_) {
        manager_ = std::make_unique<test::WindowManager>();
    }
    PlainWindow before("Before", "a");
    ASSERT_TRUE(WaitForWindows(1));
    manager_->Kill();
    ASSERT_TRUE(test::Eventually([] { return !test::WindowManagerRuns(); }));
    PlainWindow after("After", "b");
    EXPECT_TRUE(test::Eventually([this] { return platform_->FindWindowByClass("After") != 0; }));
}

TEST(X11Display, MissingDisplayIsAnUnavailableDevice)
{
    EXPECT_RUNTIME_ERROR(68, X11Platform(":59999"));
}

} // namespace
} // namespace qf::client
