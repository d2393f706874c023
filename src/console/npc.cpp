#include "console/npc.h"

#include <array>
#include <cstddef>
#include <string>

namespace qf::console {

namespace {

// clang-format off
constexpr std::array npcSteps{
    //           name                   caption                     box                    0.70.x          0.9x.x
    NpcStep{"1", "cmdAddDummy",         "Add Spawner Item",         "",                   {"add 16 3a",    "add spawner 0x163a"}, "Adds the item that will bring forth the NPCs"},
    NpcStep{"2", "cmdSetNPCSpawnInvis", "Set Spawner as Invisible", "",                   {"setvisible 3", "set visible 3"},      "Hides the spawner from players"},
    NpcStep{"3", "cmdNPCSpawnerName",   "Rename Spawner",           "txtNPCSpawnerName",  {"rename ",      "rename "},            "Gives the spawner the name in the box"},
    NpcStep{"4", "cmdSetAmount",        "Amount of NPCs",           "txtNPCAmount",       {"setamount ",   "set amount "},        "Sets how many NPCs there are at most"},
    NpcStep{"6", "cmdNPCNumber",        "Set NPC to Spawn",         "txtNPCNumber",       {"setmorex ",    "set spawnsection "},  "Sets which NPC the spawner brings forth"},
    NpcStep{"7", "cmdMinNPCSpawnTime",  "Min Spawn Time",           "txtMinNPCSpawnTime", {"setmorey ",    "set mininterval "},   "Sets the shortest time between two NPCs"},
    NpcStep{"8", "cmdMaxNPCSpawnTime",  "Max Spawn Time",           "txtMaxNPCSpawnTime", {"setmorez ",    "set maxinterval "},   "Sets the longest time between two NPCs"},
};

constexpr NpcStep singleNpc{"", "cmdAddNPC", "(Spawn Single NPC)", "txtNPCNumber", {"addnpc ", "add npc "}, "Makes one NPC at once"};

constexpr core::CommandWords spawnAreaWords{"setmore 0 0 ", "set more 0 0 "};

constexpr std::array spawnTypeWords{
    core::CommandWords{"settype 62",  "set type 62"},
    core::CommandWords{"settype 69",  "set type 69"},
    core::CommandWords{"settype 125", "set type 125"},
};
// clang-format on

/// The last option that the scan looks at.
constexpr int LastScanned = AreaSpawner;

std::span<const NpcRow> RowsOf(int category)
{
    const auto all = NpcCategories();
    if (category < 0 || static_cast<std::size_t>(category) >= all.size()) {
        return {};
    }
    return all[static_cast<std::size_t>(category)].rows;
}

} // namespace

std::span<const NpcStep> NpcSteps()
{
    return npcSteps;
}

const NpcStep& SingleNpc()
{
    return singleNpc;
}

void SendNpcStep(const NpcStep& step, std::string_view text, core::ServerGeneration generation, core::Outlet& outlet)
{
    SendWords(step.words, text, generation, outlet);
}

void SendSpawnArea(std::string_view offsetX, std::string_view offsetY, core::ServerGeneration generation,
                   core::Outlet& outlet)
{
    std::string offsets(offsetX);
    offsets += ' ';
    offsets += offsetY;
    SendWords(spawnAreaWords, offsets, generation, outlet);
}

int ScannedSpawnType(int selected)
{
    return selected >= NormalSpawner && selected <= LastScanned ? selected : -1;
}

void SendSpawnType(int selected, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (const int found = ScannedSpawnType(selected); found >= 0) {
        SendWords(spawnTypeWords[static_cast<std::size_t>(found)], {}, generation, outlet);
    }
}

bool ShowsSpawnArea(int selected, bool shown)
{
    const int found = ScannedSpawnType(selected);
    return found == AreaSpawner || (found != NormalSpawner && shown);
}

std::vector<std::string_view> NpcNames(int category)
{
    std::vector<std::string_view> names;
    for (const auto& row : RowsOf(category)) {
        if (!row.name.empty()) {
            names.push_back(row.name);
        }
    }
    return names;
}

std::optional<std::string_view> NpcSection(int category, int entry)
{
    const auto rows = RowsOf(category);
    if (entry < 0 || static_cast<std::size_t>(entry) >= rows.size()) {
        return std::nullopt;
    }
    const auto section = rows[static_cast<std::size_t>(entry)].section;
    return section.empty() ? std::nullopt : std::optional(section);
}

} // namespace qf::console
