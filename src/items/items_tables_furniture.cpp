#include "items/items_tables.h"

namespace qf::items {

namespace {

// clang-format off
constexpr ItemRow chairRows[] = {
    {"Stool",               "S",    {"",     "",     "0a2a", ""}},     // 0
    {"Foot Stool",          "S",    {"",     "",     "0b5e", ""}},     // 1
    {"Bamboo Stool",        "S",    {"",     "",     "11fc", ""}},     // 2
    {"Throne",              "SE",   {"",     "",     "0b32", "0b33"}}, // 3
    {"Wooden Chair",        "NWSE", {"0b31", "0b30", "0b2e", "0b2f"}}, // 4
    {"Stone Chair",         "NWSE", {"121a", "121b", "1218", "1219"}}, // 5
    {"Cushion Chair",       "NWSE", {"0b54", "0b55", "0b53", "0b52"}}, // 6
    {"Cushion Chair Fancy", "NWSE", {"0b50", "0b51", "0b4f", "0b4e"}}, // 7
    {"Normal Chair",        "NWSE", {"0b59", "0b58", "0b57", "0b56"}}, // 8
    {"Ugly Chair",          "NWSE", {"0b5c", "0b5d", "0b5b", "0b5a"}}, // 9
    {"Ornate Elven Chair",  "NWSE", {"2de6", "2de5", "2de4", "2de3"}}, // 10
    {"Big Elven Chair",     "NWSE", {"2deb", "2dee", "2dec", "2ded"}}, // 11
    {"Gargoyle Chair",      "SE",   {"",     "",     "4023", "4024"}}, // 12
    {"Chair Simple",        "SE",   {"",     "",     "4c80", "4c81"}}, // 13
    {"Wedding Chair 1",     "NWSE", {"9e8e", "9e8f", "9e91", "9e90"}}, // 14
    {"Wedding Chair 2",     "NWSE", {"9e9f", "9ea0", "9ea1", "9ea2"}}, // 15
    {"Ornate Chair",        "NWSE", {"9e9f", "9ea0", "9ea1", "9ea2"}}, // 16
    {"Spiked Chair",        "SE",   {"",     "",     "a4ea", "a4eb"}}, // 17
};

constexpr ItemRow benchRows[] = {
    {"Wooden Bench",    "SE",   {"",     "",     "0b2c", "0b2d"}}, // 0
    {"Large Bench",     "NWSE", {"0b94", "0b92", "0b93", "0b91"}}, // 1
    {"Marble Bench",    "SE",   {"",     "",     "045a", "0459"}}, // 2
    {"Sandstone Pt 1",  "SE",   {"",     "",     "1dc7", "1dca"}}, // 3
    {"Sandstone Pt 2",  "SE",   {"",     "",     "1dc9", "1dcc"}}, // 4
    {"Sandstone Pt 3",  "SE",   {"",     "",     "1dc8", "1dcb"}}, // 5
    {"Marble Pt 1",     "SE",   {"",     "",     "1dcd", "1dd0"}}, // 6
    {"Marble Pt 2",     "SE",   {"",     "",     "1dd2", "1dd2"}}, // 7
    {"Marble Pt 3",     "SE",   {"",     "",     "1dce", "1dd1"}}, // 8
    {"Fancy Pt 1",      "SE",   {"",     "",     "0b62", "0b68"}}, // 9
    {"Fancy Pt 2",      "SE",   {"",     "",     "0b64", "0b6a"}}, // 10
    {"Fancy Pt 3",      "SE",   {"",     "",     "0b63", "0b69"}}, // 11
    {"Light Wood Pt 1", "SE",   {"",     "",     "0b5f", "0b65"}}, // 12
    {"Light Wood Pt 2", "SE",   {"",     "",     "0b61", "0b67"}}, // 13
    {"Light Wood Pt 3", "SE",   {"",     "",     "0b60", "0b66"}}, // 14
    {"Stone Pt 1",      "SE",   {"",     "",     "120a", "1207"}}, // 15
    {"Stone Pt 2",      "SE",   {"",     "",     "120c", "1209"}}, // 16
    {"Stone Pt 3",      "SE",   {"",     "",     "120b", "1208"}}, // 17
};

constexpr ItemRow tableRows[] = {
    {"Small Table",   "SE",   {"",     "",     "0b34", "0b35"}}, // 0
    {"Large Table",   "SE",   {"",     "",     "0b7d", "0b90"}}, // 1
    {"Ugly Table",    "SE",   {"",     "",     "0b7c", "0b8f"}}, // 2
    {"Writing Table", "NWSE", {"0b4a", "0b49", "0b4b", "0b4c"}}, // 3
    {"Counter",       "SE",   {"",     "",     "0b3f", "0b40"}}, // 4
    {"Wooden Pt 1",   "SE",   {"",     "",     "0b6b", "0b7e"}}, // 5
    {"Wooden Pt 2",   "SE",   {"",     "",     "0b6d", "0b80"}}, // 6
    {"Wooden Pt 3",   "SE",   {"",     "",     "0b6c", "0b7f"}}, // 7
    {"Fancy Pt 1",    "SE",   {"",     "",     "0b6e", "0b81"}}, // 8
    {"Fancy Pt 2",    "SE",   {"",     "",     "0b73", "0b86"}}, // 9
    {"Fancy Pt 3",    "SE",   {"",     "",     "0b6f", "0b82"}}, // 10
    {"Normal Pt 1",   "SE",   {"",     "",     "0b75", "0b88"}}, // 11
    {"Normal Pt 2",   "SE",   {"",     "",     "0b7a", "0b8d"}}, // 12
    {"Normal Pt 3",   "SE",   {"",     "",     "0b76", "0b89"}}, // 13
    {"Stone Pt 1",    "SE",   {"",     "",     "1201", "1204"}}, // 14
    {"Stone Pt 2",    "SE",   {"",     "",     "1203", "1206"}}, // 15
    {"Stone Pt 3",    "SE",   {"",     "",     "1202", "1205"}}, // 16
    {"Marble Pt 1",   "SE",   {"",     "",     "1dc1", "1dc4"}}, // 17
    {"Marble Pt 2",   "SE",   {"",     "",     "1dc3", "1dc6"}}, // 18
    {"Marble Pt 3",   "SE",   {"",     "",     "1dc2", "1dc5"}}, // 19
    {"w/Cloth Pt. 1", "SE",   {"",     "",     "1667", "166c"}}, // 20
    {"w/Cloth Pt. 2", "SE",   {"",     "",     "1668", "166b"}}, // 21
    {"w/Cloth Pt. 3", "SE",   {"",     "",     "1669", "166a"}}, // 22
};

constexpr ItemRow bedRows[] = {
    {"Plain",                  "NWSE", {"0a64", "0a5b", "0a65", "0a5a"}}, // 0
    {"Not so plain",           "NWSE", {"0a63", "0a5d", "0a5c", "0a62"}}, // 1
    {"White Plain",            "NWSE", {"0a5e", "0a60", "0a5f", "0a61"}}, // 2
    {"Unmade",                 "NWSE", {"0a66", "0a69", "0a68", "0a6b"}}, // 3
    {"Unmade (pillow)",        "NWSE", {"0a67", "0a6a", "0a68", "0a6b"}}, // 4
    {"Bedroll",                "SE",   {"",     "",     "0a56", "0a55"}}, // 5
    {"Big 1 (E/W)",            "NWSE", {"0a73", "0a70", "0a71", "0a72"}}, // 6
    {"Big 1 (N/S)",            "NWSE", {"0a77", "0a76", "0a75", "0a74"}}, // 7
    {"Big 2 (E/W)",            "NWSE", {"0a7b", "0a7a", "0a78", "0a79"}}, // 8
    {"Big 2 (N/S)",            "NWSE", {"0a7d", "0a7c", "0a7e", "0a79"}}, // 9
    {"Big(pillow) EW",         "NWSE", {"0a80", "0a7f", "0a7e", "0a81"}}, // 10
    {"Big(pillow) NS",         "NWSE", {"0a83", "0a7f", "0a7e", "0a82"}}, // 11
    {"Big(sheets) EW",         "NWSE", {"0a85", "0a84", "0a86", "0a87"}}, // 12
    {"Big(unmade) EW",         "NWSE", {"0a8f", "0a8e", "0a8c", "0a8d"}}, // 13
    {"Big(unmade +pillow) EW", "NWSE", {"0a91", "0a90", "0a8c", "0a8d"}}, // 14
    {"Big(unmade +pillow) NS", "NWSE", {"0db5", "0db1", "0db0", "0db4"}}, // 15
};

constexpr ItemRow containerRows[] = {
    {"Silver Chest",     "SE",   {"",     "",     "0e7c", "09ab"}}, // 0
    {"Metal Chest",      "SE",   {"",     "",     "0e40", "0e41"}}, // 1
    {"Wooden Chest",     "SE",   {"",     "",     "0e42", "0e43"}}, // 2
    {"Metal Box",        "SE",   {"",     "",     "0e80", "09a8"}}, // 3
    {"Wooden Box",       "SE",   {"",     "",     "0e7d", "09aa"}}, // 4
    {"Small Crate",      "SE",   {"",     "",     "0e7e", "09a9"}}, // 5
    {"Medium Crate",     "SE",   {"",     "",     "0e3e", "0e3f"}}, // 6
    {"Large Crate",      "SE",   {"",     "",     "0e3c", "0e3d"}}, // 7
    {"Barrel",           "S",    {"",     "",     "0e77", ""}},     // 8
    {"Chest Drawers",    "SE",   {"",     "",     "0a34", "0a2c"}}, // 9
    {"Chest Drawers(R)", "SE",   {"",     "",     "0a38", "0a30"}}, // 10
    {"Armoire",          "SE",   {"",     "",     "0a53", "0a4f"}}, // 11
    {"Armoire (Red)",    "SE",   {"",     "",     "0a51", "0a4d"}}, // 12
    {"Bookcase 1",       "SE",   {"",     "",     "0a99", "0a97"}}, // 13
    {"Bookcase 2",       "SE",   {"",     "",     "0a9a", "0a9b"}}, // 14
    {"Bookcase 3",       "SE",   {"",     "",     "0a9c", "0a98"}}, // 15
    {"Empty BC",         "SE",   {"",     "",     "0a9e", "0a9d"}}, // 16
    {"Dresser",          "NWSE", {"0a45", "0a3d", "0a44", "0a3c"}}, // 17
    {"Picnic Basket",    "S",    {"",     "",     "0e7a", ""}},     // 18
};

constexpr ItemRow ruinedRows[] = {
    {"Broken Chair",    "NW",   {"0c10", "0c11", "",     ""}},      // 0
    {"Broken Chair 2",  "NW",   {"0c19", "0c1a", "",     ""}},      // 1
    {"Broken Chair 3",  "NWSE", {"0c1d", "0c1e", "0c1b", "0c1c"}},  // 2
    {"Covered Chair",   "NW",   {"0c17", "0c18", "",     ""}},      // 3
    {"Broken Armoire",  "NW",   {"0c12", "0c13", "",     ""}},      // 4
    {"Ruined Bookcase", "NW",   {"0c14", "0c15", "",     ""}},      // 5
    {"Broken Dresser",  "NWSE", {"0c21", "0c23", "0c20", "0c22"}},  // 6
    {"Broken Drawer",   "NW",   {"0c24", "0c25", "",     ""}},      // 7
    {"Ruined Bed",      "NWSE", {"1895", "1894", "1896", "1897"}},  // 8
    {"Ruined Bed 2",    "NWSE", {"1899", "189b", "189a", "1898"}},  // 9
    {"Ruined Painting", "N",    {"0c2c", "",     "",     ""}},      // 10
    {"Broken Clock",    "N",    {"0c1f", "",     "",     ""}},      // 11
    {"Damaged Books",   "N",    {"0c16", "",     "",     ""}},      // 12
    {"Debris",          "NWSE", {"0c2d", "0c2e", "0c2f", "0c 30"}}, // 13
};
// clang-format on

} // namespace

std::span<const ItemRow> ChairRows()
{
    return chairRows;
}

std::span<const ItemRow> BenchRows()
{
    return benchRows;
}

std::span<const ItemRow> TableRows()
{
    return tableRows;
}

std::span<const ItemRow> BedRows()
{
    return bedRows;
}

std::span<const ItemRow> ContainerRows()
{
    return containerRows;
}

std::span<const ItemRow> RuinedRows()
{
    return ruinedRows;
}

} // namespace qf::items
