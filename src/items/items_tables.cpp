#include "items/items_tables.h"

namespace qf::items {

const ItemTabInfo& TabInfo(int tab)
{
    // clang-format off
    static const std::array<ItemTabInfo, TabCount> tabs{{
        {"Chairs",           "optChair",        ChairRows(),       4},
        {"Benches",          "optBench",        BenchRows(),       4},
        {"Tables",           "optTable",        TableRows(),       4},
        {"Beds",             "optBed",          BedRows(),         4},
        {"Containers",       "optContainer",    ContainerRows(),   4},
        {"Plants",           "optPlant",        PlantRows(),       4},
        {"Wall Decor",       "optWallDecor",    WallDecorRows(),   4},
        {"Lightsources",     "optLightsources", LightsourceRows(), 2},
        {"Other 1",          "optOther1",       Other1Rows(),      2},
        {"Other 2",          "optOther2",       Other2Rows(),      4},
        {"Doors",            "optDoor",         DoorRows(),        4},
        {"Signs",            "optSigns1",       SignRows(),        2},
        {"Ruined Furniture", "optRuined",       RuinedRows(),      5},
    }};
    // clang-format on
    return tabs[static_cast<std::size_t>(tab)];
}

} // namespace qf::items
