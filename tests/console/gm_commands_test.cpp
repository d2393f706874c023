#include "console/gm_commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "support/expect_error.h"
#include "support/memory_store.h"
#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using core::Generation070;
using core::Generation09;
constexpr core::ServerGeneration Neither{7};

const GMCommand& Command(std::string_view name)
{
    const auto* command = FindGMCommand(name);
    EXPECT_NE(command, nullptr) << name;
    return *command;
}

/// What leaves the program at a press, one line an effect, parted by " / ".
std::string Pressed(std::string_view name, core::ServerGeneration generation, const GMFields& fields = {})
{
    test::RecordingOutlet outlet;
    PressGMCommand(Command(name), fields, generation, outlet);
    std::string all;
    for (const auto& line : outlet.Lines()) {
        all += (all.empty() ? "" : " / ") + line;
    }
    return all;
}

GMWindowStep Step(std::string_view name, core::ServerGeneration generation, const GMFields& fields = {})
{
    test::RecordingOutlet outlet;
    return PressGMCommand(Command(name), fields, generation, outlet);
}

struct Expected {
    std::string_view name;
    std::string_view in09;
    std::string_view in070;
    std::string_view inNeither;
};

// clang-format off
constexpr Expected expected[] = {
    {"cmdWhoList",           "send wholist",                                        "send wholist",                                        "send wholist"},
    {"cmdAccounts",          "send nacct",                                          "send acct",                                           ""},
    {"cmdGarbageCollect",    "send gcollect",                                       "send gcollect",                                       "send gcollect"},
    {"cmdCacheStats",        "box 0 Sorry this is a 0.70.x command only.",          "send cachestats",                                     ""},
    {"cmdReload(0)",         "send reloadall",                                      "send reloadserver",                                   ""},
    {"cmdReload(1)",         "send reloadini",                                      "send reloadaccounts",                                 ""},
    {"cmdReload(2)",         "send reloadaccounts",                                 "send readini",                                        ""},
    {"cmdReload(9)",         "send reloadhtml",                                     "box 0 These options are not available in this version of Zarn", ""},
    {"cmdReload(10)",        "send reloaddictionaries",                             "box 0 These options are not available in this version of Zarn", ""},
    {"cmdGuardsOn",          "send guards on",                                      "send guardson",                                       ""},
    {"cmdBroadCastSaveOff",  "send announce off",                                   "send announceoff",                                    ""},
    {"cmdRestockALlVendors", "send restock all",                                    "send restockall",                                     ""},
    {"cmdMineCheck(2)",      "send minecheck 2",                                    "send minecheck 2",                                    "send minecheck 2"},
    {"Command8",             "send temp",                                           "box 0 Sorry this command is only available in Zarn 0.95 and above.", ""},
    {"cmdViewGMQueue",       "send gq",                                             "send q",                                              ""},
    {"Command10",            "send gq curr",                                        "send gotocur",                                        ""},
    {"cmdTeleToFeet",        "send xteleport",                                      "send xtele",                                          ""},
    {"cmdShowHouses",        "send houseicons off",                                 "send hidehs",                                         ""},
    {"cmdHideHouses",        "send houseicons on",                                  "send showhs",                                         ""},
    {"cmdDelChar",           "send deletechar",                                     "box 0 Sorry this command only works in Zarn 0.95 or above", ""},
    {"cmdPoint",             "box 0 This command is only available in older Zarn versions", "send point",                                  ""},
    {"cmdNoDecay",           "send set decayable 0",                                "send nodecay",                                        ""},
    {"cmdItemNewbie",        "send setpriv 2",                                      "send setpriv 2",                                      "send setpriv 2"},
    {"cmdItemWFCompat",      "send set type 255",                                   "send wf 255",                                         ""},
    {"cmdRemoveItem",        "send rremove",                                        "send remove",                                         ""},
    {"cmdDupeItem",          "send dupe ",                                          "send dupe ",                                          "send dupe "},
    {"Command5(1)",          "",                                                    "box 0 Sorry, this command is only available in Zarn 0.95 and above.", ""},
    {"cmdCharVulnerable",    "send invul false",                                    "send noinvul",                                        ""},
    {"cmdCharBackPack",      "send openlayer 0x15",                                 "send gmopen 15",                                      ""},
    {"cmdCharOpenBank",      "send openbank",                                       "send xbank",                                          ""},
    {"cmdCharKill",          "send kill char",                                      "send kill",                                           ""},
    {"cmdCharKillPack",      "send kill pack",                                      "send killpack",                                       ""},
    {"cmdAddBasicFemale",    "send add npc female",                                 "send addnpc 95",                                      ""},
    {"cmdCharMakeTrainer",   "send set cantrain 1",                                 "send trainer",                                        ""},
    {"Command12",            "send set cantrain 0",                                 "send trainer",                                        ""},
    {"cmdCharAddBackpack",   "send addpack",                                        "box 0 Remember to set the backpack to a container by using 'SETTYPE 1! / send add e 75", ""},
    {"cmdCharPossess",       "box 0 Alas, this command only works in Zarn 0.70.x & similar Zarn versions.", "send possess",                ""},
    {"cmdItemVisibilitySet", "send set visible 0",                                  "send setvisible 0",                                   ""},
    {"cmdSetItemMovable",    "send set movable ",                                   "send setmovable ",                                    ""},
    {"cmdNPCSetAI",          "send set npcai 0",                                    "send setnpcai 0",                                     ""},
    {"cmdSkills",            "send set  ",                                          "send set  ",                                          "send set  "},
    {"Command128",           "send set karma ",                                     "send set karma ",                                     "send set karma "},
    {"cmdSaveWorld",         "send save",                                           "send save",                                           "send save"},
};
// clang-format on

TEST(GMCommands, SayWhatTheirDialectSays)
{
    for (const auto& row : expected) {
        SCOPED_TRACE(std::string(row.name));
        EXPECT_EQ(Pressed(row.name, Generation09), row.in09);
        EXPECT_EQ(Pressed(row.name, Generation070), row.in070);
        EXPECT_EQ(Pressed(row.name, Neither), row.inNeither);
    }
}

TEST(GMCommands, PutTheBoxBehindTheWordsAsTyped)
{
    const GMFields fields{.texts = {{"txtLightLevel", " 7"},
                                    {"txtDupeCount", "3"},
                                    {"fame", "-5"},
                                    {"karma", "{fame}"},
                                    {"txtSkills", "1000"}},
                          .indices = {{"cmbSkills", 12}, {"cmbStats", 2}},
                          .uoPath = {}};
    EXPECT_EQ(Pressed("cmdSetDayLight", Generation09, fields), "send brightlight  7");
    EXPECT_EQ(Pressed("cmdSetNightLight", Generation070, fields), "send darklight  7");
    EXPECT_EQ(Pressed("cmdSetDungeonLight", Neither, fields), "send dungeonlight  7");
    EXPECT_EQ(Pressed("cmdDupeItem", Generation09, fields), "send dupe 3");
    EXPECT_EQ(Pressed("Command127", Generation09, fields), "send set fame -5");
    EXPECT_EQ(Pressed("Command128", Generation09, fields), "send set karma {fame}");
    EXPECT_EQ(Pressed("cmdSkills", Generation070, fields), "send set cartography 1000");
    EXPECT_EQ(Pressed("cmdStats", Generation070, fields), "send set int ");
}

TEST(GMCommands, SendTheWordOfTheChosenOption)
{
    const auto pressed = [](std::string_view button, const char* list, int index) {
        return Pressed(button, Generation09, {.texts = {}, .indices = {{list, index}}, .uoPath = {}});
    };
    EXPECT_EQ(pressed("cmdItemVisibilitySet", "optItemVisible", 2), "send set visible 2");
    EXPECT_EQ(pressed("cmdSetItemMovable", "optItemMovable", 0), "send set movable 0");
    EXPECT_EQ(pressed("cmdSetItemMovable", "optItemMovable", 1), "send set movable 2");
    EXPECT_EQ(pressed("cmdSetItemMovable", "optItemMovable", 2), "send set movable 3");
    constexpr std::string_view kinds[] = {"0", "1", "4", "8", "16", "32", "64", "80", "666", "2"};
    for (int index = 0; index < 10; ++index) {
        EXPECT_EQ(pressed("cmdNPCSetAI", "optNPCAI", index), "send set npcai " + std::string(kinds[index]));
    }
    EXPECT_EQ(pressed("cmdSkills", "cmbSkills", 54), "send set allskills ");
    EXPECT_EQ(pressed("cmdSkills", "cmbSkills", 55), "send set  ");
    EXPECT_EQ(pressed("cmdStats", "cmbStats", 3), "send set  ");
}

TEST(GMCommands, TypeCustomCommandsAsTheyStand)
{
    const GMFields fields{.texts = {{"txtUseCommand(11)", " who "}}, .indices = {}, .uoPath = {}};
    EXPECT_EQ(Pressed("cmdUseCommand(11)", Neither, fields), "plain  who ");
}

TEST(GMCommands, LeaveTheRestToTheWindow)
{
    const auto step = [](GMAct act, std::string_view target, std::string_view hides = {}) {
        return GMWindowStep{act, target, hides};
    };
    EXPECT_EQ(Step("Command18", Neither), step(GMAct::Open, "frmTime"));
    EXPECT_EQ(Step("Command5(1)", Generation09), step(GMAct::Open, "frmAreaCommands"));
    EXPECT_EQ(Step("Command5(1)", Generation070), step(GMAct::None, ""));
    EXPECT_EQ(Step("cmdVisible", Neither), step(GMAct::Reveal, "fraItemVisible"));
    EXPECT_EQ(Step("cmdStartZarn", Neither), step(GMAct::StartZarn, ""));
    EXPECT_EQ(Step("cmdReturn", Neither), step(GMAct::Leave, ""));
    for (const auto generation : {Generation070, Generation09, Neither}) {
        EXPECT_EQ(Step("cmdSetItemMovable", generation), step(GMAct::None, "", "fraMoveable"));
        EXPECT_EQ(Step("Command125", generation), step(GMAct::None, "", "Frame13"));
        EXPECT_EQ(Step("cmdNPCSetAI", generation), step(GMAct::None, ""));
    }
}

TEST(GMCommands, DyeAsksForTheClientsFolder)
{
    EXPECT_EQ(Pressed("cmdDye", Neither),
              "box 0 You need to enter the path to the UO client in the configurations menu first.");
    EXPECT_EQ(Step("cmdDye", Neither).act, GMAct::None);
    const GMFields fields{.texts = {}, .indices = {}, .uoPath = "C:\\uo\\"};
    EXPECT_EQ(Pressed("cmdDye", Neither, fields), "");
    EXPECT_EQ(Step("cmdDye", Neither, fields).target, "frmDye");
}

TEST(GMCommands, AreFoundByTheirNames)
{
    ASSERT_NE(FindGMCommand("cmdDye"), nullptr);
    EXPECT_EQ(FindGMCommand("cmdDye")->name, "cmdDye");
    EXPECT_EQ(FindGMCommand("cmddye"), nullptr);
    EXPECT_EQ(FindGMCommand(""), nullptr);
}

TEST(GMCommands, HaveNamesOfTheirOwn)
{
    std::set<std::string_view> names;
    const auto add = [&names](std::string_view name) { EXPECT_TRUE(names.insert(name).second) << name; };
    for (const auto& command : GMCommands()) {
        add(command.name);
    }
    for (const auto& frame : GMFrames()) {
        add(frame.name);
    }
    for (const auto& box : GMBoxes()) {
        add(box.name);
    }
    for (const auto& list : GMLists()) {
        add(list.name);
    }
    for (const auto& pair : GMSwitches()) {
        add(pair.label);
    }
}

TEST(GMCommands, EachDoesSomethingInOneGenerationAtLeast)
{
    for (const auto& command : GMCommands()) {
        EXPECT_TRUE(command.in09.act != GMAct::None || !command.hides.empty()) << command.name;
        EXPECT_NE(command.in09.act, GMAct::Same) << command.name;
        EXPECT_NE(command.in070.act, GMAct::None) << command.name;
    }
}

TEST(GMCommands, NameOnlyBoxesListsAndFramesThatAreThere)
{
    for (const auto& command : GMCommands()) {
        SCOPED_TRACE(std::string(command.name));
        for (const auto* effect : {&command.in09, &command.in070}) {
            for (auto at = effect->text.find('{'); at != std::string_view::npos; at = effect->text.find('{', at + 1)) {
                const auto name = effect->text.substr(at + 1, effect->text.find('}', at) - at - 1);
                EXPECT_EQ(std::ranges::count(GMBoxes(), name, &GMBox::name) +
                              std::ranges::count(GMLists(), name, &GMList::name),
                          1)
                    << name;
            }
            if (effect->act == GMAct::Reveal) {
                EXPECT_EQ(std::ranges::count(GMFrames(), effect->text, &GMFrame::name), 1);
            }
        }
        if (!command.hides.empty()) {
            EXPECT_EQ(std::ranges::count(GMFrames(), command.hides, &GMFrame::name), 1);
        }
    }
}

TEST(GMCommands, HaveNoTextWithADoubledBlank)
{
    for (const auto& command : GMCommands()) {
        for (const auto text :
             {command.caption, command.in09.text, command.in09.more, command.in070.text, command.in070.more}) {
            EXPECT_EQ(text.find("  "), std::string_view::npos) << command.name;
        }
    }
    for (const auto& list : GMLists()) {
        for (const auto& choice : list.choices) {
            EXPECT_EQ(choice.caption.find("  "), std::string_view::npos) << choice.caption;
            EXPECT_EQ(choice.word.find(' '), std::string_view::npos) << choice.word;
        }
    }
}

TEST(GMCommands, KnowFiftyFiveSkills)
{
    const auto skills = std::ranges::find(GMLists(), "cmbSkills", &GMList::name)->choices;
    ASSERT_EQ(skills.size(), 55U);
    EXPECT_EQ(skills[0].word, "alchemy");
    EXPECT_EQ(skills[3].word, "taming");
    EXPECT_EQ(skills[12].caption, "Cartogrophy");
    EXPECT_EQ(skills[12].word, "cartography");
    EXPECT_EQ(skills[14].word, "chivalry");
    EXPECT_EQ(skills[41].word, "magicresistance");
    EXPECT_EQ(skills[54].caption, "All Skills");
    std::set<std::string_view> words;
    for (const auto& skill : skills) {
        words.insert(skill.word);
    }
    EXPECT_EQ(words.size(), skills.size());
}

TEST(ReloadCaptions, FollowTheGeneration)
{
    ASSERT_EQ(ReloadCaptions(Generation09).size(), 10U);
    EXPECT_EQ(ReloadCaptions(Generation09)[0], "All files");
    EXPECT_EQ(ReloadCaptions(Generation09)[9], "HTML");
    ASSERT_EQ(ReloadCaptions(Generation070).size(), 10U);
    EXPECT_EQ(ReloadCaptions(Generation070)[0], "Server.scp");
    EXPECT_EQ(ReloadCaptions(Generation070)[2], "ZARN.INI");
    EXPECT_EQ(ReloadCaptions(Generation070)[3], "Unused");
    EXPECT_EQ(ReloadCaptions(Generation070)[9], "Unused");
    EXPECT_TRUE(ReloadCaptions(Neither).empty());
}

TEST(CustomCommands, AreReadAsTheyWereSaved)
{
    test::MemoryStore     store;
    test::RecordingOutlet outlet;
    CustomCommands        commands;
    commands[0] = "'who";
    commands[11] = " hello ";
    SaveCustomCommands(commands, store, outlet);
    EXPECT_EQ(outlet.Lines(), std::vector<std::string>{"box 0 Custom commands saved."});
    EXPECT_EQ(store.Read("Configuration", "CustomCMD0"), "'who");
    EXPECT_EQ(store.Read("Configuration", "CustomCMD11"), " hello ");
    EXPECT_EQ(store.Find("Configuration", "CustomCMD5"), std::optional<std::string>(""));
    EXPECT_EQ(ReadCustomCommands(store), commands);
}

TEST(CustomCommands, OfBlanksAloneAreOfNoUse)
{
    EXPECT_FALSE(IsCustomCommandUsable(""));
    EXPECT_FALSE(IsCustomCommandUsable("   "));
    EXPECT_TRUE(IsCustomCommandUsable(" x "));
    EXPECT_TRUE(IsCustomCommandUsable("\t"));
}

TEST(GMPosition, IsReadAsItWasSaved)
{
    test::MemoryStore store;
    SaveGMPosition(1500, -30, store);
    EXPECT_EQ(store.Read("Startup", "GMposX"), "1500");
    EXPECT_EQ(store.Read("Startup", "GMposY"), "-30");
    const auto position = ReadGMPosition(store);
    EXPECT_EQ(position.left, 1500);
    EXPECT_EQ(position.top, -30);
}

TEST(GMPosition, FailsWithoutBothKeysOrOutOfRange)
{
    test::MemoryStore store;
    EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, ReadGMPosition(store));
    store.Write("Startup", "GMposX", "15");
    EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, ReadGMPosition(store));
    store.Write("Startup", "GMposY", "32768");
    EXPECT_RUNTIME_ERROR(core::error::Overflow, ReadGMPosition(store));
    store.Write("Startup", "GMposY", "32767");
    EXPECT_EQ(ReadGMPosition(store).top, 32767);
}

} // namespace
} // namespace qf::console
