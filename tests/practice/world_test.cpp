#include <gtest/gtest.h>

#include <set>
#include <tuple>

#include "practice/world.h"
#include "tiles_at.h"

namespace qf::practice {

namespace {

using Tiles = std::vector<Tile>;

TEST(PracticeWorld, HoldsTheSameTileAtOneHeightOnce)
{
    World      world;
    const Tile floor{{1000, 1000, 0}, 0x04A9};
    EXPECT_TRUE(world.Place(floor));
    EXPECT_FALSE(world.Place(floor));
    EXPECT_TRUE(world.Place({{1000, 1000, 0}, 0x04AA}));
    EXPECT_TRUE(world.Place({{1000, 1000, 5}, 0x04A9}));
    EXPECT_EQ(world.Count(), 3U);
}

TEST(PracticeWorld, KeepsToTheMap)
{
    World world;
    EXPECT_TRUE(world.Place({{0, 0, LowestZ}, 1}));
    EXPECT_TRUE(world.Place({{MapWidth - 1, MapHeight - 1, HighestZ}, 0xFFFF}));
    EXPECT_FALSE(world.Place({{-1, 0, 0}, 1}));
    EXPECT_FALSE(world.Place({{MapWidth, 0, 0}, 1}));
    EXPECT_FALSE(world.Place({{0, MapHeight, 0}, 1}));
    EXPECT_FALSE(world.Place({{0, 0, HighestZ + 1}, 1}));
    EXPECT_FALSE(world.Place({{0, 0, LowestZ - 1}, 1}));
    EXPECT_EQ(world.Count(), 2U);
}

TEST(PracticeWorld, GivesBackEachTileThatWasPlaced)
{
    World                                    world;
    std::set<std::tuple<int, int, int, int>> placed;
    for (int i = 0; i < 2000; ++i) {
        const Tile tile{{(i * 37) % 90, (i * 53) % 70, (i * 11) % 256 - 128}, static_cast<std::uint16_t>(i * 97)};
        world.Place(tile);
        placed.insert({tile.at.x, tile.at.y, tile.at.z, tile.id});
    }
    std::set<std::tuple<int, int, int, int>> seen;
    world.ForEachIn({0, 0, 89, 69}, [&](const Tile& tile) { seen.insert({tile.at.x, tile.at.y, tile.at.z, tile.id}); });
    EXPECT_EQ(seen, placed);
    EXPECT_EQ(world.Count(), placed.size());
}

TEST(PracticeWorld, FillsAnAreaWhateverTheOrderOfItsCorners)
{
    World world;
    EXPECT_EQ(world.PlaceArea(0x04A9, {107, 102, 100, 100}, 5).placed, 8U * 3U);
    EXPECT_EQ(TilesAt(world, 100, 102), (Tiles{{{100, 102, 5}, 0x04A9}}));
    EXPECT_EQ(TilesAt(world, 107, 100), (Tiles{{{107, 100, 5}, 0x04A9}}));
    EXPECT_EQ(TilesAt(world, 108, 100), Tiles{});
    EXPECT_EQ(world.PlaceArea(0x04A9, {100, 100, 107, 102}, 5).placed, 0U);
}

TEST(PracticeWorld, CutsAnAreaToTheMapAndToItsLargestNumber)
{
    World world;
    EXPECT_EQ(world.PlaceArea(1, {-5, -5, 1, 1}, 0).placed, 4U);
    EXPECT_EQ(world.PlaceArea(1, {-9, -9, -1, 500}, 0).placed, 0U);
    EXPECT_EQ(world.PlaceArea(1, {INT32_MIN, INT32_MIN, -1, -1}, 0).placed, 0U);
    const World::AreaResult result = world.PlaceArea(2, {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX}, 0);
    EXPECT_TRUE(result.cutShort);
    EXPECT_EQ(result.placed, World::MostTilesPerArea);
    EXPECT_EQ(world.PlaceArea(3, {0, 0, 9, 9}, HighestZ + 1).placed, 0U);
}

TEST(PracticeWorld, RefusesTilesOnceItIsFull)
{
    World world;
    for (int z = 0; world.Count() < World::MostTiles; ++z) {
        ASSERT_GT(world.PlaceArea(7, {0, 0, 499, 499}, z).placed, 0U);
    }
    EXPECT_EQ(world.Count(), World::MostTiles);
    EXPECT_FALSE(world.Place({{3000, 3000, 0}, 1}));
    EXPECT_TRUE(world.PlaceArea(1, {3000, 3000, 3000, 3000}, 0).cutShort);
}

TEST(PracticeWorld, WipesInsideAndOutsideABox)
{
    World world;
    world.PlaceArea(1, {10, 10, 19, 19}, 0);
    EXPECT_EQ(world.RemoveInside({14, 14, 10, 10}), 25U);
    EXPECT_EQ(world.Count(), 75U);
    EXPECT_EQ(world.RemoveOutside({15, 15, 19, 19}), 50U);
    EXPECT_EQ(world.Count(), 25U);
    EXPECT_EQ(world.RemoveOutside({-9, -9, -5, -5}), 25U);
    EXPECT_EQ(world.Count(), 0U);
    world.PlaceArea(1, {10, 10, 11, 11}, 0);
    EXPECT_EQ(world.Clear(), 4U);
    EXPECT_EQ(TilesAt(world, 10, 10), Tiles{});
}

TEST(PracticeWorld, RemovesOneTile)
{
    World world;
    world.PlaceArea(1, {10, 10, 10, 10}, 0);
    world.PlaceArea(2, {10, 10, 10, 10}, 20);
    EXPECT_EQ(TilesAt(world, 10, 10).size(), 2U);
    EXPECT_TRUE(world.Remove({{10, 10, 20}, 2}));
    EXPECT_FALSE(world.Remove({{10, 10, 20}, 2}));
    EXPECT_FALSE(world.Remove({{-10, 10, 20}, 2}));
    EXPECT_EQ(TilesAt(world, 10, 10), (Tiles{{{10, 10, 0}, 1}}));
}

} // namespace

} // namespace qf::practice
