#include "gamedata/hues.h"

#include <cstdlib>

// The first byte is the number of a group, the others the file from 64 bytes before that group's block on. Every
// value stays in its range, and the bytes that are kept as they are are those of the file.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace qf::gamedata;
    constexpr std::int64_t blockBytes = 708;
    constexpr std::int64_t before = 64;
    constexpr std::size_t  entryBytes = 88;

    class Part final : public ByteSource {
      public:
        Part(std::span<const std::byte> bytes, std::int64_t start) : bytes_(bytes), start_(start) {}
        void Read(std::int64_t offset, std::span<std::byte> out) override { bytes_.Read(offset - start_, out); }

      private:
        MemoryBytes  bytes_;
        std::int64_t start_;
    };

    if (size == 0) {
        return 0;
    }
    const auto bytes = std::as_bytes(std::span(data, size)).subspan(1);
    const int  number = data[0];
    Part       file(bytes, blockBytes * number - before);
    HueGroup   group;
    ReadHueGroup(file, number, group);

    const auto byteAt = [&](std::size_t place) {
        place += static_cast<std::size_t>(before);
        return place < bytes.size() ? static_cast<int>(bytes[place]) : 0;
    };
    const auto expect = [](bool right) {
        if (!right) {
            std::abort();
        }
    };
    for (std::size_t i = 0; i < group.header.size(); ++i) {
        expect(static_cast<int>(group.header[i]) == byteAt(i));
    }
    for (std::size_t e = 0; e < HueGroup::Entries; ++e) {
        const auto  place = group.header.size() + e * entryBytes;
        const auto& entry = group.entries[e];
        for (const auto colour : entry.colours) {
            expect((colour & ~0xF8F8F8) == 0);
        }
        expect(entry.tableStart == byteAt(place + 64) * 256 + byteAt(place + 65));
        expect(entry.tableEnd == byteAt(place + 66) * 256 + byteAt(place + 67));
        for (std::size_t i = 0; i < entry.NameBytes().size(); ++i) {
            expect(static_cast<unsigned char>(entry.name[i]) == byteAt(place + 68 + i));
        }
        expect(entry.name.back() == '\0');
    }
    return 0;
}
