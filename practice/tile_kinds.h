#pragma once

#include <cstdint>
#include <optional>

namespace qf::practice {

/// What a tile is, in the order in which tiles of one cell and height are drawn.
enum class TileKind { Water, Floor, Cave, Carpet, Stair, Wall, Furniture, Plant, Tree, Roof, Other };

/// The shape that stands for a tile. X runs to the lower right, Y to the lower left.
enum class Form {
    // clang-format off
    Slab, WaterSurface,
    WallAlongX, WallAlongY, Post, Corner, WindowAlongX, WindowAlongY, DoorAlongX, DoorAlongY,
    Block, StepNorth, StepWest, StepSouth, StepEast, RampNorth, RampWest, RampSouth, RampEast,
    RoofRisesSouth, RoofRidgeAlongX, RoofFallsSouth, RoofRisesEast, RoofRidgeAlongY, RoofFallsEast,
    Trunk, Canopy, TallCanopy, Palm, Bush, Grass, Flower, Rock, Spike,
    Seat, Table, Bed, Chest, Cupboard, Lamp, Sign, Pile,
    Barrel, Pot, Trough, Forge, Anvil, Harp, Wheel, Timber, Target, Dummy, Gate, Ankh, Statue, Case, Mark,
    PictureAlongX, PictureAlongY, TrophyAlongX, TrophyAlongY,
    Boots, Hat, WideHat, PointedHat, PlumedHat, Cap, Mask, Shirt, Robe, Cloak, Skirt, Trousers, Apron, Sash,
    Hair, Mohawk, Beard,
    // clang-format on
};

enum class Pattern { Plain, PlanksAlongX, PlanksAlongY, Bricks, Blocks, Tiles, Logs, Shingles, Rough, Weave, Waves };

/// How a tile is drawn where the client's own art is not at hand.
struct TileLook {
    TileKind      kind = TileKind::Other;
    Form          form = Form::Chest;
    Pattern       pattern = Pattern::Plain;
    int           height = 4; ///< in height units
    std::uint32_t colour = 0; ///< 0xRRGGBB
};

/// The look of a tile number of a known family.
std::optional<TileLook> KnownLook(std::uint16_t id);

/// The look of a tile number. A number of no known family is a small box of a colour of its own.
TileLook LookOf(std::uint16_t id);

} // namespace qf::practice
