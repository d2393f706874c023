#include "data/item_lists.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qf::test {

namespace {

TEST(ItemLists, AreThereForTheToolsOfTheProgram)
{
    std::set<std::string> names;
    for (const auto& file : ItemListFiles()) {
        EXPECT_EQ(file.extension(), ".txt") << file;
        names.insert(file.stem().string());
    }
    for (const char* name :
         {"Wooden floors", "Carpets", "Stone walls", "Roofs", "Stairs", "Forest trees", "Cave walls", "Water and coast",
          "Chairs", "Containers", "Lights", "Wooden doors", "Shop signs", "Shirts and robes", "Hats", "Hair"}) {
        EXPECT_TRUE(names.contains(name)) << name;
    }
}

TEST(ItemLists, HaveOneLineOfDistinctTileNumbers)
{
    constexpr int LastTile = 0x3FFF;
    for (const auto& file : ItemListFiles()) {
        const std::string text = TextOf(file);
        EXPECT_EQ(text.find('\n'), text.size() - 1) << file;
        std::set<int> seen;
        for (const std::string& item : ItemsOf(file)) {
            ASSERT_FALSE(item.empty() || item.size() > 5) << file;
            ASSERT_TRUE(std::ranges::all_of(item, [](char c) { return c >= '0' && c <= '9'; })) << file << item;
            const int id = std::stoi(item);
            EXPECT_TRUE(id >= 1 && id <= LastTile) << file << id;
            EXPECT_TRUE(seen.insert(id).second) << file << id;
        }
        EXPECT_FALSE(seen.empty()) << file;
    }
}

} // namespace

} // namespace qf::test
