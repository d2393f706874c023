#include "console/spawners.h"

#include <array>

namespace qf::console {

namespace {

constexpr core::CommandWords NoCommand{"", ""};
constexpr core::CommandWords Rename{"rename ", "rename "};
constexpr core::CommandWords Section{"setmorex ", "set spawnsection "};
constexpr core::CommandWords MinTime{"setmorey ", "set mininterval "};
constexpr core::CommandWords MaxTime{"setmorez ", "set maxinterval "};
constexpr core::CommandWords Type61{"settype 61", "set type 61"};
constexpr core::CommandWords Type63{"settype 63", "set type 63"};
constexpr core::CommandWords Type64{"settype 64", "set type 64"};
constexpr core::CommandWords Type65{"settype 65", "set type 65"};

// clang-format off
constexpr SpawnStep itemSteps[] = {
    // control           caption                           box                words
    {"cmdCreateDummy",   "1. Add Dummy Item",              "",                {"add 16 3a", "add spawner 0x163a"}},
    {"cmdInvisible",     "2. Set Dummy-Item to Invisible", "",                {"setvisible 3", "set visible 3"}},
    {"cmdRename",        "3. Rename Item",                 "txtItemName",     Rename},
    {"cmdSetItemNumber", "4. Set Item to spawn:",          "txtItemNumber",   Section, true},
    {"cmdMinSpawnTime",  "5. Min. Spawn Time:",            "txtMinSpawnTime", MinTime},
    {"cmdMaxSpawnTime",  "6. Max. Spawn Time:",            "txtMaxSpawnTime", MaxTime},
    {"Command3",         "7. Set Item to Spawner Type",    "",                Type61},
};

constexpr SpawnStep containerSteps[] = {
    // control                   caption                                     box                         words
    {"cmdAddCont",               "1. Add Container",                         "",                         NoCommand},
    {"cmdContainerName",         "2. Rename Item",                           "txtContainerName",         Rename},
    {"cmdContainerItemNumber",   "3. Set Item to spawn",                     "txtContainerItemNumber",   Section, true},
    {"cmdMinContainerSpawnTime", "4. Min. Spawn Time:",                      "txtMinContainerSpawnTime", MinTime},
    {"cmdMaxContainerSpawnTime", "5. Max. Spawn Time:",                      "txtMaxContainerSpawnTime", MaxTime},
    {"cmdSetContainerSpawn",     "6. Set Container as Item Spawn Container", "",                         Type63},
};

constexpr SpawnStep lockedContainerSteps[] = {
    // control                    caption                                     box                          words
    {"cmdAddLockedCont",          "1. Add Container",                         "",                          NoCommand},
    {"cmdRenameLockedContainer",  "2. Rename Item",                           "txtLockedContainerName",    Rename},
    {"cmdLockedContItem",         "3. Set Item to spawn:",                    "txtLockedContItem",         Section, true},
    {"cmdMinLockedContSpawnTime", "4. Min. Spawn Time:",                      "txtMinLockedContSpawnTime", MinTime},
    {"cmdMaxLockedContSpawnTime", "5. Max. Spawn Time:",                      "txtMaxLockedContSpawnTime", MaxTime},
    {"cmdSetAsLockedContSpawner", "6. Set Container as Item Spawn Container", "",                          Type64},
};

constexpr SpawnStep nonlockableContainerSteps[] = {
    // control                 caption                                     box                       words
    {"cmdAddNonLockableCont",  "1. Add Container",                         "",                       NoCommand},
    {"cmdNonLockContName",     "2. Rename Item",                           "txtNonLockContName",     Rename},
    {"cmdNonLockItemNum",      "3. Set Item to spawn:",                    "txtNonLockItemNum",      Section, true},
    {"cmdMinNonLockSpawnTime", "4. Min. Spawn Time:",                      "txtMinNonLockSpawnTime", MinTime},
    {"cmdMaxNonLockSpawnTime", "5. Max. Spawn Time:",                      "txtMaxNonLockSpawnTime", MaxTime},
    {"cmdSetAsNonLockCont",    "6. Set Container as Item Spawn Container", "",                       Type65},
};
// clang-format on

constexpr std::array spawners{
    Spawner{"Item Spawner", "fraItemSpawner", "Item Spawner", "Command6", "cmdquestionmark", itemSteps},
    Spawner{"Item-Spawn Container", "fraContainerSpawner", "Item-Spawn Container", "Command7", "Command14",
            containerSteps},
    Spawner{"Locked Item-Spawn Container", "fraLockedContainerSpawner", "Locked Item-Spawn Container", "cmdReturn3",
            "Command15", lockedContainerSteps},
    Spawner{"Nonlockable Item-Spawn Container", "fraNonLockableSpawner", "NonLockable Item-Spawn Container", "Command4",
            "Command11", nonlockableContainerSteps},
};

} // namespace

std::span<const Spawner> Spawners()
{
    return spawners;
}

void SendSpawnStep(const SpawnStep& step, std::string_view value, core::ServerGeneration generation,
                   core::Outlet& outlet)
{
    if (!step.OpensContainers()) {
        core::SendWords(step.words, value, generation, outlet);
    }
}

void ShowSpawnHelp(core::ServerGeneration generation, core::Outlet& outlet)
{
    if (generation.Is09()) {
        outlet.Show(core::PlainBox("Look up the [section header] of the item you want to spawn from your item-dfns in "
                                   "dfndata\\items\\"));
    } else if (generation.Is070()) {
        outlet.Show(core::PlainBox("QF does not read the Zarn scripts yet, for now - look up the SECTION ITEM number "
                                   "you want to spawn, in your ITEMS.SCP file."));
    }
}

} // namespace qf::console
