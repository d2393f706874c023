#include "gamedata/clothing_tables.h"

#include <array>

namespace qf::gamedata {

namespace {

// clang-format off
constexpr std::array boots{
    Garment{"Boots",          "170b"},
    Garment{"Sandals",        "170d"},
    Garment{"Shoes",          "170f"},
    Garment{"Thigh Boots",    "1711"},
};

constexpr std::array hats{
    Garment{"Floppy Hat",     "1713"},
    Garment{"Wide-brim Hat",  "1714"},
    Garment{"Cap",            "1715"},
    Garment{"Tall Straw Hat", "1716"},
    Garment{"Straw Hat",      "1717"},
    Garment{"Wizard's Hat",   "1718"},
    Garment{"Bonnet",         "1719"},
    Garment{"Feathered Hat",  "171a"},
    Garment{"Tricorne Hat",   "171b"},
    Garment{"Jester Hat",     "171c"},
    Garment{"Bandana",        "1540"},
    Garment{"Skull Cap",      "1543"},
};

constexpr std::array shirtsAndRobes{
    Garment{"Cape",           "1515"},
    Garment{"Fancy Shirt",    "1efd"},
    Garment{"Plain Shirt",    "1517"},
    Garment{"Surcoat",        "1ffd"},
    Garment{"Tunic",          "1fa1"},
    Garment{"Robe",           "1f03"},
    Garment{"Fancy Suit",     "1f9f"},
    Garment{"Doublet",        "1f7b"},
    Garment{"Fancy Dress",    "1eff"},
    Garment{"Plain Dress",    "1f01"},
};

constexpr std::array pants{
    Garment{"Skirt",          "1516"},
    Garment{"Short Pants",    "152e"},
    Garment{"Kilt",           "1537"},
    Garment{"Long Pants",     "1539"},
};

constexpr std::array misc{
    Garment{"Half Apron",     "153B"},
    Garment{"Full Apron",     "153D"},
    Garment{"Body Sash",      "1541"},
};

constexpr std::array masks{
    Garment{"Deer Mask",      "1547"},
    Garment{"Bear Mask",      "1545"},
    Garment{"Orc Helm",       "1F0B"},
    Garment{"Orc Mask",       "141C"},
    Garment{"Tribal Mask",    "1549"},
    Garment{"Voodoo Mask",    "154B"},
};

constexpr std::array categories{
    GarmentCategory{"[Boots]",            boots},
    GarmentCategory{"[Hats]",             hats},
    GarmentCategory{"[Shirts and Robes]", shirtsAndRobes},
    GarmentCategory{"[Pants]",            pants},
    GarmentCategory{"[Misc]",             misc},
    GarmentCategory{"[Masks]",            masks},
};

constexpr std::array hairs{
    Garment{"Short Hair",     "203b"},
    Garment{"Long Hair",      "203c"},
    Garment{"Pony Tail",      "203d"},
    Garment{"Mohawk Hair",    "2044"},
    Garment{"Pageboy Hair",   "2045"},
    Garment{"\"Buns\"Hair",   "2046"},
    Garment{"Afro Hair",      "2047"},
    Garment{"Receding Hair",  "2048"},
    Garment{"2 Pig-tails",    "2049"},
    Garment{"Krishna Hair",   "204a"},
};

constexpr std::array beards{
    Garment{"Long",             "203e"},
    Garment{"Short",            "203f"},
    Garment{"Goatee",           "2040"},
    Garment{"Mustache",         "2041"},
    Garment{"Med. Short Beard", "204b"},
    Garment{"Med. Long Beard",  "204c"},
    Garment{"Vandyke",          "204d"},
};
// clang-format on

} // namespace

std::span<const GarmentCategory> GarmentCategories()
{
    return categories;
}

std::span<const Garment> Hairs()
{
    return hairs;
}

std::span<const Garment> Beards()
{
    return beards;
}

} // namespace qf::gamedata
