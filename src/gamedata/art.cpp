#include "gamedata/art.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/host_path.h"
#include "core/little_endian.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"
#include "core/twips.h"

namespace qf::gamedata {

namespace {

core::Rgb Colour(int red, int green, int blue)
{
    constexpr unsigned FieldMask = 31;
    const auto         part = [](int field) { return (static_cast<unsigned>(field) & FieldMask) << 3; };
    return part(red) << 16 | part(green) << 8 | part(blue);
}

/// The quotient rounded to the nearest whole number, ties to the even one.
int RoundedQuotient(std::int16_t value, double divisor)
{
    return static_cast<int>(std::nearbyint(static_cast<double>(value) / divisor));
}

} // namespace

core::Rgb RoundingColour(std::int16_t pixel)
{
    return Colour(RoundedQuotient(pixel, 1024), RoundedQuotient(pixel, 32), pixel);
}

namespace {

constexpr std::int32_t FirstStaticTile = 0x4000;
constexpr std::int32_t IndexRecordBytes = 12;
constexpr std::int32_t AbsentTile = -1;
constexpr std::int32_t LastRunFlag = 0xFFFF;
constexpr int          MostTileSide = 1024;
constexpr int          EndlessRun = 0x800;

constexpr int   Margin = 5;
constexpr float MostHeightTwips = 2595;
constexpr float MostWidthTwips = 1815;

constexpr int DiamondSide = 44;
constexpr int DiamondMargin = 3; ///< above it and to its left

/// How the two forms of the one algorithm differ.
struct Form {
    bool refreshes = true; ///< the surface is repainted before and within the drawing
    bool ownSize = false;  ///< the surface takes the tile's bare size, without margin and limit
};

enum class Outcome {
    Finished,
    Abandoned, ///< the tile is damaged; whoever opened the files leaves them open
};

std::int16_t Number16(const std::byte* bytes)
{
    return static_cast<std::int16_t>(core::ReadLittle16(bytes));
}

std::int32_t Number32(const std::byte* bytes)
{
    return static_cast<std::int32_t>(core::ReadLittle32(bytes));
}

/// Reads little-endian numbers one behind the other, through a window on the source so that a usual tile
/// takes one read.
class NumberReader {
  public:
    NumberReader(ByteSource& source, std::int64_t offset) : source_(source), next_(offset) {}

    std::int64_t Position() const { return next_; }
    void         Seek(std::int64_t offset) { next_ = offset; }

    std::int16_t Integer16() { return Number16(Take(2)); }
    std::int32_t Integer32() { return Number32(Take(4)); }

    /// Hands the next `count` pixels out in as few parts as the window allows: `use(bytes, pixels)`.
    template <typename Use>
    void Pixels(std::int64_t count, Use use)
    {
        while (count > 0) {
            ShowAtLeast(2);
            const auto part = std::min(count, (end_ - next_) / 2);
            use(Take(part * 2), part);
            count -= part;
        }
    }

  private:
    static constexpr std::size_t WindowBytes = 8192;

    void ShowAtLeast(std::int64_t count)
    {
        if (next_ < start_ || next_ + count > end_) {
            source_.Read(next_, window_);
            start_ = next_;
            end_ = start_ + static_cast<std::int64_t>(WindowBytes);
        }
    }

    const std::byte* Take(std::int64_t count)
    {
        ShowAtLeast(count);
        const auto* bytes = window_.data() + (next_ - start_);
        next_ += count;
        return bytes;
    }

    ByteSource&                        source_;
    std::int64_t                       next_;
    std::int64_t                       start_ = 0;
    std::int64_t                       end_ = 0;
    std::array<std::byte, WindowBytes> window_;
};

/// The lesser of a side with its margin and a limit, both in twips, as pixels. Throws RuntimeError 6 where the
/// side with its margin leaves 16 bits.
int LimitedSide(std::int16_t side, float mostTwips)
{
    const auto  fitted = static_cast<float>(core::RoundToInteger16(static_cast<double>(side) + Margin));
    const float twips = fitted * core::TwipsPerPixel;
    return static_cast<int>(std::min(twips, mostTwips) / core::TwipsPerPixel);
}

void FitSurface(core::PixelSurface& surface, std::int16_t width, std::int16_t height, const Form& form)
{
    if (form.ownSize) {
        surface.SetSize(width > 0 ? width : surface.Width(), height > 0 ? height : surface.Height());
        return;
    }
    const int fittedHeight = LimitedSide(height, MostHeightTwips);
    surface.SetSize(LimitedSide(width, MostWidthTwips), fittedHeight);
}

/// Plots the next `count` pixels of a tile along a line.
template <core::Rgb Convert(std::int16_t)>
void PlotLine(NumberReader& art, core::PixelSurface& surface, std::int64_t x, int y, std::int64_t count)
{
    art.Pixels(count, [&](const std::byte* bytes, std::int64_t part) {
        surface.PlotLine(x, y, part, [&](std::int64_t i) { return Convert(Number16(bytes + 2 * i)); });
        x += part;
    });
}

Outcome DrawRuns(NumberReader& art, core::PixelSurface& surface, const Form& form)
{
    const auto width = art.Integer16();
    if (width == 0 || width > MostTileSide) {
        return Outcome::Abandoned;
    }
    const auto height = art.Integer16();
    FitSurface(surface, width, height, form);
    if (form.refreshes) {
        surface.Refresh();
    }
    if (height == 0 || height > MostTileSide) {
        return Outcome::Abandoned;
    }
    std::array<std::int16_t, MostTileSide> lineStart;
    for (int line = 0; line < height; ++line) {
        lineStart[static_cast<std::size_t>(line)] = art.Integer16();
    }
    const auto   dataStart = art.Position();
    std::int64_t x = 0;
    int          y = 0;
    while (y < height - 1) { // the last line of a tile is left undrawn
        const auto offset = art.Integer16();
        const auto run = art.Integer16();
        if (offset + run >= EndlessRun) {
            return Outcome::Abandoned;
        }
        if (offset + run == 0) {
            ++y;
            x = 0;
            art.Seek(dataStart + std::int64_t{2} * lineStart[static_cast<std::size_t>(y)]);
            continue;
        }
        x += offset;
        if (run <= 0) {
            continue;
        }
        if (x > width) {
            return Outcome::Abandoned;
        }
        // One column past the tile is still drawn; the rest of a longer run is then read as the next one.
        const auto drawn = std::min<std::int64_t>(run, width - x + 1);
        PlotLine<TruncatingColour>(art, surface, x, y, drawn);
        x += drawn;
    }
    return Outcome::Finished;
}

/// The lines of a diamond, from top to bottom: `line(y, x, pixels)`.
template <typename Line>
void ForEachDiamondLine(Line line)
{
    constexpr int middle = DiamondSide / 2;
    for (int row = 0; row < DiamondSide; ++row) {
        const int half = std::min(row + 1, DiamondSide - row);
        line(DiamondMargin + row, DiamondMargin + middle - half, 2 * half);
    }
}

Outcome DrawTile(std::int32_t record, core::PixelSurface& surface, ByteSource& index, ByteSource& art, const Form& form)
{
    const auto place = core::Multiply32(record, IndexRecordBytes);
    if (place < 0) {
        throw core::RuntimeError(core::error::BadRecordNumber);
    }
    std::array<std::byte, 4> bytes{};
    index.Read(place, bytes);
    const auto lookup = Number32(bytes.data());
    if (lookup == AbsentTile) {
        return Outcome::Finished;
    }
    NumberReader reader(art, lookup);
    const auto   flag = reader.Integer32();
    if (flag == 0 || flag > LastRunFlag) {
        ForEachDiamondLine([&](int y, int x, int pixels) { PlotLine<RoundingColour>(reader, surface, x, y, pixels); });
        return Outcome::Finished;
    }
    return DrawRuns(reader, surface, form);
}

void DrawFromClientFolder(std::int32_t& id, core::PixelSurface& picture, const TileDrawing& drawing,
                          core::Rgb background, core::FileNumbers& numbers)
{
    if (!drawing.seeItemPics) {
        return;
    }
    id = core::Add32(id, FirstStaticTile);
    // The test puts a separator behind the folder and the opening relies on the folder's own: a folder set
    // without one passes the test, and its tiles are those of two files that are made beside it.
    if (!core::IsFile(drawing.uoPath + "\\Artidx.mul") || !core::IsFile(drawing.uoPath + "\\Art.mul")) {
        return;
    }
    picture.SetBackColour(background);
    picture.Refresh();
    const int indexNumber = numbers.Take();
    FileBytes index(drawing.uoPath + "Artidx.mul", FileBytes::Access::ReadWrite);
    const int artNumber = numbers.Take();
    FileBytes art(drawing.uoPath + "Art.mul", FileBytes::Access::ReadWrite);
    if (DrawIndexRecord(id, picture, index, art)) {
        numbers.Release(artNumber);
        numbers.Release(indexNumber);
    }
}

TileImage ClearImage(int width, int height)
{
    return {width, height,
            std::vector<std::uint32_t>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
}

/// Puts the next `count` pixels of a tile into an image; the line must have room for them.
void ReadLine(NumberReader& art, TileImage& image, int x, int y, int count)
{
    constexpr std::uint32_t opaque = 0xFF000000U;
    auto*                   next = image.pixels.data() + (y * image.width + x);
    art.Pixels(count, [&](const std::byte* bytes, std::int64_t part) {
        for (std::int64_t i = 0; i < part; ++i) {
            *next++ = opaque | TruncatingColour(Number16(bytes + 2 * i));
        }
    });
}

std::optional<TileImage> ReadRunImage(NumberReader& art)
{
    const int width = art.Integer16();
    const int height = art.Integer16();
    if (width <= 0 || width > MostTileSide || height <= 0 || height > MostTileSide) {
        return std::nullopt;
    }
    std::array<std::uint16_t, MostTileSide> lineStart;
    for (int line = 0; line < height; ++line) {
        lineStart[static_cast<std::size_t>(line)] = static_cast<std::uint16_t>(art.Integer16());
    }
    const auto dataStart = art.Position();
    auto       image = ClearImage(width, height);
    for (int y = 0; y < height; ++y) {
        art.Seek(dataStart + std::int64_t{2} * lineStart[static_cast<std::size_t>(y)]);
        int x = 0;
        for (;;) {
            const int offset = art.Integer16();
            const int run = art.Integer16();
            if (offset == 0 && run == 0) {
                break;
            }
            if (offset < 0 || run < 0 || x + offset + run > width) {
                return std::nullopt;
            }
            ReadLine(art, image, x + offset, y, run);
            x += offset + run;
        }
    }
    return image;
}

TileImage ReadDiamondImage(NumberReader& art)
{
    auto image = ClearImage(DiamondSide, DiamondSide);
    ForEachDiamondLine(
        [&](int y, int x, int pixels) { ReadLine(art, image, x - DiamondMargin, y - DiamondMargin, pixels); });
    return image;
}

} // namespace

void DrawStaticTile(std::int32_t& id, core::PixelSurface& picture, const TileDrawing& drawing,
                    core::FileNumbers& numbers)
{
    DrawFromClientFolder(id, picture, drawing, drawing.background, numbers);
}

void DrawStaticTile2(std::int32_t& id, core::PixelSurface& picture, const TileDrawing& drawing,
                     core::FileNumbers& numbers)
{
    DrawFromClientFolder(id, picture, drawing, core::White, numbers);
}

void DrawStaticTileFromFiles(std::int32_t id, core::PixelSurface& picture, ByteSource& index, ByteSource& art,
                             bool seeItemPics, core::Rgb background)
{
    if (!seeItemPics) {
        return;
    }
    const auto record = core::Add32(id, FirstStaticTile);
    picture.SetBackColour(background);
    DrawTile(record, picture, index, art, Form{.refreshes = false, .ownSize = true});
}

bool DrawIndexRecord(std::int32_t record, core::PixelSurface& picture, ByteSource& index, ByteSource& art)
{
    return DrawTile(record, picture, index, art, Form{}) == Outcome::Finished;
}

std::optional<TileImage> ReadTileImage(std::int32_t id, ByteSource& index, ByteSource& art)
{
    if (id < 0) {
        return std::nullopt;
    }
    std::array<std::byte, 8> bytes{};
    index.Read((std::int64_t{id} + FirstStaticTile) * IndexRecordBytes, bytes);
    const auto lookup = Number32(bytes.data());
    const auto size = Number32(bytes.data() + 4);
    if (lookup < 0 || size <= 0) {
        return std::nullopt;
    }
    NumberReader reader(art, lookup);
    const auto   flag = reader.Integer32();
    return flag == 0 || flag > LastRunFlag ? ReadDiamondImage(reader) : ReadRunImage(reader);
}

} // namespace qf::gamedata
