#include <windows.h>

#include <stdexcept>

#include "practice/class_window.h"

namespace qf::practice {

namespace {

constexpr const char* ClassName = "Ultima Online";

} // namespace

struct ClassWindow::Native {
    HWND window = nullptr;
    bool closed = false;

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        auto* native = reinterpret_cast<Native*>(GetWindowLongPtrA(window, GWLP_USERDATA));
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
};

ClassWindow::ClassWindow() : native_(std::make_unique<Native>())
{
    const HINSTANCE instance = GetModuleHandleA(nullptr);
    WNDCLASSA       windowClass{};
    windowClass.lpfnWndProc = &Native::Handle;
    windowClass.hInstance = instance;
    windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    windowClass.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    windowClass.lpszClassName = ClassName;
    if (RegisterClassA(&windowClass) == 0) {
        throw std::runtime_error("the class of the position window cannot be registered");
    }
    native_->window =
        CreateWindowExA(0, ClassName, "", WS_OVERLAPPEDWINDOW, 0, 0, 320, 90, nullptr, nullptr, instance, nullptr);
    if (native_->window == nullptr) {
        UnregisterClassA(ClassName, instance);
        throw std::runtime_error("the position window cannot be opened");
    }
    SetWindowLongPtrA(native_->window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(native_.get()));
    ShowWindow(native_->window, SW_SHOWNOACTIVATE);
}

ClassWindow::~ClassWindow()
{
    DestroyWindow(native_->window);
    UnregisterClassA(ClassName, GetModuleHandleA(nullptr));
}

void ClassWindow::Show(const Position& position)
{
    SetWindowTextA(native_->window, PositionTitle(position).c_str());
    InvalidateRect(native_->window, nullptr, TRUE);
}

bool ClassWindow::HandleEvents()
{
    // The messages of all windows of this thread are taken by the main window's loop.
    return !native_->closed;
}

} // namespace qf::practice
