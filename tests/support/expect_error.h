#pragma once

#include <gtest/gtest.h>

#include "core/runtime_error.h"

namespace qf::test {

/// The number of the run-time error that the call throws, 0 where it throws none.
template <typename Call>
int ErrorNumberOf(Call&& call)
{
    try {
        call();
    } catch (const core::RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace qf::test

/// Expects that the statement throws RuntimeError with this number.
#define EXPECT_RUNTIME_ERROR(number, ...)                                                                              \
    EXPECT_EQ(::qf::test::ErrorNumberOf([&] { __VA_ARGS__; }), (number)) << "from " << #__VA_ARGS__
