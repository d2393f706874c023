#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/look_rules.h"
#include "support/themes.h"
#include "ui/keyboard.h"
#include "ui/option_array.h"
#include "ui/parts.h"
#include "ui/spoken.h"

// A window without fault, and each fault that the rules are to find, put into it one at a time.

namespace qf::test {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;

class LookRules : public testing::Test {
  protected:
    LookRules() : options(window, "optKind")
    {
        ApplyTheme(Theme::Light);
        frame = ui::MakeFrame(&window, "fraPlace", "Place");
        box = ui::MakeTextBox(frame, "txtX", 6);
        label = ui::MakeLabelFor(box, "lblX", "X");
        fetch = ui::MakeClickLabel(frame, "lblWhere", "Here", "");
        auto* row = new QHBoxLayout(frame);
        row->addWidget(label);
        row->addWidget(box);
        row->addWidget(fetch);

        auto* kinds = ui::MakeFrame(&window, "fraKind", "Kind");
        auto* column = new QVBoxLayout(kinds);
        column->addWidget(&options.Add(0, "One", kinds));
        column->addWidget(&options.Add(1, "Other", kinds));

        add = ui::MakeButton(&window, "cmdAdd", "Add");
        leave = ui::MakeButton(&window, "cmdExit", "Exit");
        auto* bottom = new QHBoxLayout;
        bottom->addWidget(add);
        bottom->addWidget(leave);

        auto* all = new QVBoxLayout(&window);
        all->addWidget(frame);
        all->addWidget(kinds);
        all->addLayout(bottom);
        ui::InstallSpokenRoles();
        ui::SetReadingOrder(window);
        ui::NameForScreenReaders(window);
        window.show();
        QApplication::processEvents();
    }

    QWidget         window;
    ui::OptionArray options;
    QGroupBox*      frame;
    QLineEdit*      box;
    QLabel*         label;
    QLabel*         fetch;
    QPushButton*    add;
    QPushButton*    leave;
};

TEST_F(LookRules, FindNothingWhereAllIsRight)
{
    EXPECT_THAT(PlaceFaults(window), IsEmpty());
    EXPECT_THAT(CutOffFaults(window), IsEmpty());
    EXPECT_THAT(KeyboardFaults(window), IsEmpty());
    EXPECT_THAT(NameFaults(window), IsEmpty());
    EXPECT_THAT(ContrastFaults(window), IsEmpty());
    EXPECT_THAT(SizeFaults(window, {400, 400}), IsEmpty());
}

TEST_F(LookRules, FindWhatReachesOut)
{
    box->move(-2, box->y());
    EXPECT_THAT(PlaceFaults(window), Contains(HasSubstr("txtX (-2")));
}

TEST_F(LookRules, FindWhatLiesOverItsNeighbour)
{
    leave->move(add->pos());
    EXPECT_THAT(PlaceFaults(window), Contains("cmdAdd lies over cmdExit"));
}

TEST_F(LookRules, FindCaptionsThatAreCutOff)
{
    add->setMaximumWidth(12);
    add->resize(12, add->height());
    EXPECT_THAT(CutOffFaults(window), Contains("cmdAdd cuts off \"Add\""));
    options.At(1).resize(20, options.At(1).height());
    EXPECT_THAT(CutOffFaults(window), Contains("optKind(1) cuts off \"Other\""));
    label->resize(2, label->height());
    EXPECT_THAT(CutOffFaults(window), Contains("lblX cuts off \"X\""));
}

TEST_F(LookRules, FindWhatIsTooLow)
{
    add->setGeometry(add->x(), add->y(), add->width(), 6);
    EXPECT_THAT(CutOffFaults(window), Contains("cmdAdd is too low for its caption"));
}

TEST_F(LookRules, FindWhatTheTabKeyLeavesOut)
{
    add->setFocusPolicy(Qt::ClickFocus);
    EXPECT_THAT(KeyboardFaults(window), Contains("the Tab key does not come to cmdAdd"));
    EXPECT_THAT(KeyboardFaults(window, {label}), Contains("the Tab key does not come to lblX"));
}

TEST_F(LookRules, FindStepsAgainstTheReadingOrder)
{
    QWidget::setTabOrder(leave, add);
    EXPECT_THAT(KeyboardFaults(window), Contains("the Tab key goes back from cmdExit to cmdAdd"));
}

TEST_F(LookRules, FindGroupsThatTheTabKeyComesBackInto)
{
    QWidget::setTabOrder(add, fetch);
    EXPECT_THAT(KeyboardFaults(window), Contains("the Tab key comes back into fraPlace at lblWhere"));
}

TEST_F(LookRules, FindControlsWithoutAName)
{
    ui::MakeTextBox(&window, "txtNote", 3)->show();
    add->setText(QStringLiteral("+"));
    leave->setAccessibleName(QStringLiteral("cmdExit"));
    EXPECT_THAT(NameFaults(window),
                testing::UnorderedElementsAre("txtNote is spoken of as \"\"", "cmdAdd is spoken of as \"+\"",
                                              "cmdExit is spoken of as \"cmdExit\""));
}

TEST_F(LookRules, FindTextThatIsHardToRead)
{
    auto palette = label->palette();
    palette.setColor(QPalette::WindowText, Qt::lightGray);
    label->setPalette(palette);
    ApplyTheme(Theme::Light);
    EXPECT_THAT(ContrastFaults(window), Contains(HasSubstr("lblX has #c0c0c0")));
    palette.setColor(QPalette::WindowText, Qt::black);
    label->setPalette(palette);
    ApplyTheme(Theme::Dark);
    EXPECT_THAT(ContrastFaults(window), Contains(HasSubstr("lblX has #000000")));
    ApplyTheme(Theme::Light);
}

TEST_F(LookRules, FindWindowsThatAreTooLarge)
{
    EXPECT_THAT(SizeFaults(window, {60, 400}), testing::SizeIs(1));
    EXPECT_THAT(SizeFaults(window, {400, 40}), testing::SizeIs(1));
}

TEST_F(LookRules, CountContrastAsTheGuidelinesDo)
{
    EXPECT_NEAR(ui::Contrast(Qt::black, Qt::white), 21.0, 0.001);
    EXPECT_NEAR(ui::Contrast(Qt::white, Qt::white), 1.0, 0.001);
    EXPECT_NEAR(ui::Contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

} // namespace
} // namespace qf::test
