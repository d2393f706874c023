#include "console/npc_wander.h"

#include <gtest/gtest.h>

#include <map>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

constexpr core::ServerGeneration unknownGeneration{std::int16_t{-1}};

std::map<std::string_view, Lines> LinesByName(core::ServerGeneration generation)
{
    std::map<std::string_view, Lines> lines;
    for (const auto& command : WanderCommands()) {
        test::RecordingOutlet outlet;
        SendWander(command, generation, outlet);
        lines[command.name] = outlet.Lines();
    }
    return lines;
}

Lines BoxLines(const std::array<std::string_view, 4>& corners, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendWanderBox(corners, generation, outlet);
    return outlet.Lines();
}

Lines CircleLines(const std::array<std::string_view, 3>& circle, core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    SendWanderCircle(circle, generation, outlet);
    return outlet.Lines();
}

TEST(NpcWander, EveryModeHasItsNumber)
{
    EXPECT_EQ(LinesByName(core::Generation09),
              (std::map<std::string_view, Lines>{{"cmdDontWander", {"send set npcwander 0"}},
                                                 {"cmdWanderAfterTarget", {"send set npcwander 1"}},
                                                 {"cmdWanderFreely", {"send set npcwander 2"}},
                                                 {"cmdBoxWander", {"send set npcwander 3"}},
                                                 {"Command1", {"send set npcwander 4"}},
                                                 {"cmdSelectTargetToFollow", {"send npctarget"}}}));
    EXPECT_EQ(LinesByName(core::Generation070),
              (std::map<std::string_view, Lines>{{"cmdDontWander", {"send npcwander 0"}},
                                                 {"cmdWanderAfterTarget", {"send npcwander 1"}},
                                                 {"cmdWanderFreely", {"send npcwander 2"}},
                                                 {"cmdBoxWander", {"send npcwander 3"}},
                                                 {"Command1", {"send npcwander 4"}},
                                                 {"cmdSelectTargetToFollow", {"send npctarget"}}}));
}

TEST(NpcWander, AnUnknownGenerationGetsTheCommonCommandAlone)
{
    for (const auto& [name, lines] : LinesByName(unknownGeneration)) {
        EXPECT_EQ(lines, name == "cmdSelectTargetToFollow" ? Lines{"send npctarget"} : Lines{}) << name;
    }
}

TEST(NpcWander, TheBoxGoesOutAsTyped)
{
    for (const auto generation : {core::Generation070, core::Generation09}) {
        EXPECT_EQ(BoxLines({"10", "20", "30", "40"}, generation), Lines{"send npcrect 10 20 30 40"});
        EXPECT_EQ(BoxLines({"", "", "", ""}, generation), Lines{"send npcrect    "});
        EXPECT_EQ(BoxLines({"x", " 1", "&H2", "-1"}, generation), Lines{"send npcrect x  1 &H2 -1"});
    }
    EXPECT_EQ(BoxLines({"10", "20", "30", "40"}, unknownGeneration), Lines{});
}

TEST(NpcWander, TheCircleGoesOutAsTyped)
{
    for (const auto generation : {core::Generation070, core::Generation09}) {
        EXPECT_EQ(CircleLines({"10", "20", "5"}, generation), Lines{"send npccircle 10 20 5"});
        EXPECT_EQ(CircleLines({"", "", ""}, generation), Lines{"send npccircle   "});
        EXPECT_EQ(CircleLines({"10", "20", "wide"}, generation), Lines{"send npccircle 10 20 wide"});
    }
    EXPECT_EQ(CircleLines({"10", "20", "5"}, unknownGeneration), Lines{});
}

} // namespace
} // namespace qf::console
