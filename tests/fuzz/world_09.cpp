#include "world/world_files_09.h"

#include <cstdlib>
#include <sstream>
#include <string>
#include <utility>

#include "core/runtime_error.h"
#include "world_records_digest.h"

namespace {

/// What a file gives, read in blocks of this size: its records and the error that it ends in, 0 for none.
std::pair<std::size_t, int> Read(const std::string& text, std::size_t blockSize)
{
    std::stringbuf       bytes(text);
    qf::world::TextLines lines(bytes, blockSize);
    RecordsDigest        records;
    int                  error = 0;
    try {
        qf::world::ReadSections(lines, records);
    } catch (const qf::core::RuntimeError& failure) {
        error = failure.Number();
    }
    if (!records.everyRecordHasASerial) {
        std::abort();
    }
    return {records.digest, error};
}

} // namespace

// Any bytes are records or one of three errors, the same whatever blocks they are read in.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto        whole = Read(text, 4096);
    const int         error = whole.second;
    if (error != 0 && error != qf::core::error::TypeMismatch && error != qf::core::error::Overflow &&
        error != qf::core::error::SubscriptRange) {
        std::abort();
    }
    if (Read(text, 5) != whole) {
        std::abort();
    }
    return 0;
}
