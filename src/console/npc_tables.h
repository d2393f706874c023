#pragma once

#include <span>
#include <string_view>

namespace qf::console {

/// An NPC of the newer server: how it is listed and the section of the server's script that it stands for.
///
/// The two are paired by their place alone, and the columns of a category may be of different length: a row
/// without a name is not listed, and one without a section stands for none.
struct NpcRow {
    std::string_view name;
    std::string_view section;
};

/// A category of NPCs. The rows that are listed come before those that are not.
struct NpcCategory {
    std::string_view        name;
    std::span<const NpcRow> rows;
};

/// All categories in the order of their list.
std::span<const NpcCategory> NpcCategories();

} // namespace qf::console
