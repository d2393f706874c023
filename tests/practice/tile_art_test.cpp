#include "practice/tile_art.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "practice/scene.h"
#include "support/temp_folder.h"
#include "tools/art_files.h"

namespace qf::practice {

namespace {

constexpr int           Width = 400;
constexpr int           Height = 300;
constexpr Argb          Red = 0xFFF80000U;
constexpr Argb          Blue = 0xFF0000F8U;
constexpr std::uint16_t FloorTile = 0x0500;
constexpr std::uint16_t PostTile = 0x3000;
constexpr std::uint16_t AbsentTile = 0x04A9;

/// The diamond of one cell, as the game's floors have it: rows of 2, 4 to 44 and back to 2 pixels.
Sprite Diamond(Argb colour)
{
    Sprite sprite{-22, 0, 44, 44, {}};
    for (int y = 0; y < 44; ++y) {
        const int half = y < 22 ? y + 1 : 44 - y;
        for (int x = -22; x < 22; ++x) {
            sprite.pixels.push_back(x >= -half && x < half ? colour : 0U);
        }
    }
    return sprite;
}

/// Art with a floor and with a post of 4 by 60 pixels.
struct Art {
    std::string bytes;
    std::string index;

    Art()
    {
        index.assign((0x4000U + PostTile + 1U) * 12U, '\xFF');
        Put(FloorTile, Diamond(Red));
        Put(PostTile, {-2, 44 - 60, 4, 60, std::vector<Argb>(240, Blue)});
    }
    std::unique_ptr<TileArt> Open() const
    {
        const auto source = [](const std::string& text) {
            return std::make_unique<gamedata::MemoryBytes>(std::as_bytes(std::span(text)));
        };
        return std::make_unique<TileArt>(source(index), source(bytes), static_cast<std::int64_t>(index.size()));
    }

  private:
    void Put(std::uint16_t id, const Sprite& sprite)
    {
        const std::string tile = tools::EncodeRunTile(sprite);
        const auto        number = [&](std::size_t place, std::size_t value) {
            for (std::size_t i = 0; i < 4; ++i) {
                index[place + i] = static_cast<char>(value >> (8U * i) & 0xFFU);
            }
        };
        number((0x4000U + id) * 12U, bytes.size());
        number((0x4000U + id) * 12U + 4U, tile.size());
        bytes += tile;
    }
};

Scale SquareScale(int step)
{
    return Scale::OfStep(step, CellShape::Square);
}

TEST(PracticeArt, HasSquareCells)
{
    for (int step = 0; step < Scale::Steps; ++step) {
        EXPECT_EQ(SquareScale(step).halfHeight, SquareScale(step).halfWidth);
        EXPECT_EQ(Scale::OfStep(step, CellShape::Flat).halfHeight, SquareScale(step).halfWidth / 2);
    }
    EXPECT_EQ(SquareScale(Scale::NormalStep).halfWidth, 22);
    EXPECT_EQ(SquareScale(Scale::NormalStep).unit, 4.0);
}

TEST(PracticeArt, ReadsTheTilesThatAreThere)
{
    const Art  art;
    const auto tiles = art.Open();
    const auto post = tiles->Read(PostTile);
    ASSERT_TRUE(post);
    EXPECT_EQ(post->width, 4);
    EXPECT_EQ(post->height, 60);
    EXPECT_FALSE(tiles->Read(AbsentTile));
    EXPECT_FALSE(tiles->Read(PostTile + 1)) << "behind the index";
    EXPECT_FALSE(tiles->Read(0xFFFF));
}

TEST(PracticeArt, IsFoundInAFolder)
{
    const Art              art;
    const test::TempFolder folder;
    const auto&            path = folder.Path();
    EXPECT_FALSE(TileArt::Open(path));
    folder.Write("Art.mul", art.bytes);
    EXPECT_FALSE(TileArt::Open(path));
    folder.Write("ArtIdx.MUL", art.index);
    const auto tiles = TileArt::Open(path);
    ASSERT_TRUE(tiles);
    EXPECT_TRUE(tiles->Read(FloorTile));
    EXPECT_FALSE(TileArt::Open(path / "none"));
}

TEST(PracticeArt, IsPlacedOnTheCellsMiddleAndBottom)
{
    const gamedata::TileImage odd{7, 50, std::vector<std::uint32_t>(350, Red)};
    const Sprite              normal = PlacePicture(odd, SquareScale(Scale::NormalStep));
    EXPECT_EQ(normal.left, -3);
    EXPECT_EQ(normal.top, 44 - 50);
    EXPECT_EQ(normal.width, 7);
    EXPECT_EQ(normal.height, 50);
    const Sprite doubled = PlacePicture(odd, {44, 44, 8.0});
    EXPECT_EQ(doubled.left, -6);
    EXPECT_EQ(doubled.top, 88 - 100);
    EXPECT_EQ(doubled.width, 14);
    EXPECT_EQ(doubled.height, 100);
    for (int step = 0; step < Scale::Steps; ++step) {
        const Sprite sprite = PlacePicture(odd, SquareScale(step));
        EXPECT_EQ(sprite.top + sprite.height, 2 * SquareScale(step).halfHeight) << step;
    }
}

TEST(PracticeArt, KeepsItsPixelsAtItsOwnScaleAndAveragesThemElsewhere)
{
    const gamedata::TileImage image{4, 44, [] {
                                        std::vector<std::uint32_t> pixels(176, 0U);
                                        pixels[172] = Red;
                                        pixels[173] = Blue;
                                        return pixels;
                                    }()};
    const Sprite              normal = PlacePicture(image, SquareScale(Scale::NormalStep));
    EXPECT_EQ(normal.At(-2, 43), Red);
    EXPECT_EQ(normal.At(-1, 43), Blue);
    EXPECT_EQ(normal.At(0, 43), 0U);
    EXPECT_EQ(normal.At(-2, 42), 0U);
    const Sprite halved = PlacePicture(image, {11, 11, 2.0});
    EXPECT_EQ(halved.At(-1, 21), 0xFF7C007CU);
    EXPECT_EQ(halved.At(0, 21), 0U);
}

TEST(PracticeArt, PaintsWhatItDoesNotHave)
{
    const Art    art;
    Sprites      drawn(art.Open());
    Sprites      painted;
    const Sprite post = drawn.OfTile(PostTile, Scale::NormalStep).sprite;
    EXPECT_EQ(post.At(0, 0), Blue);
    EXPECT_EQ(post.height, 60);
    EXPECT_EQ(drawn.Shape(), CellShape::Square);
    EXPECT_EQ(painted.Shape(), CellShape::Flat);
    const Sprite absent = drawn.OfTile(AbsentTile, Scale::NormalStep).sprite;
    EXPECT_EQ(absent.width, 44);
    EXPECT_GE(absent.height, 44) << "a painted floor has the shape of the art's cells";
    EXPECT_LT(painted.OfTile(AbsentTile, Scale::NormalStep).sprite.height, 30);
}

TEST(PracticeArt, FloorsMeetWithoutGapsAtEveryScale)
{
    const Art art;
    Session   session("'");
    session.Receive("'tile 0x0500 980 1020 980 1020 0");
    session.Receive("'go 1019 1019 0");
    for (int zoom = 0; zoom < Scale::Steps; ++zoom) {
        Scene  scene(art.Open());
        Camera camera;
        camera.zoom = zoom;
        camera.shape = scene.Shape();
        Canvas canvas(Width, Height);
        scene.Draw(canvas, session, camera, std::nullopt);
        const int half = 2 * SquareScale(zoom).halfWidth;
        for (int y = -half / 2; y <= half / 2; ++y) {
            for (int x = -half; x <= half; ++x) {
                ASSERT_EQ(canvas.At(Width / 2 + x, Height / 2 + y), Red) << zoom << ": " << x << ", " << y;
            }
        }
    }
}

TEST(PracticeArt, IsPickedWhereItIsSolid)
{
    const Art art;
    Session   session("'");
    session.Receive("'tile 0x3000 1003 1003 1003 1003 10");
    Scene  scene(art.Open());
    Camera camera;
    camera.shape = scene.Shape();
    const ScreenPoint corner = camera.Project(Width, Height).Corner(1003, 1003, 10);
    const auto        pick = [&](int x, int y) {
        return scene.Pick({corner.x + x, corner.y + y}, Width, Height, session, camera);
    };
    const auto foot = pick(0, 43);
    ASSERT_TRUE(foot && foot->tile);
    EXPECT_EQ(foot->tile->id, PostTile);
    const auto head = pick(-2, 44 - 60);
    EXPECT_TRUE(head && head->tile);
    const auto beside = pick(3, 20);
    EXPECT_TRUE(beside && !beside->tile);
    const auto below = pick(0, 44);
    EXPECT_TRUE(below && !below->tile);
    session.Receive("'go 1003 1003 -20");
    camera.cutAway = true;
    const auto hidden = pick(0, 43);
    EXPECT_TRUE(hidden && !hidden->tile);
}

TEST(PracticeCamera, KeepsItsCentreAboveWhatIsCovered)
{
    Camera     camera;
    const auto middle = [&](int height) {
        return camera.Project(Width, height).Corner(Session::Start.x, Session::Start.y, 0).y + 11;
    };
    EXPECT_EQ(middle(600), 300);
    camera.covered = 200;
    EXPECT_EQ(middle(600), 200);
    EXPECT_EQ(middle(240), 60) << "at least a quarter down";
    const ScreenPoint pixel{120, 90};
    const Position    before = camera.Project(Width, Height).CellAt(pixel.x, pixel.y, 0);
    camera.Zoom(1, pixel, Width, Height);
    EXPECT_EQ(camera.Project(Width, Height).CellAt(pixel.x, pixel.y, 0), before);
}

} // namespace

} // namespace qf::practice
