#include "core/installed_folders.h"

#include <gtest/gtest.h>

#include "support/temp_folder.h"

namespace qf::core {
namespace {

TEST(InstalledFolders, TheSharedFolderIsBesideTheFolderOfTheExecutables)
{
    EXPECT_EQ(SharedFolder("/usr/bin"), "/usr/share/quernfield");
    EXPECT_EQ(SharedFolder("/usr/bin/"), "/usr/share/quernfield");
    EXPECT_EQ(SharedFolder("/opt/quernfield/bin"), "/opt/quernfield/share/quernfield");
}

TEST(InstalledFolders, ThePracticeArtBesideTheExecutableGoesFirst)
{
    const test::TempFolder folder;
    const auto             executables = folder.MakeFolder("bin");
    EXPECT_EQ(PracticeArtFolder(executables), "");

    folder.Write("share/quernfield/PracticeArt/art.mul", "");
    EXPECT_EQ(PracticeArtFolder(executables), folder.Path() / "share/quernfield/PracticeArt");
    EXPECT_EQ(PracticeArtFolder(executables / ""), folder.Path() / "share/quernfield/PracticeArt");

    folder.MakeFolder("bin/PracticeArt");
    EXPECT_EQ(PracticeArtFolder(executables), folder.Path() / "share/quernfield/PracticeArt");
    folder.Write("bin/PracticeArt/art.mul", "");
    EXPECT_EQ(PracticeArtFolder(executables), folder.Path() / "bin/PracticeArt");
    EXPECT_EQ(PracticeArtFolder(executables / ""), folder.Path() / "bin/PracticeArt");
}

} // namespace
} // namespace qf::core
