#pragma once

#include <charconv>
#include <cstdint>
#include <string_view>
#include <system_error>

#include "core/number_rules.h"

namespace qf::world {

/// A number column of a row as the database gives it. Throws RuntimeError 13 or 6 for what is no 32-bit number.
inline std::int32_t StoredNumber(std::string_view text)
{
    std::int32_t number = 0;
    const auto   last = text.data() + text.size();
    const auto   read = std::from_chars(text.data(), last, number);
    return read.ec == std::errc() && read.ptr == last ? number : core::ToInteger32(text);
}

} // namespace qf::world
