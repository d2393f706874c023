#include "console/item_type.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

constexpr core::ServerGeneration Neither{7};

enum ShownIn { Both, Only070 };

struct Expected {
    const char* name;
    const char* caption;
    int         value;
    ShownIn     shownIn;
};

// clang-format off
constexpr Expected expectedOptions[] = {
    {"Option1",  "0 - Unusable/Decorative",         0, Both},
    {"Option2",  "1 - Container",                   1, Both},
    {"Option3",  "2 - Opener for Castle Gate 1",    2, Both},
    {"Option4",  "3 - Castle Gate 1",               3, Both},
    {"Option5",  "6 - Teleport Rune",               6, Both},
    {"Option6",  "14 - Food",                      14, Both},
    {"Option7",  "13 - Locked Door",               13, Both},
    {"Option8",  "11 - Book",                      11, Both},
    {"Option9",  "19 - Potion",                    19, Both},
    {"Option10", "18 - Enchanted Item",            18, Both},
    {"Option11", "17 - Full Mortar",               17, Both},
    {"Option12", "16 - Resurrection Object",       16, Both},
    {"Option13", "15 - Magic Wand/Weapon",         15, Both},
    {"Option14", "12 - Door",                      12, Both},
    {"Option15", "10 - Map",                       10, Both},
    {"Option16", "9 - Spellbook",                   9, Both},
    {"Option17", "8 - Locked Container",            8, Only070},
    {"Option18", "7 - Key",                         7, Both},
    {"Option19", "5 - Castle Gate 2",               5, Both},
    {"Option20", "4 - Opener for Castle Gate 2",    4, Both},
    {"Option21", "53 - Mark Scroll",               53, Only070},
    {"Option22", "52 - End Gate",                  52, Only070},
    {"Option23", "51 - Start Gate",                51, Both},
    {"Option24", "50 - Recall Rune",               50, Both},
    {"Option25", "80 - Advancement Gate",          80, Both},
    {"Option26", "69 - Area Spawner",              69, Both},
    {"Option27", "64 - Locked Item Spawner",       64, Both},
    {"Option28", "62 - NPC Spawner",               62, Both},
    {"Option29", "61 - Item Spawner",              61, Both},
    {"Option30", "60 - Object Teleporter",         60, Both},
    {"Option31", "59 - Recall Scroll",             59, Only070},
    {"Option32", "56 - Resurrection Scroll",       56, Only070},
    {"Option33", "55 - Heal Scroll",               55, Only070},
    {"Option34", "54 - Gate Scroll",               54, Only070},
    {"Option35", "81 - MultiuseAdvancegate",       81, Both},
    {"Option36", "82 - Monster Gate",              82, Both},
    {"Option37", "85 - Damage Object",             85, Both},
    {"Option38", "86 - Sound Object",              86, Only070},
    {"Option39", "87 - Trash Container",           87, Both},
    {"Option40", "103 - Army Enlistment Obj.",    103, Only070},
    {"Option41", "104 - Teleport Object",         104, Only070},
    {"Option42", "105 - Drink Object",            105, Both},
    {"Option43", "202 - Guildstone Deed",         202, Both},
    {"Option44", "217 - Player Vendor Deed",      217, Both},
    {"Option45", "35 - Townstone / Deed",          35, Both},
    {"Option46", "63 - Item Spawn Container",      63, Only070},
    {"Option47", "83 - Race Gate",                 83, Both},
    {"Option48", "88 - Sound Object",              88, Both},
    {"Option49", "100 - Hide/Unhide object",      100, Only070},
    {"Option50", "101 - Morph Object",            101, Both},
    {"Option51", "102 - Unmorph Object",          102, Both},
    {"Option52", "125 - Escort NPC Spawner",      125, Both},
    {"Option53", "118 - Fireworks Wand",          181, Both},
    {"Option54", "185 - Smoking Object",          185, Both},
    {"Option55", "203 - House Sign",              203, Both},
    {"Option56", "255 - WorldForge TYpe",         255, Both},
};
// clang-format on

TEST(ItemType, TheOptionsAndTheirNumbers)
{
    const auto options = ItemTypeOptions();
    ASSERT_EQ(options.size(), std::size(expectedOptions));
    for (std::size_t i = 0; i < options.size(); ++i) {
        const auto& expected = expectedOptions[i];
        EXPECT_EQ(options[i].name, expected.name);
        EXPECT_EQ(options[i].caption, expected.caption);
        EXPECT_EQ(options[i].value, expected.value) << expected.name;
        EXPECT_EQ(ShowsItemType(options[i], Generation09), expected.shownIn == Both) << expected.name;
        EXPECT_TRUE(ShowsItemType(options[i], Generation070)) << expected.name;
        EXPECT_TRUE(ShowsItemType(options[i], Neither)) << expected.name;
    }
}

TEST(ItemType, OneCaptionDiffersFromItsNumber)
{
    Lines odd;
    for (const auto& option : ItemTypeOptions()) {
        if (!option.caption.starts_with(std::to_string(option.value) + " - ")) {
            odd.emplace_back(option.caption);
        }
    }
    EXPECT_EQ(odd, Lines{"118 - Fireworks Wand"});
}

TEST(ItemType, TwelveTypesBelongToTheOlderGeneration)
{
    EXPECT_EQ(std::ranges::count_if(ItemTypeOptions(), &ItemTypeOption::only070), 12);
}

Lines Sent(std::string_view typetext, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendItemType(typetext, generation, outlet);
    return outlet.Lines();
}

TEST(ItemType, TheNumberGoesOutWithTheTypedWordBehindIt)
{
    EXPECT_EQ(Sent("5", Generation070), Lines{"send settype 5{enter}"});
    EXPECT_EQ(Sent("5", Generation09), Lines{"send set type 5{enter}"});
    EXPECT_EQ(Sent("181", Generation09), Lines{"send set type 181{enter}"});
    EXPECT_EQ(Sent("any text ", Generation09), Lines{"send set type any text {enter}"});
}

TEST(ItemType, WithoutAChoiceTheNumberIsMissing)
{
    EXPECT_EQ(Sent("", Generation070), Lines{"send settype {enter}"});
    EXPECT_EQ(Sent("", Generation09), Lines{"send set type {enter}"});
}

TEST(ItemType, AGenerationThatIsNeitherSendsNothing)
{
    EXPECT_EQ(Sent("5", Neither), Lines{});
    EXPECT_EQ(Sent("5", core::ServerGeneration(-1)), Lines{});
}

TEST(ItemType, TheHelpNamesTheFile)
{
    test::RecordingOutlet outlet;
    ShowItemTypeHelp(outlet);
    EXPECT_EQ(outlet.Lines(), Lines{"box 0 Look in the file 'TYPES.TXT' that comes with QF/Zarn."});
}

} // namespace
} // namespace qf::console
