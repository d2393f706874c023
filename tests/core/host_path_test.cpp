#include "core/host_path.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "support/temp_folder.h"

#ifndef _WIN32
#include <unistd.h>
#endif

namespace qf::core {
namespace {

namespace fs = std::filesystem;

TEST(HostPath, ProgramPathAndBackNameTheSameFile)
{
    const test::TempFolder folder;
    const fs::path         file = folder.Write("Sub/Tile \xC3\xA4.txt", "x");
    EXPECT_EQ(HostPath(ProgramPath(file)), file.lexically_normal());
    EXPECT_EQ(HostPath(folder.ProgramPath() + "\\Sub\\Tile \xC3\xA4.txt"), file.lexically_normal());
}

TEST(HostPath, ProgramFormHasBackslashesOnly)
{
    EXPECT_EQ(ProgramPath(fs::path("a/b c/d.txt")), "a\\b c\\d.txt");
    EXPECT_EQ(ProgramPath(fs::path("")), "");
    EXPECT_EQ(ProgramPath(fs::path(u8"\u00E4/x")), "\xC3\xA4\\x");
}

TEST(HostPath, EmptyPathStaysEmpty)
{
    EXPECT_TRUE(HostPath("").empty());
}

TEST(HostPath, Utf8AndBackIsTheSamePath)
{
    EXPECT_EQ(PathOf("a/\xC3\xA4"), fs::path(u8"a/\u00E4"));
    EXPECT_EQ(Utf8Of(fs::path(u8"\u00E4.txt")), "\xC3\xA4.txt");
    EXPECT_EQ(Utf8Of(PathOf("")), "");
}

TEST(HostPath, OnlyAFileIsAFile)
{
    const test::TempFolder folder;
    folder.Write("Sub/art.mul", "");
    EXPECT_TRUE(IsFile(folder.ProgramPath() + "\\Sub\\art.mul"));
    EXPECT_TRUE(IsFile(folder.ProgramPath() + "\\sub\\ART.MUL"));
    EXPECT_FALSE(IsFile(folder.ProgramPath() + "\\Sub\\artidx.mul"));
    EXPECT_FALSE(IsFile(folder.ProgramPath() + "\\Sub"));
    EXPECT_FALSE(IsFile(""));
}

#ifdef _WIN32

TEST(HostPath, OnWindowsIsThePathItself)
{
    EXPECT_EQ(HostPath("C:\\Program Files\\x.txt"), fs::path(L"C:\\Program Files\\x.txt"));
    EXPECT_EQ(HostPath("a/b"), fs::path(L"a/b"));
    EXPECT_EQ(HostPath("\xC3\xA4"), fs::path(L"\u00E4"));
}

TEST(HostPath, BytesThatAreNoUtf8AreOfTheCodePage)
{
    EXPECT_EQ(HostPath("x\xE4"), fs::path(L"x\u00E4"));
}

#else

/// The path below the folder that HostPath finds for a program path below it.
std::string Found(const test::TempFolder& folder, const std::string& below)
{
    const std::string host = HostPath(folder.ProgramPath() + "\\" + below).string();
    const std::string root = folder.Path().string() + "/";
    EXPECT_TRUE(host.starts_with(root)) << host;
    return host.substr(root.size());
}

TEST(HostPath, AbsolutePathsBeginWithASeparator)
{
    EXPECT_EQ(ProgramPath("/home/x"), "\\home\\x");
    EXPECT_EQ(HostPath("\\no-such-root\\x"), fs::path("/no-such-root/x"));
    EXPECT_EQ(HostPath("\\"), fs::path("/"));
    EXPECT_EQ(HostPath("\\\\no-such-root\\\\x"), fs::path("/no-such-root/x"));
}

TEST(HostPath, ADriveIsANameLikeAnyOther)
{
    EXPECT_EQ(HostPath("C:\\Program Files\\Ultima Online"), fs::path("C:/Program Files/Ultima Online"));
}

TEST(HostPath, NamesAreFoundWithoutRegardToCase)
{
    const test::TempFolder folder;
    folder.Write("Data/ART.MUL", "");
    EXPECT_EQ(Found(folder, "data\\art.mul"), "Data/ART.MUL");
    EXPECT_EQ(Found(folder, "DATA/Art.mul"), "Data/ART.MUL");
    EXPECT_EQ(Found(folder, "Data\\ART.MUL"), "Data/ART.MUL");
}

TEST(HostPath, TheExactNameWinsOverOthers)
{
    const test::TempFolder folder;
    folder.Write("ART.mul", "");
    folder.Write("art.mul", "");
    EXPECT_EQ(Found(folder, "art.mul"), "art.mul");
}

TEST(HostPath, TheFirstInByteOrderWinsOfSeveral)
{
    const test::TempFolder folder;
    folder.Write("art.MUL", "");
    folder.Write("Art.mul", "");
    folder.Write("ARt.mul", "");
    EXPECT_EQ(Found(folder, "aRT.mul"), "ARt.mul");
}

TEST(HostPath, EachNameIsDecidedOnItsOwn)
{
    const test::TempFolder folder;
    folder.MakeFolder("data");
    folder.Write("Data/x.txt", "");
    EXPECT_EQ(Found(folder, "data\\x.txt"), "data/x.txt");
    EXPECT_FALSE(fs::exists(HostPath(folder.ProgramPath() + "\\data\\x.txt")));
}

TEST(HostPath, NamesThatAreNotThereStayAsWritten)
{
    const test::TempFolder folder;
    folder.MakeFolder("Templates");
    EXPECT_EQ(Found(folder, "TEMPLATES\\New House.tmp"), "Templates/New House.tmp");
    EXPECT_EQ(Found(folder, "Missing\\Templates\\a.tmp"), "Missing/Templates/a.tmp");
}

TEST(HostPath, AFileIsNoFolderToSearch)
{
    const test::TempFolder folder;
    folder.Write("file", "");
    EXPECT_EQ(Found(folder, "FILE\\inner"), "file/inner");
}

TEST(HostPath, SeparatorAtTheEndStays)
{
    const test::TempFolder folder;
    folder.MakeFolder("UO");
    EXPECT_EQ(Found(folder, "uo\\"), "UO/");
    EXPECT_EQ(Found(folder, "uo\\\\"), "UO/");
    EXPECT_EQ(Found(folder, "uo"), "UO");
}

TEST(HostPath, EmptyNamesCountForNothing)
{
    const test::TempFolder folder;
    folder.Write("UO/Artidx.mul", "");
    EXPECT_EQ(Found(folder, "UO\\\\artidx.MUL"), "UO/Artidx.mul");
}

TEST(HostPath, DotsKeepTheirMeaning)
{
    const test::TempFolder folder;
    folder.Write("a/B.txt", "");
    EXPECT_EQ(Found(folder, "a\\..\\A\\.\\b.txt"), "a/../a/./B.txt");
}

TEST(HostPath, OnlyAsciiLettersHaveTwoCases)
{
    const test::TempFolder folder;
    folder.Write("\xC3\x84.TXT", "");
    EXPECT_EQ(Found(folder, "\xC3\x84.txt"), "\xC3\x84.TXT");
    EXPECT_EQ(Found(folder, "\xC3\xA4.txt"), "\xC3\xA4.txt");
}

TEST(HostPath, NamesTooLongForTheSystemStayAsWritten)
{
    const test::TempFolder folder;
    const std::string      name(5000, 'n');
    EXPECT_EQ(Found(folder, name), name);
}

TEST(HostPath, AFolderThatCannotBeReadLeavesNamesAsWritten)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "every folder is readable for this user";
    }
    const test::TempFolder folder;
    folder.Write("closed/Inner.txt", "");
    const fs::path closed = folder.Path() / "closed";
    fs::permissions(closed, fs::perms::none);
    const std::string found = Found(folder, "CLOSED\\inner.TXT");
    fs::permissions(closed, fs::perms::owner_all);
    EXPECT_EQ(found, "closed/inner.TXT");
}

TEST(HostPath, ALinkToNowhereIsThere)
{
    const test::TempFolder folder;
    fs::create_symlink("/no-such-target", folder.Path() / "Link");
    EXPECT_EQ(Found(folder, "link"), "Link");
}

TEST(HostPath, RelativeNamesAreFoundInTheCurrentFolder)
{
    const test::TempFolder folder;
    folder.Write("Here.txt", "");
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    const fs::path found = HostPath("HERE.TXT");
    fs::current_path(before);
    EXPECT_EQ(found, fs::path("Here.txt"));
}

#endif

} // namespace
} // namespace qf::core
