// The item explorer: a category of 1,000 items drawn by the real panel, beside plain reads of the same files
// in the same run: from the client's art files with an empty cache, and from the cache. What is saved behind the
// first is measured beside plain reads and writes.
//
// explorer_bench [ROUNDS]

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QTemporaryDir>
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/application.h"
#include "client/platform/simulated/simulated_platform.h"
#include "core/host_path.h"
#include "figures.h"
#include "support/memory_store.h"
#include "support/quiet_services.h"
#include "ui/panel.h"
#include "world/database.h"

namespace {

using namespace qf;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr int         Items = 1000;
constexpr int         TileSide = 44;
constexpr int         FirstStaticTile = 0x4000;
constexpr std::size_t RecordBytes = 12;
constexpr std::size_t TileBytes = 8 + 2UL * TileSide + TileSide * (4 + 2UL * TileSide + 4);
constexpr int         MostTimesArt = 6;
constexpr int         MostTimesCache = 3;

/// A panel that has drawn no category of this size yet makes nine cells of ten on the way.
constexpr int MostTimesNewPanel = 8;

double SecondsOf(const auto& run)
{
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

void Put16(std::string& bytes, int number)
{
    bytes += static_cast<char>(number & 0xFF);
    bytes += static_cast<char>(number >> 8 & 0xFF);
}

void Put32(std::string& bytes, std::int64_t number)
{
    Put16(bytes, static_cast<int>(number & 0xFFFF));
    Put16(bytes, static_cast<int>(number >> 16 & 0xFFFF));
}

/// A tile in the run layout, each of its lines one run.
std::string Tile(int item)
{
    constexpr int LineWords = 2 + TileSide + 2;
    std::string   bytes;
    Put32(bytes, 1);
    Put16(bytes, TileSide);
    Put16(bytes, TileSide);
    for (int line = 0; line < TileSide; ++line) {
        Put16(bytes, line * LineWords);
    }
    for (int line = 0; line < TileSide; ++line) {
        Put16(bytes, 0);
        Put16(bytes, TileSide);
        for (int pixel = 0; pixel < TileSide; ++pixel) {
            Put16(bytes, (item + line * pixel) & 0x7FFF);
        }
        Put32(bytes, 0);
    }
    return bytes;
}

void WriteFile(const fs::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary) << bytes;
}

std::string CategoryOf(int round)
{
    return "Round " + std::to_string(100 + round);
}

/// A client's art files, and for each round a category list of all items. Rounds share no folder: a file
/// system takes longer to make a file where one was deleted a moment ago.
void MakeFiles(const fs::path& client, const fs::path& lists, int rounds)
{
    fs::create_directories(client);
    fs::create_directories(lists);
    std::string index(FirstStaticTile * RecordBytes, '\xFF');
    std::string art;
    std::string list;
    for (int item = 0; item < Items; ++item) {
        Put32(index, static_cast<std::int64_t>(art.size()));
        Put32(index, TileBytes);
        Put32(index, 0);
        art += Tile(item);
        list += (item > 0 ? "," : "") + std::to_string(item);
    }
    WriteFile(client / "Artidx.mul", index);
    WriteFile(client / "Art.mul", art);
    for (int round = 0; round < rounds; ++round) {
        WriteFile(lists / (CategoryOf(round) + ".txt"), list + "\r\n");
    }
}

/// The program with its item explorer loaded and shown.
class Program {
  public:
    Program(const fs::path& folder, const fs::path& client)
    {
        store_.Write(core::section::Configuration, "ZarnVer", "1");
        store_.Write(core::section::Configuration, "ItemPic", "1");
        store_.Write(core::section::Configuration, "UOPath", core::ProgramPath(client) + "\\");
        environment_.emplace(ui::Environment{store_, desktop_, services_, services_, services_, services_, services_,
                                             services_, uniform_, core::ProgramPath(folder)});
        application_ = std::make_unique<app::Application>(*environment_);
        application_->Main();
        panel_ = &application_->Context().panels.Show("frmItemExplorer");
        Settle();
    }

    /// Chooses the category of a round, as a user does.
    void Fill(int round)
    {
        auto* list = panel_->findChild<QComboBox*>(QStringLiteral("comboItemType"));
        list->setCurrentIndex(1 + round);
        Q_EMIT list->activated(1 + round);
    }

    /// Lets the program do what it does when the user waits for nothing.
    static void Settle()
    {
        while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) {
        }
    }

    bool IsQuiet() const { return services_.boxes.empty(); }

  private:
    test::MemoryStore                 store_;
    client::SimulatedPlatform         desktop_;
    test::QuietServices               services_;
    core::PseudoUniformGenerator      uniform_;
    std::optional<ui::Environment>    environment_;
    std::unique_ptr<app::Application> application_;
    ui::Panel*                        panel_ = nullptr;
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

File Open(const fs::path& path)
{
    return {std::fopen(path.string().c_str(), "rb"), std::fclose};
}

void Must(bool done)
{
    if (!done) {
        std::fputs("a file of the measure cannot be read or written\n", stderr);
        std::exit(EXIT_FAILURE);
    }
}

/// For each item: both art files opened, its index record and its tile read, and closed.
void ReadArt(const fs::path& client)
{
    const auto                    indexPath = client / "Artidx.mul";
    const auto                    artPath = client / "Art.mul";
    std::array<char, RecordBytes> record{};
    std::array<char, TileBytes>   tile{};
    for (long item = 0; item < Items; ++item) {
        const auto index = Open(indexPath);
        const auto art = Open(artPath);
        Must(index && art &&
             std::fseek(index.get(), (FirstStaticTile + item) * static_cast<long>(RecordBytes), SEEK_SET) == 0 &&
             std::fread(record.data(), record.size(), 1, index.get()) == 1 &&
             std::fseek(art.get(), item * static_cast<long>(TileBytes), SEEK_SET) == 0 &&
             std::fread(tile.data(), tile.size(), 1, art.get()) == 1);
    }
}

/// Each cached picture opened, read and closed.
void ReadCache(const fs::path& cache)
{
    std::vector<char> bytes(1U << 16U);
    for (int item = 0; item < Items; ++item) {
        const auto picture = Open(cache / ("item_" + std::to_string(item) + ".bmp"));
        Must(picture && std::fread(bytes.data(), 1, bytes.size(), picture.get()) > 0);
    }
}

/// Files as large as the cached pictures made and written, in a folder of their own.
void WritePictures(const fs::path& folder)
{
    fs::create_directory(folder);
    const std::string bytes(54 + 3UL * TileSide * TileSide, 'x');
    for (int item = 0; item < Items; ++item) {
        const File file(std::fopen((folder / std::to_string(item)).string().c_str(), "wb"), std::fclose);
        Must(file && std::fwrite(bytes.data(), bytes.size(), 1, file.get()) == 1);
    }
}

void Print(const char* name, double fill, double bare, const std::string& most)
{
    std::printf("%-38s %10.2f %10.2f %7.2f %7s\n", name, fill * 1000, bare * 1000, fill / bare, most.c_str());
}

bool Report(const char* name, double fill, double bare, int most)
{
    Print(name, fill, bare, std::to_string(most));
    return bench::AtMost(std::string("item explorer, ") + name + ", times bare reads", fill / bare, most);
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 30;
    if (rounds <= 0) {
        std::fputs("explorer_bench [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }

    const QTemporaryDir scratch;
    const auto          folder = QDir(scratch.path()).filesystemPath();
    const auto          client = folder / "client";
    const auto          lists = folder / "ItemExplorer";
    world::CreateWorldDatabase(folder / "qf.mdb");
    MakeFiles(client, lists, rounds);

    constexpr auto Never = std::numeric_limits<double>::max();
    double         first = Never;
    double         saved = Never;
    double         written = Never;
    double         cached = Never;
    double         again = Never;
    double         art = Never;
    double         pictures = Never;
    for (int round = 0; round < rounds; ++round) {
        Program program(folder, client);
        art = std::min(art, SecondsOf([&] { ReadArt(client); }));
        const auto drawn = SecondsOf([&] { program.Fill(round); });
        const auto rest = SecondsOf([] { Program::Settle(); });
        first = std::min(first, drawn);
        saved = std::min(saved, drawn + rest);
        const auto bare = SecondsOf([&] {
            ReadArt(client);
            WritePictures(folder / ("written" + std::to_string(round)));
        });
        written = std::min(written, bare);
        Program fresh(folder, client);
        pictures = std::min(pictures, SecondsOf([&] { ReadCache(lists / CategoryOf(round)); }));
        cached = std::min(cached, SecondsOf([&] { fresh.Fill(round); }));
        again = std::min(again, SecondsOf([&] { fresh.Fill(round); }));
        if (!program.IsQuiet() || !fresh.IsQuiet()) {
            std::fputs("the program reports a failure\n", stderr);
            return EXIT_FAILURE;
        }
    }
    std::printf("%-38s %10s %10s %7s %7s\n", "category of 1,000 items", "fill ms", "bare ms", "ratio", "limit");
    bool within = Report("first fill, from the art files", first, art, MostTimesArt);
    // What a new file costs swings too much from moment to moment for a limit.
    Print("the same until all is saved", saved, written, "");
    bench::AddFigure("item explorer, the same until all is saved, times bare reads and writes",
                     bench::Figure(saved / written), "none");
    within = Report("from the cache", again, pictures, MostTimesCache) && within;
    within = Report("from the cache by a panel just loaded", cached, pictures, MostTimesNewPanel) && within;
    std::printf("within the limits: %s\n", within ? "yes" : "no");
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
