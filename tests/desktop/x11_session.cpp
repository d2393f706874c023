#include "desktop/x11_session.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

#include "client/platform/x11/x11_connection.h"

namespace qf::test {

namespace {

pid_t Start(const std::vector<std::string>& command)
{
    std::vector<char*> texts;
    texts.reserve(command.size() + 1);
    for (const std::string& text : command) {
        texts.push_back(const_cast<char*>(text.c_str()));
    }
    texts.push_back(nullptr);

    const pid_t id = fork();
    if (id == 0) {
        execvp(texts[0], texts.data());
        _exit(127);
    }
    if (id < 0) {
        throw std::runtime_error("cannot start " + command.front());
    }
    return id;
}

int WaitFor(pid_t id)
{
    int status = 0;
    while (waitpid(id, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

std::vector<std::string> ReceiverCommand(const TempFolder& folder, const std::vector<std::string>& options)
{
    const char* program = std::getenv("QF_RECEIVER");
    if (program == nullptr) {
        throw std::runtime_error("QF_RECEIVER names no program");
    }
    // What a library makes of a key depends on the locale, so the receiver gets one that knows every character.
    std::vector<std::string> command{"env", "LC_ALL=C.UTF-8", program, "--log", (folder.Path() / "log").string()};
    command.insert(command.end(), options.begin(), options.end());
    return command;
}

/// The command, after what an earlier manager left behind has been cleared away.
std::vector<std::string> ManagerCommand()
{
    const client::X11Connection connection{std::string{}};
    const client::X11Atoms&     atoms = connection.Atoms();
    for (const xcb_atom_t property : {atoms.netActiveWindow, atoms.netClientListStacking, atoms.netSupportingWmCheck}) {
        xcb_delete_property(connection.Raw(), connection.Root(), property);
    }
    connection.Settle();
    return {"openbox"};
}

} // namespace

bool Eventually(const std::function<bool()>& condition, std::chrono::seconds limit)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!condition()) {
        if (std::chrono::steady_clock::now() >= deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds{5});
    }
    return true;
}

ChildProcess::ChildProcess(const std::vector<std::string>& command) : id_(Start(command)) {}

ChildProcess::~ChildProcess()
{
    End(SIGKILL);
}

void ChildProcess::End(int signal)
{
    if (id_ > 0) {
        kill(id_, signal);
        WaitFor(id_);
        id_ = -1;
    }
}

bool RunTool(const std::vector<std::string>& command)
{
    const int status = WaitFor(Start(command));
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

Receiver::Receiver(const std::vector<std::string>& options) : process_(ReceiverCommand(folder_, options)) {}

std::vector<std::string> Receiver::Lines() const
{
    std::ifstream            file(folder_.Path() / "log", std::ios::binary);
    std::vector<std::string> lines;
    std::string              line;
    while (std::getline(file, line) && !file.eof()) {
        lines.push_back(line);
    }
    return lines;
}

std::vector<std::string> Receiver::WaitForLines(std::size_t count) const
{
    std::vector<std::string> lines;
    Eventually([&] {
        lines = Lines();
        return lines.size() >= count;
    });
    return lines;
}

void HoldDisplay()
{
    static const client::X11Connection Held{std::string{}};
}

std::vector<xcb_keysym_t> KeyboardMapping()
{
    const client::X11Connection connection{std::string{}};
    const xcb_setup_t*          setup = xcb_get_setup(connection.Raw());
    const auto                  count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
    const auto                  request = xcb_get_keyboard_mapping(connection.Raw(), setup->min_keycode, count);
    const client::Reply<xcb_get_keyboard_mapping_reply_t> reply(
        xcb_get_keyboard_mapping_reply(connection.Raw(), request, nullptr));
    if (!reply) {
        return {};
    }
    const xcb_keysym_t* first = xcb_get_keyboard_mapping_keysyms(reply.get());
    return {first, first + xcb_get_keyboard_mapping_keysyms_length(reply.get())};
}

bool WindowManagerRuns()
{
    const client::X11Connection connection{std::string{}};
    const client::X11Atoms&     atoms = connection.Atoms();
    const auto                  of = [&connection](xcb_window_t window, xcb_atom_t property) {
        return connection.Take(connection.Ask(window, property, XCB_ATOM_WINDOW));
    };
    // A manager names itself before it has taken over the windows; its list comes last.
    const auto named = of(connection.Root(), atoms.netSupportingWmCheck);
    return named && !named->numbers.empty() && of(named->numbers.front(), atoms.netSupportingWmCheck) &&
           of(connection.Root(), atoms.netClientListStacking);
}

WindowManager::WindowManager() : process_(ManagerCommand())
{
    if (!Eventually(WindowManagerRuns)) {
        throw std::runtime_error("the window manager does not start");
    }
}

void NudgeWindowManager()
{
    const client::X11Connection connection{std::string{}};
    xcb_change_property(connection.Raw(), XCB_PROP_MODE_REPLACE, connection.Root(), XCB_ATOM_CUT_BUFFER7,
                        XCB_ATOM_STRING, 8, 0, nullptr);
    connection.Settle();
}

} // namespace qf::test
