#include "console/npc_script.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>

#include "core/ansi.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

// Whatever a script holds, its entries are a number, a dash and a piece of one line, one entry at most for each
// closing brace; the reading ends in order or with a number that is none. What is chosen from the list is the number
// again.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace qf;
    const auto expect = [](bool right) {
        if (!right) {
            std::abort();
        }
    };
    const std::string  text(reinterpret_cast<const char*>(data), size);
    std::istringstream script(text);
    const auto         braces = std::ranges::count(text, '}');
    std::ptrdiff_t     entries = 0;
    try {
        console::ReadNpcScript(script, [&](std::string_view entry) {
            expect(++entries <= braces);
            const auto dash = entry.find(" - ");
            expect(dash != std::string_view::npos && entry.find('\n') == std::string_view::npos);
            const auto number = core::ToInteger32(entry.substr(0, dash));
            expect(core::ToText(number) == entry.substr(0, dash));
            expect(text.find(core::ToAnsi(entry.substr(dash + 3))) != std::string::npos);
            expect(number < 0 || core::ToInteger32(console::NumberOfNpcEntry(entry)) == number);
        });
    } catch (const core::RuntimeError& error) {
        expect(error.Number() == core::error::TypeMismatch || error.Number() == core::error::Overflow);
    }
    return 0;
}
