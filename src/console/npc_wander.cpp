#include "console/npc_wander.h"

#include <string>

namespace qf::console {

namespace {

// clang-format off
constexpr std::array wanderCommands{
    //            group     name                       caption                    0.70.x          0.9x.x
    WanderCommand{"",       "cmdDontWander",           "Don't Wander",            {"npcwander 0", "set npcwander 0"}, "The NPC stands still"},
    WanderCommand{"",       "cmdWanderFreely",         "Wander Freely",           {"npcwander 2", "set npcwander 2"}, "The NPC goes wherever it likes"},
    WanderCommand{"",       "cmdWanderAfterTarget",    "Wander after Target",     {"npcwander 1", "set npcwander 1"}, "The NPC follows its target"},
    WanderCommand{"",       "cmdSelectTargetToFollow", "Select Target To Follow", {"npctarget",   "npctarget"},       "Sets whom the NPC follows"},
    WanderCommand{"Frame2", "cmdBoxWander",            "Wander in Box",           {"npcwander 3", "set npcwander 3"}, "The NPC stays within its box"},
    WanderCommand{"Frame1", "Command1",                "Wander in Circle",        {"npcwander 4", "set npcwander 4"}, "The NPC stays within its circle"},
};
// clang-format on

void SendShape(std::string command, std::span<const std::string_view> numbers, core::ServerGeneration generation,
               core::Outlet& outlet)
{
    if (!generation.Is070() && !generation.Is09()) {
        return;
    }
    for (const auto number : numbers) {
        command += ' ';
        command += number;
    }
    outlet.Send(command);
}

} // namespace

std::span<const WanderCommand> WanderCommands()
{
    return wanderCommands;
}

void SendWander(const WanderCommand& command, core::ServerGeneration generation, core::Outlet& outlet)
{
    SendWords(command.words, {}, generation, outlet);
}

void SendWanderBox(const std::array<std::string_view, 4>& corners, core::ServerGeneration generation,
                   core::Outlet& outlet)
{
    SendShape("npcrect", corners, generation, outlet);
}

void SendWanderCircle(const std::array<std::string_view, 3>& circle, core::ServerGeneration generation,
                      core::Outlet& outlet)
{
    SendShape("npccircle", circle, generation, outlet);
}

} // namespace qf::console
