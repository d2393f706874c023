#pragma once

#include <SDL.h>

#include <deque>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "practice/canvas.h"
#include "practice/chat_line.h"
#include "practice/class_window.h"
#include "practice/options.h"
#include "practice/position_memory.h"
#include "practice/scene.h"
#include "practice/session.h"

namespace qf::practice {

/// The practice client's window and its event loop.
class PracticeClient {
  public:
    /// Opens the log and the windows. Throws std::runtime_error.
    explicit PracticeClient(const Options& options);
    ~PracticeClient();
    PracticeClient(const PracticeClient&) = delete;
    PracticeClient& operator=(const PracticeClient&) = delete;

    /// Runs until the user closes the window.
    void Run();

  private:
    static int SDLCALL FilterEvent(void* self, SDL_Event* event);
    bool               TakeTyping(const SDL_Event& event);
    void               DrainEvents();
    void               Handle(const SDL_Event& event);
    void               HandleKey(const SDL_KeyboardEvent& key);
    void               HandleButton(const SDL_MouseButtonEvent& button);
    void               HandleMotion(const SDL_MouseMotionEvent& motion);
    void               LogNewLines();
    void               ObeyLines();
    void               ShowPosition();
    void               PointAt(int x, int y);
    void               DrawIfDue();
    void               Draw();
    void               SaveScreenshot();

    Options                      options_;
    std::ofstream                log_;
    Session                      session_;
    ChatLine                     chat_;
    Scene                        scene_;
    Camera                       camera_;
    Canvas                       canvas_;
    PositionMemory               memory_;
    std::unique_ptr<ClassWindow> classWindow_;
    SDL_Window*                  window_ = nullptr;
    std::deque<std::string>      backlog_; ///< received and logged, not yet obeyed
    std::optional<Spot>          pointed_;
    std::optional<Position>      shownPosition_;
    Uint64                       nextDraw_ = 0;
    bool                         changed_ = true;
    bool                         streaming_ = false;
    bool                         quit_ = false;
};

} // namespace qf::practice
