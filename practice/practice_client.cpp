#include "practice/practice_client.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <iostream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "core/host_path.h"
#include "core/installed_folders.h"
#include "practice/hud.h"
#include "practice/window_icon.h"

namespace qf::practice {

namespace {

constexpr Uint64 ObeyTime = 8;         // milliseconds between two looks at the events
constexpr Uint64 FrameTime = 16;       // while the user looks around
constexpr Uint64 StreamFrameTime = 50; // while lines stream in
constexpr int    IdleWait = 10;
constexpr int    ScrollPixels = 66;

/// The art that the options ask for; null where tiles are to be painted. Throws std::runtime_error.
std::unique_ptr<TileArt> OpenArt(const Options& options)
{
    if (options.noArt) {
        return nullptr;
    }
    if (!options.clientFolder.empty()) {
        auto art = TileArt::Open(core::PathOf(options.clientFolder));
        if (!art) {
            throw std::runtime_error("\"" + options.clientFolder + "\" does not hold art.mul and artidx.mul");
        }
        return art;
    }
    const std::unique_ptr<char, decltype(&SDL_free)> programFolder(SDL_GetBasePath(), &SDL_free);
    if (!programFolder) {
        return nullptr;
    }
    const auto art = core::PracticeArtFolder(core::PathOf(programFolder.get()));
    return art.empty() ? nullptr : TileArt::Open(art);
}

} // namespace

PracticeClient::PracticeClient(const Options& options)
    : options_(options), session_(options.prefix), scene_(OpenArt(options)), canvas_(options.width, options.height)
{
    camera_.shape = scene_.Shape();
    camera_.covered = HudHeight();
    if (!options_.logFile.empty()) {
        log_.open(core::PathOf(options_.logFile), std::ios::binary | std::ios::app);
        if (!log_) {
            throw std::runtime_error("cannot write to the log \"" + options_.logFile + "\"");
        }
    }
    if (!memory_.IsMapped()) {
        std::cerr << "quernfield-practice: the memory at 0x400000 is taken; the position cannot be read from outside\n";
    }
    // A picture that is drawn in memory gains nothing from a way through the graphics card.
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        throw std::runtime_error(std::string("the display cannot be used: ") + SDL_GetError());
    }
    // Without a display the library may draw into nowhere; that is wanted only where it is asked for.
    if (std::string_view(SDL_GetCurrentVideoDriver()) == "offscreen" && SDL_getenv("SDL_VIDEODRIVER") == nullptr) {
        SDL_Quit();
        throw std::runtime_error("there is no display");
    }
    try {
        // Opened first, so that the window that takes the typing comes to lie above it.
        classWindow_ = std::make_unique<ClassWindow>();
    } catch (const std::runtime_error& error) {
        std::cerr << "quernfield-practice: " << error.what() << "; calibration will not find this program\n";
    }
    window_ = SDL_CreateWindow("ClassicUO - Practice", SDL_WINDOWPOS_CENTERED, SDL_WINDOWPOS_CENTERED, options_.width,
                               options_.height, SDL_WINDOW_RESIZABLE);
    if (window_ == nullptr) {
        const std::string why = SDL_GetError();
        SDL_Quit();
        throw std::runtime_error("the window cannot be opened: " + why);
    }
    SetIcon(*window_);
    SDL_SetEventFilter(&PracticeClient::FilterEvent, this);
    SDL_StartTextInput();
    ShowPosition();
}

PracticeClient::~PracticeClient()
{
    SDL_SetEventFilter(nullptr, nullptr);
    SDL_DestroyWindow(window_);
    SDL_Quit();
}

int SDLCALL PracticeClient::FilterEvent(void* self, SDL_Event* event)
{
    return static_cast<PracticeClient*>(self)->TakeTyping(*event) ? 0 : 1;
}

// Typing is taken before it reaches the event queue: the queue is bounded, and a long run of lines that
// came while a frame was drawn would overflow it.
bool PracticeClient::TakeTyping(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_TEXTINPUT:
        chat_.Insert(event.text.text);
        changed_ = true;
        return true;
    case SDL_KEYUP:
    case SDL_TEXTEDITING: return true;
    case SDL_KEYDOWN: break;
    default: return false;
    }
    // Two like keys in a row may be reported as one that repeats, so repeats count.
    switch (event.key.keysym.sym) {
    case SDLK_RETURN:
    case SDLK_KP_ENTER: chat_.Return(); break;
    case SDLK_BACKSPACE: chat_.Backspace(); break;
    case SDLK_ESCAPE:
    case SDLK_HOME:
    case SDLK_LEFT:
    case SDLK_RIGHT:
    case SDLK_UP:
    case SDLK_DOWN:
    case SDLK_F2:
    case SDLK_F12: return false;
    default: return true;
    }
    changed_ = true;
    return true;
}

void PracticeClient::Run()
{
    while (!quit_) {
        DrainEvents();
        LogNewLines();
        ObeyLines();
        ShowPosition();
        if (classWindow_ && !classWindow_->HandleEvents()) {
            quit_ = true;
        }
        DrawIfDue();
        if (backlog_.empty()) {
            SDL_WaitEventTimeout(nullptr, IdleWait);
        }
    }
    LogNewLines();
    while (!backlog_.empty()) {
        ObeyLines();
    }
    if (!options_.screenshotFile.empty()) {
        Draw();
        SaveScreenshot();
    }
}

void PracticeClient::DrainEvents()
{
    std::array<SDL_Event, 256> events{};
    SDL_PumpEvents();
    for (;;) {
        const int count =
            SDL_PeepEvents(events.data(), static_cast<int>(events.size()), SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT);
        if (count <= 0) {
            return;
        }
        std::for_each_n(events.begin(), count, [this](const SDL_Event& event) { Handle(event); });
    }
}

void PracticeClient::Handle(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_QUIT: quit_ = true; break;
    case SDL_WINDOWEVENT:
        if (event.window.event == SDL_WINDOWEVENT_CLOSE) {
            quit_ = true;
        }
        changed_ = true;
        break;
    case SDL_KEYDOWN: HandleKey(event.key); break;
    case SDL_MOUSEBUTTONDOWN: HandleButton(event.button); break;
    case SDL_MOUSEMOTION: HandleMotion(event.motion); break;
    case SDL_MOUSEWHEEL: {
        int x = 0;
        int y = 0;
        SDL_GetMouseState(&x, &y);
        camera_.Zoom(std::clamp(event.wheel.y, -1, 1), {x, y}, canvas_.Width(), canvas_.Height());
        changed_ = true;
        break;
    }
    default: break;
    }
}

void PracticeClient::HandleKey(const SDL_KeyboardEvent& key)
{
    changed_ = true;
    switch (key.keysym.sym) {
    case SDLK_ESCAPE: session_.Cancel(); break;
    case SDLK_HOME: camera_.LookAt(session_.Player()); break;
    case SDLK_LEFT: camera_.Scroll(-ScrollPixels, 0); break;
    case SDLK_RIGHT: camera_.Scroll(ScrollPixels, 0); break;
    case SDLK_UP: camera_.Scroll(0, -ScrollPixels); break;
    case SDLK_DOWN: camera_.Scroll(0, ScrollPixels); break;
    case SDLK_F2: camera_.cutAway = !camera_.cutAway; break;
    case SDLK_F12:
        if (options_.screenshotFile.empty()) {
            session_.Answer("Start with --screenshot FILE to take pictures.");
        } else {
            Draw();
            SaveScreenshot();
        }
        break;
    default: break;
    }
}

void PracticeClient::HandleButton(const SDL_MouseButtonEvent& button)
{
    changed_ = true;
    if (button.button == SDL_BUTTON_RIGHT) {
        session_.Cancel();
    } else if (button.button == SDL_BUTTON_LEFT && session_.Waiting()) {
        PointAt(button.x, button.y);
        if (pointed_) {
            session_.Click(*pointed_);
        }
    }
}

void PracticeClient::HandleMotion(const SDL_MouseMotionEvent& motion)
{
    if ((motion.state & SDL_BUTTON_MMASK) != 0) {
        camera_.Scroll(-motion.xrel, -motion.yrel);
        changed_ = true;
    } else if (session_.Waiting()) {
        PointAt(motion.x, motion.y);
        changed_ = true;
    }
}

void PracticeClient::PointAt(int x, int y)
{
    pointed_ = scene_.Pick({x, y}, canvas_.Width(), canvas_.Height(), session_, camera_);
}

void PracticeClient::LogNewLines()
{
    std::vector<std::string> lines = chat_.TakeLines();
    if (lines.empty()) {
        return;
    }
    for (std::string& line : lines) {
        if (log_.is_open()) {
            log_ << line << '\n';
        }
        backlog_.push_back(std::move(line));
    }
    if (log_.is_open() && !log_.flush()) {
        std::cerr << "quernfield-practice: cannot write to the log \"" << options_.logFile << "\"\n";
        log_.close();
    }
}

void PracticeClient::ObeyLines()
{
    streaming_ = !backlog_.empty();
    const Uint64 until = SDL_GetTicks64() + ObeyTime;
    while (!backlog_.empty() && SDL_GetTicks64() < until) {
        session_.Receive(backlog_.front());
        backlog_.pop_front();
        changed_ = true;
    }
}

void PracticeClient::ShowPosition()
{
    const Position& position = session_.Player();
    if (shownPosition_ == position) {
        return;
    }
    const bool moved = shownPosition_.has_value();
    shownPosition_ = position;
    memory_.Write(position);
    if (moved && log_.is_open()) {
        // Written behind the memory, so that who waits for the line reads the new place.
        log_ << "position " << position.x << ' ' << position.y << ' ' << position.z << std::endl;
    }
    if (classWindow_) {
        classWindow_->Show(position);
    }
    camera_.LookAt(position);
    changed_ = true;
}

void PracticeClient::DrawIfDue()
{
    const Uint64 now = SDL_GetTicks64();
    if (!changed_ || now < nextDraw_) {
        return;
    }
    Draw();
    changed_ = false;
    // A view that takes long to draw is drawn less often, so that the typing always has most of the time.
    const Uint64 cost = SDL_GetTicks64() - now;
    nextDraw_ = now + std::max(streaming_ ? StreamFrameTime : FrameTime, 4 * cost);
}

void PracticeClient::Draw()
{
    SDL_Surface* surface = SDL_GetWindowSurface(window_);
    if (surface == nullptr) {
        return;
    }
    if (surface->w != canvas_.Width() || surface->h != canvas_.Height()) {
        canvas_ = Canvas(surface->w, surface->h);
    }
    scene_.Draw(canvas_, session_, camera_, pointed_);
    DrawHud(canvas_, session_, chat_.Text(), camera_.cutAway);
    SDL_ConvertPixels(canvas_.Width(), canvas_.Height(), SDL_PIXELFORMAT_ARGB8888, canvas_.Pixels(),
                      canvas_.Width() * 4, surface->format->format, surface->pixels, surface->pitch);
    SDL_UpdateWindowSurface(window_);
}

void PracticeClient::SaveScreenshot()
{
    SDL_Surface* picture =
        SDL_CreateRGBSurfaceWithFormat(0, canvas_.Width(), canvas_.Height(), 24, SDL_PIXELFORMAT_BGR24);
    const bool written =
        picture != nullptr &&
        SDL_ConvertPixels(canvas_.Width(), canvas_.Height(), SDL_PIXELFORMAT_ARGB8888, canvas_.Pixels(),
                          canvas_.Width() * 4, picture->format->format, picture->pixels, picture->pitch) == 0 &&
        SDL_SaveBMP(picture, options_.screenshotFile.c_str()) == 0;
    if (!written) {
        std::cerr << "quernfield-practice: cannot write \"" << options_.screenshotFile << "\": " << SDL_GetError()
                  << "\n";
    }
    SDL_FreeSurface(picture);
}

} // namespace qf::practice
