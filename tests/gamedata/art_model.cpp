#include "gamedata/art_model.h"

#include <cmath>

namespace qf::test {

namespace {

/// A place in a file; what lies outside of the file reads as 0.
struct Place {
    const std::string& bytes;
    std::int64_t       at = 0;

    int Byte()
    {
        const bool inside = at >= 0 && at < static_cast<std::int64_t>(bytes.size());
        const int  value = inside ? static_cast<unsigned char>(bytes[static_cast<std::size_t>(at)]) : 0;
        ++at;
        return value;
    }
    int UnsignedWord()
    {
        const int low = Byte();
        return low + Byte() * 256;
    }
    int Word()
    {
        const int value = UnsignedWord();
        return value >= 32768 ? value - 65536 : value;
    }
    std::int64_t Long()
    {
        const std::int64_t low = UnsignedWord();
        return low + std::int64_t{Word()} * 65536;
    }
};

double NearestEven(double value)
{
    const double below = std::floor(value);
    const double rest = value - below;
    if (rest != 0.5) {
        return rest < 0.5 ? below : below + 1;
    }
    return std::fmod(below, 2) == 0 ? below : below + 1;
}

core::Rgb Field(double value)
{
    return static_cast<core::Rgb>((static_cast<int>(value) % 32 + 32) % 32 * 8);
}

core::Rgb Join(double red, double green, double blue)
{
    return Field(red) * 65536 + Field(green) * 256 + Field(blue);
}

} // namespace

core::Rgb ModelTruncating(int pixel)
{
    return Join(std::floor(pixel / 1024.0), std::floor(pixel / 32.0), pixel);
}

core::Rgb ModelRounding(int pixel)
{
    return Join(NearestEven(pixel / 1024.0), NearestEven(pixel / 32.0), pixel);
}

ArtModel::ArtModel(int surfaceWidth, int surfaceHeight)
    : width(surfaceWidth),
      height(surfaceHeight),
      pixels(static_cast<std::size_t>(surfaceWidth * surfaceHeight), core::White)
{}

ArtModel::End ArtModel::Draw(const std::string& index, const std::string& art, std::int64_t record)
{
    Erase();
    ++refreshes;
    return DrawTile(index, art, record, false);
}

void ArtModel::DrawFromFiles(const std::string& index, const std::string& art, std::int64_t record)
{
    Erase();
    DrawTile(index, art, record, true);
}

ArtModel::End ArtModel::DrawTile(const std::string& index, const std::string& art, std::int64_t record, bool fromFiles)
{
    Place              indexFile{index, record * 12};
    const std::int64_t lookup = indexFile.Long();
    if (lookup == -1) {
        return End::Closed;
    }
    Place              file{art, lookup};
    const std::int64_t flag = file.Long();
    if (flag == 0 || flag > 65535) {
        for (int y = 3; y <= 24; ++y) {
            for (int x = 27 - y; x <= y + 22; ++x) {
                Plot(x, y, ModelRounding(file.Word()));
            }
        }
        for (int y = 25; y <= 46; ++y) {
            for (int x = y - 22; x <= 71 - y; ++x) {
                Plot(x, y, ModelRounding(file.Word()));
            }
        }
        return End::Closed;
    }
    const int tileWidth = file.Word();
    if (tileWidth == 0 || tileWidth > 1024) {
        return End::LeftOpen;
    }
    const int tileHeight = file.Word();
    if (fromFiles) {
        if (tileHeight > 0) {
            SetHeight(tileHeight);
        }
        if (tileWidth > 0) {
            SetWidth(tileWidth);
        }
    } else {
        if (tileHeight + 5 > 32767) {
            return End::Overflow;
        }
        SetHeight((tileHeight + 5) * 15 < 2595 ? tileHeight + 5 : 173);
        SetWidth((tileWidth + 5) * 15 < 1815 ? tileWidth + 5 : 121);
        ++refreshes;
    }
    if (tileHeight == 0 || tileHeight > 1024) {
        return End::LeftOpen;
    }
    std::vector<int> lineStart(static_cast<std::size_t>(tileHeight < 0 ? 0 : tileHeight) + 1);
    for (int line = 0; line < tileHeight; ++line) {
        lineStart[static_cast<std::size_t>(line)] = file.Word();
    }
    const std::int64_t dataStart = file.at;
    std::int64_t       x = 0;
    int                y = 0;
    while (y < tileHeight - 1) {
        const int offset = file.Word();
        const int run = file.Word();
        if (offset + run >= 2048) {
            return End::LeftOpen;
        }
        if (offset + run == 0) {
            ++y;
            x = 0;
            file.at = dataStart + std::int64_t{2} * lineStart[static_cast<std::size_t>(y)];
            continue;
        }
        x += offset;
        for (int i = 0; i < run; ++i) {
            if (x > tileWidth) {
                return End::LeftOpen;
            }
            Plot(x, y, ModelTruncating(file.Word()));
            ++x;
            if (x > tileWidth) {
                break;
            }
        }
    }
    return End::Closed;
}

void ArtModel::Erase()
{
    for (auto& pixel : pixels) {
        pixel = core::White;
    }
}

void ArtModel::SetWidth(int newWidth)
{
    newWidth = newWidth < 0 ? 0 : newWidth;
    std::vector<core::Rgb> resized;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < newWidth; ++x) {
            resized.push_back(x < width ? pixels[static_cast<std::size_t>(y * width + x)] : core::White);
        }
    }
    pixels = resized;
    width = newWidth;
}

void ArtModel::SetHeight(int newHeight)
{
    height = newHeight < 0 ? 0 : newHeight;
    pixels.resize(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), core::White);
}

void ArtModel::Plot(std::int64_t x, std::int64_t y, core::Rgb colour)
{
    if (x >= 0 && x < width && y >= 0 && y < height) {
        pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)] = colour;
    }
}

bool ArtModel::Equals(const core::PixelSurface& surface) const
{
    if (surface.Width() != width || surface.Height() != height) {
        return false;
    }
    const auto drawn = surface.Pixels();
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        if (drawn[i] != (pixels[i] | 0xFF000000U)) {
            return false;
        }
    }
    return true;
}

} // namespace qf::test
