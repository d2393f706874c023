#pragma once

#include <span>
#include <string_view>

#include "construction/commands.h"
#include "core/generation.h"

namespace qf::construction {

/// The heights of a wall, the forms of its pieces and its directions, by index of their options.
enum WallHeight { ShortWall = 0, LongWall = 1 };
enum WallForm { NormalWall = 0, NorthWestPost = 1, SouthEastCorner = 2, WindowWall = 3 };

/// A wall entry as hex digits. The dialects differ in a few of them.
struct WallDigits {
    std::string_view in09;
    std::string_view in070;

    constexpr WallDigits(const char* both) : in09(both), in070(both) {}
    constexpr WallDigits(const char* first, const char* second) : in09(first), in070(second) {}

    std::string_view In(core::ServerGeneration generation) const { return generation.Is070() ? in070 : in09; }
};

struct WallTiles {
    WallDigits shortWall;
    WallDigits longWall;

    const WallDigits& Of(int height) const { return height == ShortWall ? shortWall : longWall; }
};

/// A wall type: its tiles by height, its window, which only the long wall has, by direction.
struct WallRow {
    std::string_view caption;
    WallTiles        northSouth;
    WallTiles        eastWest;
    WallTiles        post;
    WallTiles        corner;
    WallDigits       windowNorthSouth;
    WallDigits       windowEastWest;
};

std::span<const WallRow> WallRows();

/// The tiles of a box that a step lays.
enum class WallPiece { NorthSouth, EastWest, Post, Corner };

/// One command of a walled box.
struct WallStep {
    WallPiece piece;
    BoxEnd    x1;
    BoxEnd    x2;
    BoxEnd    y1;
    BoxEnd    y2;
};

/// The commands of a box of a wall type, in their order.
std::span<const WallStep> BoxSteps(int type);

} // namespace qf::construction
