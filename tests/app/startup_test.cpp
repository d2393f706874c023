#include <QApplication>
#include <QLabel>
#include <QTabWidget>
#include <QWindow>
#include <gtest/gtest.h>

#include "app/program_on_stage.h"
#include "ui/panel.h"
#include "ui/parts.h"

namespace qf::app {
namespace {

std::string TextOf(ui::Panel& panel, const char* label)
{
    return ui::Utf8(panel.findChild<QLabel*>(QLatin1String(label))->text());
}

TEST(StartupError, AMissingComponentNamesTheHomePage)
{
    EXPECT_EQ(StartupErrorBox(core::RuntimeError(429)),
              (core::Message{"Error: A required component (Quern Runtimes) is missing or not registered.\r\n"
                             "Please visit https://quernfield.example/ to download and install the required files.",
                             core::MessageStyle::Critical, "Startup Error"}));
}

TEST(StartupError, AnUnsuitedComponentNamesTheHomePage)
{
    EXPECT_EQ(StartupErrorBox(core::RuntimeError(430)),
              (core::Message{"Error: Windows Scripting Host (WSH) is missing or disabled.\r\n"
                             "Please visit https://quernfield.example/ to download and install it.",
                             core::MessageStyle::Critical, "Startup Error"}));
}

TEST(StartupError, AnyOtherErrorIsToldByNumber)
{
    EXPECT_EQ(StartupErrorBox(core::RuntimeError(13)),
              (core::Message{"An unexpected error occurred during startup:\r\n\r\nError 13: Type mismatch",
                             core::MessageStyle::Critical, "Startup Error"}));
}

TEST(Startup, AMissingComponentFailsBeforeAnythingIsShown)
{
    test::ProgramOnStage stage;
    stage.services.missingComponent = 429;
    EXPECT_FALSE(stage.application->Main());
    EXPECT_EQ(stage.services.boxes.size(), 1U);
    EXPECT_TRUE(stage.services.HasEnded());
    EXPECT_TRUE(stage.application->Context().panels.LoadOrder().empty());
}

TEST(Startup, TheSplashTellsProductAndVersion)
{
    test::ProgramOnStage stage;
    auto&                splash = stage.application->Context().panels.Touch("frmSplash");
    EXPECT_EQ(TextOf(splash, "lblVersion"), "Version 20250 ");
    EXPECT_EQ(TextOf(splash, "lblProductName"), "Dobrin's Quernfield");
    EXPECT_EQ(TextOf(splash, "lblPlatform"), "Win32");
    EXPECT_EQ(TextOf(splash, "lblCompanyProduct"), "Tallow Software");
}

TEST(Startup, TheMainPanelAloneIsLeftLoadedFirst)
{
    test::ProgramOnStage stage;
    ASSERT_TRUE(stage.application->Main());
    const auto open = stage.application->Context().panels.LoadOrder();
    ASSERT_FALSE(open.empty());
    EXPECT_EQ(open.front()->Name(), "frmMain");
    EXPECT_EQ(stage.application->Context().panels.Loaded("frmSplash"), nullptr);
    EXPECT_EQ(stage.application->Context().productTitle, "Dobrin's Quernfield 20250 ");
}

TEST(MainPanel, TellsTheFirstStepsToOneWhoTurnsToThem)
{
    test::ProgramOnStage stage;
    ASSERT_TRUE(stage.application->Main());
    auto& panel = stage.application->Context().panels.Touch("frmMain");
    auto* tabs = panel.findChild<QTabWidget*>(QStringLiteral("SSTab1"));
    auto* text = tabs->widget(1)->findChild<QLabel*>();
    EXPECT_TRUE(text->text().isEmpty());

    const auto size = panel.size();
    tabs->setCurrentIndex(1);
    QApplication::processEvents();
    EXPECT_TRUE(text->text().contains(QStringLiteral("chain of construction tools")));
    EXPECT_LE(text->heightForWidth(text->width()), text->height());
    EXPECT_EQ(panel.size(), size);
}

TEST(ModalPanel, IsOwnedByTheMainPanelSoThatItNeverOpensBelowIt)
{
    test::ProgramOnStage stage;
    ASSERT_TRUE(stage.application->Main());
    auto& panels = stage.application->Context().panels;
    auto& about = panels.ShowModal("frmAbout");
    ASSERT_NE(about.windowHandle(), nullptr);
    EXPECT_EQ(about.windowHandle()->transientParent(), panels.Touch("frmMain").windowHandle());
}

TEST(Shutdown, WalksThePanelsFromTheLastToTheSecondAndEnds)
{
    test::ProgramOnStage stage;
    ASSERT_TRUE(stage.application->Main());
    auto& panels = stage.application->Context().panels;
    panels.Touch("frmFloors");
    panels.Touch("frmAbout");
    panels.Unload(panels.Touch("frmMain"));
    EXPECT_TRUE(stage.services.HasEnded());
    EXPECT_TRUE(panels.LoadOrder().empty());
}

} // namespace
} // namespace qf::app
