#include <random>

#include "gamedata/art_drawing.h"
#include "gamedata/art_model.h"

// Drawing, compared pixel by pixel with the slow model: a tile that is cut off anywhere, and random files.

namespace qf::test {
namespace {

constexpr int SurfaceWidth = 60;
constexpr int SurfaceHeight = 50;

/// What is left open and which error is raised, as the model tells it.
void ExpectSameEnd(ArtModel::End end, int error, int inUse)
{
    EXPECT_EQ(error, end == ArtModel::End::Overflow ? 6 : 0);
    EXPECT_EQ(inUse, end == ArtModel::End::Closed ? 0 : 2);
}

/// Draws from files that are open, in both forms.
void ExpectSameFromMemory(const std::string& index, const std::string& art)
{
    gamedata::MemoryBytes indexBytes(std::as_bytes(std::span(index)));
    gamedata::MemoryBytes artBytes(std::as_bytes(std::span(art)));

    Canvas canvas(SurfaceWidth, SurfaceHeight);
    canvas.Refresh();
    bool       closed = false;
    const int  error = ErrorNumberOf([&] { closed = gamedata::DrawIndexRecord(0, canvas, indexBytes, artBytes); });
    ArtModel   model(SurfaceWidth, SurfaceHeight);
    const auto end = model.Draw(index, art, 0);
    ExpectSameEnd(end, error, closed ? 0 : 2);
    EXPECT_EQ(canvas.refreshes.size(), static_cast<std::size_t>(model.refreshes));
    EXPECT_TRUE(model.Equals(canvas));

    Canvas   bare(SurfaceWidth, SurfaceHeight);
    ArtModel bareModel(SurfaceWidth, SurfaceHeight);
    gamedata::DrawStaticTileFromFiles(FirstOfIndex, bare, indexBytes, artBytes, true, core::White);
    bareModel.DrawFromFiles(index, art, 0);
    EXPECT_TRUE(bare.refreshes.empty());
    EXPECT_TRUE(bareModel.Equals(bare));
}

class ArtAgainstModel : public StaticTile {
  protected:
    /// Draws from the files of a client folder.
    void ExpectSameFromFolder(const std::string& index, const std::string& art)
    {
        Files(index, art);
        numbers = {};
        canvas.SetSize(SurfaceWidth, SurfaceHeight);
        const int  error = DrawFiles();
        ArtModel   model(SurfaceWidth, SurfaceHeight);
        const auto end = model.Draw(index, art, 0);
        ExpectSameEnd(end, error, numbers.InUse());
        EXPECT_EQ(canvas.refreshes.size(), static_cast<std::size_t>(model.refreshes));
        EXPECT_TRUE(model.Equals(canvas));
    }
};

const std::string SmallTile = "..." + RunTile(4, 4,
                                              {
                                                  {1, 2, Red, Green, 0, 0},
                                                  {0, 1, Blue, 2, 1, 0x7FFF, 0, 0},
                                                  {0, 4, 0x1234, 0x0421, 0x7BDE, 1, 0, 0},
                                                  {0, 1, Red, 0, 0},
                                              });

TEST_F(ArtAgainstModel, ArtCutOffAtEveryByte)
{
    for (std::size_t length = 0; length <= SmallTile.size(); ++length) {
        SCOPED_TRACE(length);
        const auto art = SmallTile.substr(0, length);
        ExpectSameFromMemory(IndexRecord(3), art);
        ExpectSameFromFolder(IndexRecord(3), art);
    }
}

TEST_F(ArtAgainstModel, IndexCutOffAtEveryByte)
{
    for (const std::int64_t lookup : {3LL, 0x01000003LL, -1LL, -2LL}) {
        const auto index = IndexRecord(lookup);
        for (std::size_t length = 0; length <= index.size(); ++length) {
            SCOPED_TRACE(length);
            ExpectSameFromMemory(index.substr(0, length), SmallTile);
            ExpectSameFromFolder(index.substr(0, length), SmallTile);
        }
    }
}

TEST_F(ArtAgainstModel, TileAtEveryPlaceAroundTheFilesEdges)
{
    for (int lookup = -12; lookup <= static_cast<int>(SmallTile.size()) + 2; ++lookup) {
        SCOPED_TRACE(lookup);
        ExpectSameFromMemory(IndexRecord(lookup), SmallTile);
    }
}

TEST_F(ArtAgainstModel, EveryByteOfATileReplaced)
{
    for (std::size_t place = 3; place < SmallTile.size(); ++place) {
        for (const char byte : {'\x00', '\x01', '\x05', '\x7F', '\x80', '\xFF'}) {
            SCOPED_TRACE(place);
            auto art = SmallTile;
            art[place] = byte;
            ExpectSameFromMemory(IndexRecord(3), art);
        }
    }
}

/// Makes small files that are mostly a tile, with everything that can be wrong wrong now and then.
class RandomFiles {
  public:
    explicit RandomFiles(std::uint32_t seed) : draw_(seed) {}

    std::string Index() { return IndexRecord(Chance(20) ? Between(-9, 60) : 0).substr(0, Chance(20) ? 2 : 12); }

    std::string Art()
    {
        const int width = Chance(10) ? OneOf({-32768, -7, -1, 0, 116, 1024, 1025}) : Between(1, 20);
        const int height = Chance(10) ? OneOf({-3, 0, 1, 168, 169, 1025, 32762, 32763, 32767}) : Between(2, 12);

        std::vector<Line> lines;
        for (int y = 0; y < std::min(height, 40); ++y) {
            lines.push_back(RandomLine(width));
        }
        auto art = RunTile(width, height, lines, Chance(10) ? OneOf({0, -1, 0xFFFF, 0x10000}) : Between(1, 9));
        for (int change = Chance(40) ? Between(1, 4) : 0; change > 0; --change) {
            // Not the sides: those are drawn above, or most files would be a single large surface.
            const auto place = static_cast<std::size_t>(Between(8, 120));
            if (place < art.size()) {
                art[place] = static_cast<char>(Between(0, 255));
            }
        }
        return Chance(10) ? art.substr(0, static_cast<std::size_t>(Between(0, 80))) : art;
    }

  private:
    Line RandomLine(int width)
    {
        Line line;
        for (int runs = Between(0, 4); runs > 0; --runs) {
            const int offset = Chance(8) ? OneOf({-32768, -3, -1, 40, 2047, 2048, 32767}) : Between(0, 4);
            const int run = Chance(8) ? OneOf({-32768, -4, -1, width, width + 1, 1000, 2048}) : Between(0, 6);
            line.insert(line.end(), {offset, run});
            for (int pixel = 0; pixel < std::min(run, 30); ++pixel) {
                line.push_back(Chance(10) ? Between(0, 3) : Between(0, 0xFFFF));
            }
        }
        if (!Chance(5)) {
            line.insert(line.end(), {0, 0});
        }
        return line;
    }

    int Between(int least, int most)
    {
        return least + static_cast<int>(draw_() % static_cast<unsigned>(most - least + 1));
    }
    bool Chance(int percent) { return Between(0, 99) < percent; }
    int  OneOf(std::initializer_list<int> values)
    {
        return values.begin()[Between(0, static_cast<int>(values.size()) - 1)];
    }

    std::mt19937 draw_;
};

TEST_F(ArtAgainstModel, RandomTilesFromMemory)
{
    for (std::uint32_t seed = 1; seed <= 6000 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomFiles files(seed);
        const auto  index = files.Index();
        ExpectSameFromMemory(index, files.Art());
    }
}

TEST_F(ArtAgainstModel, RandomTilesFromAFolder)
{
    for (std::uint32_t seed = 1; seed <= 400 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomFiles files(seed + 100000);
        const auto  index = files.Index();
        ExpectSameFromFolder(index, files.Art());
    }
}

TEST_F(ArtAgainstModel, NothingButRandomBytes)
{
    std::mt19937 draw(5); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
    for (int round = 0; round < 2000 && !HasFailure(); ++round) {
        SCOPED_TRACE(round);
        std::string art = Long(1) + Words({static_cast<int>(draw() % 30), static_cast<int>(draw() % 30)});
        for (int i = 0; i < 400; ++i) {
            art += static_cast<char>(draw() % 4 == 0 ? draw() : draw() % 3 / 2);
        }
        ExpectSameFromMemory(IndexRecord(0), art);
    }
}

TEST_F(ArtAgainstModel, TileLargerThanAnyWindow)
{
    std::vector<Line> lines;
    for (int y = 0; y < 100; ++y) {
        Line line{y % 3, 300};
        for (int pixel = 0; pixel < 300; ++pixel) {
            line.push_back(pixel * y);
        }
        line.insert(line.end(), {0, 0});
        lines.push_back(line);
    }
    // The line table holds 15 bits, so the later lines lead back to earlier places.
    ExpectSameFromMemory(IndexRecord(0), RunTile(303, 100, lines));
    ExpectSameFromMemory(IndexRecord(1), "x" + RunTile(303, 100, lines));
}

} // namespace
} // namespace qf::test
