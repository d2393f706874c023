#include "practice/look_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "practice/item_painter.h"
#include "practice/sprite_painter.h"

namespace qf::practice {

namespace {

constexpr double WallThickness = 0.2;
constexpr double SlabHeight = 0.75;
constexpr double CarpetHeight = 1.0;
constexpr double RoofThickness = 1.2;
constexpr double RoofRise = 3.0;

constexpr Argb Glass = 0x33475E;
constexpr Argb LeafGreen = 0x4E8A3A;

void WallAlongX(SpritePainter& painter, const TileLook& look)
{
    painter.Box({0, 1 - WallThickness, 0}, {1, 1, double(look.height)}, look.colour, look.pattern);
}

void WallAlongY(SpritePainter& painter, const TileLook& look)
{
    painter.Box({1 - WallThickness, 0, 0}, {1, 1, double(look.height)}, look.colour, look.pattern);
}

/// A pane with a frame and a cross on the visible side of a wall.
void Window(SpritePainter& painter, const TileLook& look, bool alongX)
{
    const auto pane = [&](double from, double width, double low, double height, Argb colour) {
        const double light = alongX ? 0.84 : 0.66;
        if (alongX) {
            painter.Paint({{from, 1, low}, {width, 0, 0}, {0, 0, height}, light}, colour, Pattern::Plain);
        } else {
            painter.Paint({{1, from, low}, {0, width, 0}, {0, 0, height}, light}, colour, Pattern::Plain);
        }
    };
    pane(0.22, 0.56, 6, 9.5, Lit(look.colour, 0.6));
    pane(0.29, 0.42, 7, 7.5, Glass);
    pane(0.29, 0.42, 11.5, 3, Lit(Glass, 1.5));
    pane(0.47, 0.06, 7, 7.5, Lit(look.colour, 0.7));
    pane(0.29, 0.42, 10.4, 0.8, Lit(look.colour, 0.7));
}

void Door(SpritePainter& painter, const TileLook& look, bool alongX)
{
    const double height = look.height;
    if (alongX) {
        painter.Box({0, 1 - WallThickness / 2, 0}, {1, 1, height}, look.colour, Pattern::PlanksAlongY);
        painter.Paint({{0.1, 1, height / 2}, {0.8, 0, 0}, {0, 0, 1}, 0.6}, look.colour, Pattern::Plain);
        painter.Lump({0.82, 1, height / 2 - 1}, 0.07, 0.45, 0xE0C060);
    } else {
        painter.Box({1 - WallThickness / 2, 0, 0}, {1, 1, height}, look.colour, Pattern::PlanksAlongY);
        painter.Paint({{1, 0.1, height / 2}, {0, 0.8, 0}, {0, 0, 1}, 0.5}, look.colour, Pattern::Plain);
        painter.Lump({1, 0.82, height / 2 - 1}, 0.07, 0.45, 0xE0C060);
    }
}

/// Three steps, painted from the back to the front; `along` runs from the back to the front.
void Steps(SpritePainter& painter, const TileLook& look, bool alongY, bool fallsForward)
{
    constexpr int Count = 3;
    for (int i = 0; i < Count; ++i) {
        const double from = double(i) / Count;
        const double to = double(i + 1) / Count;
        const double height = look.height * double(fallsForward ? Count - i : i + 1) / Count;
        if (alongY) {
            painter.Box({0, from, 0}, {1, to, height}, look.colour, look.pattern);
        } else {
            painter.Box({from, 0, 0}, {to, 1, height}, look.colour, look.pattern);
        }
    }
}

/// A slab that slopes from one height to another along Y, or along X, between two shares of the cell.
struct Slope {
    bool   alongY = true;
    double from = 0.0;
    double to = 1.0;
    double start = 0.0; ///< the height at `from`
    double end = 0.0;
};

void Sloped(SpritePainter& painter, const TileLook& look, const Slope& slope, const Scale& scale, bool solid)
{
    const double run = slope.to - slope.from;
    const double rise = slope.end - slope.start;
    const double thickness = solid ? 0.0 : RoofThickness;
    // Where it rises towards the front more steeply than the view falls, its upper side is out of sight.
    const bool   seen = 2.0 * run * scale.halfHeight - rise * scale.unit > 0.0;
    if (slope.alongY) {
        if (seen) {
            painter.Paint({{0, slope.from, slope.start}, {1, 0, 0}, {0, run, rise}, rise < 0 ? 0.94 : 1.06},
                          look.colour, look.pattern);
        }
        const double low = solid ? 0.0 : slope.end - thickness;
        painter.Paint({{0, slope.to, low}, {1, 0, 0}, {0, 0, slope.end - low}, 0.7}, look.colour, Pattern::Plain);
        painter.Paint({{1, slope.from, slope.start - thickness}, {0, run, rise}, {0, 0, thickness}, 0.58}, look.colour,
                      Pattern::Plain);
    } else {
        if (seen) {
            painter.Paint({{slope.from, 0, slope.start}, {0, 1, 0}, {run, 0, rise}, rise < 0 ? 0.80 : 1.06},
                          look.colour, look.pattern);
        }
        const double low = solid ? 0.0 : slope.end - thickness;
        painter.Paint({{slope.to, 0, low}, {0, 1, 0}, {0, 0, slope.end - low}, 0.58}, look.colour, Pattern::Plain);
        painter.Paint({{slope.from, 1, slope.start - thickness}, {run, 0, rise}, {0, 0, thickness}, 0.7}, look.colour,
                      Pattern::Plain);
    }
    if (solid) {
        // The triangle below a ramp; its upright side stands where the ramp is high.
        const bool   falls = rise < 0;
        const double upright = falls ? slope.from : slope.to;
        const double reach = falls ? run : -run;
        const double high = std::max(slope.start, slope.end);
        if (slope.alongY) {
            painter.Paint({{1, upright, 0}, {0, reach, 0}, {0, 0, high}, 0.66, true}, look.colour, Pattern::Plain);
        } else {
            painter.Paint({{upright, 1, 0}, {reach, 0, 0}, {0, 0, high}, 0.84, true}, look.colour, Pattern::Plain);
        }
    }
}

void Ridge(SpritePainter& painter, const TileLook& look, bool slopesAlongY, const Scale& scale)
{
    constexpr double Top = RoofRise / 2.0;
    Sloped(painter, look, {slopesAlongY, 0.0, 0.5, 0.0, Top}, scale, false);
    Sloped(painter, look, {slopesAlongY, 0.5, 1.0, Top, 0.0}, scale, false);
}

void Trunk(SpritePainter& painter, const TileLook& look)
{
    painter.Shadow(0.7);
    painter.Stroke({0.5, 0.5, 0}, {0.5, 0.5, double(look.height)}, 0.42, 0.28, look.colour);
    painter.Stroke({0.5, 0.5, look.height * 0.6}, {0.2, 0.8, look.height + 3.0}, 0.2, 0.1, look.colour);
    painter.Stroke({0.5, 0.5, look.height * 0.7}, {0.8, 0.2, look.height + 4.0}, 0.2, 0.1, look.colour);
}

void Canopy(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height + 2.0;
    painter.Lump({0.1, 0.1, h}, 0.85, 4.6, Lit(look.colour, 0.84));
    painter.Lump({-0.1, 0.9, h}, 0.85, 4.4, Lit(look.colour, 0.94));
    painter.Lump({0.9, -0.1, h}, 0.85, 4.4, Lit(look.colour, 0.86));
    painter.Lump({0.45, 0.45, h + 5.0}, 1.0, 5.2, Lit(look.colour, 1.08));
    painter.Lump({0.8, 0.8, h - 0.5}, 0.9, 4.4, look.colour);
}

void TallCanopy(SpritePainter& painter, const TileLook& look)
{
    constexpr int Tiers = 6;
    for (int i = 0; i < Tiers; ++i) {
        const double share = double(i) / Tiers;
        painter.Lump({0.5, 0.5, look.height + 2.0 + share * 26.0}, 0.95 - 0.72 * share, 5.0 - 1.6 * share,
                     Lit(look.colour, 0.88 + 0.24 * share));
    }
}

void Palm(SpritePainter& painter, const TileLook& look)
{
    constexpr int Fronds = 9;
    const double  h = look.height;
    painter.Shadow(0.7);
    painter.Stroke({0.5, 0.5, 0}, {0.42, 0.38, h}, 0.3, 0.18, 0x8A6A44);
    for (int i = 0; i < Fronds; ++i) {
        const double angle = 2.0 * std::numbers::pi * i / Fronds;
        const double u = std::cos(angle);
        const double v = std::sin(angle);
        const Argb   green = Lit(look.colour, 0.85 + 0.3 * (i % 3) / 2.0);
        painter.Stroke({0.42, 0.38, h}, {0.42 + u * 0.6, 0.38 + v * 0.6, h + 2.0}, 0.2, 0.22, green);
        painter.Stroke({0.42 + u * 0.6, 0.38 + v * 0.6, h + 2.0}, {0.42 + u, 0.38 + v, h - 2.5}, 0.22, 0.04, green);
    }
}

void Bush(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Shadow(0.8);
    painter.Lump({0.3, 0.6, h * 0.35}, 0.5, h * 0.42, Lit(look.colour, 0.9));
    painter.Lump({0.65, 0.4, h * 0.4}, 0.5, h * 0.45, look.colour);
    painter.Lump({0.55, 0.6, h * 0.55}, 0.5, h * 0.48, Lit(look.colour, 1.1));
}

void Blades(SpritePainter& painter, const TileLook& look, bool flowers)
{
    constexpr int Blades = 9;
    for (int i = 0; i < Blades; ++i) {
        const double u = 0.2 + 0.6 * ((i * 5) % Blades) / (Blades - 1.0);
        const double v = 0.2 + 0.6 * ((i * 7) % Blades) / (Blades - 1.0);
        const double tall = look.height * (0.7 + 0.3 * ((i * 4) % Blades) / Blades);
        const double lean = 0.12 * ((i % 3) - 1);
        const Argb   leaf = flowers ? LeafGreen : look.colour;
        painter.Stroke({u, v, 0}, {u + lean, v - lean, tall}, 0.1, 0.03, Lit(leaf, 0.85 + 0.08 * (i % 4)));
        if (flowers && i % 2 == 0) {
            painter.Lump({u + lean, v - lean, tall}, 0.16, 0.8, look.colour);
        }
    }
}

void Rock(SpritePainter& painter, const TileLook& look)
{
    constexpr int CaveWall = 9;
    const double  h = look.height;
    if (look.height >= CaveWall) {
        painter.Box({0.0, 0.0, 0}, {1, 1, h * 0.9}, look.colour, Pattern::Rough);
        painter.Lump({0.35, 0.35, h * 0.9}, 0.55, 2.4, Lit(look.colour, 1.1));
        painter.Lump({0.7, 0.6, h * 0.88}, 0.5, 2.0, Lit(look.colour, 1.2));
        return;
    }
    painter.Shadow(0.75);
    painter.Lump({0.4, 0.5, h * 0.4}, 0.55, h * 0.7, look.colour);
    painter.Lump({0.7, 0.6, h * 0.25}, 0.35, h * 0.5, Lit(look.colour, 1.1));
}

/// Paints the look and gives whether its edges are to be soft.
bool PaintLook(SpritePainter& painter, const TileLook& look, const Scale& scale)
{
    const double h = look.height;
    switch (look.form) {
    case Form::Slab:
        if (look.kind == TileKind::Carpet) {
            painter.Paint({{0, 0, CarpetHeight}, {1, 0, 0}, {0, 1, 0}}, look.colour, look.pattern);
        } else {
            painter.Box({0, 0, 0}, {1, 1, h * SlabHeight}, look.colour, look.pattern);
        }
        return false;
    case Form::WaterSurface: painter.Box({0, 0, 0}, {1, 1, 0}, look.colour, look.pattern); return false;
    case Form::WallAlongX: WallAlongX(painter, look); return false;
    case Form::WallAlongY: WallAlongY(painter, look); return false;
    case Form::Post:
        painter.Box({1 - WallThickness, 1 - WallThickness, 0}, {1, 1, h}, look.colour, look.pattern);
        return false;
    case Form::Corner:
        painter.Box({1 - WallThickness, 0, 0}, {1, 1 - WallThickness, h}, look.colour, look.pattern);
        WallAlongX(painter, look);
        return false;
    case Form::WindowAlongX:
        WallAlongX(painter, look);
        Window(painter, look, true);
        return false;
    case Form::WindowAlongY:
        WallAlongY(painter, look);
        Window(painter, look, false);
        return false;
    case Form::DoorAlongX: Door(painter, look, true); return false;
    case Form::DoorAlongY: Door(painter, look, false); return false;
    case Form::Block: painter.Box({0, 0, 0}, {1, 1, h}, look.colour, look.pattern); return false;
    case Form::StepNorth: Steps(painter, look, true, false); return false;
    case Form::StepSouth: Steps(painter, look, true, true); return false;
    case Form::StepWest: Steps(painter, look, false, false); return false;
    case Form::StepEast: Steps(painter, look, false, true); return false;
    case Form::RampNorth: Sloped(painter, look, {true, 0, 1, 0, h}, scale, true); return false;
    case Form::RampSouth: Sloped(painter, look, {true, 0, 1, h, 0}, scale, true); return false;
    case Form::RampWest: Sloped(painter, look, {false, 0, 1, 0, h}, scale, true); return false;
    case Form::RampEast: Sloped(painter, look, {false, 0, 1, h, 0}, scale, true); return false;
    case Form::RoofRisesSouth: Sloped(painter, look, {true, 0, 1, 0, RoofRise}, scale, false); return false;
    case Form::RoofFallsSouth: Sloped(painter, look, {true, 0, 1, RoofRise, 0}, scale, false); return false;
    case Form::RoofRisesEast: Sloped(painter, look, {false, 0, 1, 0, RoofRise}, scale, false); return false;
    case Form::RoofFallsEast: Sloped(painter, look, {false, 0, 1, RoofRise, 0}, scale, false); return false;
    case Form::RoofRidgeAlongX: Ridge(painter, look, true, scale); return false;
    case Form::RoofRidgeAlongY: Ridge(painter, look, false, scale); return false;
    case Form::Trunk: Trunk(painter, look); return true;
    case Form::Canopy: Canopy(painter, look); return true;
    case Form::TallCanopy: TallCanopy(painter, look); return true;
    case Form::Palm: Palm(painter, look); return true;
    case Form::Bush: Bush(painter, look); return true;
    case Form::Grass: Blades(painter, look, false); return true;
    case Form::Flower: Blades(painter, look, true); return true;
    case Form::Rock: Rock(painter, look); return true;
    case Form::Spike:
        painter.Shadow(0.5);
        painter.Stroke({0.5, 0.5, 0.5}, {0.5, 0.5, h}, 0.5, 0.05, look.colour);
        return true;
    default: PaintItem(painter, look); return look.form != Form::Case && look.form != Form::Mark;
    }
}

} // namespace

Sprite PaintTile(const TileLook& look, const Scale& scale)
{
    SpritePainter painter(scale);
    const bool    soft = PaintLook(painter, look, scale);
    return painter.Finish(soft);
}

} // namespace qf::practice
