#include "core/file_numbers.h"

#include "core/runtime_error.h"

namespace qf::core {

int FileNumbers::Take()
{
    for (int number = 1; number <= Most; ++number) {
        if (!used_.test(static_cast<std::size_t>(number))) {
            used_.set(static_cast<std::size_t>(number));
            return number;
        }
    }
    throw RuntimeError(error::TooManyFiles);
}

void FileNumbers::Release(int number)
{
    used_.reset(static_cast<std::size_t>(number));
}

} // namespace qf::core
