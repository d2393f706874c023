#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <set>
#include <tuple>

#include "core/number_rules.h"
#include "practice/session.h"
#include "support/recording_outlet.h"
#include "support/temp_folder.h"
#include "support/world_files.h"
#include "world/database.h"
#include "world/extraction.h"
#include "world/template_build.h"
#include "world/template_list.h"
#include "world/world_loader.h"

// A building goes the whole way: out of the server's world files into the database, out of it into a template,
// and by the template's commands into another world, where it must stand tile for tile.

namespace qf::world {
namespace {

/// A tile as x, y, z and number.
using Tile = std::tuple<int, int, int, int>;
using Tiles = std::set<Tile>;

constexpr int SiteX = 1400;
constexpr int SiteY = 1600;
constexpr int SiteZ = -20;

/// The corners within which every building lies.
constexpr int Left = 900;
constexpr int Top = 700;
constexpr int Reach = 24;
constexpr int Lowest = 0;
constexpr int Highest = 60;

class Random {
  public:
    explicit Random(std::uint32_t seed) : draws_(seed) {}

    /// A number from `low` to `high`; the same on every system, as the library's own distributions are not.
    int Between(int low, int high)
    {
        return low + static_cast<int>(draws_() % static_cast<std::uint32_t>(high - low + 1));
    }

    int TileNumber()
    {
        constexpr std::array numbers{0x07,  0x1B,  0x1C,  0xA6,   0x4A9,  0x519,  0x6A5,
                                     0x788, 0xB2E, 0xFFF, 0x1000, 0x1B4D, 0x26EC, 0x9ADF};
        return numbers[static_cast<std::size_t>(Between(0, static_cast<int>(numbers.size()) - 1))];
    }

  private:
    std::mt19937 draws_;
};

void AddBox(Tiles& tiles, int number, int x1, int y1, int x2, int y2, int z)
{
    for (int y = y1; y <= y2; ++y) {
        for (int x = x1; x <= x2; ++x) {
            tiles.insert({x, y, z, number});
        }
    }
}

/// Storeys of wings with floors and walls, gaps broken into them, and things that stand about.
Tiles RandomBuilding(Random& random)
{
    Tiles     tiles;
    const int storeys = random.Between(1, 3);
    for (int wing = random.Between(1, 3); wing > 0; --wing) {
        const int x1 = Left + random.Between(0, 10);
        const int y1 = Top + random.Between(0, 10);
        const int x2 = x1 + random.Between(0, 12);
        const int y2 = y1 + random.Between(0, 12);
        const int wall = random.TileNumber();
        for (int z = Lowest; z < Lowest + storeys * 20; z += 20) {
            AddBox(tiles, random.TileNumber(), x1, y1, x2, y2, z);
            AddBox(tiles, wall, x1, y1, x2, y1, z);
            AddBox(tiles, wall, x1, y2, x2, y2, z);
            AddBox(tiles, wall, x1, y1, x1, y2, z);
            AddBox(tiles, wall, x2, y1, x2, y2, z);
        }
    }
    std::erase_if(tiles, [&](const Tile&) { return random.Between(0, 9) == 0; });
    for (int things = random.Between(1, 30); things > 0; --things) {
        tiles.insert({Left + random.Between(0, Reach), Top + random.Between(0, Reach), random.Between(Lowest, Highest),
                      random.TileNumber()});
    }
    return tiles;
}

std::vector<test::WorldItem> AsItems(const Tiles& tiles, std::int16_t world, std::int16_t instance)
{
    std::vector<test::WorldItem> items;
    for (const auto& [x, y, z, number] : tiles) {
        items.push_back({.serial = static_cast<std::int32_t>(items.size()) + 1,
                         .name = "part of a house",
                         .x = static_cast<std::int16_t>(x),
                         .y = static_cast<std::int16_t>(y),
                         .z = static_cast<std::int16_t>(z),
                         .world = world,
                         .id = number,
                         .instance = instance});
    }
    return items;
}

/// The tiles with their lowest corner moved to the building site.
Tiles Moved(const Tiles& tiles)
{
    auto [minX, minY, minZ, unused] = *tiles.begin();
    for (const auto& [x, y, z, number] : tiles) {
        minX = std::min(minX, x);
        minY = std::min(minY, y);
        minZ = std::min(minZ, z);
    }
    Tiles moved;
    for (const auto& [x, y, z, number] : tiles) {
        moved.insert({x - minX + SiteX, y - minY + SiteY, z - minZ + SiteZ, number});
    }
    return moved;
}

/// Types what is sent into a practice world; boxes are kept.
class PracticeOutlet final : public test::RecordingOutlet {
  public:
    void Send(std::string_view command, bool usePrefix) override
    {
        session.Receive(std::string(usePrefix ? "'" : "") + std::string(command));
    }

    Tiles Standing() const
    {
        Tiles tiles;
        session.GetWorld().ForEachIn({SiteX - 64, SiteY - 64, SiteX + 64, SiteY + 64}, [&](const practice::Tile& tile) {
            tiles.insert({tile.at.x, tile.at.y, tile.at.z, tile.id});
        });
        return tiles;
    }

    practice::Session session{"'"};
};

class RoundTrip : public testing::TestWithParam<std::uint32_t> {
  protected:
    RoundTrip()
    {
        CreateWorldDatabase(program_.Path() / "qf.mdb");
        database_ = Database::Open(program_.Path() / "qf.mdb");
        UpgradeDatabase(*database_);
        program_.MakeFolder("Templates");
    }

    void Load(std::span<const test::WorldItem> items, bool newer)
    {
        if (newer) {
            test::WriteNewerWorld(server_.Path(), 0, 0, items);
        } else {
            test::WriteOlderWorld(server_.Path(), items);
        }
        test::RecordingOutlet outlet;
        ASSERT_TRUE(LoadWorld(*database_, outlet, newer ? core::Generation09 : core::Generation070,
                              server_.ProgramPath() + "\\zarn.exe"));
    }

    void Extract(int world, int instance)
    {
        const ExtractionState state{.txtX = core::ToText(Left),
                                    .txtY = core::ToText(Top),
                                    .txtZ = core::ToText(Lowest),
                                    .txtX2 = core::ToText(Left + Reach),
                                    .txtY2 = core::ToText(Top + Reach),
                                    .txtZ2 = core::ToText(Highest),
                                    .txtWorld = core::ToText(world),
                                    .txtInstance = core::ToText(instance),
                                    .txtName = "House",
                                    .txtDescription = "as it was"};
        test::RecordingOutlet outlet;
        WriteOptimizedTemplate(state, program_.ProgramPath(), *database_, outlet);
    }

    /// Builds the extracted template in an empty world and gives the tiles that stand there.
    Tiles Rebuild(core::ServerGeneration generation)
    {
        PracticeOutlet outlet;
        BuildTemplate(
            program_.ProgramPath() + "\\Templates\\House.tmp",
            {core::ToText(SiteX), core::ToText(SiteY), core::ToText(SiteZ)}, generation, [] { return true; }, outlet);
        EXPECT_EQ(outlet.Lines(), std::vector<std::string>{});
        auto tiles = outlet.Standing();
        EXPECT_EQ(outlet.session.GetWorld().Count(), tiles.size()) << "some stand elsewhere";
        return tiles;
    }

    test::TempFolder          server_;
    test::TempFolder          program_;
    std::unique_ptr<Database> database_;
};

TEST_P(RoundTrip, RebuildsTheBuildingTileForTile)
{
    Random     random(GetParam());
    const auto building = RandomBuilding(random);
    const bool newer = GetParam() % 2 == 0;
    // The older layout has no place for world and instance.
    const auto world = static_cast<std::int16_t>(newer ? 2 : 0);
    const auto instance = static_cast<std::int16_t>(newer ? 5 : 0);

    auto items = AsItems(building, world, instance);
    // Things twice at one place, and what is not to come along: the neighbours, and other worlds and instances.
    items.push_back(items.front());
    for (const auto& [x, y, z] : {std::tuple{Left - 1, Top, 0}, {Left, Top + Reach + 1, 0}, {Left, Top, Highest + 1}}) {
        const auto beside = AsItems({{x, y, z, 0x1D}}, world, instance);
        items.insert(items.end(), beside.begin(), beside.end());
    }
    if (newer) {
        for (const auto& elsewhere :
             {AsItems({{Left, Top, 0, 0x1D}}, 1, instance), AsItems({{Left, Top, 0, 0x1D}}, world, 0)}) {
            items.insert(items.end(), elsewhere.begin(), elsewhere.end());
        }
    }
    for (std::size_t index = 0; index < items.size(); ++index) {
        items[index].serial = static_cast<std::int32_t>(index) + 1;
    }

    Load(items, newer);
    Extract(world, instance);
    EXPECT_EQ(ListTemplates(program_.ProgramPath() + "\\Templates"),
              (std::vector<TemplateEntry>{{"House", "House.tmp"}}));
    EXPECT_EQ(Rebuild(core::Generation070), Moved(building));
    EXPECT_EQ(Rebuild(core::Generation09), Moved(building));
}

INSTANTIATE_TEST_SUITE_P(Seeds, RoundTrip, testing::Range<std::uint32_t>(1, 41));

} // namespace
} // namespace qf::world
