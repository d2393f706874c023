#include <QDir>
#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include <gtest/gtest.h>

#include "app/qt_environment.h"
#include "support/expect_error.h"
#include "support/temp_folder.h"
#include "ui/parts.h"

namespace qf::app {
namespace {

namespace fs = std::filesystem;

class DesktopShellTest : public testing::Test {
  protected:
    DesktopShellTest()
    {
        const auto tool = folder_.Write("tools/InsideUO.exe", "#!/bin/sh\npwd > place.new\nmv place.new place\n");
        fs::permissions(tool, fs::perms::owner_exec, fs::perm_options::add);
    }
    ~DesktopShellTest() override { QDir::setCurrent(before_); }

    /// The working folder of the program that was started.
    std::string PlaceOfTool() const
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds{20};
        while (!folder_.Has("tools/place") && std::chrono::steady_clock::now() < end) {
            std::this_thread::sleep_for(std::chrono::milliseconds{2});
        }
        return folder_.Read("tools/place");
    }

    fs::path Tools() const { return fs::canonical(folder_.Path() / "tools"); }

    test::TempFolder folder_;
    DesktopShell     shell_;
    const QString    before_ = QDir::currentPath();
};

TEST_F(DesktopShellTest, NamedProgramRunsInItsFolderWhichStaysTheWorkingOne)
{
    shell_.StartProgram("insideuo.exe", folder_.ProgramPath() + "\\Tools\\");
    EXPECT_EQ(PlaceOfTool(), Tools().string() + "\n");
    EXPECT_EQ(ui::Utf8(QDir::currentPath()), Tools().string());
}

TEST_F(DesktopShellTest, ProgramWithAPathRunsInTheFolder)
{
    const auto tools = folder_.ProgramPath() + "\\tools\\";
    shell_.StartProgram(tools + "InsideUO.exe", tools);
    EXPECT_EQ(PlaceOfTool(), Tools().string() + "\n");
}

TEST_F(DesktopShellTest, MissingFolderIsAnErrorAndChangesNothing)
{
    EXPECT_RUNTIME_ERROR(76, shell_.StartProgram("InsideUO.exe", folder_.ProgramPath() + "\\nowhere\\"));
    EXPECT_RUNTIME_ERROR(76, shell_.StartProgram("InsideUO.exe", ""));
    EXPECT_EQ(QDir::currentPath(), before_);
}

TEST_F(DesktopShellTest, EnteredFolderIsTheWorkingOne)
{
    shell_.EnterFolder(folder_.ProgramPath() + "\\Tools\\");
    EXPECT_EQ(ui::Utf8(QDir::currentPath()), Tools().string());
    EXPECT_RUNTIME_ERROR(76, shell_.EnterFolder(""));
    EXPECT_RUNTIME_ERROR(76, shell_.EnterFolder(folder_.ProgramPath() + "\\nowhere\\"));
    EXPECT_EQ(ui::Utf8(QDir::currentPath()), Tools().string());
}

TEST_F(DesktopShellTest, MissingProgramIsAnErrorInTheNewWorkingFolder)
{
    EXPECT_RUNTIME_ERROR(53, shell_.StartProgram("zarn.exe", folder_.ProgramPath() + "\\tools"));
    EXPECT_EQ(ui::Utf8(QDir::currentPath()), Tools().string());
}

TEST_F(DesktopShellTest, FileThatIsNoProgramIsAnError)
{
    folder_.Write("tools/readme.txt", "no program");
    EXPECT_RUNTIME_ERROR(5, shell_.StartProgram("readme.txt", folder_.ProgramPath() + "\\tools"));
}

} // namespace
} // namespace qf::app
