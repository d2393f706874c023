#pragma once

#include <span>
#include <string_view>

namespace qf::gamedata {

/// A piece of clothing, a hair or a beard: its name and the four hex digits of its ID as the commands write them.
struct Garment {
    std::string_view name;
    std::string_view id;
};

/// A category of clothing and its pieces.
struct GarmentCategory {
    std::string_view         name;
    std::span<const Garment> garments;
};

/// The rows of the panel's lists, in their order.
std::span<const GarmentCategory> GarmentCategories();
std::span<const Garment>         Hairs();
std::span<const Garment>         Beards();

} // namespace qf::gamedata
