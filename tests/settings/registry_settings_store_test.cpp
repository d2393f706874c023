#include "app/settings/registry_settings_store.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "nasty_texts.h"

namespace qf::app {
namespace {

class RegistrySettingsStoreTest : public testing::Test {
  protected:
    ~RegistrySettingsStoreTest() override { RegDeleteTreeW(HKEY_CURRENT_USER, root.c_str()); }

    std::wstring          root = L"Software\\Quernfield\\Tests " + std::to_wstring(GetCurrentProcessId());
    RegistrySettingsStore store{root};
};

TEST_F(RegistrySettingsStoreTest, NastyTextsSurvive)
{
    for (const auto& nasty : NastyTexts()) {
        store.Write("Configuration", "CustomCMD0", nasty);
        EXPECT_EQ(RegistrySettingsStore(root).Find("Configuration", "CustomCMD0"), nasty);
    }
}

TEST_F(RegistrySettingsStoreTest, ReaderAndWriterMeetUnderTwoSpellings)
{
    store.Write("Startup", "QFMainposX", "105");
    EXPECT_EQ(store.Find("Startup", "QFMainPosX"), "105");
    EXPECT_EQ(store.Read("STARTUP", "qfmainposx"), "105");
    EXPECT_EQ(store.Find("Configuration", "QFMainPosX"), std::nullopt);
}

TEST_F(RegistrySettingsStoreTest, ReadingAndRemovingNeverCreate)
{
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
    store.Remove("Configuration", "ZarnVer");
    HKEY key = nullptr;
    EXPECT_EQ(RegOpenKeyExW(HKEY_CURRENT_USER, root.c_str(), 0, KEY_QUERY_VALUE, &key), ERROR_FILE_NOT_FOUND);
}

TEST_F(RegistrySettingsStoreTest, RemovedIsAbsentAndEmptyIsNot)
{
    store.Write("Configuration", "CommandPrefix", "");
    EXPECT_EQ(store.Find("Configuration", "CommandPrefix"), "");
    store.Remove("Configuration", "COMMANDPREFIX");
    EXPECT_EQ(store.Find("Configuration", "CommandPrefix"), std::nullopt);
}

TEST_F(RegistrySettingsStoreTest, AValueThatIsNoTextReadsAsAbsent)
{
    store.Write("Configuration", "CommandPrefix", "'");
    const DWORD number = 1;
    ASSERT_EQ(RegSetKeyValueW(HKEY_CURRENT_USER, (root + L"\\Configuration").c_str(), L"ZarnVer", REG_DWORD, &number,
                              sizeof number),
              ERROR_SUCCESS);
    EXPECT_EQ(store.Find("Configuration", "ZarnVer"), std::nullopt);
}

} // namespace
} // namespace qf::app
