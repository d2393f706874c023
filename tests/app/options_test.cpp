#include "app/options.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/expect_error.h"
#include "support/memory_store.h"
#include "support/recording_outlet.h"

namespace qf::app {
namespace {

using Lines = std::vector<std::string>;

constexpr auto Success = "box 0 Calibration Successful!";

TEST(WithBackslash, IsAddedOnceAndToAnEmptyPathToo)
{
    EXPECT_EQ(WithBackslash(R"(C:\UO)"), R"(C:\UO\)");
    EXPECT_EQ(WithBackslash(R"(C:\UO\)"), R"(C:\UO\)");
    EXPECT_EQ(WithBackslash(""), R"(\)");
}

TEST(ChosenGeneration, HigherIndexWinsAndTheOlderIsTheDefault)
{
    EXPECT_EQ(ChosenGeneration({false, false}).Number(), 0);
    EXPECT_EQ(ChosenGeneration({true, false}).Number(), 0);
    EXPECT_EQ(ChosenGeneration({false, true}).Number(), 1);
    EXPECT_EQ(ChosenGeneration({true, true}).Number(), 1);
}

TEST(SaveOptions, WritesEveryKeyInItsOrder)
{
    test::MemoryStore      store;
    core::Settings         settings;
    core::ServerGeneration generation(7);
    const OptionsState     state{.pathUO = "\\uo\\",
                                 .pathZarn = "\\srv\\zarn.exe",
                                 .pathInsideUO = "\\tool\\",
                                 .pathUOG = "\\uo\\razor.exe",
                                 .commandPrefix = ".",
                                 .itemPics = 1,
                                 .stayOnTop = 0,
                                 .useTD = 2,
                                 .useClassicUO = 0,
                                 .useVista = 1,
                                 .zarnVer = {false, true}};
    SaveOptions(state, settings, generation, store);
    EXPECT_EQ(store.log, (Lines{"Configuration UOPath=\\uo\\", "Configuration ZarnPath=\\srv\\zarn.exe",
                                "Configuration IUOPath=\\tool\\", "Configuration UOGPath=\\uo\\razor.exe",
                                "Configuration ItemPic=1", "Configuration StayOnTop=0", "Configuration CommandPrefix=.",
                                "Configuration UsingThirdDawn=2", "Configuration UsingClassicUO=0",
                                "Configuration UsingVista=1", "Configuration ZarnVer=1"}));
    EXPECT_EQ(settings.UOPath, "\\uo\\");
    EXPECT_EQ(settings.ZarnPath, "\\srv\\zarn.exe");
    EXPECT_EQ(settings.IUOPath, "\\tool\\");
    EXPECT_EQ(settings.UOGPath, "\\uo\\razor.exe");
    EXPECT_EQ(settings.CommandPrefix, ".");
    EXPECT_TRUE(settings.ItemPic);
    EXPECT_FALSE(settings.StayOnTop);
    EXPECT_TRUE(settings.UsingThirdDawn);
    EXPECT_FALSE(settings.UsingClassicUO);
    EXPECT_TRUE(settings.UsingVista);
    EXPECT_EQ(generation.Number(), 1);
}

/// A search that gives one answer and remembers what it was asked for.
struct Search {
    std::int32_t answer;
    Lines*       asked;

    std::int32_t operator()(std::int32_t x, std::int32_t y, std::int32_t z) const
    {
        asked->push_back(std::to_string(x) + ' ' + std::to_string(y) + ' ' + std::to_string(z));
        return answer;
    }
};

struct Outcome {
    bool         usingClassicUO;
    std::int32_t answer;
    std::int32_t stored;
    const char*  box;
};

TEST(Calibrate, StoresAndTellsWhatTheSearchGave)
{
    constexpr auto NotFound =
        "box 0 Calibration was not successful! Make sure you enter your current ingame coordinates.";
    constexpr auto NoAssist =
        "box 0 Calibration was not successful! Unable to get coordinates from ClassicUO assist API.";
    const Outcome outcomes[] = {
        {false, 0x400123, 0x400123, Success},
        {false, 0, 0, NotFound},
        {false, -1, -1, Success},
        {true, 567 << 16 | 1234, 7000, Success},
        {true, 567 << 16, 567 << 16, NoAssist},
        {true, 0, 0, NoAssist},
        {true, -1, 7000, Success},
        {true, 0x400000, 0x400000, NoAssist},
    };
    for (const auto& outcome : outcomes) {
        test::RecordingOutlet outlet;
        Lines                 asked;
        EXPECT_EQ(Calibrate({"1000", " 2000 ", "-5"}, outcome.usingClassicUO, Search{outcome.answer, &asked}, outlet),
                  outcome.stored);
        EXPECT_EQ(outlet.Lines(), Lines{outcome.box});
        EXPECT_EQ(asked, Lines{outcome.usingClassicUO ? "0 0 0" : "1000 2000 -5"});
    }
}

TEST(Calibrate, PlaceThatIsNoNumberIsAnErrorAndNothingIsSearched)
{
    for (const char* text : {"abc", "1,5x", " ", "--1"}) {
        test::RecordingOutlet outlet;
        Lines                 asked;
        EXPECT_RUNTIME_ERROR(13, Calibrate({"1", text, "1"}, false, Search{1, &asked}, outlet)) << text;
        EXPECT_TRUE(asked.empty());
        EXPECT_TRUE(outlet.Lines().empty());
    }
}

TEST(Calibrate, PlaceIsNotLookedAtWithClassicUO)
{
    test::RecordingOutlet outlet;
    Lines                 asked;
    EXPECT_EQ(Calibrate({"abc", "", ""}, true, Search{5, &asked}, outlet), 7000);
}

} // namespace
} // namespace qf::app
