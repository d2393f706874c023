#include "core/settings.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "core/text.h"
#include "support/expect_error.h"
#include "support/memory_store.h"

namespace qf::core {
namespace {

using test::MemoryStore;

TEST(ReadSettings, AbsentKeysGiveTheirDefaults)
{
    MemoryStore    store;
    const Settings settings = ReadSettings(store);
    EXPECT_EQ(settings.UOPath, "C:\\Program Files\\Ultima Online");
    EXPECT_EQ(settings.ZarnPath, "");
    EXPECT_EQ(settings.IUOPath, "");
    EXPECT_EQ(settings.UOGPath, "");
    EXPECT_EQ(settings.CommandPrefix, "'");
    EXPECT_FALSE(settings.ItemPic);
    EXPECT_FALSE(settings.StayOnTop);
    EXPECT_FALSE(settings.UsingThirdDawn);
    EXPECT_FALSE(settings.UsingClassicUO);
    EXPECT_FALSE(settings.UsingVista);
}

TEST(ReadSettings, CreatesNoKey)
{
    MemoryStore store;
    ReadSettings(store);
    EXPECT_EQ(store.Size(), 0U);
}

TEST(ReadSettings, ReadsInTheDocumentedOrder)
{
    MemoryStore store;
    ReadSettings(store);
    EXPECT_EQ(store.asked,
              (std::vector<std::string>{"UOPath", "IUOPath", "ZarnPath", "UOGPath", "ItemPic", "StayOnTop",
                                        "CommandPrefix", "UsingThirdDawn", "UsingClassicUO", "UsingVista"}));
}

TEST(ReadSettings, EachKeyFillsItsOwnField)
{
    MemoryStore store;
    store.Write("Configuration", "UOPath", "C:\\UO\\");
    store.Write("Configuration", "IUOPath", "C:\\IUO\\");
    store.Write("Configuration", "ZarnPath", "C:\\Zarn\\zarn.exe");
    store.Write("Configuration", "UOGPath", "C:\\Razor\\Razor.exe");
    store.Write("Configuration", "CommandPrefix", ".");
    const Settings settings = ReadSettings(store);
    EXPECT_EQ(settings.UOPath, "C:\\UO\\");
    EXPECT_EQ(settings.IUOPath, "C:\\IUO\\");
    EXPECT_EQ(settings.ZarnPath, "C:\\Zarn\\zarn.exe");
    EXPECT_EQ(settings.UOGPath, "C:\\Razor\\Razor.exe");
    EXPECT_EQ(settings.CommandPrefix, ".");
}

struct FlagRow {
    const char* key;
    bool Settings::*field;
};

constexpr FlagRow Flags[] = {
    {"ItemPic", &Settings::ItemPic},
    {"StayOnTop", &Settings::StayOnTop},
    {"UsingThirdDawn", &Settings::UsingThirdDawn},
    {"UsingClassicUO", &Settings::UsingClassicUO},
    {"UsingVista", &Settings::UsingVista},
};

TEST(ReadSettings, EachFlagFillsItsOwnField)
{
    for (const FlagRow& set : Flags) {
        MemoryStore store;
        store.Write("Configuration", set.key, "1");
        const Settings settings = ReadSettings(store);
        for (const FlagRow& row : Flags) {
            EXPECT_EQ(settings.*row.field, row.field == set.field) << set.key << " in " << row.key;
        }
    }
}

TEST(ReadSettings, AnyNonZeroNumberIsTrue)
{
    for (const FlagRow& row : Flags) {
        for (const char* text : {"1", "-1", "2", "True", "0.5"}) {
            MemoryStore store;
            store.Write("Configuration", row.key, text);
            EXPECT_TRUE(ReadSettings(store).*row.field) << row.key << ' ' << text;
        }
        for (const char* text : {"0", "False", "-0", "0.0"}) {
            MemoryStore store;
            store.Write("Configuration", row.key, text);
            EXPECT_FALSE(ReadSettings(store).*row.field) << row.key << ' ' << text;
        }
    }
}

TEST(ReadSettings, AFlagThatIsNoTruthValueIsATypeError)
{
    for (const FlagRow& row : Flags) {
        for (const char* text : {"", "yes", "1 0"}) {
            MemoryStore store;
            store.Write("Configuration", row.key, text);
            EXPECT_RUNTIME_ERROR(13, ReadSettings(store));
        }
    }
}

TEST(ReadSettings, AbsentCommandPrefixIsAnApostrophe)
{
    MemoryStore store;
    EXPECT_EQ(ReadSettings(store).CommandPrefix, "'");
}

TEST(ReadSettings, EmptyCommandPrefixStaysEmpty)
{
    MemoryStore store;
    store.Write("Configuration", "CommandPrefix", "");
    EXPECT_EQ(ReadSettings(store).CommandPrefix, "");
}

TEST(ReadSettings, KeysOfTheStartupSectionDoNotCount)
{
    MemoryStore store;
    store.Write("Startup", "UOPath", "C:\\Other");
    EXPECT_EQ(ReadSettings(store).UOPath, "C:\\Program Files\\Ultima Online");
}

TEST(ReadSettings, TheServerGenerationIsNotPartOfTheRecord)
{
    MemoryStore store;
    store.Write("Configuration", "ZarnVer", "no number");
    EXPECT_NO_THROW(ReadSettings(store));
}

TEST(SettingsStore, ReadGivesTheFallbackOnlyForAnAbsentKey)
{
    MemoryStore store;
    store.Write("Startup", "GMposX", "");
    EXPECT_EQ(store.Read("Startup", "GMposX", "7"), "");
    EXPECT_EQ(store.Read("Startup", "GMposY", "7"), "7");
    EXPECT_EQ(store.Read("Startup", "GMposY"), "");
    store.Remove("Startup", "GMPOSX");
    EXPECT_EQ(store.Read("Startup", "GMposX", "7"), "7");
}

} // namespace
} // namespace qf::core
