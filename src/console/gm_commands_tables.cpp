#include "console/gm_commands_tables.h"

namespace qf::console {

namespace {

constexpr GMEffect Sends(std::string_view text)
{
    return {GMAct::Send, text, {}};
}

constexpr GMEffect Types(std::string_view text)
{
    return {GMAct::Type, text, {}};
}

constexpr GMEffect Tells(std::string_view message)
{
    return {GMAct::Tell, {}, message};
}

constexpr GMEffect TellsAndSends(std::string_view message, std::string_view text)
{
    return {GMAct::TellAndSend, text, message};
}

constexpr GMEffect Opens(std::string_view panel)
{
    return {GMAct::Open, panel, {}};
}

constexpr GMEffect OpensWithClient(std::string_view panel, std::string_view otherwise)
{
    return {GMAct::OpenWithClient, panel, otherwise};
}

constexpr GMEffect Reveals(std::string_view frame)
{
    return {GMAct::Reveal, frame, {}};
}

constexpr GMEffect Nothing{};
constexpr GMEffect Same{GMAct::Same, {}, {}};
constexpr GMEffect StartsZarn{GMAct::StartZarn, {}, {}};
constexpr GMEffect StartsInsideUO{GMAct::StartInsideUO, {}, {}};
constexpr GMEffect StartsUO{GMAct::StartUO, {}, {}};
constexpr GMEffect Saves{GMAct::Save, {}, {}};
constexpr GMEffect Leaves{GMAct::Leave, {}, {}};

constexpr std::string_view NotInThisVersion = "These options are not available in this version of Zarn";
constexpr std::string_view NeedsClientPath =
    "You need to enter the path to the UO client in the configurations menu first.";

// clang-format off
constexpr GMCommand gmCommands[] = {
    // tab, group, name, caption, 0.9x.x, 0.70.x, frame that is hidden

    // Server
    {Tab::Server, "Players",  "cmdWhoList",         "WhoList",          Sends("wholist"),                              Same},
    {Tab::Server, "Players",  "cmdWhoListOffline",  "WhoList Offline",  Sends("wholist off"),                          Same},
    {Tab::Server, "Players",  "cmdWho",             "Who",              Sends("who"),                                  Same},
    {Tab::Server, "Players",  "cmdListStaffOnline", "List GM's online", Sends("gms"),                                  Same},
    {Tab::Server, "Players",  "cmdAccounts",        "Accounts",         Sends("nacct"),                                Sends("acct")},
    {Tab::Server, "Server",   "cmdGarbageCollect",  "Garbage Collect",  Sends("gcollect"),                             Same},
    {Tab::Server, "Server",   "cmdCacheStats",      "Cache Stats",      Tells("Sorry this is a 0.70.x command only."), Sends("cachestats")},
    {Tab::Server, "Programs", "cmdStartZarn",       "Start Zarn",       StartsZarn,                                    Same},
    {Tab::Server, "Programs", "cmdStartInsideUO",   "Start UOFiddler",  StartsInsideUO,                                Same},
    {Tab::Server, "Programs", "cmdStartUO",         "Start Razor",      StartsUO,                                      Same},
    {Tab::Server, "Frame1",   "cmdReload(0)",       "All files",        Sends("reloadall"),                            Sends("reloadserver")},
    {Tab::Server, "Frame1",   "cmdReload(1)",       "ZARN.INI",         Sends("reloadini"),                            Sends("reloadaccounts")},
    {Tab::Server, "Frame1",   "cmdReload(2)",       "Accounts",         Sends("reloadaccounts"),                       Sends("readini")},
    {Tab::Server, "Frame1",   "cmdReload(3)",       "DFNs",             Sends("reloaddefs"),                           Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(4)",       "JavaScripts",      Sends("reloadalljs"),                          Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(5)",       "Regions",          Sends("reloadregions"),                        Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(6)",       "SpawnRegions",     Sends("reloadspawnregions"),                   Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(7)",       "Spells",           Sends("reloadspells"),                         Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(8)",       "Commands",         Sends("reloadcommands"),                       Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(9)",       "HTML",             Sends("reloadhtml"),                           Tells(NotInThisVersion)},
    {Tab::Server, "Frame1",   "cmdReload(10)",      "Dictionaries",     Sends("reloaddictionaries"),                   Tells(NotInThisVersion)},

    // Global
    {Tab::Global, "World",        "cmdRespawnAll",        "Respawn All",             Sends("respawn"),                      Same},
    {Tab::Global, "Light",        "cmdGetCurrentLight",   "Get Current Light Level", Sends("getlight"),                     Same},
    {Tab::Global, "Switches",     "cmdGuardsOn",          "ON",                      Sends("guards on"),                    Sends("guardson")},
    {Tab::Global, "Switches",     "cmdGuardsOff",         "OFF",                     Sends("guards off"),                   Sends("guardsoff")},
    {Tab::Global, "Switches",     "cmdBroadCastSaveOn",   "ON",                      Sends("announce on"),                  Sends("announceon")},
    {Tab::Global, "Switches",     "cmdBroadCastSaveOff",  "OFF",                     Sends("announce off"),                 Sends("announceoff")},
    {Tab::Global, "World",        "cmdRestockALlVendors", "Restock All Vendors",     Sends("restock all"),                  Sends("restockall")},
    {Tab::Global, "Light",        "cmdSetDayLight",       "Set Daylight",            Sends("brightlight {txtLightLevel}"),  Same},
    {Tab::Global, "Light",        "cmdSetNightLight",     "Set Nightlight",          Sends("darklight {txtLightLevel}"),    Same},
    {Tab::Global, "Light",        "cmdSetDungeonLight",   "Set Dung.light",          Sends("dungeonlight {txtLightLevel}"), Same},
    {Tab::Global, "fraMineCheck", "cmdMineCheck(0)",      "All",                     Sends("minecheck 0"),                  Same},
    {Tab::Global, "fraMineCheck", "cmdMineCheck(1)",      "Caves",                   Sends("minecheck 1"),                  Same},
    {Tab::Global, "fraMineCheck", "cmdMineCheck(2)",      "Regions",                 Sends("minecheck 2"),                  Same},
    {Tab::Global, "World",        "Command8",             "Get Current Temperature", Sends("temp"),                         Tells("Sorry this command is only available in Zarn 0.95 and above.")},
    {Tab::Global, "World",        "Command18",            "Set Time ",               Opens("frmTime"),                      Same},

    // GM Commands
    {Tab::GMCommands, "Calls",    "cmdViewGMQueue", "View Que",     Sends("gq"),                                                    Sends("q")},
    {Tab::GMCommands, "Calls",    "cmdNextCall",    "Next Call",    Sends("gq next"),                                               Sends("next")},
    {Tab::GMCommands, "Calls",    "Command10",      "Current Call", Sends("gq curr"),                                               Sends("gotocur")},
    {Tab::GMCommands, "Calls",    "cmdClearCall",   "Clear Call",   Sends("gq clear"),                                              Sends("clear")},
    {Tab::GMCommands, "Players",  "cmdRelease",     "Release",      Sends("release"),                                               Same},
    {Tab::GMCommands, "Players",  "cmdJail",        "Jail",         Sends("jail"),                                                  Same},
    {Tab::GMCommands, "Players",  "cmdKick",        "Kick",         Sends("kick"),                                                  Same},
    {Tab::GMCommands, "Tools",    "cmdMoveToBag",   "Move To Bag",  Sends("movetobag"),                                             Same},
    {Tab::GMCommands, "Tools",    "cmdResend",      "Resend",       Sends("resend"),                                                Same},
    {Tab::GMCommands, "Travel",   "cmdGate",        "Gate",         Sends("gate"),                                                  Same},
    {Tab::GMCommands, "Travel",   "cmdMark",        "Mark",         Sends("mark"),                                                  Same},
    {Tab::GMCommands, "Travel",   "cmdRecall",      "Recall",       Sends("recall"),                                                Same},
    {Tab::GMCommands, "Tools",    "cmdShowIDs",     "Show IDs",     Sends("showids"),                                               Same},
    {Tab::GMCommands, "Travel",   "cmdWhere",       "Where am I",   Sends("where"),                                                 Same},
    {Tab::GMCommands, "Tools",    "cmdHide",        "Hide",         Sends("hide"),                                                  Same},
    {Tab::GMCommands, "Tools",    "cmdUnhide",      "Unhide",       Sends("unhide"),                                                Same},
    {Tab::GMCommands, "Travel",   "cmdTeleToFeet",  "Tele to feet", Sends("xteleport"),                                             Sends("xtele")},
    {Tab::GMCommands, "Switches", "cmdAllMoveOn",   "ON",           Sends("allmove on"),                                            Sends("allmoveon")},
    {Tab::GMCommands, "Switches", "cmdAllMoveOff",  "OFF",          Sends("allmove off"),                                           Sends("allmoveoff")},
    {Tab::GMCommands, "Switches", "cmdShowHouses",  "Show",         Sends("houseicons off"),                                        Sends("hidehs")},
    {Tab::GMCommands, "Switches", "cmdHideHouses",  "Hide",         Sends("houseicons on"),                                         Sends("showhs")},
    {Tab::GMCommands, "Players",  "cmdDelChar",     "Deletechar",   Sends("deletechar"),                                            Tells("Sorry this command only works in Zarn 0.95 or above")},
    {Tab::GMCommands, "Tools",    "cmdPoint",       "Point",        Tells("This command is only available in older Zarn versions"), Sends("point")},

    // Item Edit
    {Tab::ItemEdit, "Make",           "cmdAddMenu",           "Add-Menu",              Sends("add"),                               Same},
    {Tab::ItemEdit, "Properties",     "cmdNoDecay",           "No Decay",              Sends("set decayable 0"),                   Sends("nodecay")},
    {Tab::ItemEdit, "Properties",     "cmdItemNewbie",        "Newbie Object",         Sends("setpriv 2"),                         Same},
    {Tab::ItemEdit, "Properties",     "cmdItemWFCompat",      "WorldForge Compatible", Sends("set type 255"),                      Sends("wf 255")},
    {Tab::ItemEdit, "Properties",     "cmdItemStats",         "Item Stats",            Sends("istats"),                            Same},
    {Tab::ItemEdit, "Remove",         "cmdRemoveItem",        "Remove Item",           Sends("rremove"),                           Sends("remove")},
    {Tab::ItemEdit, "Make",           "cmdDupeItem",          "Dupe",                  Sends("dupe {txtDupeCount}"),               Same},
    {Tab::ItemEdit, "Change",         "cmdSetType",           "Set Type",              Opens("frmType"),                           Same},
    {Tab::ItemEdit, "Change",         "Command2",             "Item Positioning",      Opens("frmItemPos"),                        Same},
    {Tab::ItemEdit, "Remove",         "cmdWipe",              "Wipe-Menu",             Opens("frmWipe"),                           Same},
    {Tab::ItemEdit, "Remove",         "Command1",             "Wipe-Menu",             Opens("frmWipe"),                           Same},
    {Tab::ItemEdit, "Change",         "cmdDye",               "Dye",                   OpensWithClient("frmDye", NeedsClientPath), Same},
    {Tab::ItemEdit, "Make",           "Command5(0)",          "QF Item-Menu",          Opens("frmItems"),                          Same},
    {Tab::ItemEdit, "Remove",         "Command5(1)",          "AreaCommand",           Opens("frmAreaCommands"),                   Tells("Sorry, this command is only available in Zarn 0.95 and above.")},
    {Tab::ItemEdit, "Change",         "cmdVisible",           "Visibility",            Reveals("fraItemVisible"),                  Same},
    {Tab::ItemEdit, "Change",         "cmdMobility",          "Mobility",              Reveals("fraMoveable"),                     Same},
    {Tab::ItemEdit, "fraItemVisible", "cmdItemVisibilitySet", "Set",                   Sends("set visible {optItemVisible}"),      Sends("setvisible {optItemVisible}"), "fraItemVisible"},
    {Tab::ItemEdit, "fraMoveable",    "cmdSetItemMovable",    "Set",                   Sends("set movable {optItemMovable}"),      Sends("setmovable {optItemMovable}"), "fraMoveable"},

    // Character Edit
    {Tab::CharacterEdit, "Look and set",    "cmdCharStatus",        "Character Status",     Sends("cstats"),                      Same},
    {Tab::CharacterEdit, "Condition",       "cmdCharInvulnerable",  "Invulnerable",         Sends("invul true"),                  Sends("invul")},
    {Tab::CharacterEdit, "Condition",       "cmdCharVulnerable",    "Vulnerable",           Sends("invul false"),                 Sends("noinvul")},
    {Tab::CharacterEdit, "Condition",       "cmdCharFreeze",        "Freeze",               Sends("freeze"),                      Same},
    {Tab::CharacterEdit, "Condition",       "cmdCharUnfreeze",      "Unfreeze",             Sends("unfreeze"),                    Same},
    {Tab::CharacterEdit, "Condition",       "cmdCharHeal",          "Heal",                 Sends("heal"),                        Same},
    {Tab::CharacterEdit, "Condition",       "cmdCharStamina",       "Stamina",              Sends("stamina"),                     Same},
    {Tab::CharacterEdit, "Condition",       "cmdMana",              "Mana",                 Sends("mana"),                        Same},
    {Tab::CharacterEdit, "Condition",       "cmdCharFullStats",     "Full stats",           Sends("fullstats"),                   Same},
    {Tab::CharacterEdit, "Belongings",      "cmdCharBackPack",      "Open Backpack",        Sends("openlayer 0x15"),              Sends("gmopen 15")},
    {Tab::CharacterEdit, "Belongings",      "cmdCharOpenSpellbook", "Open Spellbook",       Sends("sbopen"),                      Same},
    {Tab::CharacterEdit, "Belongings",      "cmdCharOpenBank",      "Open Bank Box",        Sends("openbank"),                    Sends("xbank")},
    {Tab::CharacterEdit, "Kill and remove", "cmdCharKill",          "KILL",                 Sends("kill char"),                   Sends("kill")},
    {Tab::CharacterEdit, "Condition",       "cmdCharResurrect",     "Resurrect",            Sends("resurrect"),                   Same},
    {Tab::CharacterEdit, "Kill and remove", "cmdCharBolt",          "Lightning Bolt",       Sends("bolt"),                        Same},
    {Tab::CharacterEdit, "Kill and remove", "cmdCharKillHair",      "Kill Hair",            Sends("kill hair"),                   Sends("killhair")},
    {Tab::CharacterEdit, "Kill and remove", "cmdCharKillBeard",     "Kill Beard",           Sends("kill beard"),                  Sends("killbeard")},
    {Tab::CharacterEdit, "Kill and remove", "cmdCharKillPack",      "Kill Pack",            Sends("kill pack"),                   Sends("killpack")},
    {Tab::CharacterEdit, "Look and set",    "cmdMakeCounselor",     "Character Privileges", Opens("frmPrivs"),                    Same},
    {Tab::CharacterEdit, "Look and set",    "cmdCharSetStats",      "Skills/Stats",         Reveals("Frame13"),                   Same},
    {Tab::CharacterEdit, "Look and set",    "cmdCharSetFameKarma",  "Set Fame/ Karma",      Reveals("Frame14"),                   Same},
    {Tab::CharacterEdit, "Frame14",         "Command127",           "Set Fame",             Sends("set fame {fame}"),             Same},
    {Tab::CharacterEdit, "Frame14",         "Command128",           "Set Karma",            Sends("set karma {karma}"),           Same},
    {Tab::CharacterEdit, "Frame14",         "Command129",           "OK",                   Nothing,                              Same, "Frame14"},
    {Tab::CharacterEdit, "Frame13",         "cmdSkills",            "Set Skillvalue",       Sends("set {cmbSkills} {txtSkills}"), Same},
    {Tab::CharacterEdit, "Frame13",         "cmdStats",             "Set Statvalue",        Sends("set {cmbStats} {txtStats}"),   Same},
    {Tab::CharacterEdit, "Frame13",         "Command125",           "OK",                   Nothing,                              Same, "Frame13"},

    // NPCs
    {Tab::NPCs, "Add",       "cmdAddBasicMale",    "Add Basic Male",    Sends("add npc male"),                                                          Sends("addnpc 94")},
    {Tab::NPCs, "Add",       "cmdAddBasicFemale",  "Add Basic Female",  Sends("add npc female"),                                                        Sends("addnpc 95")},
    {Tab::NPCs, "Behaviour", "cmdCharMakeTrainer", "NPC Trainer On",    Sends("set cantrain 1"),                                                        Sends("trainer")},
    {Tab::NPCs, "Behaviour", "Command12",          "NPC Trainer Off",   Sends("set cantrain 0"),                                                        Sends("trainer")},
    {Tab::NPCs, "Outfit",    "cmdCharAddBackpack", "Add Backpack",      Sends("addpack"),                                                               TellsAndSends("Remember to set the backpack to a container by using 'SETTYPE 1!", "add e 75")},
    {Tab::NPCs, "Behaviour", "cmdCharPossess",     "Possess NPC",       Tells("Alas, this command only works in Zarn 0.70.x & similar Zarn versions."), Sends("possess")},
    {Tab::NPCs, "Add",       "cmdAddNPC",          "Spawn NPCs",        Opens("frmNPC"),                                                                Same},
    {Tab::NPCs, "Add",       "cmdMakeShopkeeper",  "NPC Shopkeepers",   Opens("frmShop"),                                                               Same},
    {Tab::NPCs, "Outfit",    "cmdClothingAndHair", "Clothing && Hairs", Opens("frmClothing"),                                                           Same},
    {Tab::NPCs, "Outfit",    "cmdItems",           "Items Menu",        Opens("frmItems"),                                                              Same},
    {Tab::NPCs, "Behaviour", "cmdNPCWander",       "Set NPC Wander",    Opens("frmNPCWander"),                                                          Same},
    {Tab::NPCs, "Behaviour", "cmdNPCAi",           "Set NPC AI",        Reveals("frmNPCAI"),                                                            Same},
    {Tab::NPCs, "frmNPCAI",  "cmdNPCSetAI",        "Set AI Type",       Sends("set npcai {optNPCAI}"),                                                  Sends("setnpcai {optNPCAI}")},
    {Tab::NPCs, "frmNPCAI",  "Command9",           "<-- Return",        Nothing,                                                                        Same, "frmNPCAI"},

    // Custom Commands
    {Tab::CustomCommands, "", "cmdUseCommand(0)",  "Use Command->", Types("{txtUseCommand(0)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(1)",  "Use Command->", Types("{txtUseCommand(1)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(2)",  "Use Command->", Types("{txtUseCommand(2)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(3)",  "Use Command->", Types("{txtUseCommand(3)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(4)",  "Use Command->", Types("{txtUseCommand(4)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(5)",  "Use Command->", Types("{txtUseCommand(5)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(6)",  "Use Command->", Types("{txtUseCommand(6)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(7)",  "Use Command->", Types("{txtUseCommand(7)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(8)",  "Use Command->", Types("{txtUseCommand(8)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(9)",  "Use Command->", Types("{txtUseCommand(9)}"),  Same},
    {Tab::CustomCommands, "", "cmdUseCommand(10)", "Use Command->", Types("{txtUseCommand(10)}"), Same},
    {Tab::CustomCommands, "", "cmdUseCommand(11)", "Use Command->", Types("{txtUseCommand(11)}"), Same},
    {Tab::CustomCommands, "", "cmdSaveCommands",   "Save Commands", Saves,                        Same},

    // Outside
    {Tab::Outside, "", "cmdSaveWorld",    "Save World",    Sends("save"),        Same},
    {Tab::Outside, "", "cmdShutDownMenu", "Shutdown Menu", Opens("frmShutdown"), Same},
    {Tab::Outside, "", "cmdReturn",       "Exit",          Leaves,               Same},
};
// clang-format on

} // namespace

std::span<const GMCommand> GMCommands()
{
    return gmCommands;
}

} // namespace qf::console
