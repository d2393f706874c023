#pragma once

#include <cstdint>

#include "core/generation.h"
#include "core/outlet.h"
#include "gamedata/clothing_tables.h"

namespace qf::gamedata {

/// The piece at a row of a list; null where the row is none of its rows (-1 for no selection).
const Garment* GarmentAt(std::span<const Garment> list, int row);

/// The pieces of a category by its row; none where no category is selected.
std::span<const Garment> GarmentsOf(int category);

/// The item ID of a piece as a number.
std::int32_t ItemIdOf(const Garment& garment);

/// Sends the command that adds a piece as an item, at the place that the game then asks for. Nothing is sent
/// for null, nor under a generation that is neither of the two.
void AddGarment(const Garment* garment, core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::gamedata
