#include "gamedata/bitmap.h"

#include <cstdint>
#include <cstdlib>
#include <optional>

#include "core/little_endian.h"

namespace qf::gamedata {

namespace {

// The file header of 14 bytes and the info header of 40, both little-endian.
constexpr std::size_t   FileHeaderBytes = 14;
constexpr std::size_t   InfoHeaderBytes = 40;
constexpr std::size_t   HeaderBytes = FileHeaderBytes + InfoHeaderBytes;
constexpr std::size_t   SizeAt = 2;
constexpr std::size_t   PixelsAt = 10;
constexpr std::size_t   InfoSizeAt = 14;
constexpr std::size_t   WidthAt = 18;
constexpr std::size_t   HeightAt = 22;
constexpr std::size_t   PlanesAt = 26;
constexpr std::size_t   BitsAt = 28;
constexpr std::size_t   CompressionAt = 30;
constexpr std::size_t   PixelBytesAt = 34;
constexpr std::uint32_t Uncompressed = 0;
constexpr std::int32_t  MostSide = 0x7FFF;

/// The bytes of a line, which are filled up to a multiple of four.
std::size_t LineBytes(int width, std::size_t pixelBytes)
{
    return (static_cast<std::size_t>(width) * pixelBytes + 3) / 4 * 4;
}

/// How the pixels of a file lie.
struct Form {
    int         width = 0;
    int         height = 0;
    bool        topDown = false;
    std::size_t pixelBytes = 0;
    std::size_t pixelsAt = 0;
};

std::optional<Form> FormOf(std::span<const std::byte> file)
{
    if (file.size() < HeaderBytes || file[0] != std::byte{'B'} || file[1] != std::byte{'M'}) {
        return std::nullopt;
    }
    const auto number16 = [file](std::size_t at) { return core::ReadLittle16(file.data() + at); };
    const auto number32 = [file](std::size_t at) { return core::ReadLittle32(file.data() + at); };

    const auto          width = static_cast<std::int32_t>(number32(WidthAt));
    const auto          height = static_cast<std::int32_t>(number32(HeightAt));
    const std::uint32_t bits = number16(BitsAt);
    const bool          plain = number32(InfoSizeAt) >= InfoHeaderBytes && number16(PlanesAt) == 1 &&
                       (bits == 24 || bits == 32) && number32(CompressionAt) == Uncompressed;
    if (!plain || width <= 0 || width > MostSide || height == 0 || height > MostSide || height < -MostSide) {
        return std::nullopt;
    }
    const Form form{.width = width,
                    .height = std::abs(height),
                    .topDown = height < 0,
                    .pixelBytes = bits / 8,
                    .pixelsAt = number32(PixelsAt)};
    const auto length = LineBytes(form.width, form.pixelBytes) * static_cast<std::size_t>(form.height);
    const bool whole =
        form.pixelsAt >= HeaderBytes && form.pixelsAt <= file.size() && length <= file.size() - form.pixelsAt;
    return whole ? std::optional(form) : std::nullopt;
}

} // namespace

void WriteBitmap(const core::PixelSurface& picture, std::vector<std::byte>& file)
{
    constexpr std::size_t PixelBytes = 3;
    const auto            lineBytes = LineBytes(picture.Width(), PixelBytes);
    const auto            pixelBytes = lineBytes * static_cast<std::size_t>(picture.Height());
    file.assign(HeaderBytes + pixelBytes, std::byte{});
    file[0] = std::byte{'B'};
    file[1] = std::byte{'M'};

    const auto put = [&file](std::size_t at, std::size_t count, std::size_t number) {
        core::StoreLittle(std::span(file).subspan(at, count), static_cast<std::uint32_t>(number));
    };
    put(SizeAt, 4, file.size());
    put(PixelsAt, 4, HeaderBytes);
    put(InfoSizeAt, 4, InfoHeaderBytes);
    put(WidthAt, 4, static_cast<std::size_t>(picture.Width()));
    put(HeightAt, 4, static_cast<std::size_t>(picture.Height()));
    put(PlanesAt, 2, 1);
    put(BitsAt, 2, 8 * PixelBytes);
    put(PixelBytesAt, 4, pixelBytes);

    const int width = picture.Width();
    auto*     line = file.data() + HeaderBytes;
    for (int y = picture.Height() - 1; y >= 0; --y, line += lineBytes) {
        const auto* colours = picture.Pixels().data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
        auto*       pixel = line;
        for (int x = 0; x < width; ++x, pixel += PixelBytes) {
            pixel[0] = static_cast<std::byte>(colours[x]);
            pixel[1] = static_cast<std::byte>(colours[x] >> 8);
            pixel[2] = static_cast<std::byte>(colours[x] >> 16);
        }
    }
}

bool ReadBitmap(std::span<const std::byte> file, core::PixelSurface& picture)
{
    const auto form = FormOf(file);
    if (!form) {
        return false;
    }
    picture.SetSize(form->width, form->height);
    const auto  lineBytes = LineBytes(form->width, form->pixelBytes);
    const auto* line = file.data() + form->pixelsAt;
    for (int row = 0; row < form->height; ++row, line += lineBytes) {
        const int y = form->topDown ? row : form->height - 1 - row;
        picture.PlotLine(0, y, form->width, [line, pixelBytes = form->pixelBytes](std::int64_t x) {
            const auto* pixel = line + static_cast<std::size_t>(x) * pixelBytes;
            return static_cast<core::Rgb>(pixel[0]) | static_cast<core::Rgb>(pixel[1]) << 8 |
                   static_cast<core::Rgb>(pixel[2]) << 16;
        });
    }
    return true;
}

} // namespace qf::gamedata
