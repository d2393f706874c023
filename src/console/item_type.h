#pragma once

#include <span>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// One of the named item types.
struct ItemTypeOption {
    std::string_view name;
    std::string_view caption;

    /// The number that is sent; one caption begins with another number.
    int value;

    /// Whether the newer generation does not know the type.
    bool only070;
};

/// All types in the order of their options' names.
std::span<const ItemTypeOption> ItemTypeOptions();

/// Whether a panel that loads under this generation shows the option.
constexpr bool ShowsItemType(const ItemTypeOption& option, core::ServerGeneration generation)
{
    return !(option.only070 && generation.Is09());
}

/// Gives the type to the item that is then picked in the client. `typetext` is the type's number as text, empty
/// where none is chosen; it goes out as it stands. A generation that is neither sends nothing.
void SendItemType(std::string_view typetext, core::ServerGeneration generation, core::Outlet& outlet);

/// Says where the types are told.
void ShowItemTypeHelp(core::Outlet& outlet);

} // namespace qf::console
