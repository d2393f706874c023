#include <QApplication>
#include <QDir>
#include <QTimer>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

#include "app/current_drive.h"
#include "app/program_on_stage.h"
#include "app/qt_environment.h"
#include "core/host_path.h"
#include "desktop/win32/target_process.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"
#include "ui/panel.h"
#include "ui/parts.h"

// What the program asks of Windows itself, on real windows.

namespace qf::app {
namespace {

namespace fs = std::filesystem;

class PanelWindows : public testing::Test {
  protected:
    PanelWindows() { started_ = stage_.application->Main(); }

    void SetUp() override { ASSERT_TRUE(started_); }

    ui::Panel& Shown(std::string_view name)
    {
        auto& panels = stage_.application->Context().panels;
        panels.Show(name);
        QApplication::processEvents();
        return panels.Touch(name);
    }

    static HWND Native(const ui::Panel& panel) { return reinterpret_cast<HWND>(panel.winId()); }
    static bool IsTopmost(const ui::Panel& panel)
    {
        return (GetWindowLongPtrA(Native(panel), GWL_EXSTYLE) & WS_EX_TOPMOST) != 0;
    }

    /// Whether the menu of the window's frame offers to close it.
    static bool OffersClose(const ui::Panel& panel)
    {
        const HMENU menu = GetSystemMenu(Native(panel), FALSE);
        return GetMenuState(menu, SC_CLOSE, MF_BYCOMMAND) != static_cast<UINT>(-1);
    }

  private:
    test::ProgramOnStage stage_;
    bool                 started_ = false;
};

TEST_F(PanelWindows, TheConsoleAloneHasNoCloseEntry)
{
    EXPECT_FALSE(OffersClose(Shown("frmGMCommands")));
    EXPECT_TRUE(OffersClose(Shown("frmFloors")));
}

TEST_F(PanelWindows, TheSeparatorAboveGoesWithTheCloseEntry)
{
    const HMENU whole = GetSystemMenu(Native(Shown("frmFloors")), FALSE);
    const HMENU menu = GetSystemMenu(Native(Shown("frmGMCommands")), FALSE);
    EXPECT_EQ(GetMenuItemCount(menu), GetMenuItemCount(whole) - 2);
    EXPECT_EQ(GetMenuItemID(menu, 4), static_cast<UINT>(SC_MAXIMIZE));
    EXPECT_EQ(GetMenuItemID(whole, 4), static_cast<UINT>(SC_MAXIMIZE));
}

TEST_F(PanelWindows, ConsoleOnTopStillHasNoCloseEntry)
{
    auto& console = Shown("frmGMCommands");
    console.SetStayOnTop(true);
    QApplication::processEvents();
    EXPECT_TRUE(IsTopmost(console));
    EXPECT_FALSE(OffersClose(console));
}

TEST_F(PanelWindows, APanelOnTopIsTopmostAndKeepsItsPlaceAndSize)
{
    auto& panel = Shown("frmFloors");
    ASSERT_FALSE(IsTopmost(panel));
    panel.move(120, 90);
    QApplication::processEvents();
    const auto before = panel.frameGeometry();
    panel.SetStayOnTop(true);
    QApplication::processEvents();
    EXPECT_TRUE(IsTopmost(panel));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.frameGeometry(), before);
}

TEST_F(PanelWindows, TheFramesCloseMessageDoesNotCloseTheConsole)
{
    auto& console = Shown("frmGMCommands");
    SendMessageA(Native(console), WM_SYSCOMMAND, SC_CLOSE, 0);
    QApplication::processEvents();
    EXPECT_TRUE(console.isVisible());
}

class DesktopServices : public testing::Test {
  protected:
    ~DesktopServices() override { QDir::setCurrent(before_); }

    fs::path Tools() const { return folder_.Path() / "tools"; }

    test::TempFolder folder_;
    DesktopShell     shell_;
    const QString    before_ = QDir::currentPath();
};

TEST_F(DesktopServices, ADriveThatIsNotThereIsAnError)
{
    DWORD drives = GetLogicalDrives();
    char  free = 'B';
    while ((drives & (1U << (free - 'A'))) != 0) {
        ++free;
    }
    EXPECT_RUNTIME_ERROR(68, ChangeDrive(std::string(1, free) + ":\\anything"));
    EXPECT_RUNTIME_ERROR(68, ChangeDrive("\\\\server\\share\\"));
    EXPECT_RUNTIME_ERROR(5, ChangeDrive(""));
    EXPECT_EQ(QDir::currentPath(), before_);
}

TEST_F(DesktopServices, EnteringAFolderChangesDriveAndFolder)
{
    folder_.MakeFolder("tools");
    ASSERT_TRUE(QDir::setCurrent(QStringLiteral("Z:/")));
    shell_.EnterFolder(folder_.ProgramPath() + "\\tools\\");
    EXPECT_TRUE(fs::equivalent(fs::current_path(), Tools()));
    EXPECT_RUNTIME_ERROR(76, shell_.EnterFolder(folder_.ProgramPath() + "\\nowhere\\"));
}

TEST_F(DesktopServices, AProgramIsStartedInItsFolder)
{
    folder_.MakeFolder("tools");
    const auto teller = QCoreApplication::applicationDirPath() + QStringLiteral("/qf_place_teller.exe");
    fs::copy_file(core::HostPath(ui::Utf8(teller)), Tools() / "InsideUO.exe");
    shell_.StartProgram("InsideUO.exe", folder_.ProgramPath() + "\\tools\\");
    ASSERT_TRUE(test::WaitFor([this] { return folder_.Has("tools/place"); }));
    EXPECT_TRUE(fs::equivalent(folder_.Read("tools/place"), Tools()));
    EXPECT_TRUE(fs::equivalent(fs::current_path(), Tools()));
}

TEST_F(DesktopServices, AProgramThatIsNotThereOrIsNoneIsAnError)
{
    folder_.Write("tools/readme.txt", "no program");
    EXPECT_RUNTIME_ERROR(53, shell_.StartProgram("zarn.exe", folder_.ProgramPath() + "\\tools\\"));
    EXPECT_RUNTIME_ERROR(5, shell_.StartProgram("readme.txt", folder_.ProgramPath() + "\\tools\\"));
}

/// Gives the open file dialog a command as one of its buttons does, once it is there.
class DialogHand : public QTimer {
  public:
    DialogHand(const char* title, WORD button) : title_(title), button_(button)
    {
        callOnTimeout([this] {
            if (HWND dialog = FindWindowA("#32770", title_); dialog != nullptr && IsWindowVisible(dialog) != 0) {
                stop();
                PostMessageA(dialog, WM_COMMAND, MAKEWPARAM(button_, BN_CLICKED), 0);
            }
        });
        start(20);
    }

  private:
    const char* title_;
    WORD        button_;
};

TEST_F(DesktopServices, ACancelledFileDialogGivesTheNameThatItWasOpenedWith)
{
    DesktopFileDialogs dialogs;
    const DialogHand   hand("Browse for Zarn directory", IDCANCEL);
    EXPECT_EQ(dialogs.OpenFile({"Browse for Zarn directory", "*zarn*.exe", "Zarn Executable|*zarn*.exe;"}),
              "*zarn*.exe");
    EXPECT_FALSE(hand.isActive());
}

} // namespace
} // namespace qf::app

int main(int argumentCount, char** arguments)
{
    testing::InitGoogleTest(&argumentCount, arguments);
    const QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
