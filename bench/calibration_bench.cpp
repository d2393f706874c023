// Calibration: a search of the whole 32 MiB, the triple standing at its very end, beside one pass of memcmp
// over the same bytes in the same run.
//
// calibration_bench [ROUNDS]

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "client/calibration.h"
#include "client/platform/simulated/simulated_platform.h"
#include "figures.h"

namespace {

using namespace qf;
using Clock = std::chrono::steady_clock;

constexpr std::size_t SearchedBytes = client::SearchBlock * client::SearchBlocks;
constexpr double      MostTimesMemcmp = 3;

/// A client whose memory is read at the speed of a copy.
class FlatMemory final : public client::SimulatedPlatform {
  public:
    explicit FlatMemory(const std::vector<std::byte>& memory) : memory_(memory)
    {
        KeepLog(false);
        AddWindow("Ultima Online", "", AddProcess());
    }

    bool ReadMemory(client::ProcessHandle, std::uint64_t address, std::span<std::byte> buffer) override
    {
        const auto offset = address - client::SearchStart;
        if (offset + buffer.size() > memory_.size()) {
            return false;
        }
        std::memcpy(buffer.data(), memory_.data() + offset, buffer.size());
        return true;
    }

  private:
    const std::vector<std::byte>& memory_;
};

double SecondsOf(const auto& run)
{
    const auto start = Clock::now();
    run();
    return std::chrono::duration<double>(Clock::now() - start).count();
}

struct Filling {
    const char* name;
    void (*fill)(std::vector<std::byte>&);
};

constexpr Filling Fillings[] = {
    {"zeros", [](std::vector<std::byte>&) {}},
    {"random bytes",
     [](std::vector<std::byte>& memory) {
         std::mt19937 draw(1); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run draws the same
         std::ranges::generate(memory, [&draw] { return static_cast<std::byte>(draw()); });
     }},
    {"near misses",
     [](std::vector<std::byte>& memory) {
         const std::int32_t triple[] = {0, 2000, 1001};
         for (std::size_t at = 0; at + sizeof triple <= memory.size(); at += sizeof triple) {
             std::memcpy(memory.data() + at, triple, sizeof triple);
         }
     }},
};

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 15;
    if (rounds <= 0) {
        std::fputs("calibration_bench [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }
    std::printf("%-14s %10s %10s %7s\n", "memory", "search ms", "memcmp ms", "ratio");
    bool within = true;
    for (const auto& filling : Fillings) {
        std::vector<std::byte> memory(SearchedBytes + client::TripleSize - 1);
        filling.fill(memory);
        const std::int32_t triple[] = {0, 2000, 1000};
        const auto         place = SearchedBytes - 1;
        std::memcpy(memory.data() + place, triple, sizeof triple);
        const auto   copy = memory;
        FlatMemory   platform(memory);
        std::int32_t found = 0;
        int          difference = 1;

        double search = 1e9;
        double compare = 1e9;
        for (int round = 0; round < rounds; ++round) {
            search =
                std::min(search, SecondsOf([&] { found = client::CalibrateLocation(platform, 1000, 2000, 0, false); }));
            compare = std::min(compare,
                               SecondsOf([&] { difference = std::memcmp(memory.data(), copy.data(), SearchedBytes); }));
        }
        if (found != static_cast<std::int32_t>(client::SearchStart + place) || difference != 0) {
            std::fputs("the search gives a wrong address\n", stderr);
            return EXIT_FAILURE;
        }
        std::printf("%-14s %10.2f %10.2f %7.2f\n", filling.name, search * 1000, compare * 1000, search / compare);
        within = bench::AtMost(std::string("calibration in ") + filling.name + ", times one `memcmp`", search / compare,
                               MostTimesMemcmp) &&
                 within;
    }
    std::printf("a search takes at most %.0f times as long as memcmp: %s\n", MostTimesMemcmp, within ? "yes" : "no");
    return within ? EXIT_SUCCESS : EXIT_FAILURE;
}
