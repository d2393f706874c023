#include "gamedata/clothing.h"

#include "core/tile_id.h"

namespace qf::gamedata {

namespace {

template <typename Row>
const Row* RowAt(std::span<const Row> rows, int row)
{
    return row >= 0 && static_cast<std::size_t>(row) < rows.size() ? &rows[static_cast<std::size_t>(row)] : nullptr;
}

} // namespace

const Garment* GarmentAt(std::span<const Garment> list, int row)
{
    return RowAt(list, row);
}

std::span<const Garment> GarmentsOf(int category)
{
    const auto* found = RowAt(GarmentCategories(), category);
    return found != nullptr ? found->garments : std::span<const Garment>();
}

std::int32_t ItemIdOf(const Garment& garment)
{
    return core::TileNumberOf(garment.id);
}

void AddGarment(const Garment* garment, core::ServerGeneration generation, core::Outlet& outlet)
{
    if (garment == nullptr) {
        return;
    }
    if (const auto id = core::TileIdText(garment->id, generation); !id.empty()) {
        outlet.Send("add " + id);
    }
}

} // namespace qf::gamedata
