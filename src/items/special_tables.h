#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qf::items {

/// What the offsets of a component count from: the base point, or the corner of the map whatever the base point is.
enum class BasePoint { Taken, Ignored };

/// One tile of a special object: the two bytes of its ID as the older generation spells them, and where it stands.
struct SpecialComponent {
    std::string_view bytes;
    std::int32_t     dx;
    std::int32_t     dy;
    std::int32_t     dz = 0;
    BasePoint        base = BasePoint::Taken;
};

/// An object of several tiles, which are laid in this order.
struct SpecialObject {
    std::string_view                  name;
    std::span<const SpecialComponent> components;
};

std::span<const SpecialObject> SpecialMenu1();
std::span<const SpecialObject> SpecialMenu2();
std::span<const SpecialObject> SpecialMenu3();
std::span<const SpecialObject> SpecialMenu4();
std::span<const SpecialObject> SpecialMenu5();
std::span<const SpecialObject> SpecialMenu6();

} // namespace qf::items
