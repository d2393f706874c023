#include "console/item_type.h"

#include <array>
#include <string>

#include "core/command_words.h"

namespace qf::console {

namespace {

/// Typed behind the number as it stands, before the Enter that ends every command.
constexpr const char* TypedEnter = "{enter}";

// clang-format off
constexpr std::array itemTypeOptions{
    //             name        caption                         value  0.70.x only
    ItemTypeOption{"Option1",  "0 - Unusable/Decorative",        0,  false},
    ItemTypeOption{"Option2",  "1 - Container",                  1,  false},
    ItemTypeOption{"Option3",  "2 - Opener for Castle Gate 1",   2,  false},
    ItemTypeOption{"Option4",  "3 - Castle Gate 1",              3,  false},
    ItemTypeOption{"Option5",  "6 - Teleport Rune",              6,  false},
    ItemTypeOption{"Option6",  "14 - Food",                     14,  false},
    ItemTypeOption{"Option7",  "13 - Locked Door",              13,  false},
    ItemTypeOption{"Option8",  "11 - Book",                     11,  false},
    ItemTypeOption{"Option9",  "19 - Potion",                   19,  false},
    ItemTypeOption{"Option10", "18 - Enchanted Item",           18,  false},
    ItemTypeOption{"Option11", "17 - Full Mortar",              17,  false},
    ItemTypeOption{"Option12", "16 - Resurrection Object",      16,  false},
    ItemTypeOption{"Option13", "15 - Magic Wand/Weapon",        15,  false},
    ItemTypeOption{"Option14", "12 - Door",                     12,  false},
    ItemTypeOption{"Option15", "10 - Map",                      10,  false},
    ItemTypeOption{"Option16", "9 - Spellbook",                  9,  false},
    ItemTypeOption{"Option17", "8 - Locked Container",           8,  true},
    ItemTypeOption{"Option18", "7 - Key",                        7,  false},
    ItemTypeOption{"Option19", "5 - Castle Gate 2",              5,  false},
    ItemTypeOption{"Option20", "4 - Opener for Castle Gate 2",   4,  false},
    ItemTypeOption{"Option21", "53 - Mark Scroll",              53,  true},
    ItemTypeOption{"Option22", "52 - End Gate",                 52,  true},
    ItemTypeOption{"Option23", "51 - Start Gate",               51,  false},
    ItemTypeOption{"Option24", "50 - Recall Rune",              50,  false},
    ItemTypeOption{"Option25", "80 - Advancement Gate",         80,  false},
    ItemTypeOption{"Option26", "69 - Area Spawner",             69,  false},
    ItemTypeOption{"Option27", "64 - Locked Item Spawner",      64,  false},
    ItemTypeOption{"Option28", "62 - NPC Spawner",              62,  false},
    ItemTypeOption{"Option29", "61 - Item Spawner",             61,  false},
    ItemTypeOption{"Option30", "60 - Object Teleporter",        60,  false},
    ItemTypeOption{"Option31", "59 - Recall Scroll",            59,  true},
    ItemTypeOption{"Option32", "56 - Resurrection Scroll",      56,  true},
    ItemTypeOption{"Option33", "55 - Heal Scroll",              55,  true},
    ItemTypeOption{"Option34", "54 - Gate Scroll",              54,  true},
    ItemTypeOption{"Option35", "81 - MultiuseAdvancegate",      81,  false},
    ItemTypeOption{"Option36", "82 - Monster Gate",             82,  false},
    ItemTypeOption{"Option37", "85 - Damage Object",            85,  false},
    ItemTypeOption{"Option38", "86 - Sound Object",             86,  true},
    ItemTypeOption{"Option39", "87 - Trash Container",          87,  false},
    ItemTypeOption{"Option40", "103 - Army Enlistment Obj.",   103,  true},
    ItemTypeOption{"Option41", "104 - Teleport Object",        104,  true},
    ItemTypeOption{"Option42", "105 - Drink Object",           105,  false},
    ItemTypeOption{"Option43", "202 - Guildstone Deed",        202,  false},
    ItemTypeOption{"Option44", "217 - Player Vendor Deed",     217,  false},
    ItemTypeOption{"Option45", "35 - Townstone / Deed",         35,  false},
    ItemTypeOption{"Option46", "63 - Item Spawn Container",     63,  true},
    ItemTypeOption{"Option47", "83 - Race Gate",                83,  false},
    ItemTypeOption{"Option48", "88 - Sound Object",             88,  false},
    ItemTypeOption{"Option49", "100 - Hide/Unhide object",     100,  true},
    ItemTypeOption{"Option50", "101 - Morph Object",           101,  false},
    ItemTypeOption{"Option51", "102 - Unmorph Object",         102,  false},
    ItemTypeOption{"Option52", "125 - Escort NPC Spawner",     125,  false},
    ItemTypeOption{"Option53", "118 - Fireworks Wand",         181,  false},
    ItemTypeOption{"Option54", "185 - Smoking Object",         185,  false},
    ItemTypeOption{"Option55", "203 - House Sign",             203,  false},
    ItemTypeOption{"Option56", "255 - WorldForge TYpe",        255,  false},
};
// clang-format on

} // namespace

std::span<const ItemTypeOption> ItemTypeOptions()
{
    return itemTypeOptions;
}

void SendItemType(std::string_view typetext, core::ServerGeneration generation, core::Outlet& outlet)
{
    core::SendWords({"settype ", "set type "}, std::string(typetext) + TypedEnter, generation, outlet);
}

void ShowItemTypeHelp(core::Outlet& outlet)
{
    outlet.Show(core::PlainBox("Look in the file 'TYPES.TXT' that comes with QF/Zarn."));
}

} // namespace qf::console
