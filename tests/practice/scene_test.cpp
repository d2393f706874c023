#include <gtest/gtest.h>

#include <string>

#include "practice/hud.h"
#include "practice/scene.h"

namespace qf::practice {

namespace {

constexpr int Width = 400;
constexpr int Height = 300;

/// The middle of a cell's ground in a view.
ScreenPoint MiddleOf(const Camera& camera, const Position& at)
{
    const Projection  projection = camera.Project(Width, Height);
    const ScreenPoint corner = projection.Corner(at.x, at.y, at.z);
    return {corner.x, corner.y + projection.scale.halfHeight};
}

TEST(PracticeProjection, FindsTheCellThatItDrewAtEveryZoom)
{
    for (int zoom = 0; zoom < Scale::Steps; ++zoom) {
        Camera camera;
        camera.zoom = zoom;
        for (const Position& at : {Position{1000, 1000, 0}, Position{990, 1013, 0}, Position{1007, 996, 20}}) {
            const ScreenPoint middle = MiddleOf(camera, at);
            EXPECT_EQ(camera.Project(Width, Height).CellAt(middle.x, middle.y, at.z), at) << zoom;
        }
    }
}

TEST(PracticeProjection, ZoomKeepsThePlaceUnderThePointer)
{
    Camera            camera;
    const ScreenPoint pixel = MiddleOf(camera, {1003, 998, 0});
    const Position    before = camera.Project(Width, Height).CellAt(pixel.x, pixel.y, 0);
    camera.Zoom(1, pixel, Width, Height);
    EXPECT_EQ(camera.zoom, Scale::NormalStep + 1);
    EXPECT_EQ(camera.Project(Width, Height).CellAt(pixel.x, pixel.y, 0), before);
    camera.Zoom(100, pixel, Width, Height);
    EXPECT_EQ(camera.zoom, Scale::Steps - 1);
    camera.Zoom(-100, pixel, Width, Height);
    EXPECT_EQ(camera.zoom, 0);
}

TEST(PracticeScene, PicksTheGroundAndTheFrontmostTile)
{
    Session    session("'");
    Camera     camera;
    Scene      scene;
    const auto pick = [&](const ScreenPoint& at) { return scene.Pick(at, Width, Height, session, camera); };

    const ScreenPoint middle = MiddleOf(camera, {1003, 1003, 0});
    const auto        ground = pick(middle);
    ASSERT_TRUE(ground);
    EXPECT_EQ(ground->at, (Position{1003, 1003, 0}));
    EXPECT_FALSE(ground->tile);

    session.Receive("'tile 0x04a9 1003 1003 1003 1003 0");
    const auto floor = pick(middle);
    ASSERT_TRUE(floor && floor->tile);
    EXPECT_EQ(floor->tile->id, 0x04A9);

    // A wall one cell in front hides the floor behind it.
    session.Receive("'tile 0x001c 1004 1004 1004 1004 0");
    const auto wall = pick(MiddleOf(camera, {1003, 1003, 0}));
    ASSERT_TRUE(wall && wall->tile);
    EXPECT_EQ(wall->tile->id, 0x001C);
}

TEST(PracticeScene, PicksNothingOffTheMap)
{
    Session session("'");
    session.Receive("'go 0 0 0");
    Camera camera;
    camera.LookAt(session.Player());
    Scene scene;
    EXPECT_FALSE(scene.Pick({Width / 2, 5}, Width, Height, session, camera));
}

TEST(PracticeScene, RoofsAreHiddenOnDemand)
{
    Session session("'");
    session.Receive("'tile 0x055c 990 1010 990 1010 20");
    Camera            camera;
    Scene             scene;
    const ScreenPoint over = MiddleOf(camera, {1003, 1003, 20});
    ASSERT_TRUE(scene.Pick(over, Width, Height, session, camera)->tile);
    camera.cutAway = true;
    EXPECT_FALSE(scene.Pick(over, Width, Height, session, camera)->tile);
}

TEST(PracticeScene, AFloorOfOneColourLeavesNoGaps)
{
    Session session("'");
    session.Receive("'tile 0x3d84 980 1020 980 1020 0");
    session.Receive("'go 1019 1019 0");
    for (int zoom = 0; zoom < Scale::Steps; ++zoom) {
        Camera camera;
        camera.zoom = zoom;
        Scene  scene;
        Canvas canvas(Width, Height);
        scene.Draw(canvas, session, camera, std::nullopt);
        const int half = 2 * camera.Project(Width, Height).scale.halfWidth;
        for (int y = -half / 2; y <= half / 2; ++y) {
            for (int x = -half; x <= half; ++x) {
                ASSERT_EQ(canvas.At(Width / 2 + x, Height / 2 + y), 0xFF060606U) << zoom << ": " << x << ", " << y;
            }
        }
    }
}

TEST(PracticeScene, DrawsACrowdedWorldAndTheEdgesOfTheMap)
{
    Session session("'");
    for (int i = 0; i < 0x3000; ++i) {
        session.Receive("'tile " + std::to_string(i % 10) + std::to_string(i / 10 % 10) + " " +
                        std::to_string(i / 100 % 10) + std::to_string(i % 7) + " " + std::to_string(i % 64) + " " +
                        std::to_string(i % 64) + " " + std::to_string(i / 64 % 64) + " " + std::to_string(i / 64 % 64) +
                        " " + std::to_string(i % 256 - 128));
    }
    ASSERT_GT(session.GetWorld().Count(), 4000U);
    Scene  scene;
    Camera camera;
    camera.LookAt({0, 0, 0});
    Canvas canvas(Width, Height);
    for (camera.zoom = 0; camera.zoom < 3; ++camera.zoom) {
        scene.Draw(canvas, session, camera, Spot{{3, 3, 0}, std::nullopt});
        camera.Scroll(-100000, 100000);
        scene.Draw(canvas, session, camera, std::nullopt);
        camera.LookAt({MapWidth - 1, MapHeight - 1, 127});
        scene.Draw(canvas, session, camera, std::nullopt);
        camera.LookAt({32, 32, 0});
    }
    DrawHud(canvas, session, std::string(500, 'W'), true);
    DrawHud(canvas, session, "", false);
    const Argb status = canvas.At(Width - 1, Height - 1);
    EXPECT_LT((status >> 16U & 0xFFU) + (status >> 8U & 0xFFU) + (status & 0xFFU), 0xC0U);
}

TEST(PracticeSprites, EveryLookLeavesAMark)
{
    Sprites sprites;
    for (unsigned id = 0; id <= 0x2FFF; ++id) {
        const TileSprite& tile = sprites.OfTile(static_cast<std::uint16_t>(id), 0);
        ASSERT_GT(tile.sprite.width, 0) << std::hex << id;
        ASSERT_EQ(tile.sprite.pixels.size(),
                  static_cast<std::size_t>(tile.sprite.width) * static_cast<std::size_t>(tile.sprite.height));
        sprites.Trim();
    }
}

TEST(PracticeCanvas, CutsOffWhatLiesOutside)
{
    Canvas canvas(10, 10);
    canvas.FillGradient(Opaque, Opaque);
    canvas.FillRectangle(-5, -5, 8, 8, 0xFFFFFFFFU);
    EXPECT_EQ(canvas.At(2, 2), 0xFFFFFFFFU);
    EXPECT_EQ(canvas.At(3, 3), Opaque);
    canvas.Line(-100000, 5, 100000, 5, 0xFF00FF00U);
    EXPECT_EQ(canvas.At(0, 5), 0xFF00FF00U);
    EXPECT_EQ(canvas.At(9, 5), 0xFF00FF00U);
    EXPECT_EQ(canvas.At(5, 6), Opaque);
    canvas.Line(-5, 20, 30, 20, 0xFFFFFFFFU);
    canvas.Text(-3, -3, "Text that is wider than the canvas", 0xFFFFFFFFU, 2);
    canvas.Text(8, 8, "x", 0xFFFFFFFFU, 1);
    const Sprite sprite{-4, -4, 8, 8, std::vector<Argb>(64, 0xFFFF0000U)};
    canvas.Draw(sprite, 0, 0);
    canvas.Draw(sprite, 12, 12);
    canvas.Draw(sprite, 100, -100);
    canvas.DrawFaint(sprite, 0, 9, 128);
    EXPECT_EQ(canvas.At(3, 3), 0xFFFF0000U);
    EXPECT_EQ(canvas.At(9, 9), 0xFFFF0000U);
}

} // namespace

} // namespace qf::practice
