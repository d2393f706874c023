#include "gamedata/dye.h"

#include "core/ansi.h"
#include "core/text.h"

namespace qf::gamedata {

std::int32_t HueNumber(int group, int row)
{
    return group * HueGroup::Entries + row;
}

std::string DyeCommand(std::int32_t hue)
{
    return "dye " + core::HueHexPair(hue);
}

std::string GroupName(const HueGroup& group)
{
    return core::FromAnsi(group.entries.front().NameBytes());
}

int HuePercent(int group)
{
    return group * 100 / (HueTable::Groups - 1);
}

void ShowDyeHelp(core::Outlet& outlet)
{
    outlet.Show(core::PlainBox("Just scroll left or right, and when you find a color you wish to use, click on it. It "
                               "should then send a command with that color to the UO client."));
}

} // namespace qf::gamedata
