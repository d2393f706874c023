#pragma once

#include <functional>
#include <string>
#include <utility>

#include "core/runtime_error.h"

namespace qf::world {

/// Number and description of the RuntimeError that the action throws; {0, ""} where it throws none.
inline std::pair<int, std::string> FailureOf(const std::function<void()>& action)
{
    try {
        action();
    } catch (const core::RuntimeError& error) {
        return {error.Number(), error.Description()};
    }
    return {0, ""};
}

} // namespace qf::world
