#include "construction/stairs_tables.h"

namespace qf::construction {

namespace {

// clang-format off
constexpr StairRow stairRows[] = {
    // steps by direction, block, single item
    {"Wood",             {"0724", "0725", "0722", "0723"}, "0721", "721"}, // 0
    {"Dark Wood",        {"073b", "073c", "0739", "073a"}, "0738", "738"}, // 1
    {"Wooden Ramp",      {"087d", "087c", "087b", "087a"}, "0721", "738"}, // 2
    {"Blue Stone",       {"0737", "0749", "071f", "0736"}, "071e", "71e"}, // 3
    {"White Stone",      {"0753", "0754", "0751", "0752"}, "0750", "750"}, // 4
    {"Gray/Brown Stone", {"078b", "078c", "0789", "078a"}, "0788", "788"}, // 5
    {"Sandstone",        {"076f", "0770", "076d", "076e"}, "076c", "76c"}, // 6
    {"Green Stone",      {"07a6", "07a7", "07a4", "07a5"}, "07a3", "7a3"}, // 7
    {"Yellow Stone",     {"03f1", "03f2", "03ef", "03f0"}, "03ee", "3ee"}, // 8
    {"White Marble",     {"070c", "070d", "070a", "070b"}, "0709", "709"}, // 9
};
// clang-format on

} // namespace

std::span<const StairRow> StairRows()
{
    return stairRows;
}

} // namespace qf::construction
