#include "world/sql_shape.h"

#include <algorithm>
#include <cstdlib>

#include "core/runtime_error.h"

// A statement's shape has one parameter for each literal that was taken out, or the text is refused.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string_view sql(reinterpret_cast<const char*>(data), size);
    qf::world::SqlShape    shape;
    try {
        shape.Parse(sql, qf::world::SqlShape::Mode::TakeLiterals);
        for (const auto& literal : shape.Literals()) {
            if (shape.Text(literal).size() != literal.length) {
                std::abort();
            }
        }
        shape.Parse(sql, qf::world::SqlShape::Mode::KeepLiterals);
        if (!shape.Literals().empty()) {
            std::abort();
        }
    } catch (const qf::core::RuntimeError&) {
        return 0;
    }
    return 0;
}
