#include "practice/item_painter.h"

#include <array>
#include <cmath>
#include <numbers>
#include <utility>

#include "practice/garment_painter.h"

namespace qf::practice {

namespace {

constexpr Argb Flame = 0xFFD860;
constexpr Argb DarkTrunk = 0x6B4A2E;
constexpr Argb BedLinen = 0xF2F0EA;
constexpr Argb FrameGold = 0xC8A040;
constexpr Argb Hoop = 0x5A5A60;
constexpr Argb Hollow = 0x1E1A1A;

void TableTop(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height;
    const Argb   leg = Lit(look.colour, 0.8);
    for (const auto& [u, v] : {std::pair{0.12, 0.12}, {0.76, 0.12}, {0.12, 0.76}, {0.76, 0.76}}) {
        painter.Box({u, v, 0}, {u + 0.12, v + 0.12, top - 1}, leg, Pattern::Plain);
    }
    painter.Box({0.04, 0.04, top - 1}, {0.96, 0.96, top}, Lit(look.colour, 1.25), look.pattern);
}

void Seat(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0.25, 0.25, h}, {0.78, 0.34, h + 6}, look.colour, look.pattern);
    painter.Box({0.25, 0.25, 0}, {0.78, 0.78, h}, look.colour, look.pattern);
}

void Bed(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0, 0.05, 0}, {1, 0.95, h * 0.5}, DarkTrunk, Pattern::Plain);
    painter.Box({0, 0.05, h * 0.5}, {1, 0.95, h}, look.colour, look.pattern);
    painter.Box({0.08, 0.12, h}, {0.4, 0.88, h + 1}, BedLinen, Pattern::Plain);
}

void Chest(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0.2, 0.2, 0}, {0.8, 0.8, h * 0.7}, look.colour, look.pattern);
    painter.Box({0.17, 0.17, h * 0.7}, {0.83, 0.83, h}, Lit(look.colour, 1.12), look.pattern);
}

void Lamp(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Stroke({0.5, 0.5, 0}, {0.5, 0.5, h}, 0.14, 0.1, look.colour);
    painter.Lump({0.5, 0.5, h + 0.8}, 0.26, 1.5, 0xE88A30);
    painter.Lump({0.5, 0.5, h + 0.8}, 0.15, 1.0, Lit(Flame, 1.3));
}

void Sign(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Stroke({0.5, 0.5, 0}, {0.5, 0.5, h}, 0.14, 0.14, DarkTrunk);
    painter.Box({0.1, 0.46, h - 5}, {0.95, 0.58, h}, look.colour, look.pattern);
    painter.Paint({{0.22, 0.58, h - 2.2}, {0.6, 0, 0}, {0, 0, 0.7}, 0.4}, look.colour, Pattern::Plain);
    painter.Paint({{0.22, 0.58, h - 3.8}, {0.45, 0, 0}, {0, 0, 0.7}, 0.4}, look.colour, Pattern::Plain);
}

void Pile(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Lump({0.5, 0.5, h * 0.4}, 0.85, h * 0.7, look.colour);
    painter.Lump({0.45, 0.4, h * 0.8}, 0.4, h * 0.5, Lit(look.colour, 1.15));
}

void Barrel(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Shadow(0.6);
    painter.Stroke(Facing(0, 1), Facing(0, h - 1), 0.74, 0.74, look.colour);
    for (const double at : {0.25, 0.7}) {
        painter.Stroke(Facing(-0.34, h * at), Facing(0.34, h * at), 0.07, 0.07, Hoop);
    }
    painter.Lump(Facing(0, h - 0.4), 0.36, 1.3, Lit(look.colour, 1.15));
}

void Pot(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Shadow(0.6);
    painter.Lump(Facing(0, h * 0.5), 0.55, h * 0.55, look.colour);
    painter.Lump(Facing(0, h * 0.9), 0.46, 1.1, Lit(look.colour, 1.3));
    painter.Lump(Facing(0, h * 0.9), 0.36, 0.8, Hollow);
}

void Trough(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0, 0, 0}, {1, 1, h}, DarkTrunk, look.pattern);
    painter.Paint({{0.1, 0.1, h}, {0.8, 0, 0}, {0, 0.8, 0}}, look.colour, Pattern::Waves);
}

void Forge(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0.1, 0.1, 0}, {0.9, 0.9, h}, look.colour, look.pattern);
    painter.Paint({{0.22, 0.22, h}, {0.56, 0, 0}, {0, 0.56, 0}}, Hollow, Pattern::Rough);
    painter.Lump({0.5, 0.5, h + 0.6}, 0.35, 1.6, 0xE8641E);
    painter.Lump({0.5, 0.5, h + 0.8}, 0.2, 1.1, Flame);
}

void Anvil(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0.2, 0.3, 0}, {0.8, 0.7, 1.5}, look.colour, Pattern::Plain);
    painter.Box({0.36, 0.38, 1.5}, {0.64, 0.62, h - 2.5}, look.colour, Pattern::Plain);
    painter.Box({0.05, 0.3, h - 2.5}, {0.75, 0.7, h}, look.colour, Pattern::Plain);
    painter.Stroke({0.8, 0.5, h - 1.0}, {1.15, 0.5, h - 0.4}, 0.26, 0.04, look.colour);
}

void Harp(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    for (int i = 1; i < 7; ++i) {
        const double x = -0.35 + 0.1 * i;
        painter.Stroke(Facing(x, 1.5 + 0.6 * i), Facing(x, h - 1.0 - 0.2 * i), 0.02, 0.02, BedLinen);
    }
    painter.Stroke(Facing(-0.38, 0.5), Facing(-0.38, h), 0.12, 0.1, look.colour);
    painter.Stroke(Facing(-0.38, h), Facing(0.42, h - 2.5), 0.12, 0.1, look.colour);
    painter.Stroke(Facing(-0.38, 0.8), Facing(0.42, h - 2.5), 0.2, 0.14, Lit(look.colour, 0.85));
}

/// A ring that faces the viewer.
void Ring(SpritePainter& painter, double middle, double across, double upright, double width, Argb colour)
{
    constexpr int Parts = 16;
    const auto    point = [&](int part) {
        const double angle = 2.0 * std::numbers::pi * part / Parts;
        return Facing(across * std::cos(angle), middle + upright * std::sin(angle));
    };
    for (int i = 0; i < Parts; ++i) {
        painter.Stroke(point(i), point(i + 1), width, width, colour);
    }
}

void Wheel(SpritePainter& painter, const TileLook& look)
{
    constexpr double Radius = 3.4;
    const double     middle = look.height - Radius;
    painter.Stroke(Facing(-0.1, middle), Facing(-0.4, 0), 0.12, 0.12, Lit(look.colour, 0.75));
    painter.Stroke(Facing(-0.1, middle), Facing(0.3, 0), 0.12, 0.12, Lit(look.colour, 0.75));
    painter.Stroke(Facing(-0.5, 2.4), Facing(0.6, 2.4), 0.16, 0.16, Lit(look.colour, 0.85));
    painter.Stroke(Facing(-0.1 - 0.6, middle), Facing(-0.1 + 0.6, middle), 0.05, 0.05, look.colour);
    painter.Stroke(Facing(0, middle - Radius), Facing(0, middle + Radius), 0.05, 0.05, look.colour);
    Ring(painter, middle, 0.6, Radius, 0.12, look.colour);
}

void Timber(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    const Argb   rear = Lit(look.colour, 0.85);
    painter.Box({0.08, 0.08, 0}, {0.2, 0.2, h}, rear, Pattern::Plain);
    painter.Box({0.8, 0.08, 0}, {0.92, 0.2, h}, rear, Pattern::Plain);
    painter.Box({0.08, 0.8, 0}, {0.2, 0.92, h}, rear, Pattern::Plain);
    painter.Box({0.04, 0.08, h}, {0.96, 0.2, h + 1}, look.colour, Pattern::PlanksAlongX);
    painter.Box({0.08, 0.2, h}, {0.2, 0.96, h + 1}, look.colour, Pattern::PlanksAlongX);
    painter.Box({0.8, 0.2, h}, {0.92, 0.8, h + 1}, look.colour, Pattern::PlanksAlongX);
    painter.Box({0.8, 0.8, 0}, {0.92, 0.92, h}, look.colour, Pattern::Plain);
    painter.Box({0.2, 0.8, h}, {0.96, 0.92, h + 1}, look.colour, Pattern::PlanksAlongX);
}

void Target(SpritePainter& painter, const TileLook& look)
{
    const double middle = look.height;
    painter.Stroke(Facing(-0.1, middle), Facing(-0.45, 0), 0.12, 0.12, DarkTrunk);
    painter.Stroke(Facing(0.1, middle), Facing(0.45, 0), 0.12, 0.12, DarkTrunk);
    const std::array<std::pair<double, Argb>, 4> discs{
        {{0.72, look.colour}, {0.54, 0xF0ECE0}, {0.36, 0xB83A32}, {0.15, 0xF0ECE0}}};
    for (const auto& [radius, colour] : discs) {
        painter.Lump(Facing(0, middle), radius, radius * 5.5, colour);
    }
}

void Dummy(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Shadow(0.5);
    painter.Stroke(Facing(0, 0), Facing(0, h), 0.14, 0.14, DarkTrunk);
    painter.Stroke(Facing(-0.7, h * 0.62), Facing(0.7, h * 0.62), 0.14, 0.14, DarkTrunk);
    painter.Stroke(Facing(0, h * 0.3), Facing(0, h * 0.66), 0.62, 0.5, look.colour);
    painter.Stroke(Facing(-0.5, h * 0.62), Facing(0.5, h * 0.62), 0.2, 0.2, look.colour);
    painter.Lump(Facing(0, h * 0.92), 0.3, 1.7, Lit(look.colour, 1.15));
}

void Gate(SpritePainter& painter, const TileLook& look)
{
    const double middle = look.height * 0.5 + 0.5;
    const double tall = look.height * 0.5;
    painter.Lump(Facing(0, middle), 0.8, tall, look.colour);
    painter.Lump(Facing(0, middle), 0.6, tall * 0.8, Lit(look.colour, 1.35));
    painter.Lump(Facing(0, middle), 0.35, tall * 0.5, Lit(look.colour, 1.8));
}

void Ankh(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Stroke(Facing(0, 0.5), Facing(0, h * 0.62), 0.26, 0.2, look.colour);
    painter.Stroke(Facing(-0.55, h * 0.58), Facing(0.55, h * 0.58), 0.22, 0.22, look.colour);
    Ring(painter, h * 0.82, 0.32, h * 0.19, 0.16, look.colour);
}

void Statue(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0.12, 0.12, 0}, {0.88, 0.88, 3}, look.colour, look.pattern);
    painter.Stroke(Facing(0, 4), Facing(0, h - 3), 0.66, 0.5, Lit(look.colour, 1.05));
    painter.Stroke(Facing(-0.26, h - 3.5), Facing(-0.34, h - 8), 0.2, 0.16, look.colour);
    painter.Stroke(Facing(0.26, h - 3.5), Facing(0.4, h - 7), 0.2, 0.16, look.colour);
    painter.Lump(Facing(0, h - 0.6), 0.26, 1.6, Lit(look.colour, 1.1));
}

void GlassCase(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Box({0, 0, 0}, {1, 1, h}, look.colour, look.pattern);
    painter.Paint({{0.06, 0.06, h}, {0.88, 0, 0}, {0, 0.88, 0}, 1.15}, look.colour, Pattern::Plain);
    painter.Paint({{0.1, 1, h * 0.2}, {0.2, 0, 0}, {0.25, 0, h * 0.6}, 1.2}, look.colour, Pattern::Plain);
    painter.Paint({{1, 0.6, h * 0.2}, {0, 0.2, 0}, {0, -0.25, h * 0.6}, 1.0}, look.colour, Pattern::Plain);
}

/// A drawing on the ground, or on a low stone.
void Mark(SpritePainter& painter, const TileLook& look)
{
    constexpr int Points = 5;
    const double  h = look.height;
    painter.Box({0, 0, 0}, {1, 1, h}, Lit(look.colour, 0.9), look.pattern);
    const auto point = [&](int i) {
        const double angle = 2.0 * std::numbers::pi * i / Points;
        return CellPoint{0.5 - 0.4 * std::cos(angle), 0.5 - 0.4 * std::sin(angle), h};
    };
    for (int i = 0; i < Points; ++i) {
        painter.Stroke(point(i), point(i + 2), 0.07, 0.07, Lit(look.colour, 1.7));
    }
}

/// What hangs on the wall behind the cell: a flat shape between two heights, seen from the front.
void OnWall(SpritePainter& painter, bool alongX, double from, double to, double low, double high, Argb colour,
            Pattern pattern)
{
    constexpr double Off = 0.06;
    if (alongX) {
        painter.Paint({{from, Off, low}, {to - from, 0, 0}, {0, 0, high - low}, 1.0}, colour, pattern);
    } else {
        painter.Paint({{Off, from, low}, {0, to - from, 0}, {0, 0, high - low}, 0.85}, colour, pattern);
    }
}

void Picture(SpritePainter& painter, const TileLook& look, bool alongX)
{
    const double middle = look.height;
    OnWall(painter, alongX, 0.12, 0.88, middle - 5, middle + 5, FrameGold, Pattern::Plain);
    OnWall(painter, alongX, 0.22, 0.78, middle - 3.8, middle + 3.8, look.colour, look.pattern);
    if (look.pattern == Pattern::Plain) {
        OnWall(painter, alongX, 0.36, 0.64, middle - 3.8, middle - 0.8, Lit(look.colour, 0.6), Pattern::Plain);
        painter.Lump(alongX ? CellPoint{0.5, 0.06, middle + 0.4} : CellPoint{0.06, 0.5, middle + 0.4}, 0.13, 1.3,
                     0xE8C8A0);
    }
}

void Trophy(SpritePainter& painter, const TileLook& look, bool alongX)
{
    const double middle = look.height;
    const auto   out = [&](double side, double forward, double h) {
        return alongX ? CellPoint{0.5 + side, forward, h} : CellPoint{forward, 0.5 + side, h};
    };
    OnWall(painter, alongX, 0.2, 0.8, middle - 4, middle + 4, DarkTrunk, Pattern::Plain);
    painter.Stroke(out(0, 0.1, middle), out(0, 0.3, middle + 1), 0.4, 0.34, look.colour);
    painter.Lump(out(-0.2, 0.3, middle + 3), 0.12, 1.0, look.colour);
    painter.Lump(out(0.2, 0.3, middle + 3), 0.12, 1.0, look.colour);
    painter.Lump(out(0, 0.35, middle + 1), 0.3, 2.0, Lit(look.colour, 1.15));
    painter.Lump(out(0, 0.5, middle), 0.14, 0.9, Hollow);
}

} // namespace

void PaintItem(SpritePainter& painter, const TileLook& look)
{
    switch (look.form) {
    case Form::Seat: Seat(painter, look); break;
    case Form::Bed: Bed(painter, look); break;
    case Form::Cupboard:
        painter.Box({0.1, 0.1, 0}, {0.92, 0.92, double(look.height)}, look.colour, look.pattern);
        break;
    case Form::Table: TableTop(painter, look); break;
    case Form::Lamp: Lamp(painter, look); break;
    case Form::Sign: Sign(painter, look); break;
    case Form::Pile: Pile(painter, look); break;
    case Form::Barrel: Barrel(painter, look); break;
    case Form::Pot: Pot(painter, look); break;
    case Form::Trough: Trough(painter, look); break;
    case Form::Forge: Forge(painter, look); break;
    case Form::Anvil: Anvil(painter, look); break;
    case Form::Harp: Harp(painter, look); break;
    case Form::Wheel: Wheel(painter, look); break;
    case Form::Timber: Timber(painter, look); break;
    case Form::Target: Target(painter, look); break;
    case Form::Dummy: Dummy(painter, look); break;
    case Form::Gate: Gate(painter, look); break;
    case Form::Ankh: Ankh(painter, look); break;
    case Form::Statue: Statue(painter, look); break;
    case Form::Case: GlassCase(painter, look); break;
    case Form::Mark: Mark(painter, look); break;
    case Form::PictureAlongX: Picture(painter, look, true); break;
    case Form::PictureAlongY: Picture(painter, look, false); break;
    case Form::TrophyAlongX: Trophy(painter, look, true); break;
    case Form::TrophyAlongY: Trophy(painter, look, false); break;
    default:
        if (!PaintGarment(painter, look)) {
            Chest(painter, look);
        }
        break;
    }
}

} // namespace qf::practice
