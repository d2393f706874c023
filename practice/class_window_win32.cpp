#include <windows.h>

#include <stdexcept>

#include "practice/class_window.h"

namespace qf::practice {

namespace {

constexpr const char* ClassName = "Ultima Online";
constexpr const char* AssistClassName = "UOASSIST-TP-MSG-WND";
constexpr UINT        AssistPosition = WM_USER + 202;

/// A window that is not there after all is null.
HWND OpenWindow(const char* className, WNDPROC handle, HBRUSH background, DWORD style)
{
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA       windowClass{};
    windowClass.lpfnWndProc = handle;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    windowClass.hbrBackground = background;
    windowClass.lpszClassName = className;
    if (RegisterClassA(&windowClass) == 0) {
        return nullptr;
    }
    const HWND window = CreateWindowExA(0, className, "", style, 0, 0, 320, 90, nullptr, nullptr, instance, nullptr);
    if (window == nullptr) {
        UnregisterClassA(className, instance);
    }
    return window;
}

void CloseWindowOf(HWND window, const char* className)
{
    if (window != nullptr) {
        DestroyWindow(window);
        UnregisterClassA(className, GetModuleHandleA(nullptr));
    }
}

} // namespace

struct ClassWindow::Native {
    HWND     window = nullptr;
    HWND     assist = nullptr;
    Position position{};
    bool     closed = false;

    static Native* Of(HWND window) { return reinterpret_cast<Native*>(GetWindowLongPtrA(window, GWLP_USERDATA)); }

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* native = Of(window);
        if (message == WM_CLOSE && native != nullptr) {
            native->closed = true;
            return 0;
        }
        if (message == WM_PAINT) {
            PAINTSTRUCT paint{};
            const HDC   device = BeginPaint(window, &paint);
            RECT        area{};
            GetClientRect(window, &area);
            char      title[128]{};
            const int length = GetWindowTextA(window, title, static_cast<int>(sizeof title));
            DrawTextA(device, title, length, &area, DT_CENTER | DT_VCENTER | DT_SINGLELINE);
            EndPaint(window, &paint);
            return 0;
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    static LRESULT CALLBACK HandleAssist(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        const auto* native = Of(window);
        if (message == AssistPosition && native != nullptr) {
            return MAKELONG(native->position.x, native->position.y);
        }
        return DefWindowProcA(window, message, wParam, lParam);
    }

    ~Native()
    {
        CloseWindowOf(assist, AssistClassName);
        CloseWindowOf(window, ClassName);
    }
};

ClassWindow::ClassWindow() : native_(std::make_unique<Native>())
{
    native_->window =
        OpenWindow(ClassName, &Native::Handle, reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1), WS_OVERLAPPEDWINDOW);
    if (native_->window == nullptr) {
        throw std::runtime_error("the position window cannot be opened");
    }
    SetWindowLongPtrA(native_->window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(native_.get()));

    native_->assist = OpenWindow(AssistClassName, &Native::HandleAssist, nullptr, WS_POPUP);
    if (native_->assist == nullptr) {
        throw std::runtime_error("the assist window cannot be opened");
    }
    SetWindowLongPtrA(native_->assist, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(native_.get()));

    ShowWindow(native_->window, SW_SHOWNOACTIVATE);
}

ClassWindow::~ClassWindow() = default;

void ClassWindow::Show(const Position& position)
{
    native_->position = position;
    SetWindowTextA(native_->window, PositionTitle(position).c_str());
    InvalidateRect(native_->window, nullptr, TRUE);
}

bool ClassWindow::HandleEvents()
{
    // The messages of all windows of this thread are taken by the main window's loop.
    return !native_->closed;
}

} // namespace qf::practice
