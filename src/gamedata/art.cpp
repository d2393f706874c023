#include "gamedata/art.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/host_path.h"
#include "core/number_rules.h"
#include "core/runtime_error.h"

namespace qf::gamedata {

namespace {

constexpr std::int32_t FirstStaticTile = 0x4000;
constexpr std::int32_t IndexRecordBytes = 12;
constexpr std::int32_t AbsentTile = -1;
constexpr std::int32_t LastRunFlag = 0xFFFF;
constexpr int          MostTileSide = 1024;
constexpr int          EndlessRun = 0x800;

constexpr int   Margin = 5;
constexpr float TwipsPerPixel = 15;
constexpr float MostHeightTwips = 2595;
constexpr float MostWidthTwips = 1815;

/// How the forms of the one algorithm differ.
struct Form {
    bool refreshes = true; ///< the surface is repainted before and within the drawing
    bool ownSize = false;  ///< the surface takes the tile's bare size, without margin and limit
    bool allLines = false; ///< the last line is drawn as well
};

enum class Outcome {
    Finished,
    Abandoned, ///< the tile is damaged; whoever opened the files leaves them open
};

/// Reads little-endian numbers one behind the other, through a window on the source so that a usual tile
/// takes one read.
class NumberReader {
  public:
    NumberReader(ByteSource& source, std::int64_t offset) : source_(source), next_(offset) {}

    std::int64_t Position() const { return next_; }
    void         Seek(std::int64_t offset) { next_ = offset; }

    std::int16_t Integer16()
    {
        const auto* bytes = Take(2);
        return static_cast<std::int16_t>(static_cast<std::uint16_t>(Byte(bytes, 0) | Byte(bytes, 1) << 8));
    }

    std::int32_t Integer32()
    {
        const auto* bytes = Take(4);
        return static_cast<std::int32_t>(Byte(bytes, 0) | Byte(bytes, 1) << 8 | Byte(bytes, 2) << 16 |
                                         Byte(bytes, 3) << 24);
    }

  private:
    static constexpr std::size_t WindowBytes = 16384;

    static std::uint32_t Byte(const std::byte* bytes, int place) { return static_cast<std::uint32_t>(bytes[place]); }

    const std::byte* Take(std::int64_t count)
    {
        if (next_ < start_ || next_ + count > end_) {
            source_.Read(next_, window_);
            start_ = next_;
            end_ = start_ + static_cast<std::int64_t>(WindowBytes);
        }
        const auto* bytes = window_.data() + (next_ - start_);
        next_ += count;
        return bytes;
    }

    ByteSource&                        source_;
    std::int64_t                       next_;
    std::int64_t                       start_ = 0;
    std::int64_t                       end_ = 0;
    std::array<std::byte, WindowBytes> window_{};
};

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

/// The lesser of a side with its margin and a limit, both in twips, as pixels. Throws RuntimeError 6 where the
/// side with its margin leaves 16 bits.
int LimitedSide(std::int16_t side, float mostTwips)
{
    const float twips = static_cast<float>(core::RoundToInteger16(static_cast<double>(side) + Margin)) * TwipsPerPixel;
    return static_cast<int>(std::min(twips, mostTwips) / TwipsPerPixel);
}

template <typename Surface>
void FitSurface(Surface& surface, std::int16_t width, std::int16_t height, const Form& form)
{
    if (form.ownSize) {
        surface.SetSize(width > 0 ? width : surface.Width(), height > 0 ? height : surface.Height());
        return;
    }
    const int fittedHeight = LimitedSide(height, MostHeightTwips);
    surface.SetSize(LimitedSide(width, MostWidthTwips), fittedHeight);
}

template <typename Surface>
Outcome DrawRuns(NumberReader& art, Surface& surface, const Form& form)
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
    const int                                  lines = std::max<int>(height, 0);
    std::array<std::int16_t, MostTileSide + 1> lineStart{};
    for (int line = 0; line < lines; ++line) {
        lineStart[static_cast<std::size_t>(line)] = art.Integer16();
    }
    const auto   dataStart = art.Position();
    std::int64_t x = 0;
    int          y = 0;
    // The spare entry behind the last line leads back to the start of the data.
    while (y < (form.allLines ? lines : lines - 1)) {
        const auto offset = art.Integer16();
        const auto run = art.Integer16();
        if (offset + run >= EndlessRun) {
            return Outcome::Abandoned;
        }
        if (offset + run == 0) {
            ++y;
            x = 0;
            art.Seek(dataStart + lineStart[static_cast<std::size_t>(y)] * 2);
            continue;
        }
        x += offset;
        for (int pixel = 0; pixel < run; ++pixel) {
            if (x > width) {
                return Outcome::Abandoned;
            }
            surface.Plot(x, y, TruncatingColour(art.Integer16()));
            ++x;
            if (x > width) {
                break;
            }
        }
    }
    return Outcome::Finished;
}

template <typename Surface>
void DrawDiamond(NumberReader& art, Surface& surface)
{
    const auto line = [&](int y, int from, int to) {
        for (int x = from; x <= to; ++x) {
            surface.Plot(x, y, RoundingColour(art.Integer16()));
        }
    };
    for (int y = 3; y <= 24; ++y) {
        line(y, 27 - y, y + 22);
    }
    for (int y = 25; y <= 46; ++y) {
        line(y, y - 22, 71 - y);
    }
}

/// Draws the tile of an index record.
template <typename Surface>
Outcome DrawTile(std::int32_t record, Surface& surface, ByteSource& index, ByteSource& art, const Form& form)
{
    if (record < 0) {
        throw core::RuntimeError(core::error::BadRecordNumber);
    }
    const auto lookup = NumberReader(index, core::Multiply32(record, IndexRecordBytes)).Integer32();
    if (lookup == AbsentTile) {
        return Outcome::Finished;
    }
    NumberReader reader(art, lookup);
    const auto   flag = reader.Integer32();
    if (flag == 0 || flag > LastRunFlag) {
        DrawDiamond(reader, surface);
        return Outcome::Finished;
    }
    return DrawRuns(reader, surface, form);
}

bool IsFile(const std::string& programPath)
{
    std::error_code error;
    return std::filesystem::is_regular_file(core::HostPath(programPath), error);
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
    if (!IsFile(drawing.uoPath + "\\Artidx.mul") || !IsFile(drawing.uoPath + "\\Art.mul")) {
        return;
    }
    picture.SetBackColour(background);
    picture.Refresh();
    const int indexNumber = numbers.Take();
    FileBytes index(drawing.uoPath + "Artidx.mul", FileBytes::Access::ReadWrite);
    const int artNumber = numbers.Take();
    FileBytes art(drawing.uoPath + "Art.mul", FileBytes::Access::ReadWrite);
    if (DrawTile(id, picture, index, art, Form{}) == Outcome::Finished) {
        numbers.Release(artNumber);
        numbers.Release(indexNumber);
    }
}

} // namespace

core::Rgb TruncatingColour(std::int16_t pixel)
{
    return Colour(pixel >> 10, pixel >> 5, pixel);
}

core::Rgb RoundingColour(std::int16_t pixel)
{
    return Colour(RoundedQuotient(pixel, 1024), RoundedQuotient(pixel, 32), pixel);
}

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
    picture.SetBackColour(background);
    DrawTile(core::Add32(id, FirstStaticTile), picture, index, art, Form{.refreshes = false, .ownSize = true});
}

} // namespace qf::gamedata
