// Art: one usual tile of 44 by 60 pixels, from memory onto a surface and from the two files of a client folder as a
// panel draws it, each beside a plain copy or read of the same bytes in the same run.
//
// art_bench [ROUNDS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/host_path.h"
#include "figures.h"
#include "gamedata/art.h"

namespace {

using namespace qf;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int         TileWidth = 44;
constexpr int         TileHeight = 60;
constexpr int         RoundsOfMemory = 2000;
constexpr int         RoundsOfFiles = 200;
constexpr int         FirstStaticTile = 0x4000;
constexpr std::size_t IndexRecordBytes = 12;

constexpr double MostTimesCopy = 50;
constexpr double MostTimesRead = 10;

void Append(std::string& bytes, int number)
{
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
}

/// A tile whose lines are one run each between clear ends, as most are.
std::string MakeTile()
{
    std::mt19937  draw(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    std::string   starts;
    std::string   runs;
    constexpr int clear = 4;
    constexpr int run = TileWidth - 2 * clear;
    for (int y = 0; y < TileHeight; ++y) {
        Append(starts, static_cast<int>(runs.size() / 2));
        Append(runs, clear);
        Append(runs, run);
        for (int x = 0; x < run; ++x) {
            Append(runs, static_cast<int>(draw() & 0x7FFF));
        }
        Append(runs, 0);
        Append(runs, 0);
    }
    std::string tile;
    for (const int number : {1, 0, TileWidth, TileHeight}) {
        Append(tile, number);
    }
    return tile + starts + runs;
}

/// The least time of one of `count` calls in `rounds` rounds, in microseconds.
double Microseconds(int rounds, int count, const auto& call)
{
    double least = 1e9;
    for (int round = 0; round < rounds; ++round) {
        const auto start = Clock::now();
        for (int i = 0; i < count; ++i) {
            call();
        }
        least = std::min(least, std::chrono::duration<double, std::micro>(Clock::now() - start).count() / count);
    }
    return least;
}

bool Report(const char* what, double drawing, double plain, const char* plainly, double most)
{
    std::printf("%-22s %10.2f %10.2f %7.2f %7.0f\n", what, drawing, plain, drawing / plain, most);
    return bench::AtMost(std::string("a tile ") + what + ", times " + plainly, drawing / plain, most);
}

bool IsDrawn(const core::PixelSurface& surface)
{
    return std::ranges::any_of(surface.Pixels(),
                               [](std::uint32_t pixel) { return (pixel & core::White) != core::White; });
}

std::string ReadWhole(const fs::path& path, std::streamoff offset, std::size_t length)
{
    std::ifstream file(path, std::ios::binary);
    std::string   bytes(length, '\0');
    file.seekg(offset);
    file.read(bytes.data(), static_cast<std::streamsize>(length));
    return bytes;
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    if (rounds <= 0) {
        std::fputs("art_bench [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }
    const auto  tile = MakeTile();
    const auto  indexOffset = FirstStaticTile * IndexRecordBytes;
    std::string index(indexOffset + IndexRecordBytes, '\0');

    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes artBytes(std::as_bytes(std::span(tile)));
    core::PixelSurface    surface;
    std::string           copy(tile.size(), '\0');
    // Called through a pointer that is read each time, so that no copy is left out.
    void* (*volatile copyBytes)(void*, const void*, std::size_t) = std::memcpy;
    std::printf("%-22s %10s %10s %7s %7s\n", "tile of 44 by 60", "drawing us", "plain us", "ratio", "limit");
    const auto fromMemory = Microseconds(rounds, RoundsOfMemory, [&] {
        gamedata::DrawStaticTileFromFiles(0, surface, indexBytes, artBytes, true, core::White);
    });
    if (!IsDrawn(surface) || surface.Width() != TileWidth) {
        std::fputs("the tile is not drawn\n", stderr);
        return EXIT_FAILURE;
    }
    const auto plainCopy =
        Microseconds(rounds, RoundsOfMemory, [&] { copyBytes(copy.data(), tile.data(), tile.size()); });
    bool within = Report("from memory", fromMemory, plainCopy, "one `memcpy`", MostTimesCopy);

    const auto folder = fs::temp_directory_path() / ("quernfield-bench-" + std::to_string(std::random_device{}()));
    fs::create_directories(folder);
    std::ofstream(folder / "artidx.mul", std::ios::binary) << index;
    std::ofstream(folder / "art.mul", std::ios::binary) << tile;
    gamedata::TileDrawing drawing{.seeItemPics = true, .uoPath = core::ProgramPath(folder) + "\\"};
    core::FileNumbers     numbers;
    surface.SetBackColour(core::White);
    const auto fromFiles = Microseconds(rounds, RoundsOfFiles, [&] {
        std::int32_t id = 0;
        gamedata::DrawStaticTile(id, surface, drawing, numbers);
    });
    const bool drawn = IsDrawn(surface) && numbers.InUse() == 0;
    const auto plainRead = Microseconds(rounds, RoundsOfFiles, [&] {
        const auto record =
            ReadWhole(folder / "artidx.mul", static_cast<std::streamoff>(indexOffset), IndexRecordBytes);
        copy = ReadWhole(folder / "art.mul", static_cast<std::streamoff>(record[0]), tile.size());
    });
    fs::remove_all(folder);
    if (!drawn) {
        std::fputs("the tile is not drawn\n", stderr);
        return EXIT_FAILURE;
    }
    within = Report("from a client folder", fromFiles, plainRead, "a plain reading", MostTimesRead) && within;
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
