#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <gtest/gtest.h>

#include <algorithm>

#include "support/themes.h"
#include "ui/parts.h"

namespace qf::ui {
namespace {

/// The contrast to the window at which the outline of a control is found.
constexpr double LeastOutline = 3.0;

/// The largest contrast to the window's colour that is drawn in the left part of a widget.
double ContrastAtLeft(QWidget& widget)
{
    const auto window = widget.palette().color(QPalette::Window);
    const auto image = widget.grab().toImage();
    double     largest = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < std::min(image.width(), image.height()); ++x) {
            largest = std::max(largest, Contrast(image.pixelColor(x, y), window));
        }
    }
    return largest;
}

class DarkDesktop : public testing::Test {
  protected:
    DarkDesktop() { test::ApplyTheme(test::Theme::Dark); }
    ~DarkDesktop() override { test::ApplyTheme(test::Theme::Light); }
};

TEST_F(DarkDesktop, OutlinesOptionsAndChecks)
{
    QRadioButton option;
    QCheckBox    check;
    EXPECT_GE(ContrastAtLeft(option), LeastOutline);
    EXPECT_GE(ContrastAtLeft(check), LeastOutline);
}

TEST_F(DarkDesktop, HidesOptionsThatAreDrawnWithoutOutlines)
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    QRadioButton option;
    EXPECT_LT(ContrastAtLeft(option), LeastOutline);
}

} // namespace
} // namespace qf::ui
