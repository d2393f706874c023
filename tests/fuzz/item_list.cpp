#include <cstdlib>
#include <string>

#include "gamedata/bitmap.h"
#include "gamedata/catalogue.h"

// The texts of a list, joined again, are its first line, and no text holds what parts it. The same bytes as a
// bitmap are refused or give a picture that comes back from a file of its own.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    using namespace qf;
    const auto expect = [](bool right) {
        if (!right) {
            std::abort();
        }
    };
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const auto             list = gamedata::ParseItemList(bytes);
    expect(list.has_value() == !bytes.empty());
    if (list) {
        std::string line;
        for (const auto& text : *list) {
            expect(text.find_first_of(",\r\n") == std::string::npos);
            line += (&text == &list->front() ? "" : ",") + text;
        }
        expect(line == bytes.substr(0, bytes.find_first_of("\r\n")));
    }

    core::PixelSurface picture(1, 1);
    if (gamedata::ReadBitmap(std::as_bytes(std::span(data, size)), picture)) {
        std::vector<std::byte> file;
        gamedata::WriteBitmap(picture, file);
        core::PixelSurface again(1, 1);
        expect(gamedata::ReadBitmap(file, again));
        expect(again.Width() == picture.Width() && again.Height() == picture.Height());
        for (int y = 0; y < picture.Height(); ++y) {
            for (int x = 0; x < picture.Width(); ++x) {
                expect(again.At(x, y) == picture.At(x, y));
            }
        }
    }
    return 0;
}
