#include <array>

#include "console/gm_commands_tables.h"

namespace qf::console {

namespace {

// clang-format off
constexpr std::array<std::string_view, 9> tabCaptions{
    "Server", "Global", "GM Commands", "Item Edit", "Character Edit", "Travel", "NPCs", "Custom Commands", "Item Spawning",
};

constexpr std::array<std::string_view, 10> reloadCaptions070{
    "Server.scp", "Accounts", "ZARN.INI", "Unused", "Unused", "Unused", "Unused", "Unused", "Unused", "Unused",
};

constexpr std::array gmFrames{
    GMFrame{"Frame1",         "Reload Server-files:", false},
    GMFrame{"fraMineCheck",   "Mine Check",           false},
    GMFrame{"fraItemVisible", "Visibility",           true},
    GMFrame{"fraMoveable",    "Moveable",             true},
    GMFrame{"Frame13",        "Set Skills/Stats",     true},
    GMFrame{"Frame14",        "Set Fame /Karma",      true},
    GMFrame{"frmNPCAI",       "Set NPC AI:",          true},
};

constexpr std::array gmBoxes{
    GMBox{"txtLightLevel",     true},
    GMBox{"txtDupeCount",      true},
    GMBox{"fame",              true},
    GMBox{"karma",             true},
    GMBox{"txtSkills",         false},
    GMBox{"txtStats",          false},
    GMBox{"txtUseCommand(0)",  false},
    GMBox{"txtUseCommand(1)",  false},
    GMBox{"txtUseCommand(2)",  false},
    GMBox{"txtUseCommand(3)",  false},
    GMBox{"txtUseCommand(4)",  false},
    GMBox{"txtUseCommand(5)",  false},
    GMBox{"txtUseCommand(6)",  false},
    GMBox{"txtUseCommand(7)",  false},
    GMBox{"txtUseCommand(8)",  false},
    GMBox{"txtUseCommand(9)",  false},
    GMBox{"txtUseCommand(10)", false},
    GMBox{"txtUseCommand(11)", false},
};

constexpr std::array gmSwitches{
    GMSwitch{"lblGuards",        "Guards",                  "cmdGuardsOn",        "cmdGuardsOff"},
    GMSwitch{"lblSaveBroadcast", "Broadcast Save Messages", "cmdBroadCastSaveOn", "cmdBroadCastSaveOff"},
    GMSwitch{"lblAllMove",       "AllMove",                 "cmdAllMoveOn",       "cmdAllMoveOff"},
    GMSwitch{"cmdHouses",        "Houses",                  "cmdShowHouses",      "cmdHideHouses"},
};

constexpr GMChoice itemVisibility[] = {
    {"To All",   "0"},
    {"Owner/GM", "1"},
    {"GM only",  "2"},
};

// The server knows a kind 1 that no option stands for.
constexpr GMChoice itemMobility[] = {
    {"All",     "0"},
    {"GM Only", "2"},
    {"Owner",   "3"},
};

constexpr GMChoice npcAI[] = {
    {"Normal",                     "0"},
    {"Healer",                     "1"},
    {"Guard (walks)",              "4"},
    {"Banker",                     "8"},
    {"Monster (attack weakest)",   "16"},
    {"Monster (attack strongest)", "32"},
    {"Guard (teleports)",          "64"},
    {"EV / BS",                    "80"},
    {"Evil Healers",               "666"},
    {"Normal Monsters",            "2"},
};

constexpr GMChoice stats[] = {
    {"Str", "str"},
    {"Dex", "dex"},
    {"Int", "int"},
};

constexpr GMChoice skills[] = {
    {"Alchemy",              "alchemy"},
    {"Anatomy",              "anatomy"},
    {"Animal Lore",          "animallore"},
    {"Animal Taming",        "taming"},
    {"Archery",              "archery"},
    {"Arms Lore",            "armslore"},
    {"Begging",              "begging"},
    {"Blacksmithing",        "blacksmithing"},
    {"Bowcraft",             "bowcraft"},
    {"Bushido",              "bushido"},
    {"Camping",              "camping"},
    {"Carpentry",            "carpentry"},
    {"Cartogrophy",          "cartography"},
    {"Cooking",              "cooking"},
    {"Chivalry",             "chivalry"},
    {"Detect Hidden",        "detectinghidden"},
    {"Enticement",           "enticement"},
    {"Evaluating Intellect", "evaluatingintel"},
    {"Fencing",              "fencing"},
    {"Fishing",              "fishing"},
    {"Focus",                "focus"},
    {"Forensic Evaluation",  "forensics"},
    {"Healing",              "healing"},
    {"Herding",              "herding"},
    {"Hiding",               "hiding"},
    {"Inscription",          "inscription"},
    {"Item ID",              "itemid"},
    {"Lockpicking",          "lockpicking"},
    {"Lumberjacking",        "lumberjacking"},
    {"Mace Fighting",        "macefighting"},
    {"Magery",               "magery"},
    {"Meditation",           "meditation"},
    {"Mining",               "mining"},
    {"Musicianship",         "musicianship"},
    {"Necromancy",           "necromancy"},
    {"Ninjitsu",             "ninjitsu"},
    {"Parrying",             "parrying"},
    {"Peacemaking",          "peacemaking"},
    {"Poisoning",            "poisoning"},
    {"Provocation",          "provocation"},
    {"Remove Traps",         "removetraps"},
    {"Resisting Spells",     "magicresistance"},
    {"Snooping",             "snooping"},
    {"Spirit Speak",         "spiritspeak"},
    {"Stealing",             "stealing"},
    {"Stealth",              "stealth"},
    {"Swordsmanship",        "swordsmanship"},
    {"Tactics",              "tactics"},
    {"Tailoring",            "tailoring"},
    {"Taste Identification", "tasteid"},
    {"Tinkering",            "tinkering"},
    {"Tracking",             "tracking"},
    {"Veterinary",           "veterinary"},
    {"Wrestling",            "wrestling"},
    {"All Skills",           "allskills"},
};

constexpr std::array gmLists{
    GMList{"optItemVisible", "",               "0", itemVisibility},
    GMList{"optItemMovable", "",               "",  itemMobility},
    GMList{"optNPCAI",       "",               "0", npcAI},
    GMList{"cmbSkills",      "Choose a Skill", "",  skills},
    GMList{"cmbStats",       "Choose a Stat",  "",  stats},
};
// clang-format on

} // namespace

std::span<const std::string_view> TabCaptions()
{
    return tabCaptions;
}

std::span<const std::string_view> ReloadCaptions070()
{
    return reloadCaptions070;
}

std::span<const GMFrame> GMFrames()
{
    return gmFrames;
}

std::span<const GMBox> GMBoxes()
{
    return gmBoxes;
}

std::span<const GMSwitch> GMSwitches()
{
    return gmSwitches;
}

std::span<const GMList> GMLists()
{
    return gmLists;
}

} // namespace qf::console
