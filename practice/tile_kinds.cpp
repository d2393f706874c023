#include "practice/tile_kinds.h"

#include "practice/tile_tables.h"

namespace qf::practice {

namespace {

using enum TileKind;

constexpr int Storey = 20;

std::optional<TileLook> WallLook(std::uint16_t id)
{
    constexpr int Low = 9;
    if (id == 0) {
        return std::nullopt;
    }
    for (const WallRow& row : WallRows) {
        const auto look = [&](Form form, int height) { return TileLook{Wall, form, row.pattern, height, row.colour}; };
        // clang-format off
        if (id == row.nsShort)     { return look(Form::WallAlongY,   Low); }
        if (id == row.nsLong)      { return look(Form::WallAlongY,   Storey); }
        if (id == row.ewShort)     { return look(Form::WallAlongX,   Low); }
        if (id == row.ewLong)      { return look(Form::WallAlongX,   Storey); }
        if (id == row.postShort)   { return look(Form::Post,         Low); }
        if (id == row.postLong)    { return look(Form::Post,         Storey); }
        if (id == row.cornerShort) { return look(Form::Corner,       Low); }
        if (id == row.cornerLong)  { return look(Form::Corner,       Storey); }
        if (id == row.windowNs)    { return look(Form::WindowAlongY, Storey); }
        if (id == row.windowEw)    { return look(Form::WindowAlongX, Storey); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> RoofLook(std::uint16_t id)
{
    for (const RoofRow& row : RoofRows) {
        const auto look = [&](Form form) { return TileLook{Roof, form, row.pattern, 3, row.colour}; };
        // clang-format off
        if (id == row.nsFirst) { return look(Form::RoofRisesSouth); }
        if (id == row.nsRidge) { return look(Form::RoofRidgeAlongX); }
        if (id == row.nsLast)  { return look(Form::RoofFallsSouth); }
        if (id == row.ewFirst) { return look(Form::RoofRisesEast); }
        if (id == row.ewRidge) { return look(Form::RoofRidgeAlongY); }
        if (id == row.ewLast)  { return look(Form::RoofFallsEast); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> StairLook(std::uint16_t id)
{
    for (const StairRow& row : StairRows) {
        const auto look = [&](Form form) { return TileLook{Stair, form, row.pattern, 5, row.colour}; };
        // clang-format off
        if (id == row.north) { return look(Form::StepNorth); }
        if (id == row.west)  { return look(Form::StepWest); }
        if (id == row.south) { return look(Form::StepSouth); }
        if (id == row.east)  { return look(Form::StepEast); }
        if (id == row.block) { return look(Form::Block); }
        // clang-format on
    }
    return std::nullopt;
}

std::optional<TileLook> RunLook(std::uint16_t id)
{
    for (const std::span<const RunRow> runs : {ItemRuns, PlaceRuns}) {
        for (const RunRow& row : runs) {
            if (id >= row.first && id <= row.last) {
                return row.look;
            }
        }
    }
    return std::nullopt;
}

std::optional<TileLook> DoorLook(std::uint16_t id)
{
    for (const DoorRow& row : DoorRows) {
        if (id >= row.first && id <= row.last) {
            const bool alongX = (id - row.first) % 16 < 8;
            return TileLook{Wall, alongX ? Form::DoorAlongX : Form::DoorAlongY, Pattern::PlanksAlongX, 17, row.colour};
        }
    }
    return std::nullopt;
}

/// A colour that differs from number to number and is never dark.
std::uint32_t OwnColour(std::uint16_t id)
{
    const std::uint32_t mixed = id * 2654435761U;
    return 0x707070U + (mixed & 0x3F3F3FU) * 2U;
}

} // namespace

std::optional<TileLook> KnownLook(std::uint16_t id)
{
    for (const auto find : {WallLook, RoofLook, StairLook, RunLook, DoorLook}) {
        if (const auto look = find(id)) {
            return look;
        }
    }
    return std::nullopt;
}

TileLook LookOf(std::uint16_t id)
{
    if (const auto look = KnownLook(id)) {
        return *look;
    }
    if (id > 0 && id < 0x0400) {
        return TileLook{Wall, Form::Post, Pattern::Blocks, Storey, OwnColour(id)};
    }
    return TileLook{Other, Form::Chest, Pattern::Plain, 4, OwnColour(id)};
}

} // namespace qf::practice
