#include "console/npc_tables.h"

#include <array>

namespace qf::console {

namespace {

// clang-format off
constexpr std::array aggressiveAnimals{
    NpcRow{"Dire Wolf",  "direwolf"},
    NpcRow{"Giant Rat",  "giantrat"},
    NpcRow{"Giant Toad", "gianttoad"},
    NpcRow{"Scorpion",   "scorpion"},
    NpcRow{"Sewer Rat",  "sewerrat"},
};

constexpr std::array aggressivePlants{
    NpcRow{"Corpser",        "corpser"},
    NpcRow{"Reaper",         "reaper"},
    NpcRow{"Swamp Tentacle", "swamptentacle"},
};

constexpr std::array animals{
    NpcRow{"Random Small Bird", "bird"},
    NpcRow{"Black Bear",        "blackbear"},
    NpcRow{"Boar",              "boar"},
    NpcRow{"Brown Bear",        "brownbear"},
    NpcRow{"Bull",              "bull"},
    NpcRow{"Bullfrog",          "bullfrog"},
    NpcRow{"Canary",            "canary"},
    NpcRow{"Crow",              "crow"},
    NpcRow{"Cat",               "cat"},
    NpcRow{"Chicken",           "chicken"},
    NpcRow{"Cougar",            "cougar"},
    NpcRow{"Cow",               "cow"},
    NpcRow{"Dog",               "dog"},
    NpcRow{"Eagle",             "eagle"},
    NpcRow{"Falcon",            "falcon"},
    NpcRow{"Goat",              "goat"},
    NpcRow{"Gorilla",           "gorilla"},
    NpcRow{"Greywolf",          "greywolf"},
    NpcRow{"Grizbear",          "grizbear"},
    NpcRow{"Hart",              "hart"},
    NpcRow{"Hawk",              "hawk"},
    NpcRow{"Hind",              "hind"},
    NpcRow{"Jackrabbit",        "jackrabbit"},
    NpcRow{"Mountain Goat",     "mountaingoat"},
    NpcRow{"Pack-horse",        "packhorse"},
    NpcRow{"Pack-llama",        "packllama"},
    NpcRow{"Panther",           "panther"},
    NpcRow{"Phoenix",           "phoenix"},
    NpcRow{"Pig",               "pig"},
    NpcRow{"Polar Bear",        "polarbear"},
    NpcRow{"Rabbit",            "rabbit"},
    NpcRow{"Rat",               "rat"},
    NpcRow{"Raven",             "raven"},
    NpcRow{"Sheep",             "sheep"},
    NpcRow{"Snow Leopard",      "snowleopard"},
    NpcRow{"Timber Wolf",       "timberwolf"},
    NpcRow{"White Wolf",        "whitewolf"},
};

constexpr std::array arachnids{
    NpcRow{"Dread Spider",       "dreadspider"},
    NpcRow{"Frost Spider",       "frostspider"},
    NpcRow{"Giant Spider",       "giantspider"},
    NpcRow{"Terathan Drone",     "teradrone"},
    NpcRow{"Terathan Warrior",   "terawarrior"},
    NpcRow{"Terathan Avenger",   "teraavenger"},
    NpcRow{"Terathan Matriarch", "teramatriarch"},
};

constexpr std::array daemons{
    NpcRow{"Balron",        "balron"},
    NpcRow{"Daemon",        "daemon"},
    NpcRow{"Exodus",        "exodus"},
    NpcRow{"Icefiend",      "icefiend"},
    NpcRow{"Imp",           "imp"},
    NpcRow{"Mongbat",       "mongbat"},
    NpcRow{"Arcane Daemon", "arcanedaemon"},
    NpcRow{"Moloch",        "chaosdaemon"},
    NpcRow{"Chaos daemon",  ""},
};

constexpr std::array dragons{
    NpcRow{"Gray Dragon",       "graydragon"},
    NpcRow{"Red Dragon",        "reddragon"},
    NpcRow{"Gray Drake",        "graydrake"},
    NpcRow{"Red Drake",         "reddrake"},
    NpcRow{"Shadow Wyrm",       "shadowwyrm"},
    NpcRow{"White Wyrm",        "whitewyrm"},
    NpcRow{"Wyvern",            "wyvern"},
    NpcRow{"Ancient Wyrm",      "ancientwyrm"},
    NpcRow{"Serpentine Dragon", "serpentinedragon"},
    NpcRow{"Skeletal Dragon",   "skeletaldragon"},
};

// Behind the acid elemental each section stands one row below its name. The pairs go out as they stand.
constexpr std::array elementals{
    NpcRow{"Air Elemental",          "airele"},
    NpcRow{"Earth Elemental",        "earthele"},
    NpcRow{"Fire Elemental",         "firele"},
    NpcRow{"Water Elemental",        "waterele"},
    NpcRow{"Blood Elemental",        "bloodele"},
    NpcRow{"Poison Elemental",       "poisonele"},
    NpcRow{"Ice Elemental",          "iceele"},
    NpcRow{"Snow Elemental",         "snowele"},
    NpcRow{"Acid Elemental",         "acidele"},
    NpcRow{"Agapite Elemental",      "skeletaldragon"},
    NpcRow{"Bronze Elemental",       "agapiteele"},
    NpcRow{"Copper Elemental",       "bronzeele"},
    NpcRow{"Crystal Elemental(AoS)", "copperele"},
    NpcRow{"Dull Copper Elemental",  "crystalele"},
    NpcRow{"Golden Elemental",       "dullcopperele"},
    NpcRow{"Shadow Iron Elemental",  "goldenele"},
    NpcRow{"Valorite Elemental",     "shadowironele"},
    NpcRow{"Verite Elemental",       "valoriteele"},
    NpcRow{"",                       "veriteele"},
};

constexpr std::array femaleHumans{
    NpcRow{"Basic Female",      "female"},
    NpcRow{"Guard",             "f_guard"},
    NpcRow{"Murderer-Archmage", "f_murderer-archmage"},
    NpcRow{"Wandering Healer",  "f_whealer"},
    NpcRow{"Pirate",            "f_pirate"},
    NpcRow{"Fighter",           "f_fighter"},
    NpcRow{"Sailor",            "f_sailor"},
    NpcRow{"Brigand",           "f_brigand"},
    NpcRow{"Beggar",            "f_beggar"},
    NpcRow{"Noble",             "f_noble"},
    NpcRow{"Thief",             "f_thief"},
    NpcRow{"Peasant",           "f_peasant"},
    NpcRow{"Gypsy",             "f_gypsy"},
    NpcRow{"Seeker",            "f_seeker"},
    NpcRow{"Jailer",            "f_jailer"},
    NpcRow{"Towncrier",         "f_towncrier"},
    NpcRow{"Artist",            "f_artist"},
};

constexpr std::array femaleVendors{
    NpcRow{"Banker",         "f_banker"},
    NpcRow{"Bard",           "f_bard"},
    NpcRow{"Miner",          "f_miner"},
    NpcRow{"Weaponsmith",    "f_weaponsmith"},
    NpcRow{"Baker",          "f_baker"},
    NpcRow{"Provisioner",    "f_provisioner"},
    NpcRow{"Cobbler",        "f_cobbler"},
    NpcRow{"Innkeeper",      "f_innkeeper"},
    NpcRow{"Herbalist",      "f_herbalist"},
    NpcRow{"Butcher",        "f_butcher"},
    NpcRow{"Tailor",         "f_tailor"},
    NpcRow{"Bowyer",         "f_bowyer"},
    NpcRow{"Jeweler",        "f_jeweler"},
    NpcRow{"Leatherworker",  "f_leatherworker"},
    NpcRow{"Shipwright",     "f_shipwright"},
    NpcRow{"Spinner",        "f_spinner"},
    NpcRow{"Armourer",       "f_armourer"},
    NpcRow{"Blacksmith",     "f_blacksmith"},
    NpcRow{"Architect",      "f_architect"},
    NpcRow{"Carpenter",      "f_carpenter"},
    NpcRow{"Farmer",         "f_farmer"},
    NpcRow{"Cook",           "f_cook"},
    NpcRow{"Animal Trainer", "f_animaltrainer"},
    NpcRow{"Fisher",         "f_fisher"},
    NpcRow{"Alchemist",      "f_alchemist"},
    NpcRow{"Tinker",         "f_tinker"},
    NpcRow{"Beekeeper",      "f_beekeeper"},
    NpcRow{"Healer",         ""},
    NpcRow{"Mage",           ""},
};

constexpr std::array gargoyles{
    NpcRow{"Gargoyle",           "gargoyle"},
    NpcRow{"Stone Gargoyle",     "stonegargoyle"},
    NpcRow{"Enslaved Gargoyle",  "enslavedgargoyle"},
    NpcRow{"Fire Gargoyle",      "firegargoyle"},
    NpcRow{"Gargoyle Destroyer", "gargoyledestroyer"},
    NpcRow{"Gargoyle Enforcer",  "gargoyleenforcer"},
    NpcRow{"Gargoyle Alchemist", "gargoylealchemist"},
    NpcRow{"Gargoyle Mason",     "gargoylemason"},
};

constexpr std::array giants{
    NpcRow{"Ettin",           "ettin"},
    NpcRow{"Hammer Ettin",    "hammerettin"},
    NpcRow{"Ogre",            "ogre"},
    NpcRow{"Ogre Lord",       "ogrelord"},
    NpcRow{"Artic Ogre Lord", "arcticogrelord"},
    NpcRow{"Troll",           "troll"},
    NpcRow{"Axe Troll",       "axetroll"},
    NpcRow{"Hammer Troll",    "hammertroll"},
    NpcRow{"Frost Troll",     "frosttroll"},
    NpcRow{"Cyclops",         "cyclops"},
    NpcRow{"Titan",           "titan"},
};

constexpr std::array humanoids{
    NpcRow{"Orc",             "orc"},
    NpcRow{"Orc with Club",   "cluborc"},
    NpcRow{"Orc Captain",     "orccaptain"},
    NpcRow{"Orc Mage",        "orcmage"},
    NpcRow{"Orc Lord",        "orclord"},
    NpcRow{"Orc Bomber",      "orcbomber"},
    NpcRow{"Orc Scout",       "orcscout"},
    NpcRow{"Lizardman",       "lizardman"},
    NpcRow{"Lizardman Spear", "spearlizardman"},
    NpcRow{"Lizardman Mace",  "macelizardman"},
    NpcRow{"Ratman",          "ratman"},
    NpcRow{"Ratman Mace",     "maceratman"},
    NpcRow{"Ratman Sword",    "swordratman"},
    NpcRow{"Ratman Mage",     "ratmanmage"},
    NpcRow{"Ratman Archer",   "ratmanarcher"},
};

constexpr std::array maleHumans{
    NpcRow{"Basic Male",        "male"},
    NpcRow{"Guard",             "m_guard"},
    NpcRow{"Murderer-Archmage", "m_murderer-archmage"},
    NpcRow{"Wandering Healer",  "m_whealer"},
    NpcRow{"Pirate",            "m_pirate"},
    NpcRow{"Fighter",           "m_fighter"},
    NpcRow{"Sailor",            "m_sailor"},
    NpcRow{"Brigand",           "m_brigand"},
    NpcRow{"Beggar",            "m_beggar"},
    NpcRow{"Noble",             "m_noble"},
    NpcRow{"Thief",             "m_thief"},
    NpcRow{"Peasant",           "m_peasant"},
    NpcRow{"Gypsy",             "m_gypsy"},
    NpcRow{"Seeker",            "m_seeker"},
    NpcRow{"Jailer",            "m_jailer"},
    NpcRow{"Towncrier",         "m_towncrier"},
    NpcRow{"Artist",            "m_artist"},
};

constexpr std::array maleVendors{
    NpcRow{"Banker",         "m_banker"},
    NpcRow{"Bard",           "m_bard"},
    NpcRow{"Miner",          "m_miner"},
    NpcRow{"Weaponsmith",    "m_weaponsmith"},
    NpcRow{"Baker",          "m_baker"},
    NpcRow{"Provisioner",    "m_provisioner"},
    NpcRow{"Cobbler",        "m_cobbler"},
    NpcRow{"Innkeeper",      "m_innkeeper"},
    NpcRow{"Herbalist",      "m_herbalist"},
    NpcRow{"Butcher",        "m_butcher"},
    NpcRow{"Tailor",         "m_tailor"},
    NpcRow{"Bowyer",         "m_bowyer"},
    NpcRow{"Jeweler",        "m_jeweler"},
    NpcRow{"Leatherworker",  "m_leatherworker"},
    NpcRow{"Shipwright",     "m_shipwright"},
    NpcRow{"Spinner",        "m_spinner"},
    NpcRow{"Armourer",       "m_armourer"},
    NpcRow{"Blacksmith",     "m_blacksmith"},
    NpcRow{"Architect",      "m_architect"},
    NpcRow{"Carpenter",      "m_carpenter"},
    NpcRow{"Farmer",         "m_farmer"},
    NpcRow{"Cook",           "m_cook"},
    NpcRow{"Animal Trainer", "m_animaltrainer"},
    NpcRow{"Fisher",         "m_fisher"},
    NpcRow{"Alchemist",      "m_alchemist"},
    NpcRow{"Tinker",         "m_tinker"},
    NpcRow{"Beekeeper",      "m_beekeeper"},
    NpcRow{"Healer",         ""},
    NpcRow{"Mage",           ""},
};

constexpr std::array miscMonsters{
    NpcRow{"Succubus",         "succubus"},
    NpcRow{"Pixie",            "pixie"},
    NpcRow{"Centaur",          "centaur"},
    NpcRow{"Etherial Warrior", "ethwarrior"},
    NpcRow{"Efreet",           "efreet"},
    NpcRow{"Hellcat",          "hellcat"},
    NpcRow{"Hellhound",        "hellhound"},
    NpcRow{"Large Hellcat",    "largehellcat"},
    NpcRow{"Harpy",            "harpy"},
    NpcRow{"Stone Harpy",      "stoneharpy"},
    NpcRow{"Gazer",            "gazer"},
    NpcRow{"Elder Gazer",      "eldergazer"},
    NpcRow{"Headless",         "headless"},
    NpcRow{"Slime",            "slime"},
    NpcRow{"mirejelly",        "mirejelly"},
    NpcRow{"Frost Ooze",       "frostooze"},
    NpcRow{"Wisp",             "wisp"},
};

constexpr std::array mounts{
    NpcRow{"Horse",                     "horse"},
    NpcRow{"Brown Horse",               "brownhorse"},
    NpcRow{"Gray Horse",                "grayhorse"},
    NpcRow{"Dark Horse",                "darkhorse"},
    NpcRow{"Llama",                     "llama"},
    NpcRow{"Frenzied Ostard",           "frenziedostard"},
    NpcRow{"Forest Ostard",             "forestostard"},
    NpcRow{"Desert Ostard",             "desertostard"},
    NpcRow{"Nightmare",                 "nightmare"},
    NpcRow{"Dark Nightmare",            "darknightmare"},
    NpcRow{"Mane-Nightmare",            "manenightmare"},
    NpcRow{"Pure Nightmare",            "purenightmare"},
    NpcRow{"Unicorn",                   "unicorn"},
    NpcRow{"Ki-rin",                    "ki-rin"},
    NpcRow{"Brittannian Warhorse",      "warhorse1"},
    NpcRow{"Council of Mages Warhorse", "warhorse2"},
    NpcRow{"Minax Warhorse",            "warhorse3"},
    NpcRow{"Shadowlords Warhorse",      "warhorse4"},
    NpcRow{"Dark Steed",                "darksteed"},
    NpcRow{"Silver Steed",              "silversteed"},
    NpcRow{"Skeletal Mount",            "skeletalmount"},
    NpcRow{"Seahorse",                  "seahorse"},
    NpcRow{"Giant Beetle",              "giantbeetle"},
    NpcRow{"Firesteed",                 "firesteed"},
};

constexpr std::array reptiles{
    NpcRow{"Alligator",                "alligator"},
    NpcRow{"Giant Serpent",            "giantserpent"},
    NpcRow{"Ice Snake",                "icesnake"},
    NpcRow{"Ice Serpent",              "iceserpent"},
    NpcRow{"Lava Lizard",              "lavalizard"},
    NpcRow{"Lava Snake",               "lavasnake"},
    NpcRow{"Lava Serpent",             "lavaserpent"},
    NpcRow{"Ophidian Warrior",         "ophwarrior"},
    NpcRow{"Ophidian Enforcer",        "ophenforcer"},
    NpcRow{"Ophidian Knight-errant",   "ophknight"},
    NpcRow{"Ophidian Avenger",         "ophavenger"},
    NpcRow{"Ophidian Apprentice Mage", "ophapprentice"},
    NpcRow{"Ophidian Shaman",          "ophshaman"},
    NpcRow{"Ophidian Matriarch",       "ophmatriarch"},
    NpcRow{"Silver Serpent",           "silverserpent"},
    NpcRow{"Snake",                    "snake"},
};

constexpr std::array seaCreatures{
    NpcRow{"Deep Sea Serpent", "deepseaserpent"},
    NpcRow{"Dolphin",          "dolphin"},
    NpcRow{"Kraken",           "kraken"},
    NpcRow{"Sea Serpent",      "seaserpent"},
    NpcRow{"Walrus",           "walrus"},
};

constexpr std::array undead{
    NpcRow{"Zombie",         "zombie"},
    NpcRow{"Lich Lord",      "lichlord"},
    NpcRow{"Lich",           "lich"},
    NpcRow{"Spectre",        "spectre"},
    NpcRow{"Wraith",         "wraith"},
    NpcRow{"Skeleton",       "skeleton"},
    NpcRow{"Bone Axeman",    "boneaxeman"},
    NpcRow{"Bone Knight",    "boneknight"},
    NpcRow{"Bone Mage",      "bonemage"},
    NpcRow{"Mummy",          "mummy"},
    NpcRow{"Rotting Corpse", "rottingcorpse"},
    NpcRow{"Ghoul",          "ghoul"},
};

constexpr std::array categories{
    NpcCategory{"[Aggressive Animals]", aggressiveAnimals},
    NpcCategory{"[Aggressive Plants]",  aggressivePlants},
    NpcCategory{"[Animals]",            animals},
    NpcCategory{"[Arachnids]",          arachnids},
    NpcCategory{"[Daemons]",            daemons},
    NpcCategory{"[Dragons]",            dragons},
    NpcCategory{"[Elementals]",         elementals},
    NpcCategory{"[Female Humans]",      femaleHumans},
    NpcCategory{"[Female Vendors]",     femaleVendors},
    NpcCategory{"[Gargoyles]",          gargoyles},
    NpcCategory{"[Giants]",             giants},
    NpcCategory{"[Humanoids]",          humanoids},
    NpcCategory{"[Male Humans]",        maleHumans},
    NpcCategory{"[Male Vendors]",       maleVendors},
    NpcCategory{"[Misc Monsters]",      miscMonsters},
    NpcCategory{"[Mounts]",             mounts},
    NpcCategory{"[Reptiles]",           reptiles},
    NpcCategory{"[Sea Creatures]",      seaCreatures},
    NpcCategory{"[Undead]",             undead},
};
// clang-format on

} // namespace

std::span<const NpcCategory> NpcCategories()
{
    return categories;
}

} // namespace qf::console
