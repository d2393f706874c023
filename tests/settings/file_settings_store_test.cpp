#include "app/settings/file_settings_store.h"

#include <chrono>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include "app/settings/store_factory.h"
#include "nasty_texts.h"
#include "support/expect_error.h"
#include "support/file_size_limit.h"
#include "support/temp_folder.h"

namespace qf::app {
namespace {

namespace fs = std::filesystem;

class FileSettingsStoreTest : public testing::Test {
  protected:
    std::size_t EntryCount() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder.Path()), {}));
    }

    test::TempFolder  folder;
    fs::path          file = folder.Path() / "settings.ini";
    FileSettingsStore store{file};
};

TEST_F(FileSettingsStoreTest, NastyTextsSurvive)
{
    for (const auto& nasty : NastyTexts()) {
        store.Write("Configuration", "CustomCMD0", nasty);
        EXPECT_EQ(FileSettingsStore(file).Find("Configuration", "CustomCMD0"), nasty);
    }
}

TEST_F(FileSettingsStoreTest, ReaderAndWriterMeetUnderTwoSpellings)
{
    store.Write("Startup", "QFMainposX", "105");
    EXPECT_EQ(store.Find("Startup", "QFMainPosX"), "105");
    EXPECT_EQ(store.Read("STARTUP", "qfmainposx"), "105");
}

TEST_F(FileSettingsStoreTest, ReadingAndRemovingNeverCreate)
{
    FileSettingsStore deep(folder.Path() / "a" / "b" / "settings.ini");
    EXPECT_EQ(deep.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_EQ(deep.Read("Configuration", "ZarnVer", "fallback"), "fallback");
    deep.Remove("Configuration", "ZarnVer");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_EQ(EntryCount(), 0U);
}

TEST_F(FileSettingsStoreTest, FirstWriteMakesTheFolders)
{
    const auto        deepFile = folder.Path() / "a" / "b" / "settings.ini";
    FileSettingsStore deep(deepFile);
    deep.Write("Configuration", "ZarnVer", "1");
    EXPECT_EQ(folder.Read("a/b/settings.ini"), "[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\n");
    EXPECT_EQ(fs::status(deepFile).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(FileSettingsStoreTest, AnEmptyTextIsNotAnAbsentKey)
{
    store.Write("Configuration", "CommandPrefix", "");
    EXPECT_EQ(store.Find("Configuration", "CommandPrefix"), "");
    store.Remove("Configuration", "COMMANDPREFIX");
    EXPECT_EQ(store.Find("Configuration", "CommandPrefix"), std::nullopt);
}

TEST_F(FileSettingsStoreTest, EachFindReadsTheFileAnew)
{
    store.Write("Configuration", "ZarnVer", "1");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
    folder.Write("settings.ini", "[[dobrin's quernfield]]\n[configuration]\nzarnver=7\n");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "7");
    fs::remove(file);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
}

TEST_F(FileSettingsStoreTest, PermissionsAreKept)
{
    folder.Write("settings.ini", "# shared\n");
    ASSERT_EQ(::chmod(file.c_str(), 0640), 0);
    store.Write("Configuration", "ZarnVer", "1");
    struct stat status = {};
    ASSERT_EQ(::stat(file.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
    EXPECT_EQ(folder.Read("settings.ini"), "# shared\n[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\n");
}

TEST_F(FileSettingsStoreTest, LinksStayLinks)
{
    fs::create_directory(folder.Path() / "dots");
    fs::create_symlink("dots/second", file);
    fs::create_symlink("settings", folder.Path() / "dots" / "second");
    store.Write("Configuration", "ZarnVer", "1");
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_TRUE(fs::is_symlink(folder.Path() / "dots" / "second"));
    EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(folder.Path() / "dots" / "settings")));
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
}

TEST_F(FileSettingsStoreTest, ALinkThatLeadsNowhereElseIsAnError)
{
    fs::create_symlink("settings.ini", file);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "1"));
    EXPECT_TRUE(fs::is_symlink(file));
}

TEST_F(FileSettingsStoreTest, AFolderInItsPlaceReadsAsAbsentAndCannotBeWritten)
{
    fs::create_directory(file);
    folder.Write("settings.ini/kept", "kept");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "1"));
    store.Remove("Configuration", "ZarnVer");
    EXPECT_EQ(folder.Read("settings.ini/kept"), "kept");
    EXPECT_EQ(EntryCount(), 1U);
}

TEST_F(FileSettingsStoreTest, APipeInItsPlaceDoesNotHoldTheProgram)
{
    ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "1"));
    EXPECT_TRUE(fs::is_fifo(file));
}

TEST_F(FileSettingsStoreTest, AFileWhereAFolderBelongsCannotBeWritten)
{
    folder.Write("settings.ini", "a file");
    FileSettingsStore below(file / "settings.ini");
    EXPECT_EQ(below.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, below.Write("Configuration", "ZarnVer", "1"));
    EXPECT_EQ(folder.Read("settings.ini"), "a file");
}

TEST_F(FileSettingsStoreTest, AFileWithoutPermissionsIsNotReplaced)
{
    if (::geteuid() == 0) {
        GTEST_SKIP() << "the superuser may read everything";
    }
    folder.Write("settings.ini", "[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\n");
    ASSERT_EQ(::chmod(file.c_str(), 0), 0);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "0"));
    ASSERT_EQ(::chmod(file.c_str(), 0600), 0);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
}

TEST_F(FileSettingsStoreTest, WhatAKilledWriterLeftBehindIsNoHindrance)
{
    folder.Write("settings.ini.new", "half a te");
    store.Write("Configuration", "ZarnVer", "1");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
    EXPECT_FALSE(fs::exists(folder.Path() / "settings.ini.new"));
}

TEST_F(FileSettingsStoreTest, AWriterWaitsForTheLockAndGivesUpInTheEnd)
{
    const auto lockFile = folder.Path() / "settings.ini.lock";
    const int  lock = ::open(lockFile.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    ASSERT_GE(lock, 0);
    ASSERT_EQ(::flock(lock, LOCK_EX), 0);
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "1"));
    EXPECT_FALSE(fs::exists(file));
    ::close(lock);
    store.Write("Configuration", "ZarnVer", "1");
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
}

TEST_F(FileSettingsStoreTest, AFullDiskLeavesTheOldText)
{
    store.Write("Configuration", "ZarnVer", "1");
    const auto before = folder.Read("settings.ini");
    {
        const test::FileSizeLimit limit(1000);
        EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "UOPath", std::string(2000, 'p')));
        EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "UOPath", std::string(2000, 'q')));
    }
    EXPECT_EQ(folder.Read("settings.ini"), before);
    EXPECT_FALSE(fs::exists(folder.Path() / "settings.ini.new"));
    store.Write("Configuration", "UOPath", std::string(2000, 'p'));
    EXPECT_EQ(store.Find("Configuration", "UOPath"), std::string(2000, 'p'));
}

TEST_F(FileSettingsStoreTest, AFolderInThePlaceOfTheNewTextIsAnError)
{
    store.Write("Configuration", "ZarnVer", "1");
    fs::create_directory(folder.Path() / "settings.ini.new");
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "0"));
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
}

TEST_F(FileSettingsStoreTest, ALinkInThePlaceOfTheLockIsNotFollowed)
{
    fs::create_symlink("elsewhere", folder.Path() / "settings.ini.lock");
    EXPECT_RUNTIME_ERROR(75, store.Write("Configuration", "ZarnVer", "1"));
    EXPECT_FALSE(fs::exists(folder.Path() / "elsewhere"));
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(FileSettingsStoreTest, AFileThatCannotBeReadToItsEndReadsAsAbsentAndCannotBeWritten)
{
    // A regular file whose first byte is no memory of the process.
    FileSettingsStore memory("/proc/self/mem");
    EXPECT_EQ(memory.Find("Configuration", "ZarnVer"), std::nullopt);
    EXPECT_RUNTIME_ERROR(75, memory.Write("Configuration", "ZarnVer", "1"));
}

TEST_F(FileSettingsStoreTest, ANameWithoutAFolderIsInTheFolderOfWork)
{
    const auto before = fs::current_path();
    fs::current_path(folder.Path());
    FileSettingsStore("settings.ini").Write("Configuration", "ZarnVer", "1");
    fs::current_path(before);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), "1");
}

class Environment {
  public:
    Environment(const char* name, const char* value) : name_(name)
    {
        if (const char* old = std::getenv(name)) {
            old_ = old;
        }
        Set(value);
    }
    ~Environment() { Set(old_ ? old_->c_str() : nullptr); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    void Set(const char* value) { value == nullptr ? ::unsetenv(name_) : ::setenv(name_, value, 1); }

    const char*                name_;
    std::optional<std::string> old_;
};

TEST(FileSettingsStoreDefaultFile, FollowsTheEnvironment)
{
    const Environment home("HOME", "/home/gm");
    {
        const Environment config("XDG_CONFIG_HOME", "/etc/mine");
        EXPECT_EQ(FileSettingsStore::DefaultFile(), "/etc/mine/quernfield/settings.ini");
        EXPECT_EQ(SettingsPlace(), "/etc/mine/quernfield/settings.ini");
    }
    for (const char* unusable : {static_cast<const char*>(nullptr), "", "relative"}) {
        const Environment config("XDG_CONFIG_HOME", unusable);
        EXPECT_EQ(FileSettingsStore::DefaultFile(), "/home/gm/.config/quernfield/settings.ini");
    }
    const Environment config("XDG_CONFIG_HOME", nullptr);
    const Environment noHome("HOME", nullptr);
    EXPECT_TRUE(FileSettingsStore::DefaultFile().is_absolute());
}

} // namespace
} // namespace qf::app
