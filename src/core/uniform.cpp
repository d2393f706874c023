#include "core/uniform.h"

#include <chrono>
#include <cmath>

namespace qf::core {

int DrawUpTo(UniformGenerator& uniform, int most)
{
    return static_cast<int>(std::floor(uniform.Next() * most + 1));
}

double PseudoUniformGenerator::Next()
{
    // The top 53 bits fill a double's mantissa exactly. The standard distributions are left alone
    // because each library draws them in its own way.
    return static_cast<double>(engine_() >> 11) * 0x1.0p-53;
}

void PseudoUniformGenerator::SeedFromClock()
{
    const auto sinceEpoch = std::chrono::high_resolution_clock::now().time_since_epoch();
    engine_.seed(static_cast<std::uint64_t>(sinceEpoch.count()));
}

} // namespace qf::core
