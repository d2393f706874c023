#include <gtest/gtest.h>

#include <string>

#include "practice/session.h"
#include "tiles_at.h"

namespace qf::practice {

namespace {

const std::string& LastText(const Session& session)
{
    return session.Entries().back().text;
}

TEST(PracticeSession, ObeysWhatBeginsWithThePrefix)
{
    Session session("'");
    session.Receive("tile 0x04a9 10 12 10 12 0");
    EXPECT_EQ(session.GetWorld().Count(), 0U);
    EXPECT_EQ(session.Entries().back().kind, ChatEntry::Kind::Speech);
    session.Receive("'tile 0x04a9 10 12 10 12 0");
    EXPECT_EQ(session.GetWorld().Count(), 9U);
    EXPECT_EQ(session.Entries().back().kind, ChatEntry::Kind::Command);
    session.Receive("'allmove on");
    EXPECT_EQ(session.Entries().back().kind, ChatEntry::Kind::Speech);
    EXPECT_EQ(LastText(session), "'allmove on");
    EXPECT_EQ(session.LinesReceived(), 3U);
}

TEST(PracticeSession, TakesAnEmptyOrALongPrefix)
{
    Session bare("");
    bare.Receive("go 1 2 3");
    EXPECT_EQ(bare.Player(), (Position{1, 2, 3}));
    Session dotted("[.");
    dotted.Receive("[.go 4 5 6");
    EXPECT_EQ(dotted.Player(), (Position{4, 5, 6}));
}

TEST(PracticeSession, GoesAndTellsWhere)
{
    Session session("'");
    EXPECT_EQ(session.Player(), (Position{1000, 1000, 0}));
    session.Receive("'go 1234 567 -8");
    EXPECT_EQ(session.Player(), (Position{1234, 567, -8}));
    session.Receive("'where");
    EXPECT_EQ(LastText(session), "You are at 1234 567 -8.");
    session.Receive("'go 99999 1 1");
    EXPECT_EQ(session.Player(), (Position{1234, 567, -8}));
    EXPECT_EQ(session.Entries().back().kind, ChatEntry::Kind::Answer);
}

TEST(PracticeSession, SaysWhyAnAreaWasNotLaid)
{
    Session session("'");
    session.Receive("'tile  1 2 3 4 5");
    EXPECT_NE(LastText(session).find("needs a tile number"), std::string::npos);
    session.Receive("'tile 0x0001 1 1 1 1 128");
    EXPECT_EQ(LastText(session), "Z must be from -128 to 127.");
    session.Receive("'tile 0x0001 -9 -1 1 1 0");
    EXPECT_EQ(LastText(session), "The box is not on the map.");
    EXPECT_EQ(session.GetWorld().Count(), 0U);
    session.Receive("'tile 0x0001 0 7167 0 4095 0");
    EXPECT_NE(LastText(session).find("too large"), std::string::npos);
    EXPECT_EQ(session.GetWorld().Count(), World::MostTilesPerArea);
}

TEST(PracticeSession, LaysATileWhereItIsClicked)
{
    Session session("'");
    session.Receive("'add 04 a9");
    EXPECT_FALSE(session.Hint().empty());
    session.Click({{5, 6, 20}, std::nullopt});
    EXPECT_EQ(TilesAt(session.GetWorld(), 5, 6), (std::vector<Tile>{{{5, 6, 20}, 0x04A9}}));
    EXPECT_TRUE(session.Hint().empty());
    session.Click({{7, 7, 0}, std::nullopt});
    EXPECT_EQ(session.GetWorld().Count(), 1U);
}

TEST(PracticeSession, RepeatsUntilItIsCancelled)
{
    Session session("'");
    session.Receive("'radd 0x04a9");
    session.Click({{5, 6, 0}, std::nullopt});
    session.Click({{6, 6, 0}, std::nullopt});
    session.Cancel();
    session.Click({{7, 6, 0}, std::nullopt});
    EXPECT_EQ(session.GetWorld().Count(), 2U);
}

TEST(PracticeSession, FillsBetweenTwoClicks)
{
    Session session("'");
    session.Receive("'tile 0x04a9");
    session.Click({{8, 9, 5}, std::nullopt});
    EXPECT_EQ(session.FirstCorner(), (Position{8, 9, 5}));
    session.Click({{5, 5, 0}, std::nullopt});
    EXPECT_EQ(session.GetWorld().Count(), 20U);
    EXPECT_EQ(TilesAt(session.GetWorld(), 5, 5), (std::vector<Tile>{{{5, 5, 5}, 0x04A9}}));
    EXPECT_EQ(session.Waiting().has_value(), false);
}

TEST(PracticeSession, ANewCommandReplacesTheOneThatWaits)
{
    Session session("'");
    session.Receive("'tile 0x04a9");
    session.Click({{8, 9, 5}, std::nullopt});
    session.Receive("'add 0x0001");
    session.Click({{1, 1, 0}, std::nullopt});
    EXPECT_EQ(session.GetWorld().Count(), 1U);
    EXPECT_EQ(TilesAt(session.GetWorld(), 1, 1), (std::vector<Tile>{{{1, 1, 0}, 1}}));
}

TEST(PracticeSession, RemovesTheTileThatIsClicked)
{
    Session session("'");
    session.Receive("'tile 0x04a9 5 6 5 5 0");
    session.Receive("'remove");
    session.Click({{5, 5, 0}, Tile{{5, 5, 0}, 0x04A9}});
    EXPECT_EQ(session.GetWorld().Count(), 1U);
    session.Receive("'rremove");
    session.Click({{9, 9, 0}, std::nullopt});
    EXPECT_EQ(LastText(session), "There is no tile to remove.");
    session.Click({{6, 5, 0}, Tile{{6, 5, 0}, 0x04A9}});
    EXPECT_EQ(session.GetWorld().Count(), 0U);
    EXPECT_TRUE(session.Waiting().has_value());
}

TEST(PracticeSession, WipesByCoordinatesAndByClicks)
{
    Session session("'");
    session.Receive("'tile 0x04a9 1 10 1 10 0");
    session.Receive("'wipe 1 1 10 5");
    EXPECT_EQ(LastText(session), "50 tiles wiped.");
    session.Receive("'iwipe 1 6 10 9");
    EXPECT_EQ(LastText(session), "10 tiles wiped.");
    session.Receive("'wipe");
    session.Click({{1, 6, 0}, std::nullopt});
    session.Click({{1, 6, 0}, std::nullopt});
    EXPECT_EQ(LastText(session), "1 tile wiped.");
    session.Receive("'iwipe");
    session.Click({{5, 6, 0}, std::nullopt});
    session.Click({{10, 9, 0}, std::nullopt});
    EXPECT_EQ(session.GetWorld().Count(), 24U);
    session.Receive("'wipe all");
    EXPECT_EQ(session.GetWorld().Count(), 0U);
}

TEST(PracticeSession, KeepsOnlyTheLastLines)
{
    Session session("'");
    for (int i = 0; i < 1000; ++i) {
        session.Receive("line " + std::to_string(i));
    }
    EXPECT_EQ(session.Entries().size(), Session::MostEntries);
    EXPECT_EQ(LastText(session), "line 999");
}

} // namespace

} // namespace qf::practice
