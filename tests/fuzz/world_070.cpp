#include "world/world_files_070.h"

#include <cstdlib>
#include <sstream>
#include <string>

#include "core/runtime_error.h"
#include "world_records_digest.h"

namespace {

class CountingBoxes final : public qf::core::Outlet {
  public:
    void Send(std::string_view, bool) override { std::abort(); }
    void Show(const qf::core::Message&) override { ++boxes; }
    bool Ask(const qf::core::Message&) override { std::abort(); }

    int boxes = 0;
};

using Reader = int (*)(qf::world::TextLines& lines, qf::world::RecordSink& sink, qf::core::Outlet& outlet);

struct Result {
    std::size_t digest = 0;
    int         boxes = 0;
    int         error = 0;

    friend bool operator==(const Result&, const Result&) = default;
};

Result Read(Reader reader, const std::string& text, std::size_t blockSize)
{
    std::stringbuf       bytes(text);
    qf::world::TextLines lines(bytes, blockSize);
    RecordsDigest        records;
    CountingBoxes        outlet;
    int                  error = 0;
    try {
        if (reader(lines, records, outlet) != outlet.boxes) {
            std::abort();
        }
    } catch (const qf::core::RuntimeError& failure) {
        error = failure.Number();
    }
    return {records.digest, outlet.boxes, error};
}

} // namespace

// Any bytes are records and boxes or one of two errors, the same whatever blocks they are read in.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (const Reader reader : {qf::world::ReadItemBlocks, qf::world::ReadCharacterBlocks}) {
        const auto whole = Read(reader, text, 4096);
        if (whole.error != 0 && whole.error != qf::core::error::TypeMismatch &&
            whole.error != qf::core::error::Overflow) {
            std::abort();
        }
        if (!(Read(reader, text, 5) == whole)) {
            std::abort();
        }
    }
    return 0;
}
