#include "core/pixel_surface.h"

#include <limits>

#include <gtest/gtest.h>

namespace qf::core {
namespace {

class WatchedSurface final : public PixelSurface {
  public:
    using PixelSurface::PixelSurface;

    int resizes = 0;

  private:
    void Resized() override { ++resizes; }
};

TEST(PixelSurface, NewOneIsWhiteAndOfTheUsualSize)
{
    const PixelSurface surface;
    EXPECT_EQ(surface.Width(), 121);
    EXPECT_EQ(surface.Height(), 173);
    EXPECT_EQ(surface.BackColour(), White);
    EXPECT_EQ(surface.Pixels().size(), 121u * 173u);
    for (const auto pixel : surface.Pixels()) {
        ASSERT_EQ(pixel, 0xFFFFFFFFU);
    }
}

TEST(PixelSurface, PlotsWithinAndLeavesOutWhatLiesOutside)
{
    PixelSurface surface(3, 2, 0);
    surface.Plot(0, 0, 0x112233);
    surface.Plot(2, 1, 0x445566);
    constexpr auto far = std::numeric_limits<std::int64_t>::max();
    for (const auto& [x, y] : {std::pair<std::int64_t, std::int64_t>{-1, 0},
                               {3, 0},
                               {0, -1},
                               {0, 2},
                               {far, 0},
                               {0, far},
                               {-far, 0},
                               {0, -far}}) {
        surface.Plot(x, y, White);
    }
    EXPECT_EQ(surface.At(0, 0), 0x112233U);
    EXPECT_EQ(surface.At(2, 1), 0x445566U);
    EXPECT_EQ(surface.Pixels()[5], 0xFF445566U);
    for (const int i : {1, 2, 3, 4}) {
        EXPECT_EQ(surface.Pixels()[static_cast<std::size_t>(i)], 0xFF000000U) << i;
    }
}

TEST(PixelSurface, PlotsTheVisiblePartOfALine)
{
    const auto number = [](std::int64_t i) { return static_cast<Rgb>(i + 1); };
    for (std::int64_t x = -9; x <= 9; ++x) {
        for (std::int64_t count = 0; count <= 9; ++count) {
            for (std::int64_t y = -1; y <= 2; ++y) {
                PixelSurface line(4, 2, 0);
                PixelSurface single(4, 2, 0);
                line.PlotLine(x, y, count, number);
                for (std::int64_t i = 0; i < count; ++i) {
                    single.Plot(x + i, y, number(i));
                }
                ASSERT_TRUE(std::ranges::equal(line.Pixels(), single.Pixels())) << x << ' ' << y << ' ' << count;
            }
        }
    }
}

TEST(PixelSurface, LineFarOutsideTouchesNothing)
{
    PixelSurface   surface(4, 2, 0);
    constexpr auto far = std::int64_t{1} << 60;
    const auto     fail = [](std::int64_t) -> Rgb {
        ADD_FAILURE() << "a pixel outside was asked for";
        return White;
    };
    surface.PlotLine(far, 0, 100, fail);
    surface.PlotLine(-far, 0, 100, fail);
    surface.PlotLine(0, far, 100, fail);
    surface.PlotLine(0, 0, -5, fail);
}

TEST(PixelSurface, BackColourErasesWhatIsShown)
{
    PixelSurface surface(2, 2);
    surface.Plot(1, 1, 0x123456);
    surface.SetBackColour(0xABCDEF);
    for (const auto pixel : surface.Pixels()) {
        EXPECT_EQ(pixel, 0xFFABCDEFU);
    }
}

TEST(PixelSurface, ResizingKeepsTheUpperLeftAndFillsNewRoomWithTheBackground)
{
    PixelSurface surface(2, 2, 0x0000FF);
    surface.Plot(0, 0, 1);
    surface.Plot(1, 0, 2);
    surface.Plot(0, 1, 3);
    surface.Plot(1, 1, 4);

    surface.SetSize(3, 1);
    EXPECT_EQ(surface.Width(), 3);
    EXPECT_EQ(surface.Height(), 1);
    EXPECT_EQ(surface.At(0, 0), 1U);
    EXPECT_EQ(surface.At(1, 0), 2U);
    EXPECT_EQ(surface.At(2, 0), 0x0000FFU);

    surface.SetSize(1, 2);
    EXPECT_EQ(surface.At(0, 0), 1U);
    EXPECT_EQ(surface.At(0, 1), 0x0000FFU);
}

TEST(PixelSurface, NegativeSizeCountsAsNone)
{
    PixelSurface surface(-1, 5);
    EXPECT_EQ(surface.Width(), 0);
    surface.SetSize(4, -32768);
    EXPECT_EQ(surface.Width(), 4);
    EXPECT_EQ(surface.Height(), 0);
    EXPECT_TRUE(surface.Pixels().empty());
    surface.Plot(0, 0, 1);
    surface.SetSize(1, 1);
    EXPECT_EQ(surface.At(0, 0), White);
}

TEST(PixelSurface, TellsOfChangesOfItsSizeOnly)
{
    WatchedSurface surface(2, 2);
    surface.SetSize(2, 2);
    surface.SetBackColour(0);
    EXPECT_EQ(surface.resizes, 0);
    surface.SetSize(2, 3);
    EXPECT_EQ(surface.resizes, 1);
}

TEST(PixelSurface, PaintsAPictureAtRoundedPlacesAndCutsItOff)
{
    PixelSurface stamp(2, 2, 0x000001);
    stamp.Plot(1, 1, 0x000002);

    PixelSurface surface(3, 3, 0);
    surface.Paint(stamp, 0.5, 1.4);
    EXPECT_EQ(surface.At(1, 1), 1U);
    EXPECT_EQ(surface.At(2, 2), 2U);
    EXPECT_EQ(surface.At(0, 1), 0U);

    surface.SetBackColour(0);
    surface.Paint(stamp, -1, -1.2);
    EXPECT_EQ(surface.At(0, 0), 2U);
    EXPECT_EQ(surface.At(1, 0), 0U);
    EXPECT_EQ(surface.At(0, 1), 0U);

    surface.SetBackColour(0);
    surface.Paint(stamp, 5, 0);
    for (const auto pixel : surface.Pixels()) {
        EXPECT_EQ(pixel, 0xFF000000U);
    }
}

} // namespace
} // namespace qf::core
