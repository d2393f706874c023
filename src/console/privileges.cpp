#include "console/privileges.h"

#include "core/command_words.h"
#include "core/text.h"

namespace qf::console {

namespace {

using core::CommandWords;

constexpr CommandWords CounselorWords{"makecns", "make cns"};
constexpr CommandWords GMWords{"makegm", "make gm"};

constexpr auto First = PrivilegeByte::First;
constexpr auto Second = PrivilegeByte::Second;

// clang-format off
constexpr std::array<Privilege, PrivilegeCount> privileges{{
    { 0, "GM",                   First,    1},
    { 1, "Broadcast",            First,    2},
    { 2, "Invulnerable",         First,    4},
    { 3, "Single Click Serials", First,    8},
    { 4, "Hide Skill Titles",    First,   16},
    { 5, "GM Pageable",          First,   32},
    { 6, "Snoop other packs",    First,   64},
    { 7, "Counselor",            First,  128},
    { 8, "All Move On",          Second,   1},
    { 9, "Frozen",               Second,   2},
    {10, "House Icons",          Second,   4},
    {11, "Perm Hidden",          Second,   8},
    {12, "No Mana needed",       Second,  16},
    {13, "Dispellable",          Second,  32},
    {14, "Perm Magic Reflect",   Second,  64},
    {15, "No Reags needed",      Second, 128},
}};
// clang-format on

unsigned ByteOf(const PrivilegeChecks& checks, PrivilegeByte byte)
{
    unsigned value = 0;
    for (const auto& privilege : privileges) {
        if (privilege.byte == byte && checks[static_cast<std::size_t>(privilege.index)] == CheckValue::Ticked) {
            value += privilege.bit;
        }
    }
    return value;
}

} // namespace

std::span<const Privilege, PrivilegeCount> Privileges()
{
    return privileges;
}

bool ShowsPrivileges(core::ServerGeneration generation)
{
    return !generation.Is09();
}

void MakePlayer(core::ServerGeneration generation, core::Outlet& outlet)
{
    if (generation.Is09()) {
        outlet.Send("make player");
    } else if (generation.Is070()) {
        outlet.Show(core::PlainBox("Sorry, this command is only available in 0.95-versions of Zarn or above.)"));
    }
}

void MakeCounselor(core::ServerGeneration generation, core::Outlet& outlet)
{
    core::SendWords(CounselorWords, {}, generation, outlet);
}

void MakeGM(core::ServerGeneration generation, core::Outlet& outlet)
{
    core::SendWords(GMWords, {}, generation, outlet);
}

void SetPrivileges(const PrivilegeChecks& checks, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (generation.Is09()) {
        outlet.Show(core::PlainBox("This command is only available in older versions of Zarn."));
    } else if (generation.Is070()) {
        outlet.Send("setpriv " + core::UpperHex(ByteOf(checks, First)) + ' ' + core::UpperHex(ByteOf(checks, Second)));
    }
}

} // namespace qf::console
