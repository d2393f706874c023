#include "console/wipe.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::console {
namespace {

using Lines = std::vector<std::string>;

WipeState StateOf(std::string_view method, const std::array<std::string, 4>& corners = {"100", "100", "200", "200"})
{
    WipeState state;
    state.wmethod = method;
    state.x1 = corners[0];
    state.y1 = corners[1];
    state.x2 = corners[2];
    state.y2 = corners[3];
    return state;
}

Lines LinesOf(WipeState state)
{
    test::RecordingOutlet outlet;
    Wipe(state, outlet);
    return outlet.Lines();
}

const WipeOption& OptionOf(WipeMethod method)
{
    for (const auto& option : WipeOptions()) {
        if (option.method == method) {
            return option;
        }
    }
    throw std::out_of_range("no such option");
}

TEST(Wipe, NoMethodIsAMessage)
{
    EXPECT_EQ(LinesOf(StateOf("")), Lines{"box 0 You have to choose a method to Wipe with."});
}

TEST(Wipe, EveryMethodHasItsCommand)
{
    EXPECT_EQ(LinesOf(StateOf("1")), Lines{"send wipe"});
    EXPECT_EQ(LinesOf(StateOf("2")), Lines{"send wipe 100 100 200 200"});
    EXPECT_EQ(LinesOf(StateOf("3")), Lines{"send iwipe"});
    EXPECT_EQ(LinesOf(StateOf("4")), Lines{"send iwipe 100 100 200 200"});
    EXPECT_EQ(LinesOf(StateOf("5")), Lines{});
}

TEST(Wipe, CoordinatesGoOutInTheOrderXYXY)
{
    EXPECT_EQ(LinesOf(StateOf("2", {"1", "2", "3", "4"})), Lines{"send wipe 1 2 3 4"});
    EXPECT_EQ(LinesOf(StateOf("4", {"1", "2", "3", "4"})), Lines{"send iwipe 1 2 3 4"});
}

TEST(Wipe, EmptyBoxesGiveTheWordAndFourBlanks)
{
    EXPECT_EQ(LinesOf(StateOf("2", {})), Lines{"send wipe    "});
    EXPECT_EQ(LinesOf(StateOf("4", {})), Lines{"send iwipe    "});
}

TEST(Wipe, CornersAreComparedAsTexts)
{
    const Lines xSmaller{"box 0 Error: X2 is smaller than X1."};
    const Lines ySmaller{"box 0 Error: Y2 is smaller than Y1."};
    for (const std::string method : {"2", "4"}) {
        const auto word = method == "2" ? std::string("send wipe ") : std::string("send iwipe ");
        const auto lines = [&](const std::array<std::string, 4>& corners) { return LinesOf(StateOf(method, corners)); };
        EXPECT_EQ(lines({"999", "5", "1000", "5"}), xSmaller);
        EXPECT_EQ(lines({"1000", "5", "999", "5"}), Lines{word + "1000 5 999 5"});
        EXPECT_EQ(lines({"1000", "5", "200", "5"}), Lines{word + "1000 5 200 5"});
        EXPECT_EQ(lines({"5", "999", "5", "1000"}), ySmaller);
        EXPECT_EQ(lines({"5", "1000", "5", "999"}), Lines{word + "5 1000 5 999"});
        EXPECT_EQ(lines({"9", "9", "1", "1"}), xSmaller);
        EXPECT_EQ(lines({"7", "7", "7", "7"}), Lines{word + "7 7 7 7"});
        EXPECT_EQ(lines({"100", "1", "10", "1"}), xSmaller);
        EXPECT_EQ(lines({"1", "", "1", ""}), Lines{word + "1  1 "});
        EXPECT_EQ(lines({"1", "1", "", "1"}), xSmaller);
        EXPECT_EQ(lines({"1", "-1", "1", "1"}), Lines{word + "1 -1 1 1"});
        EXPECT_EQ(lines({"1", "1", "1", " 1"}), ySmaller);
    }
}

TEST(Wipe, TheComparisonGoesByBytes)
{
    EXPECT_EQ(LinesOf(StateOf("2", {"a", "1", "B", "1"})), Lines{"box 0 Error: X2 is smaller than X1."});
    EXPECT_EQ(LinesOf(StateOf("2", {"B", "1", "a", "1"})), Lines{"send wipe B 1 a 1"});
    EXPECT_EQ(LinesOf(StateOf("2", {"z", "1", "\xC3\xA9", "1"})), Lines{"send wipe z 1 \xC3\xA9 1"});
}

TEST(Wipe, AWipeByCoordinatesKeepsItsFirstCorner)
{
    for (const auto* method : {"2", "4"}) {
        auto                  state = StateOf(method, {"9", "8", "10", "80"});
        test::RecordingOutlet outlet;
        Wipe(state, outlet);
        EXPECT_EQ(outlet.Lines(), Lines{"box 0 Error: X2 is smaller than X1."});
        EXPECT_EQ(state.x1true, "9");
        EXPECT_EQ(state.y1true, "8");
    }
    for (const auto* method : {"", "1", "3", "5", "6"}) {
        auto                  state = StateOf(method);
        test::RecordingOutlet outlet;
        Wipe(state, outlet);
        EXPECT_EQ(state.x1true + state.y1true, "") << method;
    }
}

TEST(Wipe, OnlyTheMethodOfEverythingOpensTheConfirmation)
{
    for (const auto* method : {"", "1", "2", "3", "4", "5", "6"}) {
        auto                  state = StateOf(method);
        test::RecordingOutlet outlet;
        Wipe(state, outlet);
        EXPECT_EQ(state.confirming, method == std::string_view("5")) << method;
    }
}

TEST(Wipe, TheMethodIsComparedAsANumber)
{
    for (const auto* method : {"2", " 2 ", "2.0", "+2", "&H2", "20e-1"}) {
        EXPECT_EQ(LinesOf(StateOf(method)), Lines{"send wipe 100 100 200 200"}) << method;
    }
    for (const auto* method : {"0", "6", "-1", "2.4", "4.5", "1e300"}) {
        EXPECT_EQ(LinesOf(StateOf(method)), Lines{"send wipe"}) << method;
    }
    for (const auto* method : {"x", " ", "2x", "N/A"}) {
        EXPECT_RUNTIME_ERROR(core::error::TypeMismatch, LinesOf(StateOf(method))) << method;
    }
    EXPECT_RUNTIME_ERROR(core::error::Overflow, LinesOf(StateOf("1e999")));
}

TEST(Wipe, YesSendsWipeAll)
{
    test::RecordingOutlet outlet;
    SendWipeAll(outlet);
    SendWipeAll(outlet);
    EXPECT_EQ(outlet.Lines(), (Lines{"send wipe all", "send wipe all"}));
}

TEST(Wipe, AnOptionSetsTheMethodAndTheBoxes)
{
    for (const auto& option : WipeOptions()) {
        auto                  state = StateOf("9", {"1", "2", "3", "4"});
        test::RecordingOutlet outlet;
        ChooseWipeMethod(state, option, outlet);
        EXPECT_EQ(state.wmethod, std::to_string(option.method));
        EXPECT_EQ(state.takesCoordinates, option.takesCoordinates) << option.name;
        for (const auto& text : {state.x1, state.y1, state.x2, state.y2}) {
            EXPECT_EQ(text, option.takesCoordinates ? "" : "N/A") << option.name;
        }
    }
}

TEST(Wipe, OptionsWarnOfWhatReachesBeyondTheBox)
{
    const auto warnings = [](WipeMethod method) {
        WipeState             state;
        test::RecordingOutlet outlet;
        ChooseWipeMethod(state, OptionOf(method), outlet);
        return outlet.Lines();
    };
    const Lines outside{"box 0 WARNING! Using this option will wipe every item OUTSIDE the coordinates chosen!!"};
    EXPECT_EQ(warnings(WipeInsideByClicks), Lines{});
    EXPECT_EQ(warnings(WipeInsideByCoordinates), Lines{});
    EXPECT_EQ(warnings(WipeOutsideByClicks), outside);
    EXPECT_EQ(warnings(WipeOutsideByCoordinates), outside);
    EXPECT_EQ(warnings(WipeEverything),
              Lines{"box 0 WARNING! Using this option will wipe EVERY item in your worldfile!!!"});
}

TEST(Wipe, AnOptionThatWarnsIsChosenWhenTheWarningIsGone)
{
    /// Looks at the state while a box is open.
    class Watcher final : public test::RecordingOutlet {
      public:
        explicit Watcher(const WipeState& state) : state_(state) {}
        void Show(const core::Message& message) override
        {
            RecordingOutlet::Show(message);
            methodAtBox = state_.wmethod;
        }
        std::string methodAtBox;

      private:
        const WipeState& state_;
    };
    auto    state = StateOf("1");
    Watcher outlet(state);
    ChooseWipeMethod(state, OptionOf(WipeEverything), outlet);
    EXPECT_EQ(outlet.methodAtBox, "1");
    EXPECT_EQ(state.wmethod, "5");
}

TEST(Wipe, FiveOptionsFiveMethods)
{
    std::set<std::string_view> names;
    std::set<int>              methods;
    for (const auto& option : WipeOptions()) {
        names.insert(option.name);
        methods.insert(option.method);
    }
    EXPECT_EQ(names, (std::set<std::string_view>{"Option1", "Option2", "Option3", "Option4", "Option5"}));
    EXPECT_EQ(methods, (std::set<int>{1, 2, 3, 4, 5}));
}

} // namespace
} // namespace qf::console
