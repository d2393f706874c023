#include "console/travel_tables.h"

#include <array>

namespace qf::console {

namespace {

// clang-format off
constexpr std::array towns{
    Place{"Britain - Castle Blackthorn",           "1523", "1458", "15"},  // 0
    Place{"Britain - Castle British",              "1403", "1625", "28"},  // 1
    Place{"Britain - Center",                      "1485", "1634", "20"},  // 2
    Place{"Britain - Docks",                       "1478", "1756", "0"},   // 3
    Place{"Britain - East Bank",                   "1660", "1615", "20"},  // 4
    Place{"Britain - Graveyard",                   "1369", "1482", "10"},  // 5
    Place{"Britain - Park",                        "1614", "1639", "35"},  // 6
    Place{"Britain - Sewers",                      "6031", "1496", "12"},  // 7
    Place{"Britain - Suburbs",                     "1662", "1565", "10"},  // 8
    Place{"Britain - Warrior's Guild",             "1342", "1749", "20"},  // 9
    Place{"Britain - West Bank",                   "1430", "1696", "0"},   // 10
    Place{"Yew - Brigand Camp",                    "868",  "1683", "0"},   // 11
    Place{"Yew - Crypts",                          "963",  "716",  "-20"}, // 12
    Place{"Yew - Empath Abbey",                    "635",  "862",  "0"},   // 13
    Place{"Yew - Graveyard",                       "724",  "1138", "0"},   // 14
    Place{"Yew - Orc Fort",                        "633",  "1487", "0"},   // 15
    Place{"Yew - Prisons",                         "379",  "906",  "0"},   // 16
    Place{"Yew - Town Center",                     "545",  "988",  "0"},   // 17
    Place{"Skara Brae - Bank",                     "607",  "2146", "0"},   // 18
    Place{"Skara Brae - Docks",                    "641",  "2235", "0"},   // 19
    Place{"Skara Brae - Mainland",                 "787",  "2242", "0"},   // 20
    Place{"Trinsic - Docks",                       "2058", "2856", "0"},   // 21
    Place{"Trinsic - Entrance",                    "1817", "2779", "0"},   // 22
    Place{"Trinsic - North Bank",                  "1915", "2688", "2"},   // 23
    Place{"Trinsic - Park",                        "1900", "2761", "0"},   // 24
    Place{"Trinsic - South Bank",                  "1824", "2827", "0"},   // 25
    Place{"Jhelom - Bank",                         "1325", "3783", "0"},   // 26
    Place{"Jhelom - Center Docks",                 "1372", "3884", "0"},   // 27
    Place{"Jhelom - Duelling Pit",                 "1403", "3734", "0"},   // 28
    Place{"Jhelom - East Docks",                   "1489", "3699", "0"},   // 29
    Place{"Jhelom - South Docks",                  "1508", "3990", "0"},   // 30
    Place{"Jhelom - West Docks",                   "1127", "3682", "0"},   // 31
    Place{"Serpent's Hold - Center",               "2984", "3433", "15"},  // 32
    Place{"Serpent's Hold - Bank",                 "2893", "3476", "15"},  // 33
    Place{"Serpent's Hold - Docks",                "3003", "3461", "15"},  // 34
    Place{"Buccaneer' Den - Bank",                 "2723", "2186", "0"},   // 35
    Place{"Buccaneer' Den - Baths",                "2668", "2103", "0"},   // 36
    Place{"Buccaneer' Den - Docks",                "2742", "2166", "0"},   // 37
    Place{"Cove - Docks",                          "2253", "1188", "0"},   // 38
    Place{"Cove - Graveyard",                      "2443", "1118", "8"},   // 39
    Place{"Cove - Orc Fort",                       "2170", "1333", "0"},   // 40
    Place{"Cove - Town Gates",                     "2289", "1209", "0"},   // 41
    Place{"Cove - Wathctower",                     "2221", "1119", "12"},  // 42
    Place{"Minoc - Bank",                          "2513", "561",  "0"},   // 43
    Place{"Minoc - East Mines",                    "2585", "493",  "40"},  // 44
    Place{"Minoc - Gypsy Camp",                    "2542", "649",  "0"},   // 45
    Place{"Minoc - Mining Camp",                   "2563", "514",  "15"},  // 46
    Place{"Minoc - North",                         "2477", "418",  "15"},  // 47
    Place{"Minoc - North Mines",                   "2464", "94",   "0"},   // 48
    Place{"Minoc - T2A Passage",                   "2409", "223",  "0"},   // 49
    Place{"Vesper - Bank",                         "2895", "690",  "0"},   // 50
    Place{"Vesper - Docks",                        "3013", "825",  "0"},   // 51
    Place{"Vesper - Graveyard",                    "2774", "868",  "0"},   // 52
    Place{"Vesper - Southwest Entrance",           "2782", "944",  "0"},   // 53
    Place{"Vesper - T2A Entrance",                 "2775", "877",  "0"},   // 54
    Place{"Nujel'm - Bank",                        "3754", "1320", "0"},   // 55
    Place{"Nujel'm - Chessboard",                  "3729", "1359", "5"},   // 56
    Place{"Nujel'm - Graveyard",                   "3536", "1145", "20"},  // 57
    Place{"Nujel'm - Palace",                      "3721", "1279", "0"},   // 58
    Place{"Magincia - Bank",                       "3732", "2164", "20"},  // 59
    Place{"Magincia - Beach",                      "3714", "2037", "10"},  // 60
    Place{"Magincia - Docks",                      "3674", "2278", "0"},   // 61
    Place{"Occlo - Bank",                          "3685", "2520", "0"},   // 62
    Place{"Occlo - Docks",                         "3650", "2658", "0"},   // 63
    Place{"Occlo - Farms",                         "3724", "2646", "20"},  // 64
    Place{"Moonglow - Bank",                       "4459", "1170", "0"},   // 65
    Place{"Moonglow - Docks",                      "4405", "1045", "0"},   // 66
    Place{"Moonglow - Graveyard",                  "4543", "1332", "8"},   // 67
    Place{"Moonglow - Lyceaeum",                   "4305", "1001", "0"},   // 68
    Place{"Moonglow - Mage Shop",                  "4546", "878",  "20"},  // 69
    Place{"Moonglow - Royal Zoo",                  "4524", "1379", "23"},  // 70
    Place{"Moonglow - Telescope",                  "4707", "1124", "0"},   // 71
    Place{"Delucia - Bank",                        "5280", "3994", "37"},  // 72
    Place{"Delucia - Town Gates",                  "5318", "3972", "10"},  // 73
    Place{"Delucia - Trinsic Passage (5160 4063)", "5160", "4063", "37"},  // 74
    Place{"Papua - Bank",                          "5682", "3150", "0"},   // 75
    Place{"Papua - Docks",                         "5827", "3257", "2"},   // 76
    Place{"Papua - Moonglow Portal",               "5744", "3215", "0"},   // 77
    Place{"Wind - Entrance",                       "1368", "892",  "0"},   // 78
    Place{"Wind - Exit",                           "5167", "242",  "15"},  // 79
    Place{"Wind - Mage Shop",                      "5214", "126",  "0"},   // 80
};

// The rows of Wrong belong to these entries, however little they seem to.
constexpr std::array dungeons{
    Place{"Covetous - Entrance",          "2501", "926",  "0"},   // 0
    Place{"Covetous - Level 1",           "5456", "1863", "0"},   // 1
    Place{"Covetous - Level 2",           "5614", "1997", "0"},   // 2
    Place{"Covetous - Level 3",           "5579", "1924", "0"},   // 3
    Place{"Covetous - Lake",              "5467", "1805", "5"},   // 4
    Place{"Covetous - Torture Room",      "5552", "1807", "0"},   // 5
    Place{"Deceit - Entrance",            "4111", "440",  "5"},   // 6
    Place{"Deceit - Level 1",             "5188", "638",  "0"},   // 7
    Place{"Deceit - Level 2",             "5305", "533",  "2"},   // 8
    Place{"Deceit - Level 3",             "5137", "650",  "5"},   // 9
    Place{"Deceit - Level 4",             "5306", "652",  "2"},   // 10
    Place{"Despise - Entrance",           "1304", "1083", "0"},   // 11
    Place{"Despise - Entyway",            "5587", "631",  "30"},  // 12
    Place{"Despise - Level 1",            "5501", "570",  "59"},  // 13
    Place{"Despise - Level 2",            "5519", "673",  "20"},  // 14
    Place{"Despise - Level 3",            "5407", "859",  "45"},  // 15
    Place{"Destard - Entrance",           "1176", "2643", "0"},   // 16
    Place{"Destard - Level 1",            "5243", "1006", "0"},   // 17
    Place{"Destard - Level 2",            "5143", "801",  "5"},   // 18
    Place{"Destard - Level 3",            "5137", "986",  "5"},   // 19
    Place{"Hythloth - Entrance",          "4723", "3821", "0"},   // 20
    Place{"Hythloth - Level 1",           "5905", "20",   "46"},  // 21
    Place{"Hythloth - Level 2",           "5976", "169",  "0"},   // 22
    Place{"Hythloth - Level 3",           "6083", "145",  "236"}, // 23
    Place{"Hythloth - Level 4",           "6059", "89",   "24"},  // 24
    Place{"Ice - Entrance",               "2000", "82",   "4"},   // 25
    Place{"Lost Lands - Fire Dungeon",    "5760", "2908", "15"},  // 26
    Place{"Lost Lands - Ice Dungeon",     "5208", "2322", "31"},  // 27
    Place{"Lost Lands - Khaldun Dungeon", "6009", "3778", "20"},  // 28
    Place{"Lost Lands - Ophidian Lair",   "5760", "2639", "39"},  // 29
    Place{"Lost Lands - Terathan Keep",   "5425", "3149", "0"},   // 30
    Place{"Shame - Entrance",             "511",  "1569", "0"},   // 31
    Place{"Shame - Level 1",              "5395", "126",  "0"},   // 32
    Place{"Shame - Level 2",              "5515", "11",   "5"},   // 33
    Place{"Shame - Level 3",              "5514", "148",  "25"},  // 34
    Place{"Wrong - Entrance",             "5875", "20",   "251"}, // 35
    Place{"Wrong - Level 1",              "2040", "241",  "10"},  // 36
    Place{"Wrong - Level 2",              "5825", "630",  "10"},  // 37
    Place{"Wrong - Level 3",              "5690", "569",  "25"},  // 38
    Place{"",                             "5703", "639",  "0"},   // 39, no entry of the list leads here
};

constexpr std::array moongates{
    Place{"Britain",      "1344", "2001", "0"},  // 0
    Place{"Jhelom",       "1500", "3775", "0"},  // 1
    Place{"Magincia",     "3567", "2141", "33"}, // 2
    Place{"Moonglow",     "4473", "1286", "0"},  // 3
    Place{"Skara Brae",   "651",  "2069", "0"},  // 4
    Place{"Trinsic",      "1832", "2953", "0"},  // 5
    Place{"Vesper/Minoc", "2703", "698",  "0"},  // 6
    Place{"Yew",          "772",  "748",  "0"},  // 7
};

constexpr std::array shrines{
    Place{"Chaos",        "1464", "854",  "0"},  // 0
    Place{"Compassion",   "1857", "865",  "-1"}, // 1
    Place{"Honesty",      "4221", "564",  "36"}, // 2
    Place{"Honor",        "1729", "3527", "3"},  // 3
    Place{"Humility",     "4274", "3704", "0"},  // 4
    Place{"Justice",      "1300", "641",  "15"}, // 5
    Place{"Sacrifice",    "3354", "297",  "9"},  // 6
    Place{"Spirituality", "1602", "2490", "5"},  // 7
};

constexpr std::array specials{
    Place{"Fire Isle Temple",                     "4595", "3603", "30"}, // 0
    Place{"Green Acres",                          "5600", "1200", "0"},  // 1
    Place{"Hedgemaze - Center",                   "1174", "2231", "0"},  // 2
    Place{"Hedgemaze - Entrance",                 "1254", "2304", "0"},  // 3
    Place{"Island Temple Portal",                 "2495", "3586", "5"},  // 4
    Place{"Jails",                                "5289", "1174", "0"},  // 5
    Place{"Marble House T2A Entrance",            "1958", "2079", "0"},  // 6
    Place{"Lost Lands - Cyclope Valley",          "5148", "3015", "69"}, // 7
    Place{"Lost Lands - Graveyard",               "5222", "3661", "0"},  // 8
    Place{"Lost Lands - Lighthouse",              "5682", "2409", "43"}, // 9
    Place{"Lost Lands - Oasis",                   "5547", "2633", "0"},  // 10
    Place{"Lost Lands - Orc Fort",                "5215", "3635", "0"},  // 11
    Place{"Lost Lands - Passage to Minoc",        "6094", "3678", "20"}, // 12
    Place{"Lost Lands - Portal to Island Temple", "5914", "4077", "18"}, // 13
    Place{"Star Chamber",                         "5146", "1775", "0"},  // 14
    Place{"Trinsic Hidden Vulcano",               "1652", "2890", "0"},  // 15
};
// clang-format on

} // namespace

std::span<const Place> Towns()
{
    return towns;
}

std::span<const Place> Dungeons()
{
    return dungeons;
}

std::span<const Place> Moongates()
{
    return moongates;
}

std::span<const Place> Shrines()
{
    return shrines;
}

std::span<const Place> SpecialLocations()
{
    return specials;
}

} // namespace qf::console
