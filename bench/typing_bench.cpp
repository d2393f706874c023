// Typing: commands a second through SendCommand, beside a bare loop that posts the same key events at a
// window of the same kind without looking at anything. One row for each measure.
//
// typing_bench [COMMANDS] [RECEIVER] [PLACE]
//
// RECEIVER is the program that is typed at: the argument unless it is empty, else QF_RECEIVER, else
// qf_x11_receiver beside this program. It is started anew for each measure. PLACE names the display in the table
// of the run.

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include <sys/wait.h>
#include <unistd.h>

#include "client/delivery.h"
#include "client/platform/simulated/simulated_platform.h"
#include "client/platform/x11/x11_keymap.h"
#include "client/platform/x11/x11_platform.h"
#include "client/platform/x11/x11_typist.h"
#include "figures.h"

namespace {

using namespace qf;
namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds Patience{10};

/// Of the rate of a bare loop that loses nothing, and of the rate without a window.
constexpr double LeastOfPaced = 0.5;
constexpr double LeastOfSimulated = 20;

double SecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string Command(int number)
{
    return "tile 0x050d " + std::to_string(number) + " 103 100 102 -5";
}

/// Boxes have no place in a measure: the client's window is there, or the numbers are worthless.
class NoBoxes : public core::Outlet {
  public:
    void Send(std::string_view, bool) override {}
    void Show(const core::Message& message) override { throw std::runtime_error(message.text); }
    bool Ask(const core::Message& message) override { throw std::runtime_error(message.text); }
};

class Receiver {
  public:
    explicit Receiver(const std::string& program)
        : log_(fs::temp_directory_path() / ("quernfield-bench-" + std::to_string(getpid()))), id_(fork())
    {
        if (id_ == 0) {
            execl(program.c_str(), program.c_str(), "--log", log_.c_str(), nullptr);
            _exit(127);
        }
    }
    ~Receiver()
    {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
        fs::remove(log_);
    }
    Receiver(const Receiver&) = delete;
    Receiver& operator=(const Receiver&) = delete;

    long Lines() const
    {
        std::ifstream file(log_, std::ios::binary);
        return std::count(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>(), '\n');
    }

    /// Waits until all lines have come, or no further one has for two seconds.
    long WaitForLines(long count) const
    {
        long lines = Lines();
        auto since = Clock::now();
        while (lines < count && SecondsSince(since) < 2) {
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
            const long now = Lines();
            if (now != lines) {
                since = Clock::now();
            }
            lines = now;
        }
        return lines;
    }

  private:
    fs::path log_;
    pid_t    id_;
};

client::WindowHandle WaitForWindow(client::ClientPlatform& platform)
{
    for (const auto start = Clock::now(); Clock::now() - start < Patience;) {
        if (const client::WindowHandle window = client::FindClientWindow(platform)) {
            return window;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    throw std::runtime_error("the receiver shows no window");
}

struct Measure {
    double posted = 0;
    double delivered = 0;
    long   arrived = 0;
};

void Print(const char* name, int commands, const Measure& measure)
{
    std::printf("%-34s %10.0f %12.0f %9ld of %d\n", name, commands / measure.posted,
                static_cast<double>(measure.arrived) / measure.delivered, measure.arrived, commands);
    std::fflush(stdout);
}

Measure SendCommands(const std::string& program, int commands)
{
    const Receiver      receiver(program);
    client::X11Platform platform;
    NoBoxes             boxes;
    WaitForWindow(platform);
    client::SendCommand(platform, boxes, "'", "first");

    Measure    measure;
    const auto start = Clock::now();
    for (int i = 0; i < commands; ++i) {
        client::SendCommand(platform, boxes, "'", Command(i));
    }
    measure.posted = SecondsSince(start);
    measure.arrived = std::max(0L, receiver.WaitForLines(commands + 1) - 1);
    measure.delivered = SecondsSince(start);
    return measure;
}

/// The key events of one line, ready to be sent.
std::vector<xcb_key_press_event_t> EventsOf(const client::X11Keymap& keymap, xcb_window_t root, xcb_window_t window,
                                            const std::string& command)
{
    std::vector<xcb_key_press_event_t> events;
    const auto                         add = [&](std::uint16_t label) {
        const std::optional<client::KeyStroke>& stroke = keymap.strokes[label];
        if (!stroke) {
            throw std::runtime_error("the keyboard lacks a character of the commands");
        }
        for (const auto type : {std::uint8_t{XCB_KEY_PRESS}, std::uint8_t{XCB_KEY_RELEASE}}) {
            xcb_key_press_event_t event{};
            event.response_type = type;
            event.detail = stroke->code;
            event.root = root;
            event.event = window;
            event.state = stroke->state;
            event.same_screen = 1;
            events.push_back(event);
        }
    };
    add('\'');
    for (const char character : command) {
        add(static_cast<unsigned char>(character));
    }
    add(client::ReturnLabel);
    return events;
}

Measure PostBare(const std::string& program, int commands)
{
    const Receiver      receiver(program);
    client::X11Platform platform;
    NoBoxes             boxes;
    const auto          window = static_cast<xcb_window_t>(WaitForWindow(platform));
    client::SendCommand(platform, boxes, "'", "first");

    const client::X11Connection connection{std::string{}};
    const client::X11Keymap     keymap = client::LoadKeymap(connection.Raw());

    Measure    measure;
    const auto start = Clock::now();
    for (int i = 0; i < commands; ++i) {
        for (const auto& event : EventsOf(keymap, connection.Root(), window, Command(i))) {
            const std::uint32_t mask =
                event.response_type == XCB_KEY_PRESS ? XCB_EVENT_MASK_KEY_PRESS : XCB_EVENT_MASK_KEY_RELEASE;
            xcb_send_event(connection.Raw(), 0, window, mask, reinterpret_cast<const char*>(&event));
        }
        connection.Flush();
    }
    // A reply means that the server has taken all.
    connection.Settle();
    measure.posted = SecondsSince(start);
    measure.arrived = std::max(0L, receiver.WaitForLines(commands + 1) - 1);
    measure.delivered = SecondsSince(start);
    return measure;
}

/// The same bursts and pings at a window that is known: what the receiver can read at most.
Measure PostPaced(const std::string& program, int commands)
{
    const Receiver      receiver(program);
    client::X11Platform platform;
    NoBoxes             boxes;
    const auto          window = static_cast<xcb_window_t>(WaitForWindow(platform));
    client::SendCommand(platform, boxes, "'", "first");

    client::X11Connection connection{std::string{}};
    client::X11Typist     typist(connection);
    connection.onEvent = [&typist](const xcb_generic_event_t& event) { typist.Hear(event); };

    Measure    measure;
    const auto start = Clock::now();
    for (int i = 0; i < commands; ++i) {
        typist.TypeCharacter(window, '\'');
        for (const char character : Command(i)) {
            typist.TypeCharacter(window, static_cast<unsigned char>(character));
        }
        typist.TypeReturn(window, true);
        typist.TypeReturn(window, false);
    }
    measure.posted = SecondsSince(start);
    measure.arrived = std::max(0L, receiver.WaitForLines(commands + 1) - 1);
    measure.delivered = SecondsSince(start);
    return measure;
}

Measure SendSimulated(int commands)
{
    client::SimulatedPlatform platform;
    platform.KeepLog(false);
    platform.AddWindow("Shell", "Desk");
    platform.AddWindow("SDL_app", "ClassicUO");
    NoBoxes boxes;

    Measure    measure;
    const auto start = Clock::now();
    for (int i = 0; i < commands; ++i) {
        client::SendCommand(platform, boxes, "'", Command(i));
        measure.arrived += static_cast<long>(platform.TakeLines().size());
    }
    measure.posted = SecondsSince(start);
    measure.delivered = measure.posted;
    return measure;
}

bool AreWithin(const std::string& place, int commands, const Measure& simulated, const Measure& paced,
               const Measure& typed)
{
    const auto what = [&](const char* figure) { return "typing, " + place + ", " + figure; };
    bool       within = bench::AtLeast(what("commands that arrive"), static_cast<double>(typed.arrived), commands);
    within =
        bench::AtLeast(what("rate beside a bare loop in bursts"), paced.posted / typed.posted, LeastOfPaced) && within;
    return bench::AtLeast(what("times faster without a window"), typed.posted / simulated.posted, LeastOfSimulated) &&
           within;
}

std::string ReceiverProgram(int argc, char** argv)
{
    if (argc > 2 && *argv[2] != '\0') {
        return argv[2];
    }
    if (const char* program = std::getenv("QF_RECEIVER")) {
        return program;
    }
    return fs::read_symlink("/proc/self/exe").parent_path() / "qf_x11_receiver";
}

} // namespace

int main(int argc, char** argv)
{
    const int commands = argc > 1 ? static_cast<int>(std::strtol(argv[1], nullptr, 10)) : 10'000;
    if (commands <= 0) {
        std::fputs("typing_bench [COMMANDS] [RECEIVER] [PLACE]\n", stderr);
        return EXIT_FAILURE;
    }
    try {
        std::printf("%-34s %10s %12s %9s\n", "measure", "posted/s", "delivered/s", "arrived");
        const Measure simulated = SendSimulated(commands);
        Print("SendCommand, simulated desktop", commands, simulated);
        if (std::getenv("DISPLAY") == nullptr) {
            std::puts("no display: the X11 measures are left out");
            return EXIT_SUCCESS;
        }
        // A display starts anew when its last program leaves, as happens between two measures.
        const client::X11Connection held{std::string{}};
        const std::string           program = ReceiverProgram(argc, argv);
        const Measure               bare = PostBare(program, commands);
        Print("bare loop, X11", commands, bare);
        const Measure paced = PostPaced(program, commands);
        Print("bare loop with bursts, X11", commands, paced);
        const Measure typed = SendCommands(program, commands);
        Print("SendCommand, X11", commands, typed);
        std::printf("SendCommand at %.2f of the bare loop, which loses lines, and at %.2f of the one with bursts\n",
                    bare.posted / typed.posted, paced.posted / typed.posted);
        return AreWithin(argc > 3 ? argv[3] : "X11", commands, simulated, paced, typed) ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "%s\n", failure.what());
        return EXIT_FAILURE;
    }
}
