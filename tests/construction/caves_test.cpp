#include "construction/caves.h"

#include <gtest/gtest.h>

#include "construction/coastlines.h"
#include "construction/landscapes.h"
#include "support/recording_outlet.h"

namespace qf::construction {
namespace {

using core::Generation070;
using core::Generation09;
using Lines = std::vector<std::string>;

/// A generator that notes in which order it is seeded and drawn from.
class NotedUniform final : public core::UniformGenerator {
  public:
    explicit NotedUniform(std::vector<double> draws) : draws_(std::move(draws)) {}

    double Next() override
    {
        const auto place = drawn_++;
        notes_ += 'd';
        return place < draws_.size() ? draws_[place] : 0.0;
    }
    void SeedFromClock() override { notes_ += 's'; }

    const std::string& Notes() const { return notes_; }

  private:
    std::vector<double> draws_;
    std::size_t         drawn_ = 0;
    std::string         notes_;
};

CavesState Cave(int tab, int type, int method, core::ServerGeneration tableForm = Generation09)
{
    CavesState state;
    state.tab = tab;
    state.type = type;
    state.method = method;
    state.area = {"1", "2", "3", "4", "99"};
    state.custom = "-5";
    state.tableForm = tableForm;
    return state;
}

Lines Add(const CavesState& state, std::vector<double> draws = {}, core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    NotedUniform          uniform(std::move(draws));
    AddCave(state, generation, uniform, outlet);
    return outlet.Lines();
}

TEST(Caves, EveryPressSeedsAndDrawsFourNumbersWhateverIsSelected)
{
    for (int tab = CaveFloors; tab <= CaveMisc; ++tab) {
        for (int type = -1; type < static_cast<int>(CaveRows(tab).size()); ++type) {
            for (const int method : {RandomPointAndClick, RandomCoordinates, RandomSingleItem}) {
                test::RecordingOutlet outlet;
                NotedUniform          uniform({});
                AddCave(Cave(tab, type, method), Generation09, uniform, outlet);
                EXPECT_EQ(uniform.Notes(), "sdddd");
                EXPECT_EQ(outlet.Commands().size(), 1U);
            }
        }
    }
    test::RecordingOutlet outlet;
    NotedUniform          uniform({});
    AddCave(Cave(CaveFloors, 0, -1), Generation09, uniform, outlet);
    EXPECT_EQ(uniform.Notes(), "");
    EXPECT_EQ(outlet.Lines(), Lines{"box 64 [Dobrin's Quernfield 20250 ] Please select an add method!"});
}

TEST(Caves, EachRandomRowUsesTheDrawOfItsCount)
{
    // The draws come as those up to 3, 5, 6 and 4.
    const std::vector<double> draws{0.4, 0.7, 0.9, 0.3};
    EXPECT_EQ(Add(Cave(CaveFloors, 0, RandomPointAndClick), draws), Lines{"send tile 0x053e"});
    EXPECT_EQ(Add(Cave(CaveFloors, 2, RandomPointAndClick), draws), Lines{"send tile 0x0542"});
    EXPECT_EQ(Add(Cave(CaveWalls, 0, RandomPointAndClick), draws), Lines{"send tile 0x026a"});
    EXPECT_EQ(Add(Cave(CaveWalls, 4, RandomPointAndClick), draws), Lines{"send tile 0x026f"});
    EXPECT_EQ(Add(Cave(CaveWalls, 9, RandomPointAndClick), draws), Lines{"send tile 0x0271"});
}

TEST(Caves, EveryValueOfADrawPicksItsTile)
{
    for (int tab = CaveFloors; tab <= CaveMisc; ++tab) {
        const auto rows = CaveRows(tab);
        for (std::size_t type = 0; type < rows.size(); ++type) {
            for (int pick = 1; pick <= rows[type].Count(); ++pick) {
                const CaveDraws draws{pick, pick, pick, pick};
                const auto      digits = std::string(rows[type].tiles[static_cast<std::size_t>(pick - 1)]);
                const auto      blank = rows[type].blankIn09 ? digits.substr(0, 2) + " " + digits.substr(2) : digits;
                EXPECT_EQ(CaveTileId(tab, static_cast<int>(type), draws, Generation09), "0x" + blank);
                EXPECT_EQ(CaveTileId(tab, static_cast<int>(type), draws, Generation070),
                          tab == CaveMisc ? "" : digits.substr(0, 2) + " " + digits.substr(2));
            }
        }
    }
}

TEST(Caves, TheSouthEastCornerKeepsItsBlank)
{
    EXPECT_EQ(Add(Cave(CaveFloors, 1, RandomCoordinates)), Lines{"send tile 0x05 40 1 3 2 4 -5"});
    EXPECT_EQ(Add(Cave(CaveFloors, 1, RandomCoordinates, Generation070), {}, Generation070),
              Lines{"send tilew 05 40 1 3 2 4 -5"});
    EXPECT_EQ(ShownCaveTile(CaveFloors, 1), 0x0540);
}

TEST(Caves, NothingSelectedCountsAsTheFirst)
{
    EXPECT_EQ(Add(Cave(CaveDirt, -1, RandomSingleItem)), Lines{"send add 0x040b"});
    auto repeated = Cave(CaveDirt, -1, RandomSingleItem, Generation070);
    repeated.repeat = true;
    EXPECT_EQ(Add(repeated, {}, Generation070), Lines{"send radd 04 0b"});
}

TEST(Caves, ABoxThatHoldsNoNumberIsTold)
{
    auto state = Cave(CaveFloors, 0, RandomCoordinates);
    state.custom = "";
    EXPECT_EQ(Add(state),
              Lines{"box 64 [Dobrin's Quernfield 20250 ] Please provide a valid location, including height!"});
}

CoastlinesState Coast(CoastKind kind, int type, int method, core::ServerGeneration tableForm = Generation09)
{
    CoastlinesState state;
    state.kind = kind;
    state.type = type;
    state.method = method;
    state.area = {"1", "2", "3", "4", "-5"};
    state.tableForm = tableForm;
    return state;
}

std::string AddOne(const CoastlinesState& state, std::vector<double> draws, const std::string& notes,
                   core::ServerGeneration generation = Generation09)
{
    test::RecordingOutlet outlet;
    NotedUniform          uniform(std::move(draws));
    AddCoast(state, generation, uniform, outlet);
    EXPECT_EQ(uniform.Notes(), notes);
    return outlet.Lines().at(0);
}

TEST(Coastlines, EveryPressSeedsAndDrawsTwoNumbersThenWhatTheRowAsksFor)
{
    using enum CoastKind;
    // The draws come as those up to 2 and up to 6, then a fresh one.
    EXPECT_EQ(AddOne(Coast(Water, 0, RandomCoordinates), {0.9, 0.5}, "sdd"), "send tile 0x179a 1 3 2 4 -5");
    EXPECT_EQ(AddOne(Coast(Water, 1, RandomPointAndClick), {0.9, 0.5}, "sdd"), "send tile 0x179e");
    EXPECT_EQ(AddOne(Coast(Water, 12, RandomSingleItem), {0.9, 0.5}, "sdd"), "send add 0x17ab");
    EXPECT_EQ(AddOne(Coast(Water, -1, RandomSingleItem), {0.9, 0.0}, "sdd"), "send add 0x1797");
    EXPECT_EQ(AddOne(Coast(Plants, 1, RandomSingleItem), {}, "sdd"), "send add 0x0d05");
    EXPECT_EQ(AddOne(Coast(Plants, 4, RandomSingleItem), {0, 0, 0.5}, "sddd"), "send add 0x0dbb");
    EXPECT_EQ(AddOne(Coast(Plants, 2, RandomSingleItem), {0, 0, 0.99}, "sddd"), "send add 0x0dc1");
}

TEST(Coastlines, EveryValueOfADrawPicksItsTile)
{
    const char* const northSouth[] = {"0dbc", "0dbc", "0dbd", "0dbd", "0dbe", "0dbe", "0dc1", "0dc1", "0dc1"};
    const char* const eastWest[] = {"0d09", "0d09", "0d0a", "0d0a", "0d0b", "0d0b", "0d06", "0d07", "0d08"};
    for (int draw = 0; draw < 9; ++draw) {
        const double value = (draw + 0.5) / 9;
        EXPECT_EQ(AddOne(Coast(CoastKind::Plants, 2, RandomSingleItem), {0, 0, value}, "sddd"),
                  "send add 0x" + std::string(northSouth[draw]));
        EXPECT_EQ(AddOne(Coast(CoastKind::Plants, 3, RandomSingleItem), {0, 0, value}, "sddd"),
                  "send add 0x" + std::string(eastWest[draw]));
    }
    for (int draw = 0; draw < 6; ++draw) {
        EXPECT_EQ(AddOne(Coast(CoastKind::Water, 0, RandomSingleItem), {0, (draw + 0.5) / 6}, "sdd"),
                  "send add 0x" + std::string(WaterRows()[0].tiles[static_cast<std::size_t>(draw)]));
    }
}

TEST(Coastlines, PlantsAreWaterTilesInTheOlderDialect)
{
    EXPECT_EQ(AddOne(Coast(CoastKind::Plants, 4, RandomCoordinates, Generation070), {0.5, 0}, "sdd", Generation070),
              "send tilew 17 a2 1 3 2 4 -5");
    EXPECT_EQ(AddOne(Coast(CoastKind::Plants, 0, RandomPointAndClick, Generation070), {0, 0.99}, "sdd", Generation070),
              "send tile 17 9c");
}

TEST(Coastlines, PieceButtonsSayAddAndPlantsKeepTheNewerForm)
{
    const auto piece = [](CoastKind kind, int type, core::ServerGeneration form, const std::string& notes) {
        test::RecordingOutlet outlet;
        NotedUniform          uniform({});
        AddCoastPiece(kind, type, form, uniform, outlet);
        EXPECT_EQ(uniform.Notes(), notes);
        return outlet.Lines().at(0);
    };
    EXPECT_EQ(piece(CoastKind::Water, 3, Generation09, "sdd"), "send add 0x179f");
    EXPECT_EQ(piece(CoastKind::Water, 3, Generation070, "sdd"), "send add 17 9f");
    EXPECT_EQ(piece(CoastKind::Plants, 0, Generation070, "sdd"), "send add 0x0d04");
    EXPECT_EQ(piece(CoastKind::Plants, 4, Generation070, "sddd"), "send add 0x0dba");
}

TEST(Landscapes, WaterIsTheGroundOfNoSelection)
{
    LandscapesState state;
    state.tableForm = Generation070;
    state.area = {"100", "200", "110", "210", "-5"};
    const auto lines = [&](core::ServerGeneration generation) {
        test::RecordingOutlet outlet;
        AddLandscape(state, generation, outlet);
        return outlet.Lines();
    };
    EXPECT_EQ(lines(Generation070), Lines{"box 64 [Dobrin's Quernfield 20250 ] Please select an add method!"});
    state.method = LandscapePointAndClick;
    EXPECT_EQ(lines(Generation070), Lines{"send tile 17 99"});
    state.method = LandscapeCoordinates;
    EXPECT_EQ(lines(Generation070), Lines{"send tilew 17 99 100 110 200 210 -5"});
    state.type = 9;
    state.tableForm = Generation09;
    EXPECT_EQ(lines(Generation09), Lines{"send tile 0x0516 100 110 200 210 -5"});
    state.area.currentHeight = "N/A";
    EXPECT_EQ(lines(Generation09),
              Lines{"box 64 [Dobrin's Quernfield 20250 ] Please provide a valid location, including height!"});
    test::RecordingOutlet outlet;
    AddLandscapePiece(state, 1, Generation09, outlet);
    state.tableForm = Generation070;
    AddLandscapePiece(state, 1, Generation070, outlet);
    EXPECT_EQ(outlet.Lines(), (Lines{"send radd 0x177f", "send add 17 7f"}));
}

} // namespace
} // namespace qf::construction
