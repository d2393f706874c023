#include "client/delivery.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "client/platform/simulated/simulated_platform.h"
#include "core/ansi.h"
#include "core/product.h"
#include "support/expect_error.h"
#include "support/recording_outlet.h"

namespace qf::client {
namespace {

using Kind = PlatformCall::Kind;
using testing::ElementsAre;
using testing::IsEmpty;

class DeliveryTest : public testing::Test {
  protected:
    void Send(std::string_view command, bool usePrefix = true)
    {
        SendCommand(platform_, boxes_, prefix_, command, usePrefix);
    }

    std::vector<PlatformCall> CallsOf(Kind kind) const
    {
        std::vector<PlatformCall> calls;
        for (const PlatformCall& call : platform_.Log()) {
            if (call.kind == kind) {
                calls.push_back(call);
            }
        }
        return calls;
    }

    SimulatedPlatform     platform_;
    test::RecordingOutlet boxes_;
    std::string           prefix_ = "'";
};

TEST_F(DeliveryTest, CommandAtAClientInTheBackgroundIsTracedExactly)
{
    const WindowHandle other = platform_.AddWindow("Shell", "Desk");
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");
    platform_.SetForeground(other);

    Send("go 1000 1000 0");

    std::vector<PlatformCall> expected{
        {Kind::Enumerate, 0, {}},     {Kind::Foreground, 0, {}},
        {Kind::Activate, client, {}}, {Kind::BringToForeground, client, {}},
        {Kind::Pause, 0, {50}},
    };
    for (const int code : {39, 103, 111, 32, 49, 48, 48, 48, 32, 49, 48, 48, 48, 32, 48}) {
        expected.push_back({Kind::Post, client, {258, code, 0}});
    }
    expected.push_back({Kind::Post, client, {256, 13, 1835009}});
    expected.push_back({Kind::Post, client, {257, 13, 3223060481}});
    EXPECT_EQ(platform_.Log(), expected);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'go 1000 1000 0"));
}

TEST_F(DeliveryTest, ClientInFrontIsNeitherActivatedNorWaitedFor)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");
    platform_.SetForeground(client);

    Send("save");

    EXPECT_THAT(CallsOf(Kind::Activate), IsEmpty());
    EXPECT_THAT(CallsOf(Kind::BringToForeground), IsEmpty());
    EXPECT_THAT(CallsOf(Kind::Pause), IsEmpty());
    EXPECT_EQ(CallsOf(Kind::Post).size(), 7U);
}

TEST_F(DeliveryTest, OnlyTheFirstCommandOfABurstPausesAndTheClientStaysInFront)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");

    Send("one");
    Send("two");

    EXPECT_EQ(CallsOf(Kind::Pause).size(), 1U);
    EXPECT_EQ(platform_.ForegroundWindow(), client);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'one", "'two"));
}

TEST_F(DeliveryTest, EachCommandEnumeratesTheDesktopAnew)
{
    const WindowHandle first = platform_.AddWindow("SDL_app", "ClassicUO");
    Send("one");
    platform_.RemoveWindow(first);
    Send("two");
    platform_.AddWindow("SDL_app", "ClassicUO");
    Send("three");

    EXPECT_EQ(CallsOf(Kind::Enumerate).size(), 3U);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'one", "'three"));
    EXPECT_EQ(boxes_.Messages().size(), 1U);
}

TEST_F(DeliveryTest, MissingClientShowsOneBoxForEachCommand)
{
    Send("one");
    Send("two");
    Send("three");

    const core::Message box{"Error: Could not find UO client window. Command not sent.", core::MessageStyle::Critical,
                            core::ProductTitle()};
    EXPECT_THAT(boxes_.Messages(), ElementsAre(box, box, box));
    EXPECT_EQ(platform_.Log().size(), 3U) << "nothing but the enumerations";
}

TEST_F(DeliveryTest, EmptyCommandWithPrefixIsThePrefixAndEnter)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    Send("");
    EXPECT_EQ(CallsOf(Kind::Post).size(), 3U);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'"));
}

TEST_F(DeliveryTest, EmptyCommandWithoutPrefixIsEnterAlone)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    Send("", false);
    EXPECT_EQ(CallsOf(Kind::Post).size(), 2U);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre(""));
}

TEST_F(DeliveryTest, EmptyPrefixTypesTheCommandAsItStands)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    prefix_.clear();
    Send("where");
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("where"));
}

TEST_F(DeliveryTest, CommandWithoutPrefixIsTypedAsItStands)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    Send(".custom text", false);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre(".custom text"));
}

TEST_F(DeliveryTest, LongerPrefixIsTypedWhole)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    prefix_ = "[x ";
    Send("save");
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("[x save"));
}

TEST_F(DeliveryTest, CharactersAreCodesOfTheAnsiPage)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");
    Send("\u00E9\u20AC\u00FF", false);

    const auto posts = CallsOf(Kind::Post);
    ASSERT_EQ(posts.size(), 5U);
    EXPECT_EQ(posts[0], (PlatformCall{Kind::Post, client, {258, 0xE9, 0}}));
    EXPECT_EQ(posts[1], (PlatformCall{Kind::Post, client, {258, 0x80, 0}}));
    EXPECT_EQ(posts[2], (PlatformCall{Kind::Post, client, {258, 0xFF, 0}}));
}

TEST_F(DeliveryTest, CharacterOutsideOfThePageIsAQuestionMark)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    Send("a\u0416b");
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'a?b"));
}

TEST_F(DeliveryTest, LongestTextIsTyped)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    const std::string text(32'766, 'x');
    Send(text);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre("'" + text));
}

TEST_F(DeliveryTest, OneCharacterMoreOverflowsBeforeAnythingIsTyped)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    EXPECT_RUNTIME_ERROR(6, Send(std::string(32'767, 'x')));
    EXPECT_RUNTIME_ERROR(6, Send(std::string(32'768, 'x'), false));
    EXPECT_THAT(CallsOf(Kind::Post), IsEmpty());
}

TEST_F(DeliveryTest, LengthIsCountedInCharactersAndNotInBytes)
{
    platform_.AddWindow("SDL_app", "ClassicUO");
    std::string text;
    for (int i = 0; i < 32'767; ++i) {
        text += "\u00E4";
    }
    Send(text, false);
    EXPECT_THAT(platform_.TakeLines(), ElementsAre(std::string(32'767, '\xE4')));
}

TEST_F(DeliveryTest, ClientIsBroughtToTheFrontEvenForATextThatOverflows)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");
    EXPECT_RUNTIME_ERROR(6, Send(std::string(40'000, 'x')));
    EXPECT_EQ(platform_.ForegroundWindow(), client);
}

TEST_F(DeliveryTest, MissingClientComesBeforeTheOverflow)
{
    EXPECT_RUNTIME_ERROR(0, Send(std::string(40'000, 'x')));
    EXPECT_EQ(boxes_.Messages().size(), 1U);
}

TEST_F(DeliveryTest, ClientThatVanishesWhileTypingIsNotNoticed)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "ClassicUO");
    platform_.SetForeground(client);
    int posts = 0;
    platform_.observer = [&](const PlatformCall& call) {
        if (call.kind == Kind::Post && ++posts == 3) {
            platform_.RemoveWindow(client);
        }
    };
    Send("save");
    EXPECT_EQ(posts, 7);
    EXPECT_THAT(boxes_.Messages(), IsEmpty());
    EXPECT_THAT(platform_.TakeLines(), IsEmpty());
}

TEST_F(DeliveryTest, WindowOfTheClassWithoutTheTitleIsSkipped)
{
    platform_.AddWindow("SDL_app", "Some other game");
    EXPECT_EQ(FindClientWindow(platform_), 0U);
}

TEST_F(DeliveryTest, WindowOfTheTitleWithoutTheClassIsSkipped)
{
    platform_.AddWindow("Notepad", "ClassicUO");
    EXPECT_EQ(FindClientWindow(platform_), 0U);
}

TEST_F(DeliveryTest, TitleHoldsTheNameInAnyCase)
{
    const WindowHandle client = platform_.AddWindow("SDL_app", "classicuo - Someone");
    EXPECT_EQ(FindClientWindow(platform_), client);
    platform_.RemoveAllWindows();
    const WindowHandle other = platform_.AddWindow("SDL_app", "My CLASSICUO!");
    EXPECT_EQ(FindClientWindow(platform_), other);
}

TEST_F(DeliveryTest, ClassMustMatchInCaseAndAsAWhole)
{
    for (const char* name : {"sdl_app", "SDL_App", "SDL_APP", "SDL_ap", "SDL_app2", " SDL_app", ""}) {
        platform_.AddWindow(name, "ClassicUO");
    }
    EXPECT_EQ(FindClientWindow(platform_), 0U);
}

TEST_F(DeliveryTest, ClassEndsAtItsFirstNul)
{
    const WindowHandle client = platform_.AddWindow(std::string("SDL_app\0rest", 12), "ClassicUO");
    EXPECT_EQ(FindClientWindow(platform_), client);
}

TEST_F(DeliveryTest, TopmostOfTwoClientsWinsAndEndsTheEnumeration)
{
    const WindowHandle top = platform_.AddWindow("SDL_app", "ClassicUO - A");
    platform_.AddWindow("SDL_app", "ClassicUO - B");
    EXPECT_EQ(FindClientWindow(platform_), top);
    platform_.RemoveWindow(top);
    EXPECT_NE(FindClientWindow(platform_), 0U);
    EXPECT_NE(FindClientWindow(platform_), top);
}

TEST_F(DeliveryTest, ClientIsFoundAmongNineWindows)
{
    platform_.AddWindow("Shell_TrayWnd", "");
    platform_.AddWindow("SDL_app", "");
    platform_.AddWindow("Ultima Online", "Ultima Online");
    platform_.AddWindow("sdl_app", "ClassicUO");
    platform_.AddWindow("UOASSIST-TP-MSG-WND", "ClassicUO");
    platform_.AddWindow("SDL_app", "Classic UO");
    const WindowHandle client = platform_.AddWindow("SDL_app", "Dobrin - ClassicUO - 1.0");
    platform_.AddWindow("SDL_app", "ClassicUO");
    platform_.AddWindow("Progman", "Program Manager");
    EXPECT_EQ(FindClientWindow(platform_), client);
}

TEST_F(DeliveryTest, ClassicClientGetsTheBox)
{
    platform_.AddWindow("Ultima Online", "Ultima Online");
    Send("save");
    EXPECT_EQ(boxes_.Messages().size(), 1U);
    EXPECT_THAT(platform_.TakeLines(), IsEmpty());
}

} // namespace
} // namespace qf::client
