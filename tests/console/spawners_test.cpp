#include "console/spawners.h"

#include <gtest/gtest.h>

#include <array>
#include <set>
#include <sstream>
#include <stdexcept>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

constexpr core::ServerGeneration Neither{2};

// The steps as they are printed, written down apart from those of the program: number, button, caption, box,
// command in 0.9x.x and in 0.70.x, with an @ where the text of the box stands.

constexpr const char* itemSpawner = R"(
| 1 | cmdCreateDummy | 1. Add Dummy Item | none | add spawner 0x163a | add 16 3a |
| 2 | cmdInvisible | 2. Set Dummy-Item to Invisible | none | set visible 3 | setvisible 3 |
| 3 | cmdRename | 3. Rename Item | txtItemName | rename @ | same |
| 4 | cmdSetItemNumber | 4. Set Item to spawn: | txtItemNumber | set spawnsection @ | setmorex @ |
| 5 | cmdMinSpawnTime | 5. Min. Spawn Time: | txtMinSpawnTime | set mininterval @ | setmorey @ |
| 6 | cmdMaxSpawnTime | 6. Max. Spawn Time: | txtMaxSpawnTime | set maxinterval @ | setmorez @ |
| 7 | Command3 | 7. Set Item to Spawner Type | none | set type 61 | settype 61 |
)";

constexpr const char* container = R"(
| 1 | cmdAddCont | 1. Add Container | none | none | same |
| 2 | cmdContainerName | 2. Rename Item | txtContainerName | rename @ | same |
| 3 | cmdContainerItemNumber | 3. Set Item to spawn | txtContainerItemNumber | set spawnsection @ | setmorex @ |
| 4 | cmdMinContainerSpawnTime | 4. Min. Spawn Time: | txtMinContainerSpawnTime | set mininterval @ | setmorey @ |
| 5 | cmdMaxContainerSpawnTime | 5. Max. Spawn Time: | txtMaxContainerSpawnTime | set maxinterval @ | setmorez @ |
| 6 | cmdSetContainerSpawn | 6. Set Container as Item Spawn Container | none | set type 63 | settype 63 |
)";

constexpr const char* locked = R"(
| 1 | cmdAddLockedCont | 1. Add Container | none | none | same |
| 2 | cmdRenameLockedContainer | 2. Rename Item | txtLockedContainerName | rename @ | same |
| 3 | cmdLockedContItem | 3. Set Item to spawn: | txtLockedContItem | set spawnsection @ | setmorex @ |
| 4 | cmdMinLockedContSpawnTime | 4. Min. Spawn Time: | txtMinLockedContSpawnTime | set mininterval @ | setmorey @ |
| 5 | cmdMaxLockedContSpawnTime | 5. Max. Spawn Time: | txtMaxLockedContSpawnTime | set maxinterval @ | setmorez @ |
| 6 | cmdSetAsLockedContSpawner | 6. Set Container as Item Spawn Container | none | set type 64 | settype 64 |
)";

constexpr const char* nonlockable = R"(
| 1 | cmdAddNonLockableCont | 1. Add Container | none | none | same |
| 2 | cmdNonLockContName | 2. Rename Item | txtNonLockContName | rename @ | same |
| 3 | cmdNonLockItemNum | 3. Set Item to spawn: | txtNonLockItemNum | set spawnsection @ | setmorex @ |
| 4 | cmdMinNonLockSpawnTime | 4. Min. Spawn Time: | txtMinNonLockSpawnTime | set mininterval @ | setmorey @ |
| 5 | cmdMaxNonLockSpawnTime | 5. Max. Spawn Time: | txtMaxNonLockSpawnTime | set maxinterval @ | setmorez @ |
| 6 | cmdSetAsNonLockCont | 6. Set Container as Item Spawn Container | none | set type 65 | settype 65 |
)";

struct PrintedStep {
    int         number = 0;
    std::string control;
    std::string caption;
    std::string box;
    std::string in09;
    std::string in070;
};

std::vector<PrintedStep> Read(const char* table)
{
    std::vector<PrintedStep> steps;
    std::istringstream       lines(table);
    for (std::string line; std::getline(lines, line);) {
        std::vector<std::string> cells;
        for (std::size_t start = 2, bar = 0; (bar = line.find(" |", start)) != std::string::npos; start = bar + 3) {
            cells.push_back(line.substr(start, bar - start));
        }
        if (cells.size() == 6) {
            steps.push_back({std::stoi(cells[0]), cells[1], cells[2], cells[3], cells[4], cells[5]});
        }
    }
    return steps;
}

constexpr std::array printedWizards{itemSpawner, container, locked, nonlockable};

std::string WithValue(std::string command, const std::string& value)
{
    const auto place = command.find('@');
    return place == std::string::npos ? command : command.replace(place, 1, value);
}

Lines LinesOf(const SpawnStep& step, std::string_view value, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendSpawnStep(step, value, generation, outlet);
    return outlet.Lines();
}

const SpawnStep& StepOf(std::string_view control)
{
    for (const auto& spawner : Spawners()) {
        for (const auto& step : spawner.steps) {
            if (step.control == control) {
                return step;
            }
        }
    }
    throw std::out_of_range("no such step");
}

TEST(Spawners, FourWizardsWithTheirFramesAndButtons)
{
    const std::array<std::array<std::string_view, 5>, 4> expected{{
        {"Item Spawner", "fraItemSpawner", "Item Spawner", "Command6", "cmdquestionmark"},
        {"Item-Spawn Container", "fraContainerSpawner", "Item-Spawn Container", "Command7", "Command14"},
        {"Locked Item-Spawn Container", "fraLockedContainerSpawner", "Locked Item-Spawn Container", "cmdReturn3",
         "Command15"},
        {"Nonlockable Item-Spawn Container", "fraNonLockableSpawner", "NonLockable Item-Spawn Container", "Command4",
         "Command11"},
    }};
    ASSERT_EQ(Spawners().size(), expected.size());
    for (std::size_t number = 0; number < expected.size(); ++number) {
        const auto& spawner = Spawners()[number];
        EXPECT_EQ(
            (std::array{spawner.option, spawner.frame, spawner.caption, spawner.returnButton, spawner.helpButton}),
            expected[number]);
    }
}

TEST(Spawners, EveryStepStandsAsPrinted)
{
    constexpr std::array counts{7U, 6U, 6U, 6U};
    for (std::size_t number = 0; number < printedWizards.size(); ++number) {
        const auto& steps = Spawners()[number].steps;
        const auto  printed = Read(printedWizards[number]);
        ASSERT_EQ(printed.size(), counts[number]);
        ASSERT_EQ(steps.size(), printed.size());
        for (std::size_t index = 0; index < printed.size(); ++index) {
            const auto& row = printed[index];
            const auto& step = steps[index];
            EXPECT_EQ(row.number, static_cast<int>(index) + 1);
            EXPECT_EQ(step.control, row.control);
            EXPECT_EQ(step.caption, row.caption);
            EXPECT_EQ(step.box, row.box == "none" ? "" : row.box) << row.control;
        }
    }
}

TEST(Spawners, EveryCommandInBothGenerations)
{
    for (const auto* wizard : printedWizards) {
        for (const auto& row : Read(wizard)) {
            const auto& step = StepOf(row.control);
            for (const std::string value : {"", "orc", " 30 ", "0x1F", "a b  c"}) {
                const auto given = row.box == "none" ? std::string() : value;
                const bool opens = row.in09 == "none";
                const auto in09 = "send " + WithValue(row.in09, given);
                const auto in070 = row.in070 == "same" ? in09 : "send " + WithValue(row.in070, given);
                EXPECT_EQ(LinesOf(step, given, core::Generation09), opens ? Lines{} : Lines{in09}) << row.control;
                EXPECT_EQ(LinesOf(step, given, core::Generation070), opens ? Lines{} : Lines{in070}) << row.control;
            }
        }
    }
}

TEST(Spawners, OnlyARenameServesAGenerationThatIsNeither)
{
    for (const auto* wizard : printedWizards) {
        for (const auto& row : Read(wizard)) {
            const bool rename = row.in09 == "rename @";
            for (const auto generation : {Neither, core::ServerGeneration{-1}, core::ServerGeneration{32767}}) {
                EXPECT_EQ(LinesOf(StepOf(row.control), "x", generation), rename ? Lines{"send rename x"} : Lines{})
                    << row.control;
            }
        }
    }
}

TEST(Spawners, TheFirstStepOfAContainerOpensTheItemsPanelAndSendsNothing)
{
    std::set<std::string_view> openers;
    for (const auto& spawner : Spawners()) {
        for (const auto& step : spawner.steps) {
            if (step.OpensContainers()) {
                openers.insert(step.control);
                EXPECT_EQ(&step, &spawner.steps.front());
                for (const auto generation : {core::Generation070, core::Generation09, Neither}) {
                    EXPECT_EQ(LinesOf(step, "x", generation), Lines{});
                }
            }
        }
    }
    EXPECT_EQ(openers, (std::set<std::string_view>{"cmdAddCont", "cmdAddLockedCont", "cmdAddNonLockableCont"}));
}

TEST(Spawners, OneStepOfEachWizardNamesWhatIsSpawned)
{
    std::vector<std::string_view> controls;
    for (const auto& spawner : Spawners()) {
        for (const auto& step : spawner.steps) {
            if (step.namesTheSpawned) {
                controls.push_back(step.control);
            }
        }
    }
    EXPECT_EQ(controls, (std::vector<std::string_view>{"cmdSetItemNumber", "cmdContainerItemNumber",
                                                       "cmdLockedContItem", "cmdNonLockItemNum"}));
}

TEST(Spawners, StepsInTheOrderOfThePress)
{
    test::RecordingOutlet outlet;
    for (const auto* control : {"Command3", "cmdCreateDummy", "Command3", "cmdMaxSpawnTime"}) {
        SendSpawnStep(StepOf(control), control == std::string_view("cmdMaxSpawnTime") ? "30" : "", core::Generation09,
                      outlet);
    }
    EXPECT_EQ(outlet.Lines(),
              (Lines{"send set type 61", "send add spawner 0x163a", "send set type 61", "send set maxinterval 30"}));
    EXPECT_EQ(LinesOf(StepOf("cmdMaxSpawnTime"), "30", core::Generation070), Lines{"send setmorez 30"});
    EXPECT_EQ(LinesOf(StepOf("cmdSetItemNumber"), "orc", core::Generation09), Lines{"send set spawnsection orc"});
}

TEST(Spawners, HelpIsTheGenerationsOwn)
{
    const auto help = [](core::ServerGeneration generation) {
        test::RecordingOutlet outlet;
        ShowSpawnHelp(generation, outlet);
        return outlet.Lines();
    };
    EXPECT_EQ(help(core::Generation09),
              Lines{"box 0 Look up the [section header] of the item you want to spawn from your item-dfns in "
                    "dfndata\\items\\"});
    EXPECT_EQ(help(core::Generation070),
              Lines{"box 0 QF does not read the Zarn scripts yet, for now - look up the SECTION ITEM number you want "
                    "to spawn, in your ITEMS.SCP file."});
    EXPECT_EQ(help(Neither), Lines{});
}

TEST(Spawners, NoControlIsThereTwice)
{
    std::set<std::string_view> names;
    std::size_t                count = 0;
    const auto                 add = [&](std::string_view name) {
        if (!name.empty()) {
            names.insert(name);
            ++count;
        }
    };
    for (const auto& spawner : Spawners()) {
        add(spawner.frame);
        add(spawner.returnButton);
        add(spawner.helpButton);
        for (const auto& step : spawner.steps) {
            add(step.control);
            add(step.box);
        }
    }
    EXPECT_EQ(names.size(), count);
    EXPECT_EQ(count, 4U * 3U + 25U + 16U);
}

} // namespace
} // namespace qf::console
