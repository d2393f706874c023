#include "world/item_types.h"

#include <algorithm>
#include <array>

#include "core/text.h"

namespace qf::world {

namespace {

struct ItemType {
    std::int32_t     number;
    std::string_view name;
};

// clang-format off
constexpr std::array itemTypes{
    ItemType{0,   "Normal"},
    ItemType{1,   "Container"},
    ItemType{2,   "Opener for order gate"},
    ItemType{3,   "Order gate"},
    ItemType{4,   "Opener for Chaos gate"},
    ItemType{5,   "Chaos gate"},
    ItemType{6,   "Teleporter rune"},
    ItemType{7,   "Key"},
    ItemType{8,   "Locked container"},
    ItemType{9,   "Spellbook"},
    ItemType{10,  "Map"},
    ItemType{11,  "A book"},
    ItemType{12,  "Door"},
    ItemType{13,  "Locked Door"},
    ItemType{14,  "Food"},
    ItemType{15,  "Magic wand"},
    ItemType{16,  "Resurrection object"},
    ItemType{17,  "Full mortar"},
    ItemType{18,  "Enchanted item"},
    ItemType{19,  "Potion"},
    ItemType{35,  "Townstone / Townstone DeeD"},
    ItemType{50,  "recall rune"},
    ItemType{51,  "Start gate "},
    ItemType{52,  "End gate "},
    ItemType{60,  "Teleporter "},
    ItemType{61,  "Item spawner"},
    ItemType{62,  "Monster/NPC spawner"},
    ItemType{63,  "Item Spawn container"},
    ItemType{64,  "Locked item spawn container"},
    ItemType{65,  "Unlockable item spawner container"},
    ItemType{69,  "Area spawner"},
    ItemType{80,  "Single use advancement gate"},
    ItemType{81,  "Multi use advancement gate"},
    ItemType{82,  "Monster gate"},
    ItemType{83,  "Race Gate"},
    ItemType{85,  "Damage object"},
    ItemType{86,  "Sound object"},
    ItemType{87,  "Trash container"},
    ItemType{88,  "Sound object (proximity based)"},
    ItemType{101, "Morph object"},
    ItemType{102, "Unmorph object"},
    ItemType{103, "Army enlistment object"},
    ItemType{104, "Teleport object"},
    ItemType{105, "Drinkable"},
    ItemType{125, "Escort NPC spawner"},
    ItemType{181, "Fireworks wand"},
    ItemType{185, "Smoking object"},
    ItemType{202, "Guildstone deed"},
    ItemType{203, "Opens housing gump"},
    ItemType{217, "Player vendor deed"},
};
// clang-format on

static_assert(std::ranges::is_sorted(itemTypes, {}, &ItemType::number));

} // namespace

std::string_view GetTypeFromNum(std::int32_t number)
{
    const auto* const found = std::ranges::lower_bound(itemTypes, number, {}, &ItemType::number);
    return found != itemTypes.end() && found->number == number ? found->name : "Unknown";
}

std::string GetHexIDFromNum(std::int32_t number)
{
    return core::HueHexPair(number);
}

} // namespace qf::world
