#include "console/privileges.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

constexpr core::ServerGeneration Neither{7};
constexpr core::ServerGeneration Negative{-1};

Lines Press(void (*press)(core::ServerGeneration, core::Outlet&), core::ServerGeneration generation)
{
    test::RecordingOutlet outlet;
    press(generation, outlet);
    return outlet.Lines();
}

PrivilegeChecks Ticked(std::initializer_list<std::size_t> indices)
{
    PrivilegeChecks checks{};
    for (const auto index : indices) {
        checks[index] = CheckValue::Ticked;
    }
    return checks;
}

Lines Set(const PrivilegeChecks& checks, core::ServerGeneration generation = Generation070)
{
    test::RecordingOutlet outlet;
    SetPrivileges(checks, generation, outlet);
    return outlet.Lines();
}

struct Row {
    std::string_view caption;
    std::string      command;
};

// clang-format off
const Row rows[] = {
    {"GM",                   "setpriv 1 0"},
    {"Broadcast",            "setpriv 2 0"},
    {"Invulnerable",         "setpriv 4 0"},
    {"Single Click Serials", "setpriv 8 0"},
    {"Hide Skill Titles",    "setpriv 10 0"},
    {"GM Pageable",          "setpriv 20 0"},
    {"Snoop other packs",    "setpriv 40 0"},
    {"Counselor",            "setpriv 80 0"},
    {"All Move On",          "setpriv 0 1"},
    {"Frozen",               "setpriv 0 2"},
    {"House Icons",          "setpriv 0 4"},
    {"Perm Hidden",          "setpriv 0 8"},
    {"No Mana needed",       "setpriv 0 10"},
    {"Dispellable",          "setpriv 0 20"},
    {"Perm Magic Reflect",   "setpriv 0 40"},
    {"No Reags needed",      "setpriv 0 80"},
};
// clang-format on

TEST(Privileges, EachBoxIsOneBit)
{
    ASSERT_EQ(std::size(rows), Privileges().size());
    for (std::size_t index = 0; index < std::size(rows); ++index) {
        EXPECT_EQ(Privileges()[index].index, static_cast<int>(index));
        EXPECT_EQ(Privileges()[index].caption, rows[index].caption);
        EXPECT_EQ(Set(Ticked({index})), Lines{"send " + rows[index].command}) << rows[index].caption;
    }
}

TEST(Privileges, BothBytesGoOutInHexadecimal)
{
    EXPECT_EQ(Set({}), Lines{"send setpriv 0 0"});
    EXPECT_EQ(Set(Ticked({0, 1, 15})), Lines{"send setpriv 3 80"});
    EXPECT_EQ(Set(Ticked({1, 3, 8, 10, 11})), Lines{"send setpriv A D"});
    EXPECT_EQ(Set(Ticked({0, 1, 2, 3, 13, 14, 15, 12})), Lines{"send setpriv F F0"});
    EXPECT_EQ(Set(Ticked({4, 9})), Lines{"send setpriv 10 2"});

    PrivilegeChecks all;
    all.fill(CheckValue::Ticked);
    EXPECT_EQ(Set(all), Lines{"send setpriv FF FF"});
}

TEST(Privileges, EverySetOfBoxesIsItsTwoBytes)
{
    for (unsigned bits = 0; bits < 0x10000; ++bits) {
        PrivilegeChecks checks{};
        for (std::size_t index = 0; index < checks.size(); ++index) {
            checks[index] = ((bits >> index) & 1U) != 0 ? CheckValue::Ticked : CheckValue::Clear;
        }
        char expected[32];
        std::snprintf(expected, sizeof expected, "send setpriv %X %X", bits & 0xFFU, bits >> 8U);
        ASSERT_EQ(Set(checks), Lines{expected}) << bits;
    }
}

TEST(Privileges, AGreyBoxDoesNotCount)
{
    PrivilegeChecks checks;
    checks.fill(CheckValue::Grey);
    EXPECT_EQ(Set(checks), Lines{"send setpriv 0 0"});
    checks[2] = CheckValue::Ticked;
    checks[9] = CheckValue::Ticked;
    EXPECT_EQ(Set(checks), Lines{"send setpriv 4 2"});
}

TEST(Privileges, TheNewerServerHasNoBits)
{
    const Lines message{"box 0 This command is only available in older versions of Zarn."};
    EXPECT_EQ(Set({}, Generation09), message);
    EXPECT_EQ(Set(Ticked({0, 15}), Generation09), message);
    EXPECT_FALSE(ShowsPrivileges(Generation09));
    EXPECT_TRUE(ShowsPrivileges(Generation070));
}

TEST(Privileges, ThreeRanks)
{
    EXPECT_EQ(Press(MakePlayer, Generation09), Lines{"send make player"});
    EXPECT_EQ(Press(MakeCounselor, Generation09), Lines{"send make cns"});
    EXPECT_EQ(Press(MakeGM, Generation09), Lines{"send make gm"});

    EXPECT_EQ(Press(MakePlayer, Generation070),
              Lines{"box 0 Sorry, this command is only available in 0.95-versions of Zarn or above.)"});
    EXPECT_EQ(Press(MakeCounselor, Generation070), Lines{"send makecns"});
    EXPECT_EQ(Press(MakeGM, Generation070), Lines{"send makegm"});
}

TEST(Privileges, AGenerationThatIsNeitherDoesNothing)
{
    for (const auto generation : {Neither, Negative}) {
        EXPECT_EQ(Press(MakePlayer, generation), Lines{});
        EXPECT_EQ(Press(MakeCounselor, generation), Lines{});
        EXPECT_EQ(Press(MakeGM, generation), Lines{});
        EXPECT_EQ(Set(Ticked({0, 15}), generation), Lines{});
        EXPECT_TRUE(ShowsPrivileges(generation));
    }
}

} // namespace
} // namespace qf::console
