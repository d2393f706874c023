// The start of the program, from its call to the main panel on the screen, and the memory that it then holds, beside
// those of an empty window with the same libraries, in turn on the same display; and beside those of a window with one
// line of text, since an empty one has no use for the system's fonts.
//
// startup_bench [ROUNDS]

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "app/settings/store_factory.h"
#include "core/settings.h"
#include "figures.h"
#include "support/temp_folder.h"
#include "window_watch.h"
#include "world/database.h"

namespace {

using namespace qf;
using namespace std::chrono_literals;
namespace fs = std::filesystem;
using bench::Clock;

constexpr double MostTimesEmpty = 1.5;
constexpr auto   Patience = 60s;

/// A process of the measure, which ends with it at the latest.
class Process {
  public:
    Process(const fs::path& program, std::string text)
    {
        // What the programs say is of no use here.
        posix_spawn_file_actions_t actions{};
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        auto                 name = program.string();
        std::array<char*, 3> arguments{name.data(), text.empty() ? nullptr : text.data(), nullptr};
        const int            failure = posix_spawn(&id_, name.c_str(), &actions, nullptr, arguments.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        if (failure != 0) {
            throw std::runtime_error("cannot start " + name);
        }
    }
    ~Process()
    {
        if (!ended_) {
            kill(id_, SIGKILL);
            waitpid(id_, nullptr, 0);
        }
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    void WaitForEnd()
    {
        for (const auto start = Clock::now(); Clock::now() - start < Patience; std::this_thread::sleep_for(1ms)) {
            if (waitpid(id_, nullptr, WNOHANG) == id_) {
                ended_ = true;
                return;
            }
        }
        throw std::runtime_error("a program does not end");
    }

    /// Waits until the process has had nothing to do for a while: what it shows is drawn then.
    void WaitForRest() const
    {
        constexpr auto Rest = 150ms;
        auto           since = Clock::now();
        auto           used = Used();
        for (const auto start = since; Clock::now() - start < Patience; std::this_thread::sleep_for(10ms)) {
            if (const auto now = Used(); now != used || !Sleeps()) {
                used = now;
                since = Clock::now();
            } else if (Clock::now() - since >= Rest) {
                return;
            }
        }
        throw std::runtime_error("a program does not come to rest");
    }

    /// The time that the processor has given to its main thread, in nanoseconds.
    long long Used() const
    {
        std::ifstream file(File("schedstat"));
        long long     time = 0;
        file >> time;
        return time;
    }

    double Megabytes() const
    {
        std::ifstream status(File("status"));
        for (std::string line; std::getline(status, line);) {
            if (line.starts_with("VmRSS:")) {
                return std::strtod(line.c_str() + std::string_view("VmRSS:").size(), nullptr) / 1024;
            }
        }
        throw std::runtime_error("a program has ended");
    }

  private:
    std::string File(const char* name) const { return "/proc/" + std::to_string(id_) + "/" + name; }

    bool Sleeps() const
    {
        std::ifstream     file(File("stat"));
        const std::string text{std::istreambuf_iterator<char>(file), {}};
        const auto        name = text.rfind(')');
        return name != std::string::npos && text.substr(name, 3) == ") S";
    }

    pid_t id_ = 0;
    bool  ended_ = false;
};

/// One of the windows and what the starts of its program took.
struct Measured {
    const char*         name;
    fs::path            program;
    std::string         title;
    std::string         text;
    std::vector<double> milliseconds = {};
    std::vector<double> processor = {};
    std::vector<double> megabytes = {};
};

void StartOnce(bench::WindowWatch& watch, Measured& measured)
{
    const auto start = Clock::now();
    Process    process(measured.program, measured.text);
    const auto shown = watch.WaitFor(measured.title, Patience);
    process.WaitForRest();
    measured.milliseconds.push_back(std::chrono::duration<double, std::milli>(shown.when - start).count());
    measured.processor.push_back(static_cast<double>(process.Used()) / 1e6);
    measured.megabytes.push_back(process.Megabytes());
    watch.Close(shown.window);
    process.WaitForEnd();
}

double MedianOf(std::vector<double> numbers)
{
    const auto middle = numbers.begin() + static_cast<std::ptrdiff_t>(numbers.size() / 2);
    std::ranges::nth_element(numbers, middle);
    return *middle;
}

double LeastOf(const std::vector<double>& numbers)
{
    return *std::ranges::min_element(numbers);
}

/// A home of its own with the settings of a program that was set up before, so that nobody's own are touched.
void MakeHome(const fs::path& home)
{
    const auto point = [&](const char* variable, const char* name) {
        fs::create_directories(home / name);
        fs::permissions(home / name, fs::perms::owner_all);
        setenv(variable, (home / name).c_str(), 1);
    };
    setenv("HOME", home.c_str(), 1);
    point("XDG_CONFIG_HOME", "config");
    point("XDG_DATA_HOME", "data");
    point("XDG_CACHE_HOME", "cache");
    point("XDG_RUNTIME_DIR", "runtime");
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    // Without an address each start would try to launch a bus of its own.
    setenv("DBUS_SESSION_BUS_ADDRESS", "disabled:", 1);
    app::OpenSettingsStore()->Write(core::section::Configuration, "ZarnVer", "1");
}

} // namespace

int main(int argc, char** argv)
{
    const int rounds = argc > 1 ? std::atoi(argv[1]) : 25;
    if (rounds <= 0) {
        std::fputs("startup_bench [ROUNDS]\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        const auto             built = fs::read_symlink("/proc/self/exe").parent_path();
        const test::TempFolder scratch;
        MakeHome(scratch.MakeFolder("home"));
        // Copies, because a program takes the folder of its own file as its own.
        const auto programs = scratch.MakeFolder("programs");
        Measured   quernfield{"quernfield", programs / "quernfield", "Dobrin's Quernfield 2025", ""};
        Measured   empty{"empty window", programs / "empty_window", "Empty window", ""};
        Measured   line{"line of text", programs / "empty_window", "Empty window", "What any program has to say"};
        for (const auto* measured : {&quernfield, &empty}) {
            fs::copy_file(built / measured->program.filename(), measured->program);
        }
        world::CreateWorldDatabase(programs / "qf.mdb");

        bench::WindowWatch watch;
        // The first starts fill the caches of fonts and files, and the program upgrades its database in its own.
        for (auto measured : {quernfield, empty}) {
            StartOnce(watch, measured);
        }
        std::array order{&quernfield, &empty, &line};
        for (int round = 0; round < rounds; ++round) {
            for (auto* measured : order) {
                StartOnce(watch, *measured);
            }
            std::ranges::rotate(order, order.begin() + 1);
        }

        std::printf("%-14s %10s %10s %14s %10s\n", "program", "shown ms", "least ms", "processor ms", "held MB");
        for (const auto* measured : {&quernfield, &empty, &line}) {
            std::printf("%-14s %10.1f %10.1f %14.1f %10.1f\n", measured->name, MedianOf(measured->milliseconds),
                        LeastOf(measured->milliseconds), MedianOf(measured->processor), MedianOf(measured->megabytes));
        }
        const auto times = [&](const Measured& other) {
            return MedianOf(quernfield.milliseconds) / MedianOf(other.milliseconds);
        };
        const auto memory = [&](const Measured& other) {
            return MedianOf(quernfield.megabytes) / MedianOf(other.megabytes);
        };
        std::printf("%-14s %10.2f %10s %14s %10.2f   (limit %.1f)\n", "to empty", times(empty), "", "", memory(empty),
                    MostTimesEmpty);
        std::printf("%-14s %10.2f %10s %14s %10.2f   (limit %.1f)\n", "to the line", times(line), "", "", memory(line),
                    MostTimesEmpty);
        const std::array kept{
            bench::AtMost("start-up, times an empty window's", times(empty), MostTimesEmpty),
            bench::AtMost("start-up, times that of a window with one line of text", times(line), MostTimesEmpty),
            bench::AtMost("memory with the main panel, times an empty window's", memory(empty), MostTimesEmpty),
        };
        return std::ranges::all_of(kept, std::identity()) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
