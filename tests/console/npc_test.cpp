#include "console/npc.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

constexpr core::ServerGeneration unknownGeneration{std::int16_t{2}};

const NpcStep& StepOf(std::string_view name)
{
    for (const auto& step : NpcSteps()) {
        if (step.name == name) {
            return step;
        }
    }
    throw std::out_of_range("no such step");
}

Lines StepLines(std::string_view name, std::string_view text, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendNpcStep(StepOf(name), text, generation, outlet);
    return outlet.Lines();
}

Lines TypeLines(int selected, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendSpawnType(selected, generation, outlet);
    return outlet.Lines();
}

int CategoryOf(std::string_view name)
{
    const auto all = NpcCategories();
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i].name == name) {
            return static_cast<int>(i);
        }
    }
    throw std::out_of_range("no such category");
}

TEST(Npc, EveryStepHasItsCommandInBothGenerations)
{
    struct Expected {
        std::string_view name;
        std::string      in09;
        std::string      in070;
    };
    // clang-format off
    const std::vector<Expected> steps{
        {"cmdAddDummy",         "send add spawner 0x163a",   "send add 16 3a"},
        {"cmdSetNPCSpawnInvis", "send set visible 3",        "send setvisible 3"},
        {"cmdNPCSpawnerName",   "send rename V w",           "send rename V w"},
        {"cmdSetAmount",        "send set amount V w",       "send setamount V w"},
        {"cmdNPCNumber",        "send set spawnsection V w", "send setmorex V w"},
        {"cmdMinNPCSpawnTime",  "send set mininterval V w",  "send setmorey V w"},
        {"cmdMaxNPCSpawnTime",  "send set maxinterval V w",  "send setmorez V w"},
    };
    // clang-format on
    ASSERT_EQ(NpcSteps().size(), steps.size());
    for (const auto& step : steps) {
        const std::string_view text = StepOf(step.name).box.empty() ? "" : "V w";
        EXPECT_EQ(StepLines(step.name, text, core::Generation09), Lines{step.in09});
        EXPECT_EQ(StepLines(step.name, text, core::Generation070), Lines{step.in070});
        const bool same = step.in09 == step.in070;
        EXPECT_EQ(StepLines(step.name, text, unknownGeneration), same ? Lines{step.in09} : Lines{}) << step.name;
    }
}

TEST(Npc, AnEmptyBoxGivesTheWordsAlone)
{
    EXPECT_EQ(StepLines("cmdSetAmount", "", core::Generation09), Lines{"send set amount "});
    EXPECT_EQ(StepLines("cmdNPCNumber", "12 ", core::Generation070), Lines{"send setmorex 12 "});
}

TEST(Npc, TheNumbersLeaveOutTheChoice)
{
    std::string numbers;
    for (const auto& step : NpcSteps()) {
        numbers += step.number;
    }
    EXPECT_EQ(numbers, "1234678");
    EXPECT_EQ(NpcChoiceNumber, "5");
}

TEST(Npc, ASingleNpcIsAddedByTheSameBox)
{
    const auto lines = [](core::ServerGeneration generation) {
        test::RecordingOutlet outlet;
        SendNpcStep(SingleNpc(), "orc", generation, outlet);
        return outlet.Lines();
    };
    EXPECT_EQ(SingleNpc().box, StepOf("cmdNPCNumber").box);
    EXPECT_EQ(lines(core::Generation09), Lines{"send add npc orc"});
    EXPECT_EQ(lines(core::Generation070), Lines{"send addnpc orc"});
    EXPECT_EQ(lines(unknownGeneration), Lines{});
}

TEST(Npc, TheSpawnAreaTakesBothOffsetsAsTyped)
{
    const auto lines = [](core::ServerGeneration generation, std::string_view x, std::string_view y) {
        test::RecordingOutlet outlet;
        SendSpawnArea(x, y, generation, outlet);
        return outlet.Lines();
    };
    EXPECT_EQ(lines(core::Generation09, "10", "20"), Lines{"send set more 0 0 10 20"});
    EXPECT_EQ(lines(core::Generation070, "10", "20"), Lines{"send setmore 0 0 10 20"});
    EXPECT_EQ(lines(core::Generation09, "", ""), Lines{"send set more 0 0  "});
    EXPECT_EQ(lines(unknownGeneration, "10", "20"), Lines{});
}

TEST(Npc, TheSpawnerTypeIsSoughtAmongTheFirstTwo)
{
    EXPECT_EQ(TypeLines(NormalSpawner, core::Generation09), Lines{"send set type 62"});
    EXPECT_EQ(TypeLines(AreaSpawner, core::Generation09), Lines{"send set type 69"});
    EXPECT_EQ(TypeLines(NormalSpawner, core::Generation070), Lines{"send settype 62"});
    EXPECT_EQ(TypeLines(AreaSpawner, core::Generation070), Lines{"send settype 69"});
    for (const auto generation : {core::Generation070, core::Generation09, unknownGeneration}) {
        EXPECT_EQ(TypeLines(EscortableNpc, generation), Lines{});
        EXPECT_EQ(TypeLines(-1, generation), Lines{});
    }
    EXPECT_EQ(TypeLines(AreaSpawner, unknownGeneration), Lines{});
}

TEST(Npc, TheSpawnAreaFollowsTheSameScan)
{
    for (const bool shown : {false, true}) {
        EXPECT_FALSE(ShowsSpawnArea(NormalSpawner, shown));
        EXPECT_TRUE(ShowsSpawnArea(AreaSpawner, shown));
        EXPECT_EQ(ShowsSpawnArea(EscortableNpc, shown), shown);
        EXPECT_EQ(ShowsSpawnArea(-1, shown), shown);
    }
}

TEST(NpcCatalogue, HasEveryCategoryInItsLength)
{
    struct Expected {
        std::string_view name;
        std::size_t      listed;
        std::string_view first;
        std::string_view last;
    };
    // clang-format off
    const std::vector<Expected> categories{
        {"[Aggressive Animals]", 5,  "Dire Wolf",         "Sewer Rat"},
        {"[Aggressive Plants]",  3,  "Corpser",           "Swamp Tentacle"},
        {"[Animals]",            37, "Random Small Bird", "White Wolf"},
        {"[Arachnids]",          7,  "Dread Spider",      "Terathan Matriarch"},
        {"[Daemons]",            9,  "Balron",            "Chaos daemon"},
        {"[Dragons]",            10, "Gray Dragon",       "Skeletal Dragon"},
        {"[Elementals]",         18, "Air Elemental",     "Verite Elemental"},
        {"[Female Humans]",      17, "Basic Female",      "Artist"},
        {"[Female Vendors]",     29, "Banker",            "Mage"},
        {"[Gargoyles]",          8,  "Gargoyle",          "Gargoyle Mason"},
        {"[Giants]",             11, "Ettin",             "Titan"},
        {"[Humanoids]",          15, "Orc",               "Ratman Archer"},
        {"[Male Humans]",        17, "Basic Male",        "Artist"},
        {"[Male Vendors]",       29, "Banker",            "Mage"},
        {"[Misc Monsters]",      17, "Succubus",          "Wisp"},
        {"[Mounts]",             24, "Horse",             "Firesteed"},
        {"[Reptiles]",           16, "Alligator",         "Snake"},
        {"[Sea Creatures]",      5,  "Deep Sea Serpent",  "Walrus"},
        {"[Undead]",             12, "Zombie",            "Ghoul"},
    };
    // clang-format on
    ASSERT_EQ(NpcCategories().size(), categories.size());
    for (std::size_t i = 0; i < categories.size(); ++i) {
        const auto names = NpcNames(static_cast<int>(i));
        EXPECT_EQ(NpcCategories()[i].name, categories[i].name);
        ASSERT_EQ(names.size(), categories[i].listed) << categories[i].name;
        EXPECT_EQ(names.front(), categories[i].first);
        EXPECT_EQ(names.back(), categories[i].last);
    }
}

TEST(NpcCatalogue, ListedRowsComeFirst)
{
    for (const auto& category : NpcCategories()) {
        bool listed = true;
        for (const auto& row : category.rows) {
            EXPECT_TRUE(listed || row.name.empty()) << category.name;
            listed = !row.name.empty();
            EXPECT_FALSE(row.name.empty() && row.section.empty()) << category.name;
        }
    }
}

TEST(NpcCatalogue, OnlySomeEntriesHaveNoSection)
{
    std::set<std::string> without;
    for (int category = 0; category < static_cast<int>(NpcCategories().size()); ++category) {
        const auto names = NpcNames(category);
        for (std::size_t entry = 0; entry < names.size(); ++entry) {
            if (!NpcSection(category, static_cast<int>(entry))) {
                without.insert(std::string(NpcCategories()[static_cast<std::size_t>(category)].name) + " " +
                               std::string(names[entry]));
            }
        }
    }
    EXPECT_EQ(without,
              (std::set<std::string>{"[Daemons] Chaos daemon", "[Female Vendors] Healer", "[Female Vendors] Mage",
                                     "[Male Vendors] Healer", "[Male Vendors] Mage"}));
}

TEST(NpcCatalogue, UnevenCategoriesPairByPlace)
{
    const int daemons = CategoryOf("[Daemons]");
    EXPECT_EQ(NpcNames(daemons)[7], "Moloch");
    EXPECT_EQ(NpcSection(daemons, 7), "chaosdaemon");

    const int   elementals = CategoryOf("[Elementals]");
    const Lines shifted{"skeletaldragon", "agapiteele", "bronzeele",     "copperele",   "crystalele",
                        "dullcopperele",  "goldenele",  "shadowironele", "valoriteele", "veriteele"};
    EXPECT_EQ(NpcNames(elementals)[9], "Agapite Elemental");
    EXPECT_EQ(NpcNames(elementals)[17], "Verite Elemental");
    for (std::size_t i = 0; i < shifted.size(); ++i) {
        EXPECT_EQ(NpcSection(elementals, static_cast<int>(9 + i)), shifted[i]);
    }
}

TEST(NpcCatalogue, WhatIsNotThereHasNoSection)
{
    EXPECT_EQ(NpcSection(-1, 0), std::nullopt);
    EXPECT_EQ(NpcSection(19, 0), std::nullopt);
    EXPECT_EQ(NpcSection(0, -1), std::nullopt);
    EXPECT_EQ(NpcSection(0, 5), std::nullopt);
    EXPECT_TRUE(NpcNames(-1).empty());
    EXPECT_TRUE(NpcNames(19).empty());
}

TEST(NpcCatalogue, PeopleOfEitherSexHaveTheSameTrades)
{
    for (const auto& [female, male] :
         {std::pair{"[Female Humans]", "[Male Humans]"}, std::pair{"[Female Vendors]", "[Male Vendors]"}}) {
        const int  women = CategoryOf(female);
        const int  men = CategoryOf(male);
        const auto names = NpcNames(women);
        for (int entry = 1; entry < static_cast<int>(names.size()); ++entry) {
            EXPECT_EQ(NpcNames(men)[static_cast<std::size_t>(entry)], names[static_cast<std::size_t>(entry)]);
            const auto section = NpcSection(women, entry);
            ASSERT_EQ(section.has_value(), NpcSection(men, entry).has_value());
            if (section) {
                EXPECT_EQ("m" + std::string(section->substr(1)), *NpcSection(men, entry));
            }
        }
    }
}

} // namespace
} // namespace qf::console
