#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "construction/commands.h"
#include "construction/stairs_tables.h"
#include "core/generation.h"
#include "core/outlet.h"

namespace qf::construction {

/// The directions to which stairs descend, by index of their option: the rows of a flight follow one another
/// with falling Y, falling X, rising Y or rising X.
enum StairDirection { StairsNorth = 0, StairsWest = 1, StairsSouth = 2, StairsEast = 3 };

/// What is shown where a material is needed and none is selected.
inline constexpr std::string_view NoMaterialText = "You must select a valid material!";

/// The fields of the stairs panel. Selections are indices, -1 where nothing is selected; boxes are texts.
struct StairsState {
    int         material = -1;
    int         direction = -1;
    bool        singleItem = false;
    bool        repeat = false;
    AreaTexts   area;
    std::string customStart;
    std::string customEnd;

    /// The form of the tile IDs, which stays what it was when the panel was loaded.
    core::ServerGeneration tableForm;
};

/// The "Add" button: messages, or the commands of the flight, or of one step tile. A flight whose height is no
/// multiple of five units rises, after a message, until its numbers leave 32 bits.
/// Throws RuntimeError 13 or 6 where a start or end height is no 16-bit number.
void AddStairs(const StairsState& state, core::ServerGeneration generation, core::Outlet& outlet);

/// A flight in whole numbers: its tiles as ID texts, the first corner and the far end of its rows (X2 or Y2, in
/// tiles), the heights between which it stands.
struct Flight {
    int          direction = StairsNorth;
    std::string  block;
    std::string  step;
    std::int32_t x1 = 0;
    std::int32_t y1 = 0;
    std::int32_t farEnd = 0;
    std::int32_t start = 0;
    std::int32_t end = 0;

    bool RunsAlongX() const { return direction == StairsNorth || direction == StairsSouth; }
};

/// Lays a flight: row by row a stack of blocks with a step on top, each row five units lower, the last a row of
/// steps alone. Throws RuntimeError 6 where a number leaves 32 bits, as it does for a height that is no multiple
/// of five.
void LayFlight(const Flight& flight, core::ServerGeneration generation, core::Outlet& outlet);

/// The ID text of the block that a material's own button adds: "7 21" or "0x721".
std::string StairPieceId(int material, core::ServerGeneration tableForm);

/// A material's own button: one block.
void AddStairPiece(const StairsState& state, int material, core::ServerGeneration generation, core::Outlet& outlet);

/// The number of the step tile of what is selected; nothing where the material or the direction is missing.
std::optional<std::int32_t> ShownStep(const StairsState& state);

} // namespace qf::construction
