#include "gamedata/explorer_layout.h"

#include <gtest/gtest.h>

namespace qf::gamedata {
namespace {

TEST(InitialPlaces, StandAtGapsOfEight)
{
    const auto places = InitialPlaces(595);
    ASSERT_EQ(places.size(), 101U);
    EXPECT_EQ(places[0], (CellPlace{8, 8}));
    EXPECT_EQ(places[1], (CellPlace{91, 8}));
    EXPECT_EQ(places[6], (CellPlace{506, 8}));
    EXPECT_EQ(places[7], (CellPlace{8, 91}));
    EXPECT_EQ(places[100], (CellPlace{174, 1170}));
}

TEST(InitialPlaces, BeginARowWhereACellWouldTouchTheEdge)
{
    // The second cell reaches from 91 to 166.
    EXPECT_EQ(InitialPlaces(166)[1], (CellPlace{8, 91}));
    EXPECT_EQ(InitialPlaces(167)[1], (CellPlace{91, 8}));
}

TEST(InitialPlaces, AreOneColumnInANarrowViewport)
{
    EXPECT_EQ(InitialPlaces(0).back(), (CellPlace{8, 8 + 100 * 83}));
}

TEST(PlaceOfNewCell, StandsAtAGapOfFive)
{
    EXPECT_EQ(PlaceOfNewCell({174, 1170}, 8, 620), (CellPlace{254, 1170}));
}

TEST(PlaceOfNewCell, BeginsARowByTheWidthOfThePanel)
{
    // 485 + 40 + 75 is 600, and a panel of 625 has exactly that left.
    EXPECT_EQ(PlaceOfNewCell({485, 100}, 8, 625), (CellPlace{565, 100}));
    EXPECT_EQ(PlaceOfNewCell({485, 100}, 8, 624), (CellPlace{8, 180}));
}

TEST(PlacesAfterResize, StandAtGapsOfEight)
{
    const auto places = PlacesAfterResize(8, 575);
    ASSERT_EQ(places.size(), 8U);
    EXPECT_EQ(places[5], (CellPlace{423, 8}));
    EXPECT_EQ(places[6], (CellPlace{8, 91}));
}

TEST(PlacesAfterResize, LeaveFivePixelsAtTheEdge)
{
    EXPECT_EQ(PlacesAfterResize(2, 170)[1], (CellPlace{8, 91}));
    EXPECT_EQ(PlacesAfterResize(2, 171)[1], (CellPlace{91, 8}));
}

TEST(PlacesAfterResize, PlaceTheFirstCellOfAnEmptyList)
{
    EXPECT_EQ(PlacesAfterResize(0, 575), (std::vector<CellPlace>{{8, 8}}));
}

TEST(GridHeight, EndsTwentyBelowTheLastCell)
{
    EXPECT_EQ(InitialGridHeight({8, 1170}), 1265);
    EXPECT_EQ(GridHeight({8, 1170}, 420), 1265);
}

TEST(GridHeight, IsAtLeastTheViewports)
{
    EXPECT_EQ(GridHeight({8, 8}, 420), 420);
    EXPECT_EQ(GridHeight({8, 325}, 420), 420);
    EXPECT_EQ(GridHeight({8, 326}, 420), 421);
}

TEST(ScrollMaximum, IsWhatTheViewportHides)
{
    EXPECT_EQ(ScrollMaximum(1265, 420), 845);
    EXPECT_EQ(ScrollMaximum(420, 420), 0);
    EXPECT_EQ(ScrollMaximum(100, 420), 0);
}

TEST(ScrolledByNotch, StaysWithinTheBounds)
{
    EXPECT_EQ(ScrolledByNotch(100, false, 80, 845), 180);
    EXPECT_EQ(ScrolledByNotch(100, true, 80, 845), 20);
    EXPECT_EQ(ScrolledByNotch(20, true, 80, 845), 0);
    EXPECT_EQ(ScrolledByNotch(800, false, 80, 845), 845);
    EXPECT_EQ(ScrolledByNotch(0, false, 80, 0), 0);
}

TEST(ScrolledToCell, MovesNoFurtherThanNeeded)
{
    EXPECT_EQ(ScrolledToCell(0, {8, 91}, 420), 0);
    EXPECT_EQ(ScrolledToCell(500, {8, 91}, 420), 83);
    EXPECT_EQ(ScrolledToCell(0, {8, 506}, 420), 169);
}

TEST(ScrolledToCell, ShowsTheUpperEdgeInALowViewport)
{
    EXPECT_EQ(ScrolledToCell(0, {8, 506}, 40), 498);
}

class NeighbourOnAGrid : public testing::Test {
  protected:
    std::vector<CellPlace> places_ = PlacesAfterResize(8, 259); // rows of three, the last one of two
};

TEST_F(NeighbourOnAGrid, FollowsTheListSideways)
{
    EXPECT_EQ(Neighbour(places_, 2, Step::Right), 3);
    EXPECT_EQ(Neighbour(places_, 3, Step::Left), 2);
    EXPECT_EQ(Neighbour(places_, 0, Step::Left), std::nullopt);
    EXPECT_EQ(Neighbour(places_, 7, Step::Right), std::nullopt);
}

TEST_F(NeighbourOnAGrid, IsTheNearestOfTheNextRow)
{
    EXPECT_EQ(Neighbour(places_, 1, Step::Down), 4);
    EXPECT_EQ(Neighbour(places_, 5, Step::Down), 7);
    EXPECT_EQ(Neighbour(places_, 7, Step::Up), 4);
    EXPECT_EQ(Neighbour(places_, 1, Step::Up), std::nullopt);
    EXPECT_EQ(Neighbour(places_, 6, Step::Down), std::nullopt);
}

TEST(PlaceControls, FollowsTheTable)
{
    const auto places = PlaceControls(600, 500, {.scrollBar = 17, .wipe = 45, .remove = 90});
    EXPECT_EQ(places.viewportWidth, 575);
    EXPECT_EQ(places.viewportHeight, 400);
    EXPECT_EQ(places.scrollBarLeft, 578);
    EXPECT_EQ(places.exitLeft, 540);
    EXPECT_EQ(places.wipeLeft, 490);
    EXPECT_EQ(places.removeLeft, 395);
    EXPECT_EQ(places.modelRowTop, 469);
    EXPECT_EQ(places.statusTextTop, 463);
    EXPECT_EQ(places.progressTop, 478);
}

} // namespace
} // namespace qf::gamedata
