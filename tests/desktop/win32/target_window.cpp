// A small stand-in for a game client on Windows: it reads typed lines as a client does, keeps a position in
// its memory, answers as an assist window where told to, and writes down what reached it. The client window's
// property "Position" is the position's address.
//
//   qf_target_window --log FILE [--trace FILE] [--slow MS] [--position X Y Z] [--assist RESULT]
//                    [--exit-after-lines N]
//
// --slow pauses for MS milliseconds behind every 500 messages, so that a fast writer fills the queue.

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>

#include <windows.h>

namespace {

constexpr std::uint64_t MessagesPerPause = 500;
constexpr UINT          AssistPosition = 1226;
constexpr WPARAM        FirstPrintable = 32;
constexpr WPARAM        DeleteCharacter = 127;
constexpr DWORD         MillisecondsNoSlow = 0;

// Z, Y, X among the program's own data. The program is linked to stand at 0x400000, as the classic clients do.
volatile std::int32_t position[3] = {0, 0, 0};

struct Options {
    std::string                 log;
    std::string                 trace;
    DWORD                       slow = MillisecondsNoSlow;
    std::int32_t                x = 1000;
    std::int32_t                y = 2000;
    std::int32_t                z = 5;
    std::optional<std::int32_t> assist;
    std::uint64_t               exitAfterLines = 0;
};

Options ParseOptions(int count, char** values)
{
    Options options;
    int     at = 1;
    auto    next = [&]() -> std::string {
        if (at >= count) {
            throw std::invalid_argument("a value is missing at the end");
        }
        return values[at++];
    };
    while (at < count) {
        const std::string name = next();
        if (name == "--log") {
            options.log = next();
        } else if (name == "--trace") {
            options.trace = next();
        } else if (name == "--slow") {
            options.slow = static_cast<DWORD>(std::stoul(next()));
        } else if (name == "--position") {
            options.x = std::stoi(next());
            options.y = std::stoi(next());
            options.z = std::stoi(next());
        } else if (name == "--assist") {
            options.assist = std::stoi(next());
        } else if (name == "--exit-after-lines") {
            options.exitAfterLines = std::stoull(next());
        } else {
            throw std::invalid_argument("unknown option " + name);
        }
    }
    if (options.log.empty()) {
        throw std::invalid_argument("--log is missing");
    }
    return options;
}

std::string ToUtf8(const std::wstring& text)
{
    if (text.empty()) {
        return {};
    }
    const int   length = static_cast<int>(text.size());
    const int   size = WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, result.data(), size, nullptr, nullptr);
    return result;
}

class Target {
  public:
    explicit Target(const Options& options) : options_(options), log_(options.log, std::ios::binary)
    {
        if (!log_) {
            throw std::runtime_error("the log cannot be written");
        }
        if (!options.trace.empty()) {
            trace_.open(options.trace, std::ios::binary);
        }
        position[0] = options.z;
        position[1] = options.y;
        position[2] = options.x;
        // The client's own window comes last: whoever waits for it finds the others too.
        CreateWindowOf(L"Ultima Online", L"Ultima Online", 0);
        if (options.assist) {
            CreateWindowOf(L"UOASSIST-TP-MSG-WND", L"UOASSIST-TP-MSG-WND", 0);
        }
        client_ = CreateWindowOf(L"SDL_app", L"ClassicUO - Target", WS_VISIBLE);
        SetPropA(client_, "Position", reinterpret_cast<HANDLE>(reinterpret_cast<std::uintptr_t>(&position)));
    }

    void Run()
    {
        MSG           message;
        std::uint64_t read = 0;
        while (GetMessageW(&message, nullptr, 0, 0) > 0) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
            ++read;
            if (options_.slow != MillisecondsNoSlow && read % MessagesPerPause == 0) {
                Sleep(options_.slow);
            }
        }
    }

  private:
    HWND CreateWindowOf(const wchar_t* className, const wchar_t* title, DWORD style)
    {
        WNDCLASSW windowClass{};
        windowClass.lpfnWndProc = Procedure;
        windowClass.hInstance = GetModuleHandleW(nullptr);
        windowClass.lpszClassName = className;
        if (RegisterClassW(&windowClass) == 0) {
            throw std::runtime_error("the window class cannot be registered");
        }
        auto* window = CreateWindowExW(0, className, title, WS_OVERLAPPEDWINDOW | style, 40, 40, 320, 200, nullptr,
                                       nullptr, windowClass.hInstance, this);
        if (window == nullptr) {
            throw std::runtime_error("the window cannot be created");
        }
        return window;
    }

    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_NCCREATE) {
            const auto* creation = reinterpret_cast<const CREATESTRUCTW*>(lParam);
            SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(creation->lpCreateParams));
        }
        auto* target = reinterpret_cast<Target*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        if (target != nullptr && target->Handle(window, message, wParam, lParam)) {
            return 0;
        }
        if (target != nullptr && message == AssistPosition && target->options_.assist) {
            return *target->options_.assist;
        }
        return DefWindowProcW(window, message, wParam, lParam);
    }

    bool Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (window != client_) {
            return false;
        }
        switch (message) {
        case WM_CHAR:
            if (wParam >= FirstPrintable && wParam != DeleteCharacter) {
                Trace(message, wParam, lParam);
                line_.push_back(static_cast<wchar_t>(wParam));
            }
            return true;
        case WM_KEYDOWN:
        case WM_KEYUP:
            Trace(message, wParam, lParam);
            if (message == WM_KEYDOWN && wParam == VK_RETURN) {
                EndLine();
            }
            return true;
        case WM_DESTROY: PostQuitMessage(0); return true;
        default: return false;
        }
    }

    void Trace(UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (trace_.is_open()) {
            trace_ << message << ' ' << wParam << ' ' << lParam << std::endl;
        }
    }

    void EndLine()
    {
        log_ << ToUtf8(line_) << std::endl;
        line_.clear();
        ++lines_;
        if (lines_ == options_.exitAfterLines) {
            DestroyWindow(client_);
        }
    }

    Options       options_;
    std::ofstream log_;
    std::ofstream trace_;
    HWND          client_ = nullptr;
    std::wstring  line_;
    std::uint64_t lines_ = 0;
};

} // namespace

int main(int count, char** values)
{
    try {
        Target target(ParseOptions(count, values));
        target.Run();
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::cerr << "qf_target_window: " << failure.what() << '\n';
        return EXIT_FAILURE;
    }
}
