#include "world/item_types.h"

#include <gtest/gtest.h>
#include <map>
#include <string>

namespace qf::world {
namespace {

// clang-format off
const std::map<std::int32_t, std::string> NamedTypes{
    {0, "Normal"}, {1, "Container"},
    {2, "Opener for order gate"}, {3, "Order gate"},
    {4, "Opener for Chaos gate"}, {5, "Chaos gate"},
    {6, "Teleporter rune"}, {7, "Key"},
    {8, "Locked container"}, {9, "Spellbook"},
    {10, "Map"}, {11, "A book"},
    {12, "Door"}, {13, "Locked Door"},
    {14, "Food"}, {15, "Magic wand"},
    {16, "Resurrection object"}, {17, "Full mortar"},
    {18, "Enchanted item"}, {19, "Potion"},
    {35, "Townstone / Townstone DeeD"}, {50, "recall rune"},
    {51, "Start gate "}, {52, "End gate "},
    {60, "Teleporter "}, {61, "Item spawner"},
    {62, "Monster/NPC spawner"}, {63, "Item Spawn container"},
    {64, "Locked item spawn container"}, {65, "Unlockable item spawner container"},
    {69, "Area spawner"}, {80, "Single use advancement gate"},
    {81, "Multi use advancement gate"}, {82, "Monster gate"},
    {83, "Race Gate"}, {85, "Damage object"},
    {86, "Sound object"}, {87, "Trash container"},
    {88, "Sound object (proximity based)"}, {101, "Morph object"},
    {102, "Unmorph object"}, {103, "Army enlistment object"},
    {104, "Teleport object"}, {105, "Drinkable"},
    {125, "Escort NPC spawner"}, {181, "Fireworks wand"},
    {185, "Smoking object"}, {202, "Guildstone deed"},
    {203, "Opens housing gump"}, {217, "Player vendor deed"},
};
// clang-format on

TEST(ItemTypes, NamesOfTheListAndUnknownForTheRest)
{
    EXPECT_EQ(NamedTypes.size(), 50U);
    for (std::int32_t number = -300; number <= 300; ++number) {
        const auto found = NamedTypes.find(number);
        EXPECT_EQ(GetTypeFromNum(number), found != NamedTypes.end() ? found->second : "Unknown") << number;
    }
    EXPECT_EQ(GetTypeFromNum(2147483647), "Unknown");
    EXPECT_EQ(GetTypeFromNum(-2147483647 - 1), "Unknown");
}

TEST(ItemTypes, TileNumbersAsBytePairs)
{
    EXPECT_EQ(GetHexIDFromNum(0), "00 00");
    EXPECT_EQ(GetHexIDFromNum(0xA), "00 0A");
    EXPECT_EQ(GetHexIDFromNum(0x1F), "00 1F");
    EXPECT_EQ(GetHexIDFromNum(0x51A), "05 1A");
    EXPECT_EQ(GetHexIDFromNum(0x1B4D), "1B 4D");
    EXPECT_EQ(GetHexIDFromNum(0x12345), "12 45");
    EXPECT_EQ(GetHexIDFromNum(-1), "FF FF");
}

} // namespace
} // namespace qf::world
