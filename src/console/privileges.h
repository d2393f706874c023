#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

#include "core/generation.h"
#include "core/outlet.h"

namespace qf::console {

/// The two bytes in which the older server keeps a character's privileges.
enum class PrivilegeByte { First, Second };

/// One privilege of a character: its index, its caption and its bit in its byte.
struct Privilege {
    int              index;
    std::string_view caption;
    PrivilegeByte    byte;
    unsigned         bit;
};

inline constexpr std::size_t PrivilegeCount = 16;

/// All privileges in the order of their indices.
std::span<const Privilege, PrivilegeCount> Privileges();

/// What a check box shows, by its number.
enum class CheckValue { Clear = 0, Ticked = 1, Grey = 2 };

/// The boxes by the index of their privilege.
using PrivilegeChecks = std::array<CheckValue, PrivilegeCount>;

/// Whether the boxes are shown; the newer server has no use for them.
bool ShowsPrivileges(core::ServerGeneration generation);

/// One command, or a message where the server has none.
void MakePlayer(core::ServerGeneration generation, core::Outlet& outlet);
void MakeCounselor(core::ServerGeneration generation, core::Outlet& outlet);
void MakeGM(core::ServerGeneration generation, core::Outlet& outlet);

/// One command with both bytes in hexadecimal, or a message where the server has none. A grey box does not count.
void SetPrivileges(const PrivilegeChecks& checks, core::ServerGeneration generation, core::Outlet& outlet);

} // namespace qf::console
