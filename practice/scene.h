#pragma once

#include <algorithm>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "practice/canvas.h"
#include "practice/projection.h"
#include "practice/session.h"
#include "practice/sprites.h"

namespace qf::practice {

/// From where the world is looked at. The centre is a place in cells, its height included.
struct Camera {
    double centreX = Session::Start.x + 0.5;
    double centreY = Session::Start.y + 0.5;
    double centreZ = 0.0;
    int    zoom = Scale::NormalStep;
    int    covered = 0; ///< pixels at the view's bottom behind other things; the centre lies in what is above

    /// That of the scene's pictures.
    CellShape shape = CellShape::Flat;
    bool      cutAway = false; ///< nothing is drawn that stands a storey or so above the player's feet

    /// Puts the player into the centre.
    void LookAt(const Position& place);

    /// Moves the view by pixels; it stays over the map.
    void Scroll(int pixelsX, int pixelsY);

    /// Zooms by steps so that the place under a pixel stays there.
    void Zoom(int steps, const ScreenPoint& fixed, int width, int height);

    Projection Project(int width, int height) const;

  private:
    /// The line of pixels of a view on which the centre lies.
    int MiddleOf(int height) const { return std::max((height - covered) / 2, height / 4); }
};

/// The view of the world.
class Scene {
  public:
    /// Tiles are drawn with the art, where it is given and has them.
    explicit Scene(std::unique_ptr<TileArt> art = nullptr) : sprites_(std::move(art)) {}

    /// The shape of cells with which a camera looks at this scene.
    CellShape Shape() const { return sprites_.Shape(); }

    void Draw(Canvas& canvas, const Session& session, const Camera& camera, const std::optional<Spot>& pointed);

    /// What lies under a pixel of a view of this size: the frontmost tile, or the ground. Nothing off the map.
    std::optional<Spot> Pick(const ScreenPoint& pixel, int width, int height, const Session& session,
                             const Camera& camera);

  private:
    struct Item {
        std::uint64_t       order = 0;
        const TileSprite*   sprite = nullptr;
        ScreenPoint         at;
        std::optional<Tile> tile;
    };

    /// Fills `items_` with what shows in the view, the rearmost first.
    void        Gather(int width, int height, const Session& session, const Camera& camera);
    void        DrawGround(Canvas& canvas, const Projection& projection, int zoom);
    static void DrawGrid(Canvas& canvas, const Projection& projection);
    static void DrawMarks(Canvas& canvas, const Projection& projection, const Session& session,
                          const std::optional<Spot>& pointed);

    Sprites           sprites_;
    std::vector<Item> items_;
};

} // namespace qf::practice
