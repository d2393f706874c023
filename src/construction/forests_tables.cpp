#include "construction/forests_tables.h"

#include <algorithm>

namespace qf::construction {

namespace {

// clang-format off
constexpr ForestRow forestRows[] = {
    // tab, index, caption, trunk, canopy, known to 0.9x.x alone
    {0,  0, "Oak 1 (Summer)",             "0cdd", "0cde"},
    {0,  1, "Oak 1 (Autumn)",             "0cdd", "0cdf"},
    {0,  2, "Oak 2 (Summer)",             "0cda", "0cdb"},
    {0,  3, "Oak 2 (Autumn)",             "0cda", "0cdc"},
    {0,  4, "Cypress 1 (Summer)",         "0cf8", "0cf9"},
    {0,  5, "Cypress 1 (Autumn)",         "0cf8", "0cfa"},
    {0,  6, "Cypress 2 (Summer)",         "0cfb", "0cfc"},
    {0,  7, "Cypress 2 (Autumn)",         "0cfb", "0cfd"},
    {0,  8, "Cypress 3 (Summer)",         "0cfe", "0cff"},
    {0,  9, "Cypress 3 (Autumn)",         "0cfe", "0d00"},
    {0, 10, "Cypress 4 (Summer)",         "0d01", "0d02"},
    {0, 11, "Cypress 4 (Autumn)",         "0d01", "0d03"},
    {0, 12, "Walnut 1 (Summer)",          "0ce0", "0ce1"},
    {0, 13, "Walnut 1 (Autumn)",          "0ce0", "0ce2"},
    {0, 14, "Walnut 2 (Summer)",          "0ce3", "0ce4"},
    {0, 15, "Walnut 2 (Autumn)",          "0ce3", "0ce5"},
    {0, 16, "Standard Tree",              "0cd3", "0cd4"},
    {1,  0, "Apple Tree",                 "0d98", "0d9a"},
    {1,  1, "Apple Tree (No Apples)",     "0d98", "0d99"},
    {1,  2, "Apple Tree (Fall Leaves)",   "0d98", "0d9b"},
    {1,  3, "Peach",                      "0da0", "0da2"},
    {1,  4, "Peach (No Peaches)",         "0da0", "0da1"},
    {1,  5, "Peach (Fall Leaves)",        "0da0", "0da3"},
    {1,  6, "Pear",                       "0da4", "0da6"},
    {1,  7, "Pear (No Pears)",            "0da4", "0da5"},
    {1,  8, "Pear (Fall Leaves)",         "0da4", "0da7"},
    {1,  9, "O'hii Tree",                 "0c9e", ""},
    {1, 10, "Banana Tree",                "0ca8", ""},
    {1, 11, "Juniper Bush",               "0cc8", ""},
    {1, 12, "Spider Tree",                "0cc9", ""},
    {1, 13, "Cedar Tree",                 "0cd6", "0cd7"},
    {1, 14, "Willow Tree",                "0ce6", "0ce7"},
    {1, 16, "Yucca",                      "0d37", ""},
    {1, 17, "Cedar Tree 2",               "0cd8", "0cd9"},
    {2,  0, "Brambles 1",                 "0d40", ""},
    {2,  1, "Brambles 2",                 "0d3f", ""},
    {2,  2, "White Flowers",              "0c8b", ""},
    {2,  3, "White Flowers 2",            "0c8c", ""},
    {2,  4, "Mushrooms (white)",          "0d13", ""},
    {2,  5, "Mushrooms (Red)",            "0d15", ""},
    {2,  6, "Orfluer Flowers",            "0c85", ""},
    {2,  7, "Orfluer Flowers 2",          "0cc0", ""},
    {2,  8, "Orfluer Flowers 3",          "0cc1", ""},
    {2,  9, "Grasses",                    "0cb6", ""},
    {2, 10, "Grasses 2",                  "0cb0", ""},
    {2, 11, "Grasses 3",                  "0caf", ""},
    {2, 12, "Grasses 4",                  "0cb5", ""},
    {2, 13, "Lots of flowers",            "0c37", ""},
    {2, 14, "Lots of flowers 2",          "0c48", ""},
    {2, 15, "Lots of flowers 3",          "0c4a", ""},
    {2, 16, "Lots of flowers 4",          "0d36", ""},
    {3,  0, "Rock (white)",               "177b", ""},
    {3,  1, "Rock (brown)",               "1773", ""},
    {3,  2, "Rock (black)",               "1777", ""},
    {3,  3, "Big Rock (white)",           "177a", ""},
    {3,  4, "Sapling",                    "0ce9", ""},
    {3,  5, "Rushes",                     "0ca7", ""},
    {3,  6, "Weed",                       "0cc7", ""},
    {3,  7, "Hedges",                     "0c90", ""},
    {3,  8, "White Poppies",              "0c8d", ""},
    {3,  9, "Red Poppies",                "0c86", ""},
    {3, 10, "Purple Poppies",             "0c83", ""},
    {3, 11, "Bulrushes",                  "0c94", ""},
    {3, 12, "Coconut Palm",               "0c95", ""},
    {3, 13, "Date Palm",                  "0c96", ""},
    {3, 14, "Elephant Ear Plant",         "0c97", ""},
    {3, 15, "Fan Plant",                  "0c98", ""},
    {3, 16, "Foxglove Flowers",           "0c8a", ""},
    {4,  0, "Small palm",                 "0c99", ""},
    {4,  1, "Small palm 2",               "0c9a", ""},
    {4,  2, "Small palm 3",               "0c9b", ""},
    {4,  3, "Small palm 4",               "0c9c", ""},
    {4,  4, "Small palm 5",               "0c9d", ""},
    {4,  5, "Fern",                       "0c9f", ""},
    {4,  6, "Fern 2",                     "0ca0", ""},
    {4,  7, "Fern 3",                     "0ca1", ""},
    {4,  8, "Fern 4",                     "0ca2", ""},
    {4,  9, "Fern 5",                     "0ca3", ""},
    {4, 10, "Fern 6",                     "0ca4", ""},
    {4, 11, "Pampas Grass",               "0ca5", ""},
    {4, 12, "Snake Plant",                "0ca9", ""},
    {4, 13, "Snowdrops",                  "0c88", ""},
    {4, 14, "Snowdrops 2",                "0c8e", ""},
    {4, 15, "Campion Flowers",            "0c89", ""},
    {4, 16, "Campion Flowers 2",          "0c87", ""},
    {5,  0, "Apple Tree 2",               "0d94", "0d96"},
    {5,  1, "Apple Tree 2 (No Apples)",   "0d94", "0d95"},
    {5,  2, "Apple Tree 2 (Fall Leaves)", "0d94", "0d97"},
    {5,  3, "Peach Tree 2",               "0d9c", "0d9e"},
    {5,  4, "Peach Tree 2 (No Peaches)",  "0d9c", "0d9d"},
    {5,  5, "Peach Tree 2 (Fall Leaves)", "0d9c", "0d9f"},
    {5,  6, "Pear Tree 2",                "0da4", "0da6"},
    {5,  7, "Pear Tree 2 (No Pears)",     "0da4", "0da5"},
    {5,  8, "Pear Tree 2 (Fall Leaves)",  "0da4", "0da7"},
    {5,  9, "Tuscany Pine",               "1b7e", ""},
    {5, 10, "Cherry Tree 1",              "2476", "2471", true},
    {5, 11, "Cherry Tree 2",              "2476", "2472", true},
    {5, 12, "Cherry Tree 3",              "2476", "2473", true},
    {5, 13, "Cherry Tree 4",              "2476", "2474", true},
    {5, 14, "Cherry Tree 5",              "2476", "2475", true},
    {6,  0, "Maple Tree 1",               "247d", "2478", true},
    {6,  1, "Maple Tree 2",               "247d", "2479", true},
    {6,  2, "Maple Tree 3",               "247d", "247a", true},
    {6,  3, "Maple Tree 4",               "247d", "247b", true},
    {6,  4, "Maple Tree 5",               "247d", "247c", true},
    {6,  5, "Plum Tree 1",                "26ed", "26ef", true},
    {6,  6, "Plum Tree 2",                "26ed", "26f0", true},
    {6,  7, "Plum Tree 3",                "26ed", "26f1", true},
    {6,  8, "Plum Tree 4",                "26ed", "26f2", true},
    {6,  9, "Plum Tree 5",                "26ed", "26f3", true},
    {6, 10, "Bamboo 1",                   "246c", "", true},
    {6, 11, "Bamboo 2",                   "246d", "", true},
    {6, 12, "Bamboo 3",                   "246e", "", true},
    {6, 13, "Bamboo 4",                   "246f", "", true},
    {6, 14, "Bamboo 5",                   "2470", "", true},
};
// clang-format on

} // namespace

std::span<const ForestRow> ForestRows()
{
    return forestRows;
}

const ForestRow* FindForestRow(int tab, int index)
{
    const auto* found = std::find_if(std::begin(forestRows), std::end(forestRows),
                                     [&](const ForestRow& row) { return row.tab == tab && row.index == index; });
    return found != std::end(forestRows) ? found : nullptr;
}

} // namespace qf::construction
