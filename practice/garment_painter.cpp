#include "practice/garment_painter.h"

namespace qf::practice {

namespace {

constexpr Argb Skin = 0xF0C8A0;
constexpr Argb Seam = 0x3A2E28;
constexpr Argb Clasp = 0xE0C060;
constexpr Argb Plume = 0xF0F0E8;

void Sleeves(SpritePainter& painter, const TileLook& look, double shoulder, double end)
{
    for (const double side : {-1.0, 1.0}) {
        painter.Stroke(Facing(side * 0.28, shoulder), Facing(side * 0.68, end), 0.26, 0.24, Lit(look.colour, 0.9));
    }
}

void Shirt(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height + 1.0;
    Sleeves(painter, look, top, top - 4.0);
    painter.Stroke(Facing(0, 2), Facing(0, top), 0.62, 0.62, look.colour);
    painter.Lump(Facing(0, top + 1.4), 0.16, 0.7, Seam);
}

void Robe(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height;
    Sleeves(painter, look, top, top - 5.5);
    painter.Stroke(Facing(0, 1.6), Facing(0, top), 0.95, 0.55, look.colour);
    painter.Stroke(Facing(-0.3, top * 0.55), Facing(0.3, top * 0.55), 0.09, 0.09, Lit(look.colour, 0.6));
    painter.Lump(Facing(0, top + 1.2), 0.16, 0.7, Seam);
}

void Cloak(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height;
    painter.Stroke(Facing(0, 1.6), Facing(0, top), 1.1, 0.5, look.colour);
    painter.Stroke(Facing(0, 0.6), Facing(0, top - 1), 0.3, 0.06, Lit(look.colour, 0.55));
    painter.Lump(Facing(0, top), 0.1, 0.6, Clasp);
}

void Skirt(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height + 1.0;
    painter.Stroke(Facing(0, 2), Facing(0, top), 0.95, 0.45, look.colour);
    for (const double fold : {-0.25, 0.0, 0.25}) {
        painter.Stroke(Facing(fold * 1.4, 0.8), Facing(fold * 0.6, top - 1), 0.05, 0.03, Lit(look.colour, 0.65));
    }
    painter.Stroke(Facing(-0.24, top), Facing(0.24, top), 0.12, 0.12, Lit(look.colour, 0.6));
}

void Trousers(SpritePainter& painter, const TileLook& look)
{
    constexpr double Waist = 9.0;
    const double     foot = Waist - 1.2 - look.height;
    for (const double side : {-1.0, 1.0}) {
        painter.Stroke(Facing(side * 0.18, Waist - 1), Facing(side * 0.28, foot), 0.34, 0.28, look.colour);
    }
    painter.Stroke(Facing(-0.24, Waist), Facing(0.24, Waist), 0.2, 0.2, Lit(look.colour, 0.7));
}

void Apron(SpritePainter& painter, const TileLook& look)
{
    const double top = look.height;
    for (const double side : {-1.0, 1.0}) {
        painter.Stroke(Facing(side * 0.24, top), Facing(side * 0.12, top + 2.4), 0.06, 0.06, Lit(look.colour, 0.7));
    }
    painter.Stroke(Facing(0, 1.6), Facing(0, top), 0.8, 0.56, look.colour);
    painter.Stroke(Facing(-0.6, top * 0.6), Facing(0.6, top * 0.6), 0.07, 0.07, Lit(look.colour, 0.7));
}

void Boots(SpritePainter& painter, const TileLook& look)
{
    for (const double side : {-1.0, 1.0}) {
        const double x = side * 0.3;
        painter.Stroke(Facing(x, look.height + 0.8), Facing(x, 0.9), 0.28, 0.24, look.colour);
        painter.Stroke(Facing(x, 0.8), Facing(x + 0.2, 0.3), 0.24, 0.2, Lit(look.colour, 0.9));
    }
}

void Brim(SpritePainter& painter, const TileLook& look, double across)
{
    painter.Lump(Facing(0, 1.2), across, 1.2, Lit(look.colour, 0.85));
}

void Crown(SpritePainter& painter, const TileLook& look, double low, double high)
{
    const double top = look.height;
    painter.Stroke(Facing(0, 1.8), Facing(0, 1.8 + top), low, high, look.colour);
    painter.Stroke(Facing(-low / 2, 1.9), Facing(low / 2, 1.9), 0.1, 0.1, Lit(look.colour, 0.55));
}

void Mask(SpritePainter& painter, const TileLook& look)
{
    const double h = look.height;
    painter.Lump(Facing(-0.38, h), 0.16, 1.6, Lit(look.colour, 0.85));
    painter.Lump(Facing(0.38, h), 0.16, 1.6, Lit(look.colour, 0.85));
    painter.Lump(Facing(0, h * 0.55), 0.52, h * 0.55, look.colour);
    painter.Lump(Facing(-0.2, h * 0.65), 0.12, 0.7, Seam);
    painter.Lump(Facing(0.2, h * 0.65), 0.12, 0.7, Seam);
    painter.Stroke(Facing(-0.16, h * 0.3), Facing(0.16, h * 0.3), 0.07, 0.07, Seam);
}

void Face(SpritePainter& painter)
{
    painter.Lump(Facing(0, 5), 0.46, 3.6, Skin);
    painter.Lump(Facing(-0.17, 5.2), 0.06, 0.4, Seam);
    painter.Lump(Facing(0.17, 5.2), 0.06, 0.4, Seam);
}

void Hair(SpritePainter& painter, const TileLook& look)
{
    const double length = look.height;
    Face(painter);
    painter.Lump(Facing(0, 7.6), 0.54, 2.0, look.colour);
    for (const double side : {-1.0, 1.0}) {
        painter.Stroke(Facing(side * 0.46, 7), Facing(side * 0.5, 6.6 - length), 0.18, 0.16, look.colour);
    }
}

void Mohawk(SpritePainter& painter, const TileLook& look)
{
    Face(painter);
    painter.Stroke(Facing(0, 7.4), Facing(0, 8.0 + look.height), 0.2, 0.12, look.colour);
}

void Beard(SpritePainter& painter, const TileLook& look)
{
    Face(painter);
    painter.Stroke(Facing(-0.2, 3.9), Facing(0.2, 3.9), 0.14, 0.14, look.colour);
    if (look.height > 0) {
        painter.Stroke(Facing(0, 3), Facing(0, 3.4 - look.height * 0.6), 0.5, 0.2, look.colour);
    }
}

} // namespace

bool PaintGarment(SpritePainter& painter, const TileLook& look)
{
    switch (look.form) {
    case Form::Shirt: Shirt(painter, look); return true;
    case Form::Robe: Robe(painter, look); return true;
    case Form::Cloak: Cloak(painter, look); return true;
    case Form::Skirt: Skirt(painter, look); return true;
    case Form::Trousers: Trousers(painter, look); return true;
    case Form::Apron: Apron(painter, look); return true;
    case Form::Sash:
        painter.Stroke(Facing(-0.45, look.height), Facing(0.45, 1.5), 0.2, 0.24, look.colour);
        painter.Lump(Facing(-0.1, look.height * 0.62), 0.1, 0.6, Clasp);
        return true;
    case Form::Boots: Boots(painter, look); return true;
    case Form::Cap:
        painter.Lump(Facing(0, look.height * 0.6 + 0.6), 0.5, look.height * 0.8, look.colour);
        painter.Stroke(Facing(-0.44, 1), Facing(0.44, 1), 0.12, 0.12, Lit(look.colour, 0.7));
        return true;
    case Form::Hat:
        Brim(painter, look, 0.55);
        Crown(painter, look, 0.66, 0.6);
        return true;
    case Form::WideHat:
        Brim(painter, look, 0.9);
        Crown(painter, look, 0.6, 0.5);
        return true;
    case Form::PointedHat:
        Brim(painter, look, 0.75);
        Crown(painter, look, 0.66, 0.04);
        return true;
    case Form::PlumedHat:
        Brim(painter, look, 0.8);
        Crown(painter, look, 0.6, 0.5);
        painter.Stroke(Facing(-0.2, 2.2), Facing(-0.6, look.height + 4.0), 0.16, 0.06, Plume);
        return true;
    case Form::Mask: Mask(painter, look); return true;
    case Form::Hair: Hair(painter, look); return true;
    case Form::Mohawk: Mohawk(painter, look); return true;
    case Form::Beard: Beard(painter, look); return true;
    default: return false;
    }
}

} // namespace qf::practice
