#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/message.h"
#include "core/runtime_error.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"
#include "support/scripted_uniform.h"
#include "support/temp_folder.h"

namespace qf::test {
namespace {

using Lines = std::vector<std::string>;

void SendForever(core::Outlet& outlet)
{
    for (int i = 0;; ++i) {
        outlet.Send("go " + std::to_string(i));
    }
}

TEST(RecordingOutlet, KeepsEverythingInOrder)
{
    RecordingOutlet outlet;
    outlet.Answer(false);
    outlet.Send("where");
    outlet.Show(core::PlainBox("Hello"));
    EXPECT_FALSE(outlet.Ask(core::QuestionBox("Sure?")));
    EXPECT_TRUE(outlet.Ask(core::QuestionBox("Really?")));
    outlet.Send("typed", false);
    EXPECT_EQ(outlet.Lines(), (Lines{"send where", "box 0 Hello", "ask 4 [Dobrin's Quernfield 20250 ] Sure? = no",
                                     "ask 4 [Dobrin's Quernfield 20250 ] Really? = yes", "plain typed"}));
    EXPECT_EQ(outlet.Commands(), (Lines{"where", "typed"}));
    EXPECT_EQ(outlet.Messages().size(), 3U);
    outlet.Clear();
    EXPECT_TRUE(outlet.Entries().empty());
}

TEST(RecordingOutlet, StopsARunBeyondItsLimit)
{
    RecordingOutlet outlet(3);
    EXPECT_THROW(SendForever(outlet), LimitReached);
    EXPECT_EQ(outlet.Commands(), (Lines{"go 0", "go 1", "go 2"}));
    EXPECT_THROW(outlet.Show(core::PlainBox("")), LimitReached);
    EXPECT_THROW(outlet.Ask(core::PlainBox("")), LimitReached);
}

TEST(RecordingOutlet, TakesJustAsManyAsItsLimit)
{
    RecordingOutlet outlet(1);
    EXPECT_NO_THROW(outlet.Send("a"));
}

TEST(CountingOutlet, CountsAndStops)
{
    CountingOutlet outlet(5);
    outlet.Show(core::PlainBox(""));
    EXPECT_TRUE(outlet.Ask(core::PlainBox("")));
    EXPECT_THROW(SendForever(outlet), LimitReached);
    EXPECT_EQ(outlet.Commands(), 3U);
    EXPECT_EQ(outlet.Messages(), 2U);
}

TEST(Collect, GivesTheCommandsAlone)
{
    const auto run = [](core::Outlet& outlet) {
        outlet.Send("a");
        outlet.Show(core::PlainBox("between"));
        outlet.Send("b", false);
    };
    EXPECT_EQ(Collect(run), (Lines{"a", "b"}));
    EXPECT_EQ(CollectFirst(1, run), (Lines{"a"}));
    EXPECT_EQ(CollectFirst(9, run), (Lines{"a", "b"}));
    EXPECT_EQ(CollectFirst(2, SendForever), (Lines{"go 0", "go 1"}));
    EXPECT_THROW(Collect(SendForever), LimitReached);
}

TEST(ScriptedUniform, GivesItsDrawsAndThenOneHalf)
{
    ScriptedUniform uniform{0.25, 0.75};
    uniform.Add(0.125);
    EXPECT_EQ(uniform.Next(), 0.25);
    uniform.SeedFromClock();
    EXPECT_EQ(uniform.Next(), 0.75);
    EXPECT_EQ(uniform.Next(), 0.125);
    EXPECT_EQ(uniform.Next(), 0.5);
    EXPECT_EQ(uniform.Drawn(), 4);
    EXPECT_EQ(uniform.Seedings(), 1);
}

TEST(TempFolder, IsRemovedWithAllItHolds)
{
    std::filesystem::path path;
    {
        const TempFolder folder;
        path = folder.Path();
        folder.Write("a/b.bin", std::string("\0\r\n\xFF", 4));
        EXPECT_EQ(folder.Read("a/b.bin"), std::string("\0\r\n\xFF", 4));
        EXPECT_TRUE(folder.Has("a"));
        EXPECT_FALSE(folder.Has("b"));
        EXPECT_TRUE(std::filesystem::is_directory(folder.MakeFolder("c/d")));
        EXPECT_THROW(folder.Read("missing"), std::runtime_error);
    }
    EXPECT_FALSE(std::filesystem::exists(path));
}

TEST(TempFolder, EachIsANewOne)
{
    const TempFolder first;
    const TempFolder second;
    EXPECT_NE(first.Path(), second.Path());
}

TEST(ErrorNumberOf, IsZeroWithoutAnError)
{
    EXPECT_EQ(ErrorNumberOf([] {}), 0);
    EXPECT_EQ(ErrorNumberOf([] { throw core::RuntimeError(9); }), 9);
    EXPECT_THROW(ErrorNumberOf([] { throw LimitReached(); }), LimitReached);
}

} // namespace
} // namespace qf::test
