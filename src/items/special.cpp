#include "items/special.h"

#include <array>

#include "construction/commands.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::items {

namespace {

struct Place {
    std::int32_t x;
    std::int32_t y;
    std::int32_t z;
};

constexpr std::size_t DigitsOfByte = 2;

void AppendByte(std::string& text, std::string_view digits)
{
    text.append(DigitsOfByte - digits.size(), '0');
    text += digits;
}

void SendComponent(const SpecialComponent& component, const Place& base, core::ServerGeneration generation,
                   core::Outlet& outlet)
{
    const auto from = component.base == BasePoint::Taken ? base : Place{};
    const auto x = core::Add32(from.x, component.dx);
    const auto y = core::Add32(from.y, component.dy);
    const auto z = core::Add32(from.z, component.dz);
    construction::SendArea(outlet, generation, ComponentId(component.bytes, generation),
                           {.x1 = x, .x2 = x, .y1 = y, .y2 = y}, z);
}

void Add(const SpecialState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    const auto  x = core::ToInteger32(state.x);
    const auto  y = core::ToInteger32(state.y);
    const Place base{x, y, core::ToInteger32(state.z)};
    if (state.option < 0 || !(generation.Is070() || generation.Is09())) {
        return;
    }
    const auto& menu = SpecialMenus()[static_cast<std::size_t>(state.tab)];
    for (const auto& component : menu.objects[static_cast<std::size_t>(state.option)].components) {
        SendComponent(component, base, generation, outlet);
    }
}

} // namespace

std::span<const SpecialMenu> SpecialMenus()
{
    // clang-format off
    static const std::array menus{
        SpecialMenu{"Menu 1", "optSpecial1", SpecialMenu1()},
        SpecialMenu{"Menu 2", "optSpecial2", SpecialMenu2()},
        SpecialMenu{"Menu 3", "optSpecial3", SpecialMenu3()},
        SpecialMenu{"Menu 4", "optSpecial4", SpecialMenu4()},
        SpecialMenu{"Menu 5", "optspecial5", SpecialMenu5()},
        SpecialMenu{"Menu 6", "optspecial6", SpecialMenu6()},
    };
    // clang-format on
    return menus;
}

std::string ComponentId(std::string_view bytes, core::ServerGeneration generation)
{
    if (generation.Is070()) {
        return std::string(bytes);
    }
    std::string text;
    if (generation.Is09()) {
        const auto blank = bytes.find(' ');
        text = "0x";
        AppendByte(text, bytes.substr(0, blank));
        AppendByte(text, bytes.substr(blank + 1));
    }
    return text;
}

void AddSpecial(const SpecialState& state, core::ServerGeneration generation, core::Outlet& outlet)
{
    try {
        Add(state, generation, outlet);
    } catch (const core::RuntimeError& error) {
        outlet.Show(core::InformationBox(error.Number() == core::error::TypeMismatch
                                             ? "You need to fill in valid coordinates!"
                                             : error.Description()));
    }
}

void ShowSpecialHelp(core::Outlet& outlet)
{
    outlet.Show(core::InformationBox("These are special items made up of several component items, that all together "
                                     "cover more than one tile."));
}

} // namespace qf::items
