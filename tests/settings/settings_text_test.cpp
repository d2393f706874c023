#include "app/settings/settings_text.h"

#include <gtest/gtest.h>
#include <random>

#include "nasty_texts.h"

namespace qf::app {
namespace {

using namespace std::string_literals;

constexpr std::string_view App = "Dobrin's Quernfield";

TEST(SettingsText, WritesPathsAsTheyAre)
{
    SettingsText text;
    text.Set(App, "Configuration", "UOPath", R"(C:\Program Files\Ultima Online\)");
    text.Set(App, "Configuration", "CommandPrefix", "'");
    EXPECT_EQ(text.Bytes(), "[[Dobrin's Quernfield]]\n[Configuration]\n"
                            "UOPath=C:\\Program Files\\Ultima Online\\\nCommandPrefix='\n");
}

TEST(SettingsText, NastyTextsSurviveAsValueKeyAndSection)
{
    for (const auto& nasty : NastyTexts()) {
        SettingsText text;
        text.Set(App, "Configuration", "before", "1");
        text.Set(App, "Configuration", "key", nasty);
        text.Set(App, "Configuration", nasty + "k", "as key");
        text.Set(App, nasty + "s", "key", "as section");
        text.Set(nasty + "a", "Configuration", "key", "as application");

        const SettingsText again(text.Bytes());
        EXPECT_EQ(again.Find(App, "Configuration", "key"), nasty);
        EXPECT_EQ(again.Find(App, "Configuration", nasty + "k"), "as key") << nasty.substr(0, 40);
        EXPECT_EQ(again.Find(App, nasty + "s", "key"), "as section") << nasty.substr(0, 40);
        EXPECT_EQ(again.Find(nasty + "a", "Configuration", "key"), "as application") << nasty.substr(0, 40);
        EXPECT_EQ(again.Find(App, "Configuration", "before"), "1");
    }
}

TEST(SettingsText, NastyNamesAloneSurvive)
{
    for (const auto& nasty : NastyTexts()) {
        SettingsText text;
        text.Set(nasty, nasty, nasty, "found");
        EXPECT_EQ(SettingsText(text.Bytes()).Find(nasty, nasty, nasty), "found") << nasty.substr(0, 40);
    }
}

TEST(SettingsText, NamesAreFoundWithoutRegardToCaseAndKeepTheirFirstSpelling)
{
    SettingsText text;
    text.Set(App, "Startup", "QFMainPosX", "100");
    text.Set(App, "STARTUP", "QFMainposX", "200");
    EXPECT_EQ(text.Find(App, "startup", "qfmainposx"), "200");
    EXPECT_EQ(text.Bytes(), "[[Dobrin's Quernfield]]\n[Startup]\nQFMainPosX=200\n");
}

TEST(SettingsText, BlanksAroundHandWrittenNamesAndValuesDoNotCount)
{
    const SettingsText text("  [[ dobrin's quernfield ]]  \n\t[ Configuration ]\n  ZarnVer \t= \t 1  \n");
    EXPECT_EQ(text.Find(App, "Configuration", "ZarnVer"), "1");
}

TEST(SettingsText, ChangingAValueKeepsTheRestOfItsLine)
{
    SettingsText text("[[Dobrin's Quernfield]]\r\n[Configuration]\r\n  ZarnVer \t= \t 1  \r\nother=2\r\n");
    text.Set(App, "Configuration", "zarnver", "0");
    EXPECT_EQ(text.Bytes(), "[[Dobrin's Quernfield]]\r\n[Configuration]\r\n  ZarnVer \t= \t 0  \r\nother=2\r\n");
}

TEST(SettingsText, ForeignContentStaysByteForByte)
{
    const std::string before = "\xEF\xBB\xBF# a comment\r\n"
                               "ZarnVer=9\r\n"
                               "[Configuration]\n"
                               "ZarnVer=8\n"
                               "[[Another program]]\n"
                               "[Configuration]\n"
                               "ZarnVer=7\n"s +
                               "\0\x01\xFF\xFE[[\r\r\n\n\n"s;
    const std::string own = "[[Dobrin's Quernfield]]\r\n"
                            "; ours\r\n"
                            "[Configuration\r\n"
                            "[Configuration]\r\n"
                            "no key here\r\n"
                            "#ZarnVer=6\r\n"
                            ";ZarnVer=5\r\n";
    const std::string after = "\r\n"
                              "[Startup]\r\n"
                              "GMposX=1\r\n"
                              "[[Third]]\r\n"
                              "[Configuration]\r\n"
                              "ZarnVer=4";
    SettingsText      text(before + own + after);
    EXPECT_EQ(text.Bytes(), before + own + after);
    EXPECT_EQ(text.Find(App, "Configuration", "ZarnVer"), std::nullopt);
    EXPECT_EQ(text.Find(App, "Startup", "GMposX"), "1");
    text.Set(App, "Configuration", "ZarnVer", "1");
    EXPECT_EQ(text.Bytes(), before + own + "ZarnVer=1\r\n" + after);
    EXPECT_TRUE(text.Remove(App, "Configuration", "ZarnVer"));
    EXPECT_EQ(text.Bytes(), before + own + after);
}

TEST(SettingsText, ByteOrderMarkDoesNotHideTheFirstHeading)
{
    SettingsText text("\xEF\xBB\xBF[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1");
    EXPECT_EQ(text.Find(App, "Configuration", "ZarnVer"), "1");
    text.Set(App, "Configuration", "UOPath", "\\");
    EXPECT_EQ(text.Bytes(), "\xEF\xBB\xBF[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\nUOPath=\\\n");
}

TEST(SettingsText, TheLastDuplicateCountsAndIsTheOneThatChanges)
{
    SettingsText text("[[Dobrin's Quernfield]]\n[Startup]\nGMposX=1\ngmposx=2\n"
                      "[[Other]]\n[[Dobrin's Quernfield]]\n[startup]\nGMPOSX=3\n[Other]\nGMposX=4\n");
    EXPECT_EQ(text.Find(App, "Startup", "GMposX"), "3");
    text.Set(App, "Startup", "GMposX", "5");
    EXPECT_EQ(text.Bytes(), "[[Dobrin's Quernfield]]\n[Startup]\nGMposX=1\ngmposx=2\n"
                            "[[Other]]\n[[Dobrin's Quernfield]]\n[startup]\nGMPOSX=5\n[Other]\nGMposX=4\n");
    EXPECT_TRUE(text.Remove(App, "Startup", "GMposX"));
    EXPECT_EQ(text.Find(App, "Startup", "GMposX"), std::nullopt);
    EXPECT_FALSE(text.Remove(App, "Startup", "GMposX"));
    EXPECT_EQ(text.Find(App, "Other", "GMposX"), "4");
}

TEST(SettingsText, NewSectionsJoinTheirApplication)
{
    SettingsText text("[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\n\n[[Other]]\n[Startup]\nGMposX=9\n");
    text.Set(App, "Startup", "GMposX", "1");
    EXPECT_EQ(text.Bytes(), "[[Dobrin's Quernfield]]\n[Configuration]\nZarnVer=1\n[Startup]\nGMposX=1\n"
                            "\n[[Other]]\n[Startup]\nGMposX=9\n");
}

/// Text that looks enough like settings to reach every branch, with raw bytes in between.
std::string RandomJunk(std::mt19937& random)
{
    static const std::vector<std::string> Pieces = {"[[",
                                                    "]]",
                                                    "[",
                                                    "]",
                                                    "=",
                                                    "\n",
                                                    "\r\n",
                                                    "\r",
                                                    "%",
                                                    "%0A",
                                                    "%5b",
                                                    ";",
                                                    "#",
                                                    " ",
                                                    "\t",
                                                    "\\",
                                                    "\"",
                                                    "Dobrin's Quernfield",
                                                    "[[Dobrin's Quernfield]]\n",
                                                    "[Configuration]\n",
                                                    "Configuration",
                                                    "ZarnVer",
                                                    "ZarnVer=3\n",
                                                    "\xEF\xBB\xBF",
                                                    std::string(1, '\0')};
    std::string                           junk;
    for (auto count = std::uniform_int_distribution<int>(0, 60)(random); count > 0; --count) {
        if (random() % 3 == 0) {
            junk += static_cast<char>(random() % 256);
        } else {
            junk += Pieces[random() % Pieces.size()];
        }
    }
    return junk;
}

TEST(SettingsText, AThousandJunkTextsLoseNeitherTheirBytesNorLaterKeys)
{
    std::mt19937 random(20250);
    for (int round = 0; round < 1000; ++round) {
        const auto   junk = RandomJunk(random);
        SettingsText text(junk);
        ASSERT_EQ(text.Bytes(), junk);
        const auto value = RandomJunk(random);
        text.Set(App, "Configuration", "ZarnVer", value);
        text.Set(App, "Startup", "GMposX", "12");
        const auto   written = text.Bytes();
        SettingsText again(written);
        ASSERT_EQ(again.Find(App, "Configuration", "ZarnVer"), value) << "round " << round;
        ASSERT_EQ(again.Find(App, "Startup", "GMposX"), "12") << "round " << round;
        ASSERT_TRUE(again.Remove(App, "Configuration", "ZarnVer"));
        ASSERT_EQ(SettingsText(again.Bytes()).Find(App, "Configuration", "ZarnVer"), std::nullopt);
        ASSERT_EQ(SettingsText(again.Bytes()).Find(App, "Startup", "GMposX"), "12") << "round " << round;
    }
}

} // namespace
} // namespace qf::app
