#include "core/number_rules.h"

#include <cstdlib>
#include <string_view>

#include "core/ansi.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace {

/// The number of the error that the call ends in, 0 where it gives a number.
template <typename Convert>
int ErrorOf(Convert convert)
{
    try {
        convert();
        return 0;
    } catch (const qf::core::RuntimeError& error) {
        return error.Number();
    }
}

} // namespace

// Every text is a number, a type error or an overflow, in all widths alike; a 16-bit number is a 32-bit one.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const int              narrow = ErrorOf([&] { return qf::core::ToInteger16(text); });
    const int              wide = ErrorOf([&] { return qf::core::ToInteger32(text); });
    const int              real = ErrorOf([&] { return qf::core::ToDouble(text); });
    for (const int error : {narrow, wide, real}) {
        if (error != 0 && error != qf::core::error::TypeMismatch && error != qf::core::error::Overflow) {
            std::abort();
        }
    }
    if ((narrow == qf::core::error::TypeMismatch) != (wide == qf::core::error::TypeMismatch) ||
        (wide == qf::core::error::TypeMismatch) != (real == qf::core::error::TypeMismatch) ||
        (narrow == 0 && wide != 0)) {
        std::abort();
    }
    if (narrow == 0 && qf::core::ToInteger16(text) != qf::core::ToInteger32(text)) {
        std::abort();
    }
    const auto ansi = qf::core::ToAnsi(text);
    if (qf::core::ToAnsi(qf::core::FromAnsi(ansi)) != ansi) {
        std::abort();
    }
    static_cast<void>(qf::core::WordRange(text, 1, 2));
    return 0;
}
