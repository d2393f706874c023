#include "practice/scene.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace qf::practice {

namespace {

constexpr Argb SkyTop = 0xFF2B3A55U;
constexpr Argb SkyBottom = 0xFF7F96AEU;
constexpr Argb GridColour = 0x38304820U;
constexpr Argb LabelColour = 0xFFE6F0D0U;
constexpr Argb MarkColour = 0xE0FFE070U;

/// How far a sprite reaches out of its cell: sideways in half widths, upwards in height units,
/// downwards in half heights.
constexpr int PaintedAcross = 3;
constexpr int PaintedUp = 38;
constexpr int ArtAcross = 7;
constexpr int ArtUp = 100;
constexpr int ReachDown = 4;

/// What stands this far above the player's feet is over the head.
constexpr int HeadRoom = 16;

/// The range of x - y (`across`) and of x + y (`down`) of the cells that show in a view.
struct Range {
    int firstAcross = 0;
    int lastAcross = 0;
    int firstDown = 0;
    int lastDown = 0;
};

Range VisibleRange(const Projection& projection, int width, int height, int lowestZ, int highestZ,
                   int reach = PaintedAcross)
{
    const Scale& scale = projection.scale;
    const auto   cells = [](double pixels, int size) { return static_cast<int>(std::floor(pixels / size)); };
    return {cells(-projection.originX, scale.halfWidth) - reach,
            cells(width - projection.originX, scale.halfWidth) + reach,
            cells(-projection.originY + lowestZ * scale.unit, scale.halfHeight) - ReachDown,
            cells(height - projection.originY + highestZ * scale.unit, scale.halfHeight) + 1};
}

} // namespace

void Camera::LookAt(const Position& place)
{
    centreX = place.x + 0.5;
    centreY = place.y + 0.5;
    centreZ = place.z;
}

void Camera::Scroll(int pixelsX, int pixelsY)
{
    const Scale  scale = Scale::OfStep(zoom, shape);
    const double across = static_cast<double>(pixelsX) / scale.halfWidth / 2.0;
    const double down = static_cast<double>(pixelsY) / scale.halfHeight / 2.0;
    centreX = std::clamp(centreX + down + across, 0.0, static_cast<double>(MapWidth));
    centreY = std::clamp(centreY + down - across, 0.0, static_cast<double>(MapHeight));
}

void Camera::Zoom(int steps, const ScreenPoint& fixed, int width, int height)
{
    const int offX = fixed.x - width / 2;
    const int offY = fixed.y - MiddleOf(height);
    Scroll(offX, offY);
    zoom = std::clamp(zoom + steps, 0, Scale::Steps - 1);
    Scroll(-offX, -offY);
}

Projection Camera::Project(int width, int height) const
{
    const Scale scale = Scale::OfStep(zoom, shape);
    return {scale, width / 2 - static_cast<int>(std::lround((centreX - centreY) * scale.halfWidth)),
            MiddleOf(height) -
                static_cast<int>(std::lround((centreX + centreY) * scale.halfHeight - centreZ * scale.unit))};
}

void Scene::Gather(int width, int height, const Session& session, const Camera& camera)
{
    items_.clear();
    sprites_.Trim();
    const Projection projection = camera.Project(width, height);
    const bool       hasArt = Shape() == CellShape::Square;
    const Range      range = VisibleRange(projection, width, height, LowestZ, HighestZ + (hasArt ? ArtUp : PaintedUp),
                                     hasArt ? ArtAcross : PaintedAcross);
    const int        ceiling = camera.cutAway ? session.Player().z + HeadRoom : HighestZ + 1;
    const auto       add = [&](const Position& place, const TileSprite& sprite, std::optional<Tile> tile) {
        const ScreenPoint at = projection.Corner(place.x, place.y, place.z);
        const int         left = at.x + sprite.sprite.left;
        const int         top = at.y + sprite.sprite.top;
        const bool        shows =
            left < width && left + sprite.sprite.width > 0 && top < height && top + sprite.sprite.height > 0;
        if (shows) {
            const auto order = static_cast<std::uint64_t>(place.x + place.y) << 40U |
                               static_cast<std::uint64_t>(place.z - LowestZ) << 32U |
                               static_cast<std::uint64_t>(sprite.layer) << 16U | (tile ? tile->id : 0U);
            items_.push_back({order, &sprite, at, tile});
        }
    };
    // Turned by an eighth, the view covers a square of the map; the corners that do not show are left out.
    const Box area{(range.firstDown + range.firstAcross) / 2, (range.firstDown - range.lastAcross) / 2,
                   (range.lastDown + range.lastAcross) / 2 + 1, (range.lastDown - range.firstAcross) / 2 + 1};
    session.GetWorld().ForEachIn(area, [&](const Tile& tile) {
        const int across = tile.at.x - tile.at.y;
        const int down = tile.at.x + tile.at.y;
        if (across >= range.firstAcross && across <= range.lastAcross && down >= range.firstDown &&
            down <= range.lastDown && tile.at.z < ceiling) {
            add(tile.at, sprites_.OfTile(tile.id, camera.zoom), tile);
        }
    });
    add(session.Player(), sprites_.OfPlayer(camera.zoom), std::nullopt);
    std::ranges::sort(items_, {}, &Item::order);
}

void Scene::DrawGround(Canvas& canvas, const Projection& projection, int zoom)
{
    const Range range = VisibleRange(projection, canvas.Width(), canvas.Height(), 0, 0);
    for (int down = range.firstDown; down <= range.lastDown; ++down) {
        for (int across = range.firstAcross; across <= range.lastAcross; ++across) {
            if ((down + across) % 2 != 0) {
                continue;
            }
            const Position cell{(down + across) / 2, (down - across) / 2, 0};
            if (IsOnMap(cell)) {
                const ScreenPoint at = projection.Corner(cell.x, cell.y, 0);
                canvas.Draw(sprites_.OfGround(cell.x, cell.y, zoom).sprite, at.x, at.y);
            }
        }
    }
}

void Scene::DrawGrid(Canvas& canvas, const Projection& projection)
{
    constexpr int LabelSpace = 260;
    int           spacing = 8;
    while (spacing * projection.scale.halfWidth * 2 < LabelSpace) {
        spacing *= 2;
    }
    const Range range = VisibleRange(projection, canvas.Width(), canvas.Height(), 0, 0);
    const int   firstX = std::max((range.firstDown + range.firstAcross) / 2, 0);
    const int   lastX = std::min((range.lastDown + range.lastAcross) / 2 + 1, MapWidth);
    const int   firstY = std::max((range.firstDown - range.lastAcross) / 2, 0);
    const int   lastY = std::min((range.lastDown - range.firstAcross) / 2 + 1, MapHeight);
    const auto  snap = [&](int value) { return (value + spacing - 1) / spacing * spacing; };
    const auto  line = [&](const Position& from, const Position& to) {
        const ScreenPoint start = projection.Corner(from.x, from.y, 0);
        const ScreenPoint end = projection.Corner(to.x, to.y, 0);
        canvas.Line(start.x, start.y, end.x, end.y, GridColour);
    };
    for (int x = snap(firstX); x <= lastX; x += spacing) {
        line({x, firstY, 0}, {x, lastY, 0});
    }
    for (int y = snap(firstY); y <= lastY; y += spacing) {
        line({firstX, y, 0}, {lastX, y, 0});
    }
    for (int x = snap(firstX); x <= lastX; x += spacing) {
        for (int y = snap(firstY); y <= lastY; y += spacing) {
            const ScreenPoint at = projection.Corner(x, y, 0);
            const std::string text = std::to_string(x) + "," + std::to_string(y);
            canvas.FillRectangle(at.x - 1, at.y - 1, 3, 3, MarkColour);
            canvas.Text(at.x - TextWidth(text, 1) / 2, at.y + 4, text, LabelColour, 1);
        }
    }
}

void Scene::DrawMarks(Canvas& canvas, const Projection& projection, const Session& session,
                      const std::optional<Spot>& pointed)
{
    if (!session.Waiting()) {
        return;
    }
    const std::optional<Position>& first = session.FirstCorner();
    const auto                     outline = [&](const Position& from, const Position& to) {
        const Box         box{std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x) + 1,
                      std::max(from.y, to.y) + 1};
        const auto        corner = [&](int x, int y) { return projection.Corner(x, y, from.z); };
        const ScreenPoint corners[] = {corner(box.x1, box.y1), corner(box.x2, box.y1), corner(box.x2, box.y2),
                                       corner(box.x1, box.y2)};
        for (int i = 0; i < 4; ++i) {
            const ScreenPoint& a = corners[i];
            const ScreenPoint& b = corners[(i + 1) % 4];
            canvas.Line(a.x, a.y, b.x, b.y, MarkColour);
            canvas.Line(a.x, a.y + 1, b.x, b.y + 1, MarkColour);
        }
    };
    if (first) {
        outline(*first, pointed ? pointed->at : *first);
    } else if (pointed) {
        outline(pointed->at, pointed->at);
    }
}

void Scene::Draw(Canvas& canvas, const Session& session, const Camera& camera, const std::optional<Spot>& pointed)
{
    const Projection projection = camera.Project(canvas.Width(), canvas.Height());
    canvas.FillGradient(SkyTop, SkyBottom);
    DrawGround(canvas, projection, camera.zoom);
    DrawGrid(canvas, projection);
    Gather(canvas.Width(), canvas.Height(), session, camera);
    for (const Item& item : items_) {
        canvas.Draw(item.sprite->sprite, item.at.x, item.at.y);
    }
    // A player behind walls still shows, faintly.
    constexpr Argb    FaintAlpha = 96;
    const Position&   player = session.Player();
    const ScreenPoint at = projection.Corner(player.x, player.y, player.z);
    canvas.DrawFaint(sprites_.OfPlayer(camera.zoom).sprite, at.x, at.y, FaintAlpha);
    DrawMarks(canvas, projection, session, pointed);
}

std::optional<Spot> Scene::Pick(const ScreenPoint& pixel, int width, int height, const Session& session,
                                const Camera& camera)
{
    constexpr Argb SolidAlpha = 0x80;
    Gather(width, height, session, camera);
    const auto hit = std::find_if(items_.rbegin(), items_.rend(), [&](const Item& item) {
        return item.tile && item.sprite->sprite.At(pixel.x - item.at.x, pixel.y - item.at.y) >> 24U >= SolidAlpha;
    });
    if (hit != items_.rend()) {
        return Spot{hit->tile->at, hit->tile};
    }
    const Position ground = camera.Project(width, height).CellAt(pixel.x, pixel.y, 0);
    return IsOnMap(ground) ? std::optional(Spot{ground, std::nullopt}) : std::nullopt;
}

} // namespace qf::practice
