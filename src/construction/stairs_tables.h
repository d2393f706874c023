#pragma once

#include <array>
#include <span>
#include <string_view>

namespace qf::construction {

/// A material of stairs: its step tiles by direction and the block beneath them, four hex digits each, and the
/// three digits of the block that its own button adds.
struct StairRow {
    std::string_view                caption;
    std::array<std::string_view, 4> steps;
    std::string_view                block;
    std::string_view                single;
};

std::span<const StairRow> StairRows();

} // namespace qf::construction
