#include "items/items_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr ItemRow signRows[] = {
    {"Wooden Signpost 1",   "NW", {"0b98", "0b97"}}, // 0
    {"Wooden SignPost 2",   "NW", {"0b9a", "0b99"}}, // 1
    {"Metal Signpost 1",    "NW", {"0b9c", "0b9b"}}, // 2
    {"Metal Signpost 2",    "NW", {"0b9e", "0b9d"}}, // 3
    {"Metal Signpost 3",    "NW", {"0ba0", "0b9f"}}, // 4
    {"Metal Signpost 4",    "NW", {"0ba2", "0ba1"}}, // 5
    {"Library",             "NW", {"0b96", "0b95"}}, // 6
    {"Bakery",              "NW", {"0ba4", "0ba3"}}, // 7
    {"Tailor",              "NW", {"0ba6", "0ba5"}}, // 8
    {"Tinker",              "NW", {"0ba8", "0ba7"}}, // 9
    {"Butcher",             "NW", {"0baa", "0ba9"}}, // 10
    {"Healer",              "NW", {"0bac", "0bab"}}, // 11
    {"Mage",                "NW", {"0bae", "0bad"}}, // 12
    {"Woodworker",          "NW", {"0bb0", "0baf"}}, // 13
    {"Customs",             "NW", {"0bb2", "0bb1"}}, // 14
    {"Inn",                 "NW", {"0bb4", "0bb3"}}, // 15
    {"Shipwright",          "NW", {"0bb6", "0bb5"}}, // 16
    {"Stables",             "NW", {"0bb8", "0bb7"}}, // 17
    {"Barber",              "NW", {"0bba", "0bb9"}}, // 18
    {"Bard",                "NW", {"0bbc", "0bbb"}}, // 19
    {"Fletcher",            "NW", {"0bbe", "0bbd"}}, // 20
    {"Armourer",            "NW", {"0bc0", "0bbf"}}, // 21
    {"Jeweler",             "NW", {"0bc2", "0bc1"}}, // 22
    {"Tavern",              "NW", {"0bc4", "0bc3"}}, // 23
    {"Reagent Shop",        "NW", {"0bc6", "0bc5"}}, // 24
    {"Blacksmith",          "NW", {"0bc8", "0bc7"}}, // 25
    {"Painter",             "NW", {"0bca", "0bc9"}}, // 26
    {"Provisioner",         "NW", {"0bcc", "0bcb"}}, // 27
    {"Bowyer",              "NW", {"0bce", "0bcd"}}, // 28
    {"Wooden sign",         "NW", {"0bd0", "0bcf"}}, // 29
    {"Brass sign",          "NW", {"0bd2", "0bd1"}}, // 30
    {"Arnaments Guild",     "NW", {"0bd4", "0bd3"}}, // 31
    {"Armourers' Guild",    "NW", {"0bd6", "0bd5"}}, // 32
    {"Blacksmiths' Guild",  "NW", {"0bd8", "0bd7"}}, // 33
    {"Weapons Guild",       "NW", {"0bda", "0bd9"}}, // 34
    {"Bardic Guild",        "NW", {"0bdc", "0bdb"}}, // 35
    {"Barters' Guild",      "NW", {"0bde", "0bdd"}}, // 36
    {"Provisioners' Guild", "NW", {"0be0", "0bdf"}}, // 37
    {"Traders' Guild",      "NW", {"0be2", "0be1"}}, // 38
    {"Cooks' Guild",        "NW", {"0be4", "0be3"}}, // 39
    {"Healers' Guild",      "NW", {"0be6", "0be5"}}, // 40
    {"Mages' Guild",        "NW", {"0be8", "0be7"}}, // 41
    {"Sorcerer Guild",      "NW", {"0bea", "0be9"}}, // 42
    {"Illusionist Guild",   "NW", {"0bec", "0beb"}}, // 43
    {"Miner's Guild",       "NW", {"0bee", "0bed"}}, // 44
    {"Archers' Guild",      "NW", {"0bf0", "0bef"}}, // 45
    {"Seamen Guild",        "NW", {"0bf2", "0bf1"}}, // 46
    {"Fishermen G.",        "NW", {"0bf4", "0bf3"}}, // 47
    {"Sailors' Guild",      "NW", {"0bf6", "0bf5"}}, // 48
    {"Shipwrights' Guild",  "NW", {"0bf8", "0bf7"}}, // 49
    {"Tailors' Guild",      "NW", {"0bfa", "0bf9"}}, // 50
    {"Thieves' Guild",      "NW", {"0bfc", "0bfb"}}, // 51
    {"Rogues' Guild",       "NW", {"0bfe", "0bfd"}}, // 52
    {"Assassin's Guild",    "NW", {"0c00", "0bff"}}, // 53
    {"Tinkers' Guild",      "NW", {"0c02", "0c01"}}, // 54
    {"Warriors' Guild",     "NW", {"0c04", "0c03"}}, // 55
    {"Cavalery Guild",      "NW", {"0c06", "0c05"}}, // 56
    {"Fighters' Guild",     "NW", {"0c08", "0c07"}}, // 57
    {"Bank",                "NW", {"0c0c", "0c0b"}}, // 58
    {"Theatre",             "NW", {"0c0e", "0c0d"}}, // 59
    {"Tall Sign Post",      "N",  {"1296", ""}},     // 60
    {"Road Sign (N / E)",   "N",  {"1297", ""}},     // 61
    {"RoadSign (N / W)",    "N",  {"1298", ""}},     // 62
    {"RoadSign (N)",        "N",  {"1299", ""}},     // 63
    {"RoadSign (W)",        "N",  {"129a", ""}},     // 64
    {"RoadSign (S / E)",    "N",  {"129b", ""}},     // 65
    {"RoadSign (E)",        "N",  {"129c", ""}},     // 66
    {"RoadSign (S)",        "N",  {"129d", ""}},     // 67
    {"RoadSign (S / W)",    "N",  {"129e", ""}},     // 68
    {"Magical Sign",        "N",  {"163d", ""}},     // 69
    {"Beekeeper",           "NW", {"0c44", "0c43"}}, // 70
    {"Merchant's Guild",    "NW", {"0c0a", "0c09"}}, // 71
    {"Wooden sign 2",       "NW", {"1f28", "1f29"}}, // 72
};
// clang-format on

} // namespace

std::span<const ItemRow> SignRows()
{
    return signRows;
}

} // namespace qf::items
