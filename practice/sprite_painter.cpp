#include "practice/sprite_painter.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace qf::practice {

namespace {

constexpr int    Samples = 2; // per pixel in each direction
constexpr double UnitsPerCell = 8.0;
constexpr int    HighestUnits = 38;
constexpr double SouthLight = 0.84;
constexpr double EastLight = 0.66;
constexpr Argb   ShadowColour = 0x50000000U;
constexpr double LightDirectionX = -0.55;
constexpr double LightDirectionY = -0.70;
constexpr double Edge = 1e-9; // how far off a face a place may be computed that lies on its edge

/// A number from 0 to 1 that belongs to two whole numbers.
double Grain(int a, int b)
{
    std::uint32_t mixed = static_cast<std::uint32_t>(a) * 0x9E3779B1U ^ static_cast<std::uint32_t>(b) * 0x85EBCA77U;
    mixed ^= mixed >> 15U;
    mixed *= 0x2C1B3C6DU;
    mixed ^= mixed >> 13U;
    return static_cast<double>(mixed & 0xFFFFU) / 65535.0;
}

int Whole(double value)
{
    return static_cast<int>(std::floor(value));
}

double Fraction(double value)
{
    return value - std::floor(value);
}

double Planks(double along, double across)
{
    constexpr double PerCell = 4.0;
    const int        plank = Whole(across * PerCell);
    const bool       joint = Fraction(across * PerCell) < 0.12 || Fraction(along + Grain(plank, 7)) < 0.05;
    return joint ? 0.76 : 0.93 + 0.14 * Grain(plank, 3);
}

double Courses(double along, double up, double height, double length)
{
    const int    course = Whole(up / height);
    const double shift = course % 2 == 0 ? 0.0 : length / 2.0;
    const int    stone = Whole((along + shift) / length);
    const bool   joint = Fraction(up / height) < 0.12 || Fraction((along + shift) / length) < 0.07;
    return joint ? 0.78 : 0.92 + 0.16 * Grain(stone, course);
}

/// How bright a pattern is at a place of a face, both coordinates in cells.
double PatternLight(Pattern pattern, double a, double b)
{
    switch (pattern) {
    case Pattern::Plain: return 1.0;
    case Pattern::PlanksAlongX: return Planks(a, b);
    case Pattern::PlanksAlongY: return Planks(b, a);
    case Pattern::Bricks: return Courses(a, b, 0.25, 0.5);
    case Pattern::Blocks: return Courses(a, b, 0.5, 1.0);
    case Pattern::Tiles: {
        const bool joint = Fraction(a * 2.0) < 0.07 || Fraction(b * 2.0) < 0.07;
        return joint ? 0.84 : 0.96 + 0.08 * Grain(Whole(a * 2.0), Whole(b * 2.0));
    }
    case Pattern::Logs: return 0.70 + 0.38 * std::sin(std::numbers::pi * Fraction(b * 3.0));
    case Pattern::Shingles: {
        const int    row = Whole(b * 3.0);
        const double shift = row % 2 == 0 ? 0.0 : 0.125;
        const bool   joint = Fraction((a + shift) * 4.0) < 0.10;
        return (joint ? 0.86 : 0.97 + 0.06 * Grain(Whole((a + shift) * 4.0), row)) * (1.06 - 0.22 * Fraction(b * 3.0));
    }
    case Pattern::Rough: return 0.92 + 0.16 * Grain(Whole(a * 9.0), Whole(b * 9.0));
    case Pattern::Weave: return (Whole(a * 8.0) + Whole(b * 8.0)) % 2 == 0 ? 1.05 : 0.95;
    case Pattern::Waves:
        return 1.0 + 0.09 * std::sin(2.0 * std::numbers::pi * (a + b * 2.0 + 0.15 * std::sin(a * 6.28)));
    }
    return 1.0;
}

double Length(const CellPoint& side)
{
    return std::hypot(side.u, side.v, side.h / UnitsPerCell);
}

} // namespace

SpritePainter::SpritePainter(const Scale& scale)
    : scale_(scale),
      left_(-3 * scale.halfWidth),
      top_(-static_cast<int>(HighestUnits * scale.unit)),
      width_(6 * scale.halfWidth * Samples),
      height_((4 * scale.halfHeight - top_) * Samples),
      samples_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_), 0U)
{}

SpritePainter::Flat SpritePainter::Project(const CellPoint& point) const
{
    return {((point.u - point.v) * scale_.halfWidth - left_) * Samples,
            ((point.u + point.v) * scale_.halfHeight - point.h * scale_.unit - top_) * Samples};
}

void SpritePainter::Put(int x, int y, Argb colour)
{
    samples_[Index(x, y)] = colour;
}

template <typename Visit>
void SpritePainter::ForEachSample(Flat low, Flat high, Visit visit)
{
    const int right = std::min(width_ - 1, Whole(high.x) + 1);
    const int bottom = std::min(height_ - 1, Whole(high.y) + 1);
    for (int y = std::max(0, Whole(low.y) - 1); y <= bottom; ++y) {
        for (int x = std::max(0, Whole(low.x) - 1); x <= right; ++x) {
            visit(x, y, x + 0.5, y + 0.5);
        }
    }
}

void SpritePainter::Paint(const Face& face, Argb colour, Pattern pattern)
{
    const Flat origin = Project(face.origin);
    const auto side = [&](const CellPoint& edge) {
        const Flat end = Project({face.origin.u + edge.u, face.origin.v + edge.v, face.origin.h + edge.h});
        return Flat{end.x - origin.x, end.y - origin.y};
    };
    const Flat   a = side(face.a);
    const Flat   b = side(face.b);
    const double cross = a.x * b.y - a.y * b.x;
    if (std::abs(cross) < 1e-6) {
        return;
    }
    const Flat   low{origin.x + std::min(a.x, 0.0) + std::min(b.x, 0.0),
                   origin.y + std::min(a.y, 0.0) + std::min(b.y, 0.0)};
    const Flat   high{origin.x + std::max(a.x, 0.0) + std::max(b.x, 0.0),
                    origin.y + std::max(a.y, 0.0) + std::max(b.y, 0.0)};
    // A pattern runs on from one box of a cell to the next one above or beside it.
    const double aStart = face.a.u != 0.0 ? face.origin.u : face.origin.v;
    const double bStart = face.b.h != 0.0 && face.b.u == 0.0 && face.b.v == 0.0 ? face.origin.h / UnitsPerCell
                          : face.b.u != 0.0                                     ? face.origin.u
                                                                                : face.origin.v;
    const double aLength = Length(face.a);
    const double bLength = Length(face.b);
    ForEachSample(low, high, [&](int x, int y, double px, double py) {
        const double dx = px - origin.x;
        const double dy = py - origin.y;
        const double s = (dx * b.y - dy * b.x) / cross;
        const double t = (a.x * dy - a.y * dx) / cross;
        // Samples lie right on the edges of square cells; they belong to the face, or faces that meet would
        // leave a line between them.
        if (s < -Edge || s > 1.0 + Edge || t < -Edge || t > 1.0 + Edge || (face.triangle && s + t > 1.0 + Edge)) {
            return;
        }
        const auto   within = [](double share) { return std::clamp(share, 0.0, 1.0 - Edge); };
        const double light = PatternLight(pattern, aStart + within(s) * aLength, bStart + within(t) * bLength);
        Put(x, y, Lit(colour | Opaque, face.light * light));
    });
}

void SpritePainter::Box(const CellPoint& low, const CellPoint& high, Argb colour, Pattern pattern)
{
    const double alongU = high.u - low.u;
    const double alongV = high.v - low.v;
    const double up = high.h - low.h;
    Paint({{low.u, low.v, high.h}, {alongU, 0, 0}, {0, alongV, 0}}, colour, pattern);
    if (up > 0.0) {
        Paint({{low.u, high.v, low.h}, {alongU, 0, 0}, {0, 0, up}, SouthLight}, colour, pattern);
        Paint({{high.u, low.v, low.h}, {0, alongV, 0}, {0, 0, up}, EastLight}, colour, pattern);
    }
}

void SpritePainter::Lump(const CellPoint& centre, double across, double upright, Argb colour)
{
    const Flat   middle = Project(centre);
    const double radius = across * scale_.halfWidth * Samples;
    const double height = upright * scale_.unit * Samples;
    ForEachSample({middle.x - radius, middle.y - height}, {middle.x + radius, middle.y + height},
                  [&](int x, int y, double px, double py) {
                      const double nx = (px - middle.x) / radius;
                      const double ny = (py - middle.y) / height;
                      const double squared = nx * nx + ny * ny;
                      // The edge is a little ragged, so that leaves and stone do not look like balls.
                      const double ragged = 0.86 + 0.14 * Grain(Whole(nx * 7.0), Whole(ny * 7.0));
                      if (squared >= ragged) {
                          return;
                      }
                      const double facing = nx * LightDirectionX + ny * LightDirectionY;
                      const double front = std::sqrt(1.0 - squared);
                      const double grain = 0.90 + 0.20 * Grain(Whole(nx * 11.0), Whole(ny * 11.0));
                      Put(x, y, Lit(colour | Opaque, (0.66 + 0.30 * facing + 0.24 * front) * grain));
                  });
}

void SpritePainter::Stroke(const CellPoint& from, const CellPoint& to, double fromWidth, double toWidth, Argb colour)
{
    const Flat   start = Project(from);
    const Flat   end = Project(to);
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double run = std::max(dx * dx + dy * dy, 1e-6);
    const double half = std::max(fromWidth, toWidth) * scale_.halfWidth * Samples / 2.0 + 1.0;
    ForEachSample({std::min(start.x, end.x) - half, std::min(start.y, end.y) - half},
                  {std::max(start.x, end.x) + half, std::max(start.y, end.y) + half},
                  [&](int x, int y, double px, double py) {
                      const double share = std::clamp(((px - start.x) * dx + (py - start.y) * dy) / run, 0.0, 1.0);
                      const double offX = px - start.x - share * dx;
                      const double offY = py - start.y - share * dy;
                      const double width = fromWidth + share * (toWidth - fromWidth);
                      const double radius = std::max(width * scale_.halfWidth * Samples / 2.0, 0.7);
                      const double off = std::hypot(offX, offY);
                      if (off <= radius) {
                          const double facing = (offX * LightDirectionX + offY * LightDirectionY) / radius;
                          Put(x, y, Lit(colour | Opaque, 0.86 + 0.26 * facing));
                      }
                  });
}

void SpritePainter::Shadow(double radius)
{
    const Flat   middle = Project({0.5, 0.5, 0.0});
    const double across = radius * scale_.halfWidth * Samples;
    ForEachSample({middle.x - across, middle.y - across}, {middle.x + across, middle.y + across},
                  [&](int x, int y, double px, double py) {
                      const double nx = (px - middle.x) / across;
                      const double ny = 2.0 * (py - middle.y) / across;
                      if (nx * nx + ny * ny < 1.0) {
                          Put(x, y, ShadowColour);
                      }
                  });
}

Sprite SpritePainter::Finish(bool softEdges) const
{
    const int         width = width_ / Samples;
    const int         height = height_ / Samples;
    std::vector<Argb> pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), 0U);
    int               minX = width;
    int               minY = height;
    int               maxX = -1;
    int               maxY = -1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Argb alpha = 0;
            Argb sum[3]{};
            for (int part = 0; part < Samples * Samples; ++part) {
                const Argb sample = samples_[Index(x * Samples + part % Samples, y * Samples + part / Samples)];
                const Argb weight = sample >> 24U;
                alpha += weight;
                sum[0] += (sample >> 16U & 0xFFU) * weight;
                sum[1] += (sample >> 8U & 0xFFU) * weight;
                sum[2] += (sample & 0xFFU) * weight;
            }
            if (alpha == 0) {
                continue;
            }
            const Argb covered = softEdges ? alpha / (Samples * Samples) : 255U;
            pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] =
                covered << 24U | sum[0] / alpha << 16U | sum[1] / alpha << 8U | sum[2] / alpha;
            minX = std::min(minX, x);
            minY = std::min(minY, y);
            maxX = std::max(maxX, x);
            maxY = std::max(maxY, y);
        }
    }
    Sprite sprite;
    if (maxX < 0) {
        return sprite;
    }
    sprite.left = left_ + minX;
    sprite.top = top_ + minY;
    sprite.width = maxX - minX + 1;
    sprite.height = maxY - minY + 1;
    sprite.pixels.reserve(static_cast<std::size_t>(sprite.width) * static_cast<std::size_t>(sprite.height));
    for (int y = minY; y <= maxY; ++y) {
        const auto row = pixels.begin() + static_cast<std::ptrdiff_t>(y) * width;
        sprite.pixels.insert(sprite.pixels.end(), row + minX, row + maxX + 1);
    }
    return sprite;
}

} // namespace qf::practice
